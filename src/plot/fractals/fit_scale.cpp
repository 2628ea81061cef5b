#include "plot/fractals/fit_scale.h"

#include <algorithm>

#include "plot/plot_variables.h"

namespace zephyl {

void TExtent::take(double x, double y) {
  if (min_x == undefined_value) {
    min_x = max_x = x;
    min_y = max_y = y;
    return;
  }
  min_x = std::min(min_x, x);
  max_x = std::max(max_x, x);
  min_y = std::min(min_y, y);
  max_y = std::max(max_y, y);
}

TFitScale fit_scale(const TExtent& extent) {
  constexpr double filled = 0.95, margin = 0.025;
  const TPlotVariables& view = plot_variables;
  const double width = view.xMax - view.xMin, height = view.yMax - view.yMin;
  const double extent_x = extent.max_x - extent.min_x, extent_y = extent.max_y - extent.min_y;
  TFitScale fit;
  fit.min_x = extent.min_x;
  fit.min_y = extent.min_y;
  if (extent_x != 0.0) fit.scale_x = filled * width / extent_x;
  if (extent_y != 0.0) fit.scale_y = filled * height / extent_y;
  fit.offset_x = view.xMin + margin * width;
  fit.offset_y = view.yMin + margin * height;
  return fit;
}

}  // namespace zephyl
