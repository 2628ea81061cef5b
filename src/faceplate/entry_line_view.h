// The entry line on the display: which tokens show, where each of them stands, and the way back from a tap to
// a token. The cursor is always in view.
#pragma once

#include "engine/expression.h"
#include "platform/surface.h"

namespace zephyl {

// Where a token stands on the display; `right` is its last column.
struct TScreenMapEntry {
  int left;
  int right;
  int token;
};

constexpr int SCREEN_MAP_LIMIT = 105;

struct TScreenMap {
  TScreenMapEntry entries[SCREEN_MAP_LIMIT];
  int count = 0;
};

// The map of the line as it was drawn last.
const TScreenMap& screen_map();

// Whether this screen has an entry line now.
bool shows_entry_line();

// Paints the line onto a surface and makes the map.
void paint_entry_line(TSurface& surface, bool with_cursor);

// Paints the line onto the screen at once. with_cursor: the cursor shows from now on, or doesn't.
void draw_expression(bool with_cursor);

// A tap on the line moves the cursor in front of the token drawn there; elsewhere it does nothing.
void cursor_to_tap(int x, int y);

}  // namespace zephyl
