// The commands that paint points, lines, rectangles, ellipses and arcs.

#include <algorithm>
#include <cmath>

#include "engine/polar.h"
#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

// The picture's rectangle between two corners in plot units, in any order: both corners' pixels belong to it.
TRect pixel_box(double x1, double y1, double x2, double y2) {
  const TPlotMapping& view = plot_mapping();
  const int column1 = static_cast<int>(clamp_pixel(view.column(x1)));
  const int column2 = static_cast<int>(clamp_pixel(view.column(x2)));
  const int row1 = static_cast<int>(clamp_pixel(view.row(y1)));
  const int row2 = static_cast<int>(clamp_pixel(view.row(y2)));
  return {std::min(column1, column2), std::min(row1, row2), std::max(column1, column2), std::max(row1, row2)};
}

void draw_line_command(double x1, double y1, double x2, double y2) { draw_line(x1, y1, x2, y2); }

void draw_rectangle(double x1, double y1, double x2, double y2) {
  draw_line(x1, y1, x2, y1);
  draw_line(x2, y1, x2, y2);
  draw_line(x2, y2, x1, y2);
  draw_line(x1, y2, x1, y1);
}

void fill_rectangle(double x1, double y1, double x2, double y2) {
  drawing_bitmap().fill(pixel_box(x1, y1, x2, y2), drawing.draw_colour);
}

// The box that an ellipse fills: one row less than what lies between its corners. A negative radius turns it
// over.
TRect ellipse_box(double x, double y, double x_radius, double y_radius) {
  TRect box = pixel_box(x - x_radius, y - y_radius, x + x_radius, y + y_radius);
  ++box.top;
  return box;
}

void draw_ellipse(double x, double y, double x_radius, double y_radius) {
  drawing_bitmap().ellipse(ellipse_box(x, y, x_radius, y_radius), drawing.draw_colour);
}

void fill_ellipse(double x, double y, double x_radius, double y_radius) {
  drawing_bitmap().fill_ellipse(ellipse_box(x, y, x_radius, y_radius), drawing.draw_colour);
}

using TBoxPainter = void (*)(double, double, double, double);

template <TBoxPainter paint>
void box_command(const TScalarCall& call) {
  paint(call.args[0].re, call.args[1].re, call.args[2].re, call.args[3].re);
  drawing_changed();
}

template <TBoxPainter paint>
void circle_command(const TScalarCall& call) {
  paint(call.args[0].re, call.args[1].re, call.args[2].re, call.args[2].re);
  drawing_changed();
}

void point_command(const TScalarCall& call) {
  draw_point(call.args[0].re, call.args[1].re);
  drawing_changed();
}

constexpr double FULL_TURN = 6.283185307179586;

// How many segments a full circle of that radius is drawn with: by its size on the picture.
int arc_segments(double radius) {
  constexpr double fewest = 50.0, most = 300.0;
  const double width = 2.0 * std::fabs(radius);
  const double across = width / (plot_variables.xMax - plot_variables.xMin) * most;
  const double along = width / (plot_variables.yMax - plot_variables.yMin) * most;
  return static_cast<int>(std::clamp(std::min(across, along), fewest, most));
}

struct TArc {
  double x, y, radius;
  double start, end;  // radians, start not above end, at most a full turn apart
};

// Lines from point to point at a fixed step of the angle, and one to the exact end.
void draw_arc(const TArc& arc) {
  const int segments = arc_segments(arc.radius);
  const double step = FULL_TURN / segments;
  double x = 0.0, y = 0.0;
  bool first = true;
  const auto go_to = [&](double angle) {
    const double to_x = arc.x + arc.radius * std::cos(angle), to_y = arc.y + arc.radius * std::sin(angle);
    if (!first) draw_line(x, y, to_x, to_y);
    x = to_x;
    y = to_y;
    first = false;
  };
  go_to(arc.start);
  for (int k = 0; k <= segments; ++k) {
    const double angle = arc.start + k * step;
    if (angle > arc.end) break;
    go_to(angle);
  }
  go_to(arc.end);
}

void arc_command(const TScalarCall& call) {
  TArc arc{call.args[0].re, call.args[1].re, call.args[2].re, to_radians(call.args[3].re),
           to_radians(call.args[4].re)};
  if (arc.start > arc.end) std::swap(arc.start, arc.end);
  if (arc.end - arc.start >= FULL_TURN) {
    arc.start = 0.0;
    arc.end = FULL_TURN;
  }
  draw_arc(arc);
  drawing_changed();
}

}  // namespace

void register_shape_operations() {
  operations[OP_LINE].scalar = drawing_command<box_command<draw_line_command>>;
  operations[OP_RECT].scalar = drawing_command<box_command<draw_rectangle>>;
  operations[OP_FILL_RECT].scalar = drawing_command<box_command<fill_rectangle>>;
  operations[OP_POINT].scalar = drawing_command<point_command>;
  operations[OP_CIRCLE].scalar = drawing_command<circle_command<draw_ellipse>>;
  operations[OP_FILL_CIRC].scalar = drawing_command<circle_command<fill_ellipse>>;
  operations[OP_ELLIPSE].scalar = drawing_command<box_command<draw_ellipse>>;
  operations[OP_FILL_ELLIP].scalar = drawing_command<box_command<fill_ellipse>>;
  operations[OP_ARC].scalar = drawing_command<arc_command>;
}

}  // namespace zephyl
