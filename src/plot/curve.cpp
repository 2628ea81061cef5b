#include "plot/curve.h"

#include "engine/values.h"
#include "plot/plot_variables.h"

namespace zephyl {

void project(double x, double y, double& column, double& row) {
  if (x == undefined_value || y == undefined_value) {
    column = row = undefined_value;
    return;
  }
  const TPlotMapping& mapping = plot_mapping();
  column = clamp_pixel(mapping.column(x));
  row = clamp_pixel(mapping.row(y));
}

void TCurve::add(double x, double y, bool first, double& column, double& row) {
  project(x, y, column, row);
  add_pixel(column, row, first);
}

void TCurve::add_pixel(double column, double row, bool first) {
  const bool gap = column == undefined_value;
  if (!plot_variables.connectDots) {
    if (!gap) draw_dot(target_, column, row, colour_);
  } else if (!first && !gap && !gap_) {
    clipped_line(target_, column_, row_, column, row, colour_);
  }
  column_ = column;
  row_ = row;
  gap_ = gap;
}

}  // namespace zephyl
