// The pen over the plot, in pixels of its picture and in plot units.
#pragma once

#include "platform/geometry.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace zephyl {

// A pixel's size in plot units.
inline double pixel_width() { return (plot_variables.xMax - plot_variables.xMin) * 0.004424778761061947; }
inline double pixel_height() { return (plot_variables.yMax - plot_variables.yMin) * 0.005555555555555556; }

// Columns count from xMin, rows from yMax.
inline double pen_x(TPoint pen) { return pen.x * pixel_width() + plot_variables.xMin; }
inline double pen_y(TPoint pen) { return plot_variables.yMax - pen.y * pixel_height(); }

}  // namespace zephyl
