// The keys of the plot screen that change the view or how it is worked.

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "plot/plot.h"
#include "plot/plot_screen.h"
#include "plot/plot_slots.h"
#include "plot/zoom_locks.h"

namespace zephyl {

namespace {

// A range with the same middle, its size multiplied.
void resize(double& min, double& max, double factor) {
  const double middle = (min + max) / 2.0, half = (max - min) / 2.0 * factor;
  min = middle - half;
  max = middle + half;
}

void zoom(double factor) {
  TPlotVariables view = plot_variables;
  if (!zoom_locks.x) resize(view.xMin, view.xMax, factor);
  if (!zoom_locks.y) resize(view.yMin, view.yMax, factor);
  set_plot_view(view.xMin, view.yMin, view.xMax, view.yMax);
}

// By parts of the view's size.
void pan(double x_part, double y_part) {
  const TPlotVariables& view = plot_variables;
  const double dx = x_part * (view.xMax - view.xMin), dy = y_part * (view.yMax - view.yMin);
  set_plot_view(view.xMin + dx, view.yMin + dy, view.xMax + dx, view.yMax + dy);
}

constexpr double PAN_PART = 0.25;

}  // namespace

void zoom_in() { zoom(0.5); }
void zoom_out() { zoom(2.0); }

void pan_left() { pan(-PAN_PART, 0.0); }
void pan_right() { pan(PAN_PART, 0.0); }
void pan_up() { pan(0.0, PAN_PART); }
void pan_down() { pan(0.0, -PAN_PART); }

void cursor_home() {
  const TPlotVariables& view = plot_variables;
  const double half_x = (view.xMax - view.xMin) / 2.0, half_y = (view.yMax - view.yMin) / 2.0;
  set_plot_view(-half_x, -half_y, half_x, half_y);
}

void set_plot_cursor(int cursor) {
  plot_variables.plotCursor = cursor;
  hooks.redraw_part(PART_TRACE_LEDS);
  hooks.redraw_title();
  if (state.calcMode == PLOT_MODE && plot_screen().marks_shown) show_plot();
}

void enter_plot_function() {
  if (program_works()) return;
  evaluate_expression(true);
  if (errors.error_flag) return;
  const int slot = free_plot_slot();
  if (slot >= 0 && entry_line.expression.count > 0) {
    plot_slot(plot_variables.plotType, slot) = entry_line.expression;
    hooks.plot_changed();
  }
  open_plot_functions();
}

}  // namespace zephyl
