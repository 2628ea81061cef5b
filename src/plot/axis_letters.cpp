#include "plot/axis_letters.h"

#include <algorithm>

#include "plot/plot_mapping.h"

namespace zephyl {

namespace {

struct TLetter {
  TPoint pixels[13];
  int count;
};

constexpr TPoint plus_sign[] = {{4, 2}, {5, 2}, {6, 2}, {5, 1}, {5, 3}};

constexpr TLetter letters[] = {
    {{{0, 0}, {0, 1}, {1, 2}, {0, 3}, {0, 4}, {2, 0}, {2, 1}, {2, 3}, {2, 4}}, 9},
    {{{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 6}, {1, 4}, {1, 6}, {2, 0}, {2, 1}, {2, 2}, {2, 3}, {2, 4}, {2, 5}},
     13},
    {{{0, 0}, {0, 3}, {0, 4}, {1, 0}, {1, 2}, {1, 4}, {2, 0}, {2, 1}, {2, 4}}, 9},
};

constexpr int BESIDE = 5;        // pixels between the end and the letter
constexpr int OTHER_SIDE = -10;  // where that doesn't fit
constexpr int ROOM_RIGHT = 14;
constexpr int ROOM_BELOW = 12;

TPoint place_of(TPoint end) {
  return {end.x + (end.x + ROOM_RIGHT >= PLOT_WIDTH ? OTHER_SIDE : BESIDE),
          end.y + (end.y + ROOM_BELOW >= PLOT_HEIGHT ? OTHER_SIDE : BESIDE)};
}

// The ground reaches one pixel beyond the ink.
void clear_ground(TSurface& surface, const TLetter& letter, TPoint at) {
  TRect box = {0, 0, 0, 0};
  const auto include = [&](TPoint pixel) {
    box.right = std::max(box.right, pixel.x);
    box.bottom = std::max(box.bottom, pixel.y);
  };
  std::for_each(plus_sign, plus_sign + 5, include);
  std::for_each(letter.pixels, letter.pixels + letter.count, include);
  surface.fill({at.x - 1, at.y - 1, at.x + box.right + 1, at.y + box.bottom + 1}, WHITE);
}

}  // namespace

void draw_axis_letter(TSurface& surface, int axis, TPoint end, TColour colour) {
  const TLetter& letter = letters[axis];
  const TPoint at = place_of(end);
  const auto set = [&](TPoint pixel) { surface.set_pixel(at.x + pixel.x, at.y + pixel.y, colour); };
  clear_ground(surface, letter, at);
  std::for_each(plus_sign, plus_sign + 5, set);
  std::for_each(letter.pixels, letter.pixels + letter.count, set);
}

}  // namespace zephyl
