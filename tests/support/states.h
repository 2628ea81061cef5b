// The whole state as text, for tests that compare it before and after.
#pragma once

#include <string>

namespace zephyl {

// Fills everything that a state file keeps: all memories, 999 statistics rows, 11 lists of 999 elements, 11
// matrices of 30 by 30, 11 strings, all functions, the history, the options and a drawing.
void fill_state();

// The records that a save of all items writes, and the drawing's pixels.
std::string state_text();

// As at the start of the calculator, with nothing checked in save_items.
void empty_state();

}  // namespace zephyl
