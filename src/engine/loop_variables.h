// The variables that numeric operators run through: their values are put away when an operator starts and
// come back when it ends, by its result, an error or a cancel. One entry for each operator that is under way,
// the innermost last.
#pragma once

#include "engine/operation_codes.h"

namespace zephyl {

constexpr int LOOP_VARIABLE_LIMIT = 11;

// Puts the value of a scalar memory away for an operator; ERR_MEMORY_LIMIT when the stack is full.
void push_loop_variable(int slot, TOp_Code op);
// Brings the last one back; nothing on an empty stack.
void pop_loop_variable();

// True while such an operator is under way, in this expression or in one that waits for it.
bool runs_loop_of(TOp_Code op);

// How many are put away, and back down to that many: for whoever ends a run in the middle.
int loop_variable_count();
void pop_loop_variables_to(int count);

}  // namespace zephyl
