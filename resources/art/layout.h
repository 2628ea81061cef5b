// Where the keys of the fronts lie: the rectangles that the program's key tables hold, as the art needs them.
#pragma once

#include "canvas.h"

namespace art {

constexpr int FRONT_WIDTH = 240;
constexpr int FRONT_HEIGHT = 294;

constexpr int SMALL_KEY_WIDTH = 36;
constexpr int SMALL_KEY_HEIGHT = 18;
constexpr int LARGE_KEY_WIDTH = 43;
constexpr int LARGE_KEY_HEIGHT = 22;

// Rows 0 to 42 and 49 of the calculator's keys.
TBox calculator_key(int row);
// Rows 0 to 17 of the program editor's keys.
TBox program_key(int row);
// Rows 1 to 11 and 18 to 23 of the plot's keys, in the layout for 3D plots or the other.
TBox plot_key(int row, bool is_3d);
// Rows 6 to 31 of the keys of the list and matrix screens.
TBox list_key(int row);
// Rows 0 to 41 of the keys of the text entry, within its overlay.
TBox alpha_key(int row);
// Rows 0 and 1 of the periodic screen, and the cell of an element by period and group, both from 1; groups 19
// to 32 of periods 6 and 7 are the 14 elements that stand apart.
TBox periodic_key(int row);
TBox element_cell(int period, int group);

constexpr TBox DISPLAY_BOX = {7, 6, 232, 46};
constexpr TBox TALL_DISPLAY_BOX = {7, 6, 232, 185};

// The line of tabs, and its place on the two kinds of screen.
constexpr int TAB_LINE_HEIGHT = 13;
constexpr int TAB_LINE_TOP = 54;
constexpr int LOW_TAB_LINE_TOP = 193;
constexpr int TAB_WIDTH = 37;
constexpr int tab_left(int tab) { return 4 + 39 * tab; }

}  // namespace art
