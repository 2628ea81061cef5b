#include "plot/surface_mesh.h"

#include <algorithm>
#include <cmath>

#include "engine/faults.h"
#include "engine/polar.h"
#include "engine/values.h"
#include "plot/custom_function.h"
#include "plot/plot_screen.h"

namespace zephyl {

namespace {

// 0.02 of the range gives 51 samples. A range wider than any number has none, and its step stays.
void limit_step(TPlotRange& range) {
  const double width = range.max - range.min;
  if (!std::isfinite(width)) return;
  const double least = 0.02 * width;
  if (!(range.step >= least && range.step <= width)) range.step = least;
}

TSamples mesh_samples(const TPlotRange& range) {
  TSamples samples = samples_of(range.min, range.max, range.step);
  samples.count = std::min(samples.count, MESH_LIMIT);
  return samples;
}

// --- What the value w of slot k, 0 to 2, makes of a point.

void fold_cartesian(TMeshPoint& point, int k, double w) {
  if (k == 0)
    point.x = w;
  else if (k == 1)
    point.y = w;
  else
    point.z = plot_variables.zScale * w;
}

void start_circle(TMeshPoint& point, double angle) {
  point.x = std::cos(to_radians(angle));
  point.y = std::sin(to_radians(angle));
}

void widen_circle(TMeshPoint& point, double radius) {
  point.x *= radius;
  point.y *= radius;
}

// Angle, radius, height.
void fold_cylindrical(TMeshPoint& point, int k, double w) {
  if (k == 0)
    start_circle(point, w);
  else if (k == 1)
    widen_circle(point, w);
  else
    point.z = plot_variables.zScale * w;
}

// Angle, polar angle, radius.
void fold_spherical(TMeshPoint& point, int k, double w) {
  if (k == 0) return start_circle(point, w);
  if (k == 1) {
    point.z = w;
    return;
  }
  const double polar = to_radians(point.z);
  widen_circle(point, std::sin(polar) * w);
  point.z = std::cos(polar) * w * plot_variables.zScale;
}

using TFold = void (*)(TMeshPoint& point, int k, double w);

TFold current_fold() {
  constexpr TFold folds[] = {fold_cartesian, fold_cylindrical, fold_spherical};
  return folds[plot_variables.plotType3D];
}

bool is_finite(const TMeshPoint& point) {
  return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

// An overflow leaves the point as it stands.
void fold_in(TMeshPoint& point, int k, double w, TFold fold) {
  point.values[k] = w;
  if (w == undefined_value) {
    point.x = point.y = point.z = undefined_value;
    return;
  }
  if (point.x == undefined_value) return;
  const TMeshPoint before = point;
  fold(point, k, w);
  if (is_finite(point)) return;
  point = before;
  clear_faults();
}

void start_points(TMesh& mesh, int rows, int columns) {
  mesh.rows = rows;
  mesh.columns = columns;
  for (int row = 0; row < rows; ++row) std::fill(mesh.points[row], mesh.points[row] + columns, TMeshPoint{});
}

// One slot over the whole mesh.
void sample_slot(TMesh& mesh, int first_slot, int k, TRowListener& listener) {
  const TSamples u = mesh_samples(plot_variables.t), v = mesh_samples(plot_variables.v);
  const TFold fold = current_fold();
  for (int row = 0; row < mesh.rows; ++row) {
    for (int column = 0; column < mesh.columns; ++column) {
      const double w = custom_function(PLOT_3D, u[row], v[column], first_slot + k, PHASE_SAMPLE);
      if (plot_cancelled) return;
      fold_in(mesh.points[row][column], k, w, fold);
      grow(samples_are_quick());
    }
    if (k == 2) listener.row_done(row);
  }
}

}  // namespace

void limit_surface_variables() {
  constexpr double scale_limit = 1e100;
  plot_variables.zScale = std::clamp(plot_variables.zScale, -scale_limit, scale_limit);
  limit_step(plot_variables.t);
  limit_step(plot_variables.v);
}

void sample_surface(TMesh& mesh, int slot, TRowListener& listener) {
  start_points(mesh, mesh_samples(plot_variables.t).count, mesh_samples(plot_variables.v).count);
  for (int k = 0; k < 3 && !plot_cancelled; ++k) {
    custom_function(PLOT_3D, 0.0, 0.0, slot + k, PHASE_BEGIN);
    sample_slot(mesh, slot, k, listener);
    custom_function(PLOT_3D, 0.0, 0.0, slot + k, PHASE_END);
  }
}

TMesh& surface_mesh(int surface) {
  static TMesh meshes[SURFACE_COUNT];
  return meshes[surface];
}

}  // namespace zephyl
