#include "programs/working_functions.h"

#include <algorithm>

#include "engine/expression.h"

namespace zephyl {

namespace {

TExpression stored[WORKING_FUNCTION_COUNT];
bool taken = false;

}  // namespace

void take_working_functions() {
  if (taken) return;
  const TExpression* const working = function_slots + FIRST_PROGRAM_FUNCTION;
  std::copy(working, working + WORKING_FUNCTION_COUNT, stored);
  taken = true;
}

void drop_working_functions() {
  if (!taken) return;
  std::copy(stored, stored + WORKING_FUNCTION_COUNT, function_slots + FIRST_PROGRAM_FUNCTION);
  taken = false;
}

void forget_working_functions() { taken = false; }

}  // namespace zephyl
