#include "engine/real_program.h"

#include <algorithm>
#include <cmath>

#include "engine/compiled.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/faults.h"

namespace zephyl {

// --- Actions

namespace {

bool is_finite(double x) { return x - x == 0.0; }

bool next(const TRealStep* step) { return step[1].run(step + 1); }

bool store(const TRealStep* step, double result) {
  *step->out = result;
  return next(step);
}

bool store_checked(const TRealStep* step, double result) {
  *step->out = result;
  return is_finite(result) && next(step);
}

// The arithmetic of the commonest operations stands here itself, and is that of their rules. Without a check
// they hand a result that isn't finite on: what they feed is not finite either, and the check of a later step
// finds it.
template <bool (*end)(const TRealStep*, double)>
struct TArithmetic {
  static bool plus(const TRealStep* step) { return end(step, *step->left + *step->right); }
  static bool minus(const TRealStep* step) { return end(step, *step->left - *step->right); }
  static bool times(const TRealStep* step) { return end(step, *step->left * *step->right); }
  static bool negative(const TRealStep* step) { return end(step, -*step->left); }
  static bool magnitude(const TRealStep* step) { return end(step, std::fabs(*step->left)); }
  static bool square(const TRealStep* step) { return end(step, *step->left * *step->left); }
  static bool cube(const TRealStep* step) { return end(step, *step->left * *step->left * *step->left); }
};
using TUnchecked = TArithmetic<store>;
using TChecked = TArithmetic<store_checked>;

bool over(const TRealStep* step) { return store_checked(step, *step->left / *step->right); }

bool call(const TRealStep* step) {
  const double result = step->rule(*step->left, *step->right);
  return !errors.error_flag && store_checked(step, result);
}

bool call_with_flags(const TRealStep* step) {
  clear_faults();
  const double result = step->rule(*step->left, *step->right);
  return !report_fault() && !errors.error_flag && store_checked(step, result);
}

bool end_of_whole(const TRealStep*) {
  registers[0].value.im = 0.0;
  registers[0].type = TYPE_NUMBER;
  return true;
}

bool end_of_part(const TRealStep*) { return true; }

TRealAction checked(TRealAction action) {
  constexpr TRealAction pairs[][2] = {{TUnchecked::plus, TChecked::plus},
                                      {TUnchecked::minus, TChecked::minus},
                                      {TUnchecked::times, TChecked::times},
                                      {TUnchecked::negative, TChecked::negative},
                                      {TUnchecked::magnitude, TChecked::magnitude},
                                      {TUnchecked::square, TChecked::square},
                                      {TUnchecked::cube, TChecked::cube}};
  for (const auto& pair : pairs)
    if (pair[0] == action) return pair[1];
  return action;
}

// A quotient and a call may make a finite result of an operand that isn't.
bool hides_its_operands(TRealAction action) {
  return action == over || action == call || action == call_with_flags;
}

bool is_literal(const TOperand& operand, double value) {
  return operand.kind == OPERAND_LITERAL && operand.literal.re == value && is_real(operand.literal);
}

// A power to the literal 2 or 3 is a product, as real_power has it.
TRealAction action_of_power(const TStep& step) {
  if (is_literal(step.operand[1], 2.0)) return TUnchecked::square;
  if (is_literal(step.operand[1], 3.0)) return TUnchecked::cube;
  return call;
}

TRealAction action_of(const TStep& step) {
  switch (step.op) {
    case OP_PLUS:
      return TUnchecked::plus;
    case OP_MINUS:
      return TUnchecked::minus;
    case OP_MULTIPLY:
    case OP_MULTIPLY_OPERAND:
    case OP_MULTIPLY_FUNCTION:
      return TUnchecked::times;
    case OP_DIVIDE:
      return over;
    case OP_NEG:
      return TUnchecked::negative;
    case OP_ABS:
      return TUnchecked::magnitude;
    case OP_SQUARED:
      return TUnchecked::square;
    case OP_CUBE:
      return TUnchecked::cube;
    case OP_POWER:
      return action_of_power(step);
    default:
      return step.reads_flags ? call_with_flags : call;
  }
}

}  // namespace

// --- Building

// The last step that writes a cell checks its result.
void TRealProgramBuilder::check_result_of(const double* cell) {
  for (int i = count_ - 1; i >= 0; --i)
    if (program_.steps[i].out == cell) {
      program_.steps[i].run = checked(program_.steps[i].run);
      return;
    }
}

void TRealProgramBuilder::check_operands(const TStep& step, TRealAction action) {
  if (!hides_its_operands(action)) return;
  check_result_of(&step.cell[0]->re);
  check_result_of(&step.cell[1]->re);
}

// False for an operand that is complex by its nature.
bool TRealProgramBuilder::add_input(const TStep& step, int side) {
  const TOperandClass kind = step.operand[side].kind;
  if (kind == OPERAND_I) return false;
  if (kind != OPERAND_MEMORY && kind != OPERAND_ANS) return true;
  const TValue** const end = program_.inputs + program_.input_count;
  if (std::find(program_.inputs, end, step.cell[side]) == end)
    program_.inputs[program_.input_count++] = step.cell[side];
  return program_.input_count < REAL_STEP_LIMIT;
}

void TRealProgramBuilder::add(const TStep& step) {
  possible_ = possible_ && step.path == PATH_SCALAR && step.real && step.real_use != REAL_NEVER &&
              add_input(step, 0) && add_input(step, 1);
  if (!possible_) return;
  real_use_ = std::max(real_use_, step.real_use);
  const TRealAction action = action_of(step);
  check_operands(step, action);
  program_.steps[count_++] = {action, &step.cell[0]->re, &step.cell[1]->re, &step.out->value.re, step.real};
}

void TRealProgramBuilder::finish(bool whole) {
  program_.real_use = real_use_;
  program_.count = possible_ ? count_ : 0;
  if (program_.count == 0) return;
  check_result_of(program_.steps[count_ - 1].out);
  program_.steps[count_] = {whole ? end_of_whole : end_of_part, nullptr, nullptr, nullptr, nullptr};
}

// --- Failures

namespace {

// One step by its rule and with clean flags. True if it ended in an error.
bool ends_in_error(const TRealStep& step) {
  const double left = *step.left, right = *step.right;
  clear_faults();
  *step.out = step.rule(left, right);
  return errors.error_flag || report_fault();
}

}  // namespace

// All steps once more, one by one, to tell which result was not finite and why. Rules are pure, and inputs
// are no registers, so they give what they gave before.
void report_real_failure(const TRealProgram& program) {
  if (errors.error_flag) return;
  for (const TRealStep* step = program.steps; step != program.steps + program.count; ++step)
    if (ends_in_error(*step)) return;
  report_error(ERR_OVERFLOW);
}

}  // namespace zephyl
