#include "mask.h"

#include <algorithm>
#include <cstring>

namespace art {

TMask::TMask(int width, int height)
    : width_(width),
      height_(height),
      bits_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

TMask::TMask(std::initializer_list<const char*> rows) {
  for (const char* row : rows) width_ = std::max(width_, static_cast<int>(std::strlen(row)));
  *this = TMask(width_, static_cast<int>(rows.size()));
  int y = 0;
  for (const char* row : rows) {
    for (int x = 0; row[x]; ++x) set(x, y, row[x] == '#');
    ++y;
  }
}

bool TMask::ink(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return false;
  return bits_[static_cast<std::size_t>(y * width_ + x)];
}

void TMask::set(int x, int y, bool ink) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  bits_[static_cast<std::size_t>(y * width_ + x)] = ink;
}

void TMask::fill(int left, int top, int right, int bottom) {
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) set(x, y);
}

void TMask::stamp(const TMask& other, int x, int y) {
  for (int dy = 0; dy < other.height_; ++dy)
    for (int dx = 0; dx < other.width_; ++dx)
      if (other.ink(dx, dy)) set(x + dx, y + dy);
}

int TMask::ink_left() const {
  for (int x = 0; x < width_; ++x)
    for (int y = 0; y < height_; ++y)
      if (ink(x, y)) return x;
  return 0;
}

int TMask::ink_right() const { return ink_left() == 0 && width_ == 0 ? 0 : width_ - flipped().ink_left(); }

int TMask::ink_top() const {
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x)
      if (ink(x, y)) return y;
  return 0;
}

int TMask::ink_bottom() const { return height_ - turned().ink_top(); }

TMask TMask::part(int left, int top, int right, int bottom) const {
  TMask out(std::max(right - left, 0), std::max(bottom - top, 0));
  for (int y = 0; y < out.height_; ++y)
    for (int x = 0; x < out.width_; ++x) out.set(x, y, ink(left + x, top + y));
  return out;
}

TMask TMask::trimmed() const { return part(ink_left(), 0, ink_right(), height_); }

TMask TMask::flipped() const {
  TMask out(width_, height_);
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) out.set(width_ - 1 - x, y, ink(x, y));
  return out;
}

TMask TMask::turned() const {
  TMask out(width_, height_);
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) out.set(x, height_ - 1 - y, ink(x, y));
  return out;
}

TMask TMask::quarter_turn() const {
  TMask out(height_, width_);
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) out.set(height_ - 1 - y, x, ink(x, y));
  return out;
}

TMask joined(const std::vector<TMask>& masks, int gap) {
  int width = 0, height = 0;
  for (const TMask& mask : masks) {
    width += mask.width() + (&mask == &masks.front() ? 0 : gap);
    height = std::max(height, mask.height());
  }
  TMask out(width, height);
  int x = 0;
  for (const TMask& mask : masks) {
    out.stamp(mask, x, 0);
    x += mask.width() + gap;
  }
  return out;
}

}  // namespace art
