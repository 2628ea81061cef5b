// A picture in true colours, on which the images are drawn before they get their palette.
#pragma once

#include <cstdint>
#include <vector>

#include "mask.h"

namespace art {

using TColour = std::uint32_t;  // 0x00RRGGBB

// The two colours with a meaning in the decoder: what lies under shows through; the legend colour of the
// skin.
constexpr TColour CLEAR = 0xFF00FF;
constexpr TColour LEGEND = 0x00FF00;

// From a (part 0) to b (part 1).
TColour mix(TColour a, TColour b, double part);

struct TBox {
  int left;
  int top;
  int right;   // inclusive
  int bottom;  // inclusive

  int width() const { return right - left + 1; }
  int height() const { return bottom - top + 1; }
};

TBox box_at(int left, int top, int width, int height);
TBox grown(const TBox& box, int by);

class TCanvas {
 public:
  TCanvas(int width, int height, TColour colour = CLEAR);

  int width() const { return width_; }
  int height() const { return height_; }
  TColour at(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }
  void set(int x, int y, TColour colour);
  // Lays a colour over what is there, with `part` of it; does nothing to CLEAR pixels.
  void tint(int x, int y, TColour colour, double part);

  void tint_row(int y, TColour colour, double part);

  void fill(const TBox& box, TColour colour);
  // From the top row's colour to the bottom row's.
  void shade(const TBox& box, TColour top, TColour bottom);
  void frame(const TBox& box, TColour colour);
  void stamp(const TMask& mask, int x, int y, TColour colour);
  // In the middle of a box; half pixels go to the left and up.
  void stamp_centred(const TMask& mask, const TBox& box, TColour colour);
  // Copies all but CLEAR pixels.
  void draw(const TCanvas& other, int x, int y);
  // One pixel wide, both ends included.
  void line(int x1, int y1, int x2, int y2, TColour colour);
  // With smooth edges, `width` pixels wide, between points that may lie between pixels.
  void stroke(double x1, double y1, double x2, double y2, double width, TColour colour);
  // A filled circle with smooth edges.
  void disc(double x, double y, double radius, TColour colour);

 private:
  int width_;
  int height_;
  std::vector<TColour> pixels_;
};

// What a picture adds to another of the same size: CLEAR where they are the same.
TCanvas difference(const TCanvas& with, const TCanvas& without);

}  // namespace art
