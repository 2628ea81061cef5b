// The result line on the display, with its two scroll keys.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// Paints the line onto a surface; nothing shows where there is no text.
void paint_result_line(TSurface& surface);

// Paints the line onto the screen at once. home: scrolled back to its start.
void draw_result(bool home);

// One character to the left while something is scrolled off there, to the right while more lies there.
void scroll_result_left();
void scroll_result_right();

}  // namespace zephyl
