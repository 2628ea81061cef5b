// Function plots: a sample for each column, joined by lines, with a search for the edges of where a function
// is defined. A pole between two columns is a steep line.

#include <cmath>

#include "engine/faults.h"
#include "engine/values.h"
#include "plot/custom_function.h"
#include "plot/plot_kinds.h"
#include "plot/plot_mapping.h"
#include "plot/plot_screen.h"

namespace zephyl {

namespace {

constexpr double PIXEL_PART = 0.004424778761061947;  // a column's part of the view
constexpr int EDGE_ROUNDS = 16;

double sample(double x, int slot) { return custom_function(PLOT_FUNCTION, x, 0.0, slot, PHASE_SAMPLE); }

class TFunctionCurve {
 public:
  TFunctionCurve(TSurface& target, int slot)
      : target_(target),
        slot_(slot),
        colour_(plot_colour(PLOT_FUNCTION, slot)),
        pixel_((plot_variables.xMax - plot_variables.xMin) * PIXEL_PART) {}

  // The columns from left to right.
  void add(int column) {
    const double x = column * pixel_ + plot_variables.xMin;
    const double f = sample(x, slot_);
    if (plot_cancelled) return;
    const bool defined = f != undefined_value;
    if (column > 0 && defined != defined_)
      add_edge(column, x, f, defined);
    else if (defined)
      add_point(column, f, column > 0);
    if (defined) kept_ = f;
    defined_ = defined;
  }

 private:
  void add_point(int column, double f, bool joined) {
    const double row = function_row(f);
    if (!plot_variables.connectDots)
      draw_dot(target_, column, row, colour_);
    else if (joined)
      clipped_line(target_, column - 1, row_, column, row, colour_);
    row_ = row;
  }

  // A curve runs up to its edge: it ends in this column at the value there, or comes from the edge in the
  // column before.
  void add_edge(int column, double x, double f, bool defined) {
    const double edge = edge_value(x, defined ? f : kept_, defined);
    if (plot_cancelled) return;
    if (!defined) return add_point(column, edge, true);
    row_ = function_row(edge);
    add_point(column, f, true);
  }

  // The last defined value of a bisection between this column and the one before.
  double edge_value(double x, double kept, bool state) const {
    double offset = -0.5 * pixel_, step = -0.25 * pixel_;
    for (int round = 0; round < EDGE_ROUNDS && !plot_cancelled; ++round) {
      const double f = sample(x + offset, slot_);
      if (f != undefined_value) kept = f;
      if ((f != undefined_value) != state) {
        step = -step;
        state = !state;
      }
      offset += step;
      step *= 0.5;
    }
    return kept;
  }

  TSurface& target_;
  int slot_;
  TColour colour_;
  double pixel_;
  double kept_ = 0.0;  // the latest defined value of a column
  double row_ = 0.0;   // of the column before
  bool defined_ = false;
};

void draw_slot(TSurface& target, int slot) {
  custom_function(PLOT_FUNCTION, 0.0, 0.0, slot, PHASE_BEGIN);
  TFunctionCurve curve(target, slot);
  for (int column = 0; column <= PLOT_WIDTH && !plot_cancelled; ++column) {
    curve.add(column);
    grow(samples_are_quick());
  }
  custom_function(PLOT_FUNCTION, 0.0, 0.0, slot, PHASE_END);
}

}  // namespace

double function_row(double f) {
  constexpr double middle = PLOT_HEIGHT / 2;
  const TPlotVariables& view = plot_variables;
  const double row =
      middle - (f - (view.yMin + view.yMax) / 2.0) * (middle / ((view.yMax - view.yMin) / 2.0));
  if (std::isfinite(row)) return clamp_pixel(row);
  // What overflows leaves at its own side.
  clear_faults();
  return clamp_pixel(-f);
}

double function_column(double x) {
  const double range = plot_variables.xMax - plot_variables.xMin;
  constexpr double tolerance = 1e-6;  // of a column
  const double column = std::floor((x - plot_variables.xMin) / (range * PIXEL_PART) + tolerance);
  if (std::isfinite(column)) return clamp_pixel(column);
  clear_faults();
  return clamp_pixel(x);
}

void draw_plot_function(TSurface& target) {
  for (int slot = 0; slot < PLOT_SLOT_COUNT && !plot_cancelled; ++slot)
    if (slot_in_use(PLOT_FUNCTION, slot)) draw_slot(target, slot);
}

}  // namespace zephyl
