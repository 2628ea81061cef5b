#include "plot/plot_grid.h"

#include <cmath>

#include "engine/values.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr TColour GRID_COLOUR = rgb(0xD0, 0xD0, 0xD0);
constexpr TColour AXIS_COLOUR = BLACK;
constexpr int GRID_LINE_LIMIT = 20;  // more than any range has
constexpr int DECADE_LIMIT = 700;    // more than lie between any two doubles

void vertical_line(TSurface& surface, int column, TColour colour) {
  surface.fill({column, 0, column, PLOT_HEIGHT - 1}, colour);
}

void horizontal_line(TSurface& surface, int row, TColour colour) {
  surface.fill({0, row, PLOT_WIDTH - 1, row}, colour);
}

// Calls `draw` with the part of the range, 0 to 1, at which each grid line lies.
template <typename TDraw>
void for_grid_lines(double min, double max, TDraw draw) {
  const double range = max - min;
  const double step = nice_step(range), spacing = grid_spacing(range);
  if (!(step > 0.0) || !std::isfinite(step)) return;
  double offset = std::fabs(frac_part(step * min) / step);
  for (int line = 0; line < GRID_LINE_LIMIT && offset < range; ++line, offset += spacing)
    draw(offset / range);
}

void draw_axes(TSurface& surface) {
  const TPlotVariables& view = plot_variables;
  if (view.xMin < 0.0 && view.xMax >= 0.0)
    vertical_line(surface, static_cast<int>(PLOT_WIDTH - view.xMax / (view.xMax - view.xMin) * PLOT_WIDTH),
                  AXIS_COLOUR);
  if (view.yMin < 0.0 && view.yMax > 0.0)
    horizontal_line(surface, static_cast<int>(view.yMax / (view.yMax - view.yMin) * PLOT_HEIGHT),
                    AXIS_COLOUR);
}

}  // namespace

double nice_step(double range) {
  double m = 1.0;
  for (int decade = 0; decade < DECADE_LIMIT && (m * range < 1.0 || m * range > 10.0); ++decade)
    m *= m * range < 1.0 ? 10.0 : 0.1;
  const double v = range * m;
  if (!(v >= 1.0 && v <= 10.0)) return 0.0;
  if (v <= 2.5) return 5.0 * m;
  return v > 5.0 ? m : 2.0 * m;
}

double grid_spacing(double range) {
  const double step = nice_step(range);
  return step > 0.0 ? 1.0 / step : 0.0;
}

void draw_grid(TSurface& surface) {
  const TPlotVariables& view = plot_variables;
  if (!view.displayGrid) return;
  for_grid_lines(view.xMin, view.xMax, [&](double part) {
    vertical_line(surface, static_cast<int>(part * PLOT_WIDTH), GRID_COLOUR);
  });
  for_grid_lines(view.yMin, view.yMax, [&](double part) {
    horizontal_line(surface, static_cast<int>(PLOT_HEIGHT - part * PLOT_HEIGHT), GRID_COLOUR);
  });
  draw_axes(surface);
}

}  // namespace zephyl
