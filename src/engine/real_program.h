// The fastest road through an expression: where every step has a real rule and every operand is real, the
// steps are run as a compact list on doubles. Plots, bodies of numeric operators and programs live on it.
#pragma once

#include <cstdint>

#include "engine/real_rule.h"
#include "engine/values.h"

namespace zephyl {

struct TStep;

struct TRealStep;

// Does a step and goes on with the next one; false when an error stands or a result is not finite. Each ends
// in the call of the next, which the compiler makes a jump.
using TRealAction = bool (*)(const TRealStep* step);

struct TRealStep {
  TRealAction run;
  const double* left;
  const double* right;
  double* out;
  TRealRule rule;
};

constexpr int REAL_STEP_LIMIT = 100;

struct TRealProgram {
  TRealStep steps[REAL_STEP_LIMIT + 1];   // and one that ends them
  int count = 0;                          // 0: there is no such road through the expression
  TRealUse real_use = REAL_ON_REAL;       // the strongest demand of its rules
  const TValue* inputs[REAL_STEP_LIMIT];  // memories and answers that must be real
  int input_count = 0;
};

// Starts anew; then a step at a time, in the order of evaluation. A step that has no real rule, or an operand
// that isn't real by its nature, ends it: the program stays empty.
class TRealProgramBuilder {
 public:
  explicit TRealProgramBuilder(TRealProgram& program) : program_(program) {
    program_.count = program_.input_count = 0;
  }
  void add(const TStep& step);
  // whole: the steps are an expression, whose value in register 0 becomes a real number. A part of one, as
  // the body of a numeric operator is, leaves the real parts in its registers and touches nothing else.
  void finish(bool whole = true);

 private:
  bool add_input(const TStep& step, int side);
  void check_operands(const TStep& step, TRealAction action);
  void check_result_of(const double* cell);

  TRealProgram& program_;
  bool possible_ = true;
  TRealUse real_use_ = REAL_ON_REAL;
  int count_ = 0;
};

// True if all inputs are real now.
inline bool inputs_are_real(const TRealProgram& program) {
  for (int i = 0; i < program.input_count; ++i)
    if (program.inputs[i]->im != 0.0) return false;
  return true;
}

// Reports why a run failed.
void report_real_failure(const TRealProgram& program);

// Leaves the value in its register, or an error, and false.
inline bool run_real_program(const TRealProgram& program) {
  if (program.steps[0].run(program.steps)) return true;
  report_real_failure(program);
  return false;
}

}  // namespace zephyl
