// Numbers for the cells of the list and matrix screens: each as exactly as the cell has room for.
#pragma once

#include "engine/values.h"

namespace zephyl {

// The value's text in the small font, at most `width` pixels wide if any form of it is: Float with 10 digits,
// else scientific with as many decimals, from 8 down, as fit. One shared buffer.
const char* cell_text(const TValue& value, int width);

// Width in pixels of a text in the small font.
int small_text_width(const char* text);

// Nothing is remembered any more of what fitted.
void forget_cell_forms();

}  // namespace zephyl
