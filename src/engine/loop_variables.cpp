#include "engine/loop_variables.h"

#include "engine/errors.h"
#include "engine/memory.h"

namespace zephyl {

namespace {

struct TSavedVariable {
  int slot;
  TValue value;
};

TSavedVariable saved[LOOP_VARIABLE_LIMIT];
int saved_count = 0;

}  // namespace

void push_loop_variable(int slot) {
  if (saved_count >= LOOP_VARIABLE_LIMIT) return report_error(ERR_MEMORY_LIMIT);
  saved[saved_count++] = {slot, memory_array[slot]};
}

void pop_loop_variable() {
  if (saved_count == 0) return;
  const TSavedVariable& last = saved[--saved_count];
  memory_array[last.slot] = last.value;
}

int loop_variable_count() { return saved_count; }

void pop_loop_variables_to(int count) {
  while (saved_count > count) pop_loop_variable();
}

}  // namespace zephyl
