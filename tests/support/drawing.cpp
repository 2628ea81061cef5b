#include "support/drawing.h"

#include <algorithm>

#include "plot/plot_variables.h"

namespace zephyl {

int drawn::ink_count() {
  const std::vector<TColour> all = pixels();
  return static_cast<int>(
      std::count_if(all.begin(), all.end(), [](TColour colour) { return colour != WHITE; }));
}

TRect drawn::ink_box() {
  TRect box{PLOT_WIDTH, PLOT_HEIGHT, -1, -1};
  for (int row = 0; row < PLOT_HEIGHT; ++row)
    for (int column = 0; column < PLOT_WIDTH; ++column)
      if (ink(column, row))
        box = {std::min(box.left, column), std::min(box.top, row), std::max(box.right, column),
               std::max(box.bottom, row)};
  return box;
}

void drawn::view_of_pixels() { ASSERT_TRUE(set_plot_view(0, 0, 225, 179)); }

std::vector<TColour> drawn::pixels() {
  const TSurface& bitmap = drawing_bitmap();
  return {bitmap.pixels(), bitmap.pixels() + bitmap.width() * bitmap.height()};
}

}  // namespace zephyl
