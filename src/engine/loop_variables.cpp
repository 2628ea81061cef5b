#include "engine/loop_variables.h"

#include <algorithm>

#include "engine/errors.h"
#include "engine/memory.h"

namespace zephyl {

namespace {

struct TSavedVariable {
  int slot;
  TOp_Code op;
  TValue value;
};

TSavedVariable saved[LOOP_VARIABLE_LIMIT];
int saved_count = 0;

}  // namespace

void push_loop_variable(int slot, TOp_Code op) {
  if (saved_count >= LOOP_VARIABLE_LIMIT) return report_error(ERR_MEMORY_LIMIT);
  saved[saved_count++] = {slot, op, memory_array[slot]};
}

void pop_loop_variable() {
  if (saved_count == 0) return;
  const TSavedVariable& last = saved[--saved_count];
  memory_array[last.slot] = last.value;
}

bool runs_loop_of(TOp_Code op) {
  return std::any_of(saved, saved + saved_count, [op](const TSavedVariable& loop) { return loop.op == op; });
}

int loop_variable_count() { return saved_count; }

void pop_loop_variables_to(int count) {
  while (saved_count > count) pop_loop_variable();
}

}  // namespace zephyl
