// Calls one row of the operation table as the evaluator does for numbers, without an expression around it:
// exact values go in and come out.
#pragma once

#include "engine/errors.h"
#include "engine/operation_codes.h"
#include "engine/values.h"

namespace zephyl {

constexpr int NO_ERROR = -1;

struct TOutcome {
  TValue value;
  int error = NO_ERROR;  // TError
};

// The row's real rule where it applies under settings.complexFormat, else its handler for numbers.
TOutcome operate(TOp_Code op, TValue left, TValue right = {});
TOutcome operate(TOp_Code op, double left, double right = 0.0);

// The result of a call that must succeed; fails the test where it doesn't.
TValue result_of(TOp_Code op, TValue left, TValue right = {});
double real_result_of(TOp_Code op, double left, double right = 0.0);

}  // namespace zephyl
