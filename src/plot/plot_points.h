// The samples of the last plot that the trace cursor follows.
#pragma once

namespace zephyl {

constexpr int PLOT_POINT_LIMIT = 51 * 51;  // the largest mesh of a surface

struct TPlotPoint {
  double column = 0.0;  // where it lies on the plot's picture
  double row = 0.0;
  double x = 0.0;  // in plot units, in 3D after the rotation; undefined_value where it isn't defined
  double y = 0.0;
  double parameter = 0.0;  // t or theta
  double values[3] = {};   // in 3D what the three slots gave
};

extern TPlotPoint plot_points[PLOT_POINT_LIMIT];
extern int plot_point_count;

// Adds one while there is room; a plot of more samples is drawn all the same.
void add_plot_point(const TPlotPoint& point);

// The point nearest to a place in plot units, the earlier of two that are equally near; null where no point
// is defined.
const TPlotPoint* nearest_plot_point(double x, double y);

}  // namespace zephyl
