#include "plot/plot_mapping.h"

#include <algorithm>
#include <cmath>

#include "engine/faults.h"
#include "engine/values.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr double PIXEL_LIMIT = 3000.0;
constexpr double CENTRE_COLUMN = 112.5;
constexpr double CENTRE_ROW = 89.5;

// The overflow of a mapping is no fault of the evaluation that it runs in.
double mapped(double value, double centre, double scale, double middle, double unmapped) {
  const double pixel = (value - centre) * scale + middle;
  if (std::isfinite(pixel)) return pixel;
  clear_faults();
  return unmapped;
}

double scale_of(double pixels, double min, double max) {
  const double scale = pixels / ((max - min) / 2.0);
  if (!std::isfinite(scale)) clear_faults();
  return scale;
}

// The outcode of a point: which edges of the area it lies beyond.
enum TOutcode { INSIDE = 0, PAST_BOTTOM = 1, PAST_TOP = 2, PAST_RIGHT = 4, PAST_LEFT = 8 };

int outcode(double x, double y) {
  const int vertical = y > PLOT_AREA.bottom ? PAST_BOTTOM : y < PLOT_AREA.top ? PAST_TOP : INSIDE;
  const int horizontal = x > PLOT_AREA.right ? PAST_RIGHT : x < PLOT_AREA.left ? PAST_LEFT : INSIDE;
  return vertical | horizontal;
}

// Moves the end (x, y), which lies beyond the edges of `code`, along the line onto the first of them.
// Reckoned from the other end, which may be much nearer.
void move_to_edge(int code, double& x, double& y, double other_x, double other_y) {
  if (code & (PAST_BOTTOM | PAST_TOP)) {
    const double edge = code & PAST_BOTTOM ? PLOT_AREA.bottom : PLOT_AREA.top;
    x = other_x + (x - other_x) * ((edge - other_y) / (y - other_y));
    y = edge;
  } else {
    const double edge = code & PAST_RIGHT ? PLOT_AREA.right : PLOT_AREA.left;
    y = other_y + (y - other_y) * ((edge - other_x) / (x - other_x));
    x = edge;
  }
}

bool drawable(double coordinate) { return std::isfinite(coordinate) && coordinate != undefined_value; }

// Whole, and small enough for the differences and products of the cutting.
double whole_pixel(double coordinate) {
  constexpr double limit = 1e150;
  return std::trunc(std::clamp(coordinate, -limit, limit));
}

// Cuts the line to PLOT_AREA (Cohen and Sutherland); false if nothing of it lies there. Each end is moved
// twice at most, but for rounding at a corner.
bool cut_to_area(double& x1, double& y1, double& x2, double& y2) {
  constexpr int rounds = 8;
  int code1 = outcode(x1, y1), code2 = outcode(x2, y2);
  for (int round = 0; round < rounds && (code1 | code2); ++round) {
    if (code1 & code2) return false;
    if (code1) {
      move_to_edge(code1, x1, y1, x2, y2);
      code1 = outcode(x1, y1);
    } else {
      move_to_edge(code2, x2, y2, x1, y1);
      code2 = outcode(x2, y2);
    }
  }
  return (code1 | code2) == INSIDE;
}

TPoint nearest_pixel(double x, double y) {
  return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
}

}  // namespace

double clamp_pixel(double pixel) {
  if (pixel <= -PIXEL_LIMIT) return -PIXEL_LIMIT;
  return pixel < PIXEL_LIMIT ? pixel : PIXEL_LIMIT;
}

TPlotMapping::TPlotMapping(double xMin, double xMax, double yMin, double yMax)
    : xMin_(xMin),
      xMax_(xMax),
      yMin_(yMin),
      yMax_(yMax),
      centre_x_((xMin + xMax) / 2.0),
      centre_y_((yMin + yMax) / 2.0),
      scale_x_(scale_of(112.5, xMin, xMax)),
      scale_y_(scale_of(-89.5, yMin, yMax)) {}

double TPlotMapping::column(double x) const { return mapped(x, centre_x_, scale_x_, CENTRE_COLUMN, x); }

double TPlotMapping::row(double y) const { return mapped(y, centre_y_, scale_y_, CENTRE_ROW, -y); }

bool TPlotMapping::is_for(double xMin, double xMax, double yMin, double yMax) const {
  return xMin == xMin_ && xMax == xMax_ && yMin == yMin_ && yMax == yMax_;
}

const TPlotMapping& plot_mapping() {
  static TPlotMapping mapping(-1.0, 1.0, -1.0, 1.0);
  const TPlotVariables& view = plot_variables;
  if (!mapping.is_for(view.xMin, view.xMax, view.yMin, view.yMax))
    mapping = TPlotMapping(view.xMin, view.xMax, view.yMin, view.yMax);
  return mapping;
}

bool clipped_line(TSurface& target, double x1, double y1, double x2, double y2, TColour colour) {
  // A line that ends near by is drawn between its own ends: being cut would move its pixels.
  constexpr double near_by = 1e8;
  if (!drawable(x1) || !drawable(y1) || !drawable(x2) || !drawable(y2)) return false;
  const double whole[] = {whole_pixel(x1), whole_pixel(y1), whole_pixel(x2), whole_pixel(y2)};
  double cut[] = {whole[0], whole[1], whole[2], whole[3]};
  if (!cut_to_area(cut[0], cut[1], cut[2], cut[3])) return false;
  const bool is_near =
      std::all_of(whole, whole + 4, [](double coordinate) { return std::fabs(coordinate) < near_by; });
  const double* const ends = is_near ? whole : cut;
  target.line(nearest_pixel(ends[0], ends[1]), nearest_pixel(ends[2], ends[3]), colour, PLOT_AREA);
  return true;
}

void draw_dot(TSurface& target, double x, double y, TColour colour) {
  if (!drawable(x) || !drawable(y)) return;
  const TPoint at = nearest_pixel(std::trunc(clamp_pixel(x)), std::trunc(clamp_pixel(y)));
  if (PLOT_AREA.contains(at.x, at.y)) target.set_pixel(at.x, at.y, colour);
}

}  // namespace zephyl
