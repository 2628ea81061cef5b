// The picture, and where the display lies on it.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// The picture that the driver shows (events.h: screen()). All painting goes here.
TSurface& screen_surface();

// The display of the screens with an entry line and a result line.
constexpr TRect DISPLAY_RECT = {7, 6, 232, 46};

constexpr int LINE_LEFT = 7;
constexpr int LINE_RIGHT = 232;
constexpr int LINE_HEIGHT = 18;
constexpr int TEXT_LEFT = 20;
constexpr int ENTRY_LINE_Y = 8;
constexpr int RESULT_LINE_Y = 27;
// The most pixels of glyphs that a line takes.
constexpr int ENTRY_TEXT_WIDTH = 202;
constexpr int RESULT_TEXT_WIDTH = 203;

// The setting display_color, which holds its red in the low byte.
TColour display_colour();

// Fills the row that begins at y with the display's colour.
void clear_line(TSurface& surface, int y);

}  // namespace zephyl
