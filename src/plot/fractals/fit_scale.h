// A picture of unknown size fitted to the current view: what it extends over, and its place in the view.
#pragma once

#include "engine/values.h"

namespace zephyl {

// The smallest and greatest coordinates so far; undefined_value as long as nothing was measured.
struct TExtent {
  double min_x = undefined_value, min_y = undefined_value;
  double max_x = undefined_value, max_y = undefined_value;

  void take(double x, double y);
};

// Maps an extent to 0.95 of the view's range on each axis, 0.025 of it away from the lower end. An axis
// without extent keeps its unit.
struct TFitScale {
  double min_x = 0.0, min_y = 0.0;
  double scale_x = 1.0, scale_y = 1.0;
  double offset_x = 0.0, offset_y = 0.0;

  double x(double value) const { return (value - min_x) * scale_x + offset_x; }
  double y(double value) const { return (value - min_y) * scale_y + offset_y; }
};

TFitScale fit_scale(const TExtent& extent);

}  // namespace zephyl
