#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace art {

TColour mix(TColour a, TColour b, double part) {
  TColour out = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    const double from = static_cast<double>(a >> shift & 255u), to = static_cast<double>(b >> shift & 255u);
    out |= static_cast<TColour>(std::lround(from + (to - from) * part)) << shift;
  }
  return out;
}

TBox box_at(int left, int top, int width, int height) {
  return {left, top, left + width - 1, top + height - 1};
}
TBox grown(const TBox& box, int by) { return {box.left - by, box.top - by, box.right + by, box.bottom + by}; }

TCanvas::TCanvas(int width, int height, TColour colour)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), colour) {}

void TCanvas::set(int x, int y, TColour colour) {
  if (x >= 0 && y >= 0 && x < width_ && y < height_)
    pixels_[static_cast<std::size_t>(y * width_ + x)] = colour;
}

void TCanvas::tint(int x, int y, TColour colour, double part) {
  if (part <= 0 || x < 0 || y < 0 || x >= width_ || y >= height_ || at(x, y) == CLEAR) return;
  set(x, y, mix(at(x, y), colour, std::min(part, 1.0)));
}

void TCanvas::tint_row(int y, TColour colour, double part) {
  for (int x = 0; x < width_; ++x) tint(x, y, colour, part);
}

void TCanvas::fill(const TBox& box, TColour colour) {
  for (int y = box.top; y <= box.bottom; ++y)
    for (int x = box.left; x <= box.right; ++x) set(x, y, colour);
}

void TCanvas::shade(const TBox& box, TColour top, TColour bottom) {
  const int steps = std::max(box.height() - 1, 1);
  for (int y = box.top; y <= box.bottom; ++y)
    fill({box.left, y, box.right, y}, mix(top, bottom, static_cast<double>(y - box.top) / steps));
}

void TCanvas::frame(const TBox& box, TColour colour) {
  fill({box.left, box.top, box.right, box.top}, colour);
  fill({box.left, box.bottom, box.right, box.bottom}, colour);
  fill({box.left, box.top, box.left, box.bottom}, colour);
  fill({box.right, box.top, box.right, box.bottom}, colour);
}

void TCanvas::stamp(const TMask& mask, int x, int y, TColour colour) {
  for (int dy = 0; dy < mask.height(); ++dy)
    for (int dx = 0; dx < mask.width(); ++dx)
      if (mask.ink(dx, dy)) set(x + dx, y + dy, colour);
}

void TCanvas::stamp_centred(const TMask& mask, const TBox& box, TColour colour) {
  stamp(mask, box.left + (box.width() - mask.width()) / 2, box.top + (box.height() - mask.height()) / 2,
        colour);
}

void TCanvas::draw(const TCanvas& other, int x, int y) {
  for (int dy = 0; dy < other.height_; ++dy)
    for (int dx = 0; dx < other.width_; ++dx)
      if (other.at(dx, dy) != CLEAR) set(x + dx, y + dy, other.at(dx, dy));
}

void TCanvas::line(int x1, int y1, int x2, int y2, TColour colour) {
  const int steps = std::max({std::abs(x2 - x1), std::abs(y2 - y1), 1});
  for (int i = 0; i <= steps; ++i) {
    const double part = static_cast<double>(i) / steps;
    set(static_cast<int>(std::lround(x1 + (x2 - x1) * part)),
        static_cast<int>(std::lround(y1 + (y2 - y1) * part)), colour);
  }
}

void TCanvas::stroke(double x1, double y1, double x2, double y2, double width, TColour colour) {
  const double dx = x2 - x1, dy = y2 - y1, length2 = dx * dx + dy * dy, reach = width / 2 + 1;
  const int left = static_cast<int>(std::floor(std::min(x1, x2) - reach));
  const int right = static_cast<int>(std::ceil(std::max(x1, x2) + reach));
  const int top = static_cast<int>(std::floor(std::min(y1, y2) - reach));
  const int bottom = static_cast<int>(std::ceil(std::max(y1, y2) + reach));
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) {
      const double along =
          length2 > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / length2, 0.0, 1.0) : 0.0;
      const double distance = std::hypot(x - x1 - along * dx, y - y1 - along * dy);
      tint(x, y, colour, width / 2 + 0.5 - distance);
    }
}

void TCanvas::disc(double x, double y, double radius, TColour colour) {
  stroke(x, y, x, y, 2 * radius, colour);
}

TCanvas difference(const TCanvas& with, const TCanvas& without) {
  TCanvas out(with.width(), with.height());
  for (int y = 0; y < with.height(); ++y)
    for (int x = 0; x < with.width(); ++x)
      if (with.at(x, y) != without.at(x, y)) out.set(x, y, with.at(x, y));
  return out;
}

}  // namespace art
