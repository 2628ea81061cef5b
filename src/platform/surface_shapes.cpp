// Lines, frames, patterns and ellipses on a surface. What lies outside is skipped by arithmetic, so that a
// shape of any size costs no more than the surface's own pixels.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/surface.h"

namespace zephyl {

namespace {

// Keeps differences within 32 bits, and twice the product of two within 64.
constexpr int COORDINATE_LIMIT = 1000000000;

int limited(int coordinate) { return std::clamp(coordinate, -COORDINATE_LIMIT, COORDINATE_LIMIT); }

TRect limited(const TRect& rect) {
  return {limited(rect.left), limited(rect.top), limited(rect.right), limited(rect.bottom)};
}

TRect common_part(const TRect& a, const TRect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

std::int64_t floor_quotient(std::int64_t a, std::int64_t b) { return a >= 0 ? a / b : -((b - 1 - a) / b); }

// A line that goes up by one in its `long` coordinate at each step: the other one is that of the exact line,
// rounded, a half upwards.
struct TRun {
  std::int64_t first, last;  // of the long coordinate, within the limits of the clip
  std::int64_t other;        // at `first`
  std::int64_t rest, slope, unit;

  TRun(std::int64_t from, std::int64_t to, std::int64_t other_from, std::int64_t other_to, std::int64_t low,
       std::int64_t high)
      : first(std::max(from, low)), last(std::min(to, high)) {
    const std::int64_t length = std::max<std::int64_t>(to - from, 1);
    unit = 2 * length;
    slope = 2 * (other_to - other_from);
    const std::int64_t height = (first - from) * slope + length;
    const std::int64_t risen = floor_quotient(height, unit);
    other = other_from + risen;
    rest = height - risen * unit;
  }

  void step() {
    ++first;
    rest += slope;
    if (rest >= unit)
      rest -= unit, ++other;
    else if (rest < 0)
      rest += unit, --other;
  }
};

}  // namespace

void TSurface::line(TPoint from, TPoint to, TColour colour) {
  line(from, to, colour, {0, 0, width_ - 1, height_ - 1});
}

void TSurface::line(TPoint from, TPoint to, TColour colour, const TRect& clip) {
  from = {limited(from.x), limited(from.y)};
  to = {limited(to.x), limited(to.y)};
  const TRect area = common_part(clip, {0, 0, width_ - 1, height_ - 1});
  if (std::abs(to.x - from.x) >= std::abs(to.y - from.y)) {
    if (from.x > to.x) std::swap(from, to);
    for (TRun run(from.x, to.x, from.y, to.y, area.left, area.right); run.first <= run.last; run.step())
      if (run.other >= area.top && run.other <= area.bottom)
        row(static_cast<int>(run.other))[run.first] = colour;
  } else {
    if (from.y > to.y) std::swap(from, to);
    for (TRun run(from.y, to.y, from.x, to.x, area.top, area.bottom); run.first <= run.last; run.step())
      if (run.other >= area.left && run.other <= area.right)
        row(static_cast<int>(run.first))[run.other] = colour;
  }
}

void TSurface::polyline(const TPoint* points, int count, TColour colour) {
  if (count == 1) set_pixel(points[0].x, points[0].y, colour);
  for (int i = 1; i < count; ++i) line(points[i - 1], points[i], colour);
}

void TSurface::frame(const TRect& rect, TColour colour) {
  if (rect.left > rect.right || rect.top > rect.bottom) return;
  fill({rect.left, rect.top, rect.right, rect.top}, colour);
  fill({rect.left, rect.bottom, rect.right, rect.bottom}, colour);
  fill({rect.left, rect.top, rect.left, rect.bottom}, colour);
  fill({rect.right, rect.top, rect.right, rect.bottom}, colour);
}

void TSurface::fill_pattern(const TRect& rect, const TBitmap& tile, TColour ink, TColour paper) {
  const TRect area = common_part(rect, {0, 0, width_ - 1, height_ - 1});
  for (int y = area.top; y <= area.bottom; ++y)
    for (int x = area.left; x <= area.right; ++x)
      row(y)[x] = tile.ink(x % tile.width, y % tile.height) ? ink : paper;
}

namespace {

struct TSpan {
  int left, right;  // empty when left is above right
};

// The pixels of a row of the box whose centres lie in its ellipse. Distances are counted in half pixels from
// the centre.
TSpan ellipse_span(const TRect& box, int y) {
  const double width = box.width(), height = box.height();
  const double from_centre = std::fabs(2.0 * y - box.top - box.bottom);
  if (from_centre >= height) return {1, 0};
  const double half = width * std::sqrt((height - from_centre) * (height + from_centre)) / height;
  const int inset = static_cast<int>(std::ceil((width - 1.0 - half) / 2.0));
  return {box.left + std::max(inset, 0), box.right - std::max(inset, 0)};
}

}  // namespace

void TSurface::fill_ellipse(const TRect& any_box, TColour colour) {
  const TRect box = limited(any_box);
  if (box.left > box.right) return;
  for (int y = std::max(box.top, 0); y <= std::min(box.bottom, height_ - 1); ++y) {
    const TSpan span = ellipse_span(box, y);
    fill({span.left, y, span.right, y}, colour);
  }
}

void TSurface::ellipse(const TRect& any_box, TColour colour) {
  const TRect box = limited(any_box);
  if (box.left > box.right) return;
  for (int y = std::max(box.top, 0); y <= std::min(box.bottom, height_ - 1); ++y) {
    const TSpan span = ellipse_span(box, y);
    const bool upper = y < box.top + (box.bottom - box.top + 1) / 2;
    const TSpan outer = ellipse_span(box, upper ? y - 1 : y + 1);
    if (outer.left > outer.right) {
      fill({span.left, y, span.right, y}, colour);
    } else {
      fill({span.left, y, std::max(span.left, outer.left - 1), y}, colour);
      fill({std::min(span.right, outer.right + 1), y, span.right, y}, colour);
    }
  }
}

}  // namespace zephyl
