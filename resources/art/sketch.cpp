#include "sketch.h"

#include <algorithm>
#include <cmath>

#include "typefaces.h"

namespace art {

void arrow(TCanvas& canvas, TPoint2 from, TPoint2 to, TColour colour) {
  constexpr double width = 1.3;
  canvas.stroke(from.x, from.y, to.x, to.y, width, colour);
  const double angle = std::atan2(to.y - from.y, to.x - from.x);
  for (double side : {-0.45, 0.45})
    canvas.stroke(to.x, to.y, to.x - 7 * std::cos(angle + side), to.y - 7 * std::sin(angle + side), width,
                  colour);
}

void dashes(TCanvas& canvas, TPoint2 from, TPoint2 to, TColour colour) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double dx = (to.x - from.x) / length, dy = (to.y - from.y) / length;
  for (double at = 0; at < length; at += 5) {
    const double end = std::min(at + 2.5, length);
    canvas.stroke(from.x + dx * at, from.y + dy * at, from.x + dx * end, from.y + dy * end, 1.0, colour);
  }
}

void curve(TCanvas& canvas, const std::function<TPoint2(double)>& at, double first, double last,
           TColour colour, double width) {
  constexpr int STEPS = 240;
  TPoint2 previous = at(first);
  for (int i = 1; i <= STEPS; ++i) {
    const TPoint2 next = at(first + (last - first) * i / STEPS);
    canvas.stroke(previous.x, previous.y, next.x, next.y, width, colour);
    previous = next;
  }
}

void write(TCanvas& canvas, const char* text, double x, double y, TColour colour) {
  canvas.stamp(typefaces().round.label(text), static_cast<int>(x), static_cast<int>(y), colour);
}

}  // namespace art
