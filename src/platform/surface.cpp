#include "platform/surface.h"

#include <algorithm>
#include <cstring>

namespace zephyl {

TSurface::TSurface(int width, int height)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), WHITE) {}

TColour TSurface::pixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return BLACK;
  return row(y)[x];
}

void TSurface::set_pixel(int x, int y, TColour colour) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  row(y)[x] = colour;
}

void TSurface::fill(const TRect& rect, TColour colour) {
  const int left = std::max(rect.left, 0), right = std::min(rect.right, width_ - 1);
  if (left > right) return;
  for (int y = std::max(rect.top, 0); y <= std::min(rect.bottom, height_ - 1); ++y)
    std::fill(row(y) + left, row(y) + right + 1, colour);
}

void TSurface::blit(int x, int y, int width, int height, const TSurface& source, int sx, int sy) {
  const int skip_x = std::max({0, -x, -sx}), skip_y = std::max({0, -y, -sy});
  x += skip_x, sx += skip_x, width -= skip_x;
  y += skip_y, sy += skip_y, height -= skip_y;
  width = std::min({width, width_ - x, source.width_ - sx});
  height = std::min({height, height_ - y, source.height_ - sy});
  if (width <= 0 || height <= 0) return;
  const bool upwards = &source == this && sy < y;
  for (int i = 0; i < height; ++i) {
    const int line = upwards ? height - 1 - i : i;
    std::memmove(row(y + line) + x, source.row(sy + line) + sx,
                 static_cast<std::size_t>(width) * sizeof(TColour));
  }
}

void TSurface::blit_glyph(const TBitmap& glyph, int x, int y, TColour ink, bool inverted, TColour paper) {
  for (int dy = 0; dy < glyph.height; ++dy)
    for (int dx = 0; dx < glyph.width; ++dx) {
      const bool is_ink = glyph.ink(dx, dy);
      if (inverted)
        set_pixel(x + dx, y + dy, is_ink ? paper : ink);
      else if (is_ink)
        set_pixel(x + dx, y + dy, ink);
    }
}

}  // namespace zephyl
