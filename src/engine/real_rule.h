// The arithmetic of an operation on plain real numbers, as the walk over the steps calls it.
#pragma once

namespace zephyl {

// An operation on real numbers whose result is real. One-operand operations ignore `right`. It has no effect but its
// result, the error it may report and the floating-point flags it may raise.
using TRealRule = double (*)(double left, double right);

// When an operation may take its real rule. In this order: a walk allows all up to one of them.
enum TRealUse {
  REAL_ON_REAL = 1,      // whenever its operands are real: it never leaves the real line
  REAL_WHEN_FORCED = 2,  // only if the result must stay real: ST_REAL, or a plot
  REAL_NEVER = 3
};

}  // namespace zephyl
