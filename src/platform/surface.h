// A picture in memory, 32 bits a pixel (0x00RRGGBB), on which the calculator paints everything it shows.
// All operations clip to the surface.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/geometry.h"

namespace zephyl {

using TColour = std::uint32_t;  // 0x00RRGGBB

constexpr TColour rgb(int red, int green, int blue) {
  return (static_cast<TColour>(red) << 16) | (static_cast<TColour>(green) << 8) | static_cast<TColour>(blue);
}
constexpr int red_of(TColour colour) { return static_cast<int>((colour >> 16) & 255u); }
constexpr int green_of(TColour colour) { return static_cast<int>((colour >> 8) & 255u); }
constexpr int blue_of(TColour colour) { return static_cast<int>(colour & 255u); }

// Five bits of red in the highest places, six of green, five of blue; and back, so that full stays full.
constexpr std::uint16_t pack_565(TColour colour) {
  return static_cast<std::uint16_t>((red_of(colour) >> 3) << 11 | (green_of(colour) >> 2) << 5 |
                                    blue_of(colour) >> 3);
}

constexpr TColour WHITE = rgb(255, 255, 255);
constexpr TColour BLACK = rgb(0, 0, 0);

// One bit a pixel, a set bit is ink; rows of (width + 7) / 8 bytes, leftmost pixel in the highest bit.
struct TBitmap {
  int width = 0;
  int height = 0;
  const std::uint8_t* bits = nullptr;

  bool ink(int x, int y) const {
    return (bits[static_cast<std::size_t>(y) * static_cast<std::size_t>((width + 7) / 8) +
                 static_cast<std::size_t>(x / 8)] >>
            (7 - x % 8)) &
           1;
  }
};

class TSurface {
 public:
  TSurface(int width, int height);

  int width() const { return width_; }
  int height() const { return height_; }
  // Row by row from the top, width() pixels a row.
  const TColour* pixels() const { return pixels_.data(); }
  TColour* row(int y) {
    return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }
  const TColour* row(int y) const {
    return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }

  // BLACK outside of the surface.
  TColour pixel(int x, int y) const;
  void set_pixel(int x, int y, TColour colour);

  void fill(const TRect& rect, TColour colour);
  // Copies width by height pixels of `source`, from its (sx, sy), to (x, y). The two may be the same surface.
  void blit(int x, int y, int width, int height, const TSurface& source, int sx, int sy);
  // The ink of a bitmap in `ink`; paper lets through what is there, unless `inverted`: then the whole block
  // is drawn, paper as `ink` and ink as `paper`.
  void blit_glyph(const TBitmap& glyph, int x, int y, TColour ink = BLACK, bool inverted = false,
                  TColour paper = WHITE);

  // One pixel wide, both ends painted, the same pixels in either direction. Coordinates of any size; those
  // beyond 10^9 count as 10^9.
  void line(TPoint from, TPoint to, TColour colour);
  // The same line, of which only the pixels within `clip` are painted.
  void line(TPoint from, TPoint to, TColour colour, const TRect& clip);
  // Lines from each point to the next; a single point paints its pixel.
  void polyline(const TPoint* points, int count, TColour colour);
  // The outermost pixels of the rectangle.
  void frame(const TRect& rect, TColour colour);
  // The bitmap over and over, as tiles that begin at the surface's origin.
  void fill_pattern(const TRect& rect, const TBitmap& tile, TColour ink, TColour paper);
  // The ellipse that fills the box: the pixels whose centres lie in it, or the outermost of these. An empty
  // box paints nothing; coordinates are limited as those of lines.
  void ellipse(const TRect& box, TColour colour);
  void fill_ellipse(const TRect& box, TColour colour);

 private:
  int width_;
  int height_;
  std::vector<TColour> pixels_;
};

}  // namespace zephyl
