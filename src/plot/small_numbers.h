// The small font of the plot screens: numbers drawn from the glyphs named "SMALL_...", 7 to 9 pixels high.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// Name of the small glyph of a character of a number: digits, "( ) + , - . = E e ^ i". Any other shows
// "bitmap not found" under "get_small_number_character_bitmap" and gives the empty name. One shared buffer.
const char* get_small_number_character_bitmap(char character);

// Draws a text in the small font, the pen at x: from its first character to the right, or, with left_to_right
// false, from its last one to the left. measure_only: draws nothing. Returns where the pen ends, so that a
// measuring pass from the right gives the text's left edge.
int draw_small_number(TSurface& surface, const char* text, int x, int y, bool measure_only,
                      bool left_to_right, TColour ink = BLACK);

}  // namespace zephyl
