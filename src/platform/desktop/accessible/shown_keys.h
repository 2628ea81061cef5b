// The keys of the screen that shows, as somebody goes through them who has no pen.
#pragma once

#include <vector>

#include "platform/geometry.h"

namespace zephyl {

// Rows of the shown key table that are keys, line by line from the top, each line from the left.
std::vector<int> shown_keys();

// The whole rectangle of a key, in pixels of the picture.
TRect rect_of_key(int key);

// A point where a tap meets this key and not one that lies above it. False if there is none.
bool point_of_key(int key, TPoint& at);

// The key in which a point is, else the nearest one; -1 where the screen has no keys.
int nearest_key(TPoint at);

// The next key from `key` in a direction, dx and dy being -1, 0 or 1; `key` itself at the edge.
int key_towards(int key, int dx, int dy);

}  // namespace zephyl
