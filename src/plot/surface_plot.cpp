#include "plot/surface_plot.h"

#include <cmath>

#include "engine/values.h"
#include "plot/axis_letters.h"
#include "plot/curve.h"
#include "plot/custom_function.h"
#include "plot/plot.h"
#include "plot/drawing.h"
#include "plot/plot_labels.h"
#include "plot/plot_points.h"
#include "plot/plot_screen.h"
#include "plot/rotation.h"
#include "plot/surface_mesh.h"

namespace zephyl {

namespace {

constexpr TColour AXIS_COLOUR = BLACK;
constexpr int SLOTS_PER_SURFACE = 3;

// --- Axes

struct TAxis {
  double x, y, z;
};

void draw_axis(TSurface& target, int axis, TAxis end, const TRotation& rotation) {
  double x = 0.0, y = 0.0, column, row, end_column, end_row;
  rotation.turn(x, y, 0.0);
  project(x, y, column, row);
  rotation.turn(end.x, end.y, end.z);
  project(end.x, end.y, end_column, end_row);
  if (end_column == undefined_value) return;
  clipped_line(target, column, row, end_column, end_row, AXIS_COLOUR);
  const TPoint pixel = {static_cast<int>(end_column), static_cast<int>(end_row)};
  if (PLOT_AREA.contains(pixel.x, pixel.y)) draw_axis_letter(target, axis, pixel, AXIS_COLOUR);
}

void draw_axes(TSurface& target, const TRotation& rotation) {
  if (!plot_variables.displayGrid) return;
  const double x = plot_variables.xMax - plot_variables.xMin, y = plot_variables.yMax - plot_variables.yMin;
  // A height that keeps the letters apart, whatever the ranges are.
  const double z = std::fabs(std::sin(y) * y) + std::fabs(std::cos(x) * x);
  const TAxis ends[] = {{x, 0.0, 0.0}, {0.0, y, 0.0}, {0.0, 0.0, z}};
  for (int axis = 0; axis < 3; ++axis) draw_axis(target, axis, ends[axis], rotation);
}

// --- Wires

// The pixels of a mesh as far as its rows are drawn, which its columns join.
struct TWires {
  double columns[MESH_LIMIT][MESH_LIMIT];
  double rows[MESH_LIMIT][MESH_LIMIT];
};

class TSurfaceWires {
 public:
  TSurfaceWires(TSurface& target, int surface, const TRotation& rotation, int stride)
      : target_(target),
        mesh_(surface_mesh(surface)),
        colour_(plot_colour(PLOT_3D, surface * SLOTS_PER_SURFACE)),
        rotation_(rotation),
        stride_(stride) {}

  // traced: the samples go into plot_points.
  void draw_row(int row, bool traced) {
    TCurve wire(target_, colour_);
    for (int column = 0; column < mesh_.columns; column += stride_) {
      TPlotPoint point;
      turn(mesh_.points[row][column], point);
      wire.add(point.x, point.y, column == 0, point.column, point.row);
      wires().columns[row][column] = point.column;
      wires().rows[row][column] = point.row;
      if (traced) add_plot_point(point);
    }
  }

  void draw_rows() {
    for (int row = 0; row < mesh_.rows; row += stride_) draw_row(row, false);
  }

  void draw_columns() {
    for (int column = 0; column < mesh_.columns; column += stride_) {
      TCurve wire(target_, colour_);
      for (int row = 0; row < mesh_.rows; row += stride_)
        wire.add_pixel(wires().columns[row][column], wires().rows[row][column], row == 0);
    }
  }

 private:
  static TWires& wires() {
    static TWires shared;
    return shared;
  }

  void turn(const TMeshPoint& from, TPlotPoint& to) const {
    to.x = from.x;
    to.y = from.y;
    rotation_.turn(to.x, to.y, from.z);
    for (int k = 0; k < 3; ++k) to.values[k] = from.values[k];
  }

  TSurface& target_;
  const TMesh& mesh_;
  TColour colour_;
  const TRotation& rotation_;
  int stride_;
};

void draw_full_surface(TSurface& target, int surface, const TRotation& rotation) {
  const int slot = surface * SLOTS_PER_SURFACE;
  surface_mesh(surface).rows = 0;
  if (!plot_in_use(PLOT_3D, slot) || plot_cancelled) return;
  TSurfaceWires wires(target, surface, rotation, 1);
  int rows_drawn = 0;
  sample_surface(surface_mesh(surface), slot, [&](int row) {
    wires.draw_row(row, slot == trace_function());
    ++rows_drawn;
  });
  surface_mesh(surface).rows = rows_drawn;  // of a plot that was cancelled only what had come
  wires.draw_columns();
}

void draw_fast_surface(TSurface& target, int surface, const TRotation& rotation) {
  TSurfaceWires wires(target, surface, rotation, 2);
  wires.draw_rows();
  wires.draw_columns();
}

}  // namespace

void draw_3d_plot(TSurface& target, double offset_x, double offset_y, bool fast) {
  const TRotation rotation(offset_x, offset_y);
  draw_axes(target, rotation);
  if (!plots_enabled()) return;
  if (!fast) limit_surface_variables();
  const int traced = trace_function() / SLOTS_PER_SURFACE;
  for (const int surface : {1 - traced, traced}) (fast ? draw_fast_surface : draw_full_surface)(target, surface, rotation);
}

void show_rotated(double offset_x, double offset_y) {
  if (!plots_enabled()) return;
  TSurface& plot = plot_screen().plot;
  plot.blit(0, 0, PLOT_WIDTH, PLOT_HEIGHT, drawing_bitmap(), 0, 0);
  draw_3d_plot(plot, offset_x, offset_y, true);
  draw_view_labels(plot);
  show_plot();
}

}  // namespace zephyl
