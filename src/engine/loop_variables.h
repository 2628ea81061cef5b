// The variables that numeric operators run through: their values are put away when an operator starts and come back when
// it ends, by its result, an error or a cancel.
#pragma once

namespace zephyl {

constexpr int LOOP_VARIABLE_LIMIT = 11;

// Puts the value of a scalar memory away; ERR_MEMORY_LIMIT when the stack is full.
void push_loop_variable(int slot);
// Brings the last one back; nothing on an empty stack.
void pop_loop_variable();

// How many are put away, and back down to that many: for whoever ends a run in the middle.
int loop_variable_count();
void pop_loop_variables_to(int count);

}  // namespace zephyl
