#include "programs/operands.h"

#include "engine/errors.h"
#include "engine/memory.h"

namespace zephyl {

bool is_scalar_slot(int slot) {
  const TSlotClass slots = slot_class(slot);
  if (slots >= CLASS_R && slots <= CLASS_GREEK) return true;
  report_error(slots == CLASS_NONE ? ERR_UNEXPECTED : ERR_DATA_TYPE);
  return false;
}

namespace {

// An operand by its slot; OPERAND_ZERO and OPERAND_ANSWER stand for themselves.
double operand_value(int slot) {
  if (slot == OPERAND_ZERO) return 0.0;
  if (slot == OPERAND_ANSWER) return answers.ans.re;
  return is_scalar_slot(slot) ? memory_array[slot].re : 0.0;
}

bool compares(int compare, double left, double right) {
  switch (compare) {
    case COMPARE_EQUAL:
      return left == right;
    case COMPARE_NOT_EQUAL:
      return left != right;
    case COMPARE_LESS:
      return left < right;
    case COMPARE_GREATER:
      return left > right;
    case COMPARE_GREATER_EQUAL:
      return left >= right;
    case COMPARE_LESS_EQUAL:
      return left <= right;
    default:
      report_error(ERR_UNEXPECTED);
      return false;
  }
}

}  // namespace

bool condition_holds(const ProgramStatement& statement) {
  // A left operand has no zero: -1 of a file would be one.
  const int left_slot = left_operand(statement);
  if (left_slot == OPERAND_ZERO) report_error(ERR_UNEXPECTED);
  const double left = operand_value(left_slot);
  const double right = operand_value(right_operand(statement));
  return compares(statement.compare, left, right) && !errors.error_flag;
}

}  // namespace zephyl
