// Points and rectangles of the picture, in its own pixels: origin at the top left, y downwards.
#pragma once

namespace zephyl {

struct TPoint {
  int x = 0;
  int y = 0;
};

// Inclusive on all four sides, as the key tables have it.
struct TRect {
  int left = 0;
  int top = 0;
  int right = -1;
  int bottom = -1;

  constexpr bool contains(int x, int y) const { return x >= left && x <= right && y >= top && y <= bottom; }
  constexpr int width() const { return right - left + 1; }
  constexpr int height() const { return bottom - top + 1; }
};

}  // namespace zephyl
