// The stores of expressions: the line being edited, and the slots that expressions name.

#include "engine/expression.h"

#include <algorithm>

namespace zephyl {

TEntryLine entry_line;
THistory history;
TExpression function_slots[FUNCTION_SLOT_COUNT];

bool operator==(const TExpression& a, const TExpression& b) {
  return a.count == b.count && std::equal(a.tokens, a.tokens + a.count, b.tokens);
}

const char* function_slot_name(int slot) {
  // Slots 18 to 20 are empty places.
  static constexpr const char* names[] = {
      "f1(x)",     "f2(x)",     "f3(x)",     "f4(x)",     "f5(x)", "f6(x)", "R1(theta)", "R2(theta)",
      "R3(theta)", "R4(theta)", "R5(theta)", "R6(theta)", "X1(t)", "Y1(t)", "X2(t)",     "Y2(t)",
      "X3(t)",     "Y3(t)",     "",          "",          "",      "f1()",  "f2()",      "f3()",
      "f4()",      "f5()",      "f6()",      "f7()",      "f8()",  "f9()"};
  constexpr int name_count = sizeof(names) / sizeof(names[0]);
  static_assert(name_count == FIRST_PROGRAM_FUNCTION + 9);
  return slot >= 0 && slot < name_count ? names[slot] : "";
}

void clear_entry_line() {
  entry_line.expression.count = 0;
  entry_line.cursor = 0;
}

void reset_expressions() {
  entry_line = {};
  history = {};
  std::fill(function_slots, function_slots + FUNCTION_SLOT_COUNT, TExpression{});
}

}  // namespace zephyl
