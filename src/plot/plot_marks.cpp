#include "plot/plot_marks.h"

#include <algorithm>

#include "engine/values.h"
#include "plot/plot_mapping.h"

namespace zephyl {

namespace {

bool is_within(double pixel, int size) { return pixel != undefined_value && pixel >= 0.0 && pixel < size; }

void draw_dots(TSurface& surface, TPoint at, TColour colour) {
  for (const int dx : {-1, 1})
    for (const int dy : {-1, 1}) surface.set_pixel(at.x + dx, at.y + dy, colour);
}

void draw_box(TSurface& surface, TPoint at, TColour colour) {
  for (const int radius : {4, 5})
    surface.frame({at.x - radius, at.y - radius, at.x + radius, at.y + radius}, colour);
}

void dotted_row(TSurface& surface, int left, int right, int y) {
  for (int x = left; x <= right; x += 2) surface.set_pixel(x, y, BLACK);
}

void dotted_column(TSurface& surface, int top, int bottom, int x) {
  for (int y = top; y <= bottom; y += 2) surface.set_pixel(x, y, BLACK);
}

}  // namespace

void draw_cross(TSurface& surface, double column, double row, TColour colour, TMarker marker) {
  const bool in_columns = is_within(column, PLOT_WIDTH), in_rows = is_within(row, PLOT_HEIGHT);
  const TPoint at = {in_columns ? static_cast<int>(column) : 0, in_rows ? static_cast<int>(row) : 0};
  if (in_columns) surface.fill({at.x, 0, at.x, PLOT_HEIGHT - 1}, colour);
  if (in_rows) surface.fill({0, at.y, PLOT_WIDTH - 1, at.y}, colour);
  if (in_columns && in_rows) (marker == MARKER_DOTS ? draw_dots : draw_box)(surface, at, colour);
}

void draw_dotted_frame(TSurface& surface, TPoint from, TPoint to) {
  const int left = std::min(from.x, to.x), right = std::max(from.x, to.x);
  const int top = std::min(from.y, to.y), bottom = std::max(from.y, to.y);
  dotted_row(surface, left, right, top);
  dotted_row(surface, left, right, bottom);
  dotted_column(surface, top, bottom, left);
  dotted_column(surface, top, bottom, right);
}

}  // namespace zephyl
