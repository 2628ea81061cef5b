// What the files that edit the entry line share. Everybody else uses expression.h.
#pragma once

#include "engine/expression.h"

namespace zephyl {

// Postfix and infix operators, stores into memories and unit conversions: they go on with the answer after a
// result.
bool wants_left_operand(TToken token);
// True if inserting the token now would put an answer in front of it.
bool begins_with_answer(TToken token);
// Draws the line with its cursor and takes the result off the display.
void show_entry();
void blank_result_line();

}  // namespace zephyl
