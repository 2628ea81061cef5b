#include "plot/plot_points.h"

#include <limits>

#include "engine/values.h"

namespace zephyl {

TPlotPoint plot_points[PLOT_POINT_LIMIT];
int plot_point_count = 0;

void add_plot_point(const TPlotPoint& point) {
  if (plot_point_count < PLOT_POINT_LIMIT) plot_points[plot_point_count++] = point;
}

const TPlotPoint* nearest_plot_point(double x, double y) {
  const TPlotPoint* nearest = nullptr;
  double least = std::numeric_limits<double>::infinity();
  for (const TPlotPoint* point = plot_points; point != plot_points + plot_point_count; ++point) {
    if (point->x == undefined_value || point->y == undefined_value) continue;
    const double dx = point->x - x, dy = point->y - y;
    if (dx * dx + dy * dy >= least) continue;
    least = dx * dx + dy * dy;
    nearest = point;
  }
  return nearest;
}

}  // namespace zephyl
