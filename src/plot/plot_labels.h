// Words and numbers in the small font on a plot: the view's bounds in its corner, and what cursors and
// calculations say.
#pragma once

#include "platform/surface.h"

namespace zephyl {

constexpr int LABEL_LEFT = 2;
// Between two of them side by side.
constexpr int LABEL_GAP = 4;
// Where the numbers of a cursor or a calculation stand, and what was calculated above them.
constexpr int HEADING_ROW = 150;
constexpr int UPPER_ROW = 160;
constexpr int LOWER_ROW = 170;

// What stands for an undefined value, by its plot_error_code: the name of the word in the small font,
// "SMALL_DOMAIN", and the word as text, "Domain".
const char* small_error_word(int error_code);
const char* error_word_text(int error_code);

// A word by its name, then the number, or for undefined_value the word of plot_error_code. Returns where the
// next may begin.
int draw_small_word(TSurface& surface, const char* name, int left, int top);
int draw_small_line(TSurface& surface, const char* name, double value, int left, int top);

// A word by itself.
void draw_small_heading(TSurface& surface, const char* name, int left, int top);

// The bounds of the view and, but in 3D, the spacing of the grid.
void draw_view_labels(TSurface& surface);

}  // namespace zephyl
