#include "plot/surface_plot.h"

#include <cmath>

#include "engine/values.h"
#include "plot/axis_letters.h"
#include "plot/curve.h"
#include "plot/custom_function.h"
#include "plot/drawing.h"
#include "plot/plot.h"
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
  double x, y, z;       // its end
  double column = 0.0;  // of the end, on the picture
  double row = 0.0;
};

void project_end(TAxis& axis, const TRotation& rotation) {
  rotation.turn(axis.x, axis.y, axis.z);
  project(axis.x, axis.y, axis.column, axis.row);
}

void draw_letter(TSurface& target, int number, const TAxis& axis) {
  if (axis.column == undefined_value) return;
  const TPoint end = {static_cast<int>(axis.column), static_cast<int>(axis.row)};
  if (PLOT_AREA.contains(end.x, end.y)) draw_axis_letter(target, number, end, AXIS_COLOUR);
}

// All lines before the letters, which stand on a ground of their own.
void draw_axes(TSurface& target, const TRotation& rotation) {
  if (!plot_variables.displayGrid) return;
  const double x = plot_variables.xMax - plot_variables.xMin, y = plot_variables.yMax - plot_variables.yMin;
  // The height of the z axis has no range to go by; it follows from the other two.
  const double z = std::fabs(std::sin(y) * y) + std::fabs(std::cos(x) * x);
  TAxis axes[] = {{x, 0.0, 0.0}, {0.0, y, 0.0}, {0.0, 0.0, z}};
  TAxis origin = {0.0, 0.0, 0.0};
  project_end(origin, rotation);
  for (TAxis& axis : axes) {
    project_end(axis, rotation);
    clipped_line(target, origin.column, origin.row, axis.column, axis.row, AXIS_COLOUR);
  }
  for (int number = 0; number < 3; ++number) draw_letter(target, number, axes[number]);
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

// The wires of a surface whose samples are still being taken.
class TGrowingWires final : public TRowListener {
 public:
  TGrowingWires(TSurfaceWires& wires, bool traced) : wires_(wires), traced_(traced) {}
  void row_done(int row) override {
    wires_.draw_row(row, traced_);
    ++rows_;
  }
  int rows() const { return rows_; }

 private:
  TSurfaceWires& wires_;
  bool traced_;
  int rows_ = 0;
};

// Of a plot that is cancelled what had come stays.
void draw_full_surface(TSurface& target, int surface, const TRotation& rotation) {
  const int slot = surface * SLOTS_PER_SURFACE;
  TMesh& mesh = surface_mesh(surface);
  mesh.rows = 0;
  if (!plot_in_use(PLOT_3D, slot) || plot_cancelled) return;
  TSurfaceWires wires(target, surface, rotation, 1);
  TGrowingWires growing(wires, slot == trace_function());
  sample_surface(mesh, slot, growing);
  mesh.rows = growing.rows();
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
  if (!fast) limit_surface_variables();
  draw_axes(target, rotation);
  if (!plots_enabled()) return;
  const int traced = trace_function() / SLOTS_PER_SURFACE;
  for (const int surface : {1 - traced, traced})
    (fast ? draw_fast_surface : draw_full_surface)(target, surface, rotation);
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
