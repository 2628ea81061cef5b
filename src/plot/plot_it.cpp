// The drawing of the plot screen: what lies under the plots, the plots, the labels on top, and when that is
// done.

#include <cstdint>

#include "engine/backup.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "platform/platform.h"
#include "plot/custom_function.h"
#include "plot/drawing.h"
#include "plot/plot.h"
#include "plot/plot_calculate.h"
#include "plot/plot_grid.h"
#include "plot/plot_kinds.h"
#include "plot/plot_labels.h"
#include "plot/plot_points.h"
#include "plot/plot_screen.h"
#include "plot/surface_plot.h"
#include "plot/zoom_locks.h"

namespace zephyl {

namespace {

bool is_known(int plot_type) { return plot_type >= PLOT_FUNCTION && plot_type <= PLOT_3D; }

// Nothing may be evaluated on the side then: the plots wait, what lies under them shows.
bool plots_wait() { return state.program_running || is_evaluating(); }

void draw_under_plots(TSurface& plot) {
  plot.blit(0, 0, PLOT_WIDTH, PLOT_HEIGHT, drawing_bitmap(), 0, 0);
  if (plot_variables.plotType != PLOT_3D) draw_grid(plot);
  draw_view_labels(plot);
}

void draw_plots(TSurface& plot) {
  switch (plot_variables.plotType) {
    case PLOT_FUNCTION:
      return draw_plot_function(plot);
    case PLOT_POLAR:
    case PLOT_PARAMETRIC:
      return draw_parametric_polar(plot, plot_variables.plotType);
    default:
      return draw_3d_plot(plot, 0.0, 0.0, false);
  }
}

void run_plots(TPlotScreen& screen) {
  screen.plotting = true;
  platform().set_wait_cursor(true);
  begin_growth();
  draw_plots(screen.plot);
  draw_view_labels(screen.plot);
  platform().set_wait_cursor(false);
  screen.plotting = false;
}

// All of it, onto the plot's picture.
void draw_plot(TPlotScreen& screen) {
  screen.needs_drawing = false;
  if (!is_known(plot_variables.plotType))
    return platform().show_message("Undefined Plot Type", "Bug (plot_it)");
  plot_cancelled = false;
  plot_point_count = 0;
  screen.marks_shown = false;
  screen.needs_drawing = plots_wait();
  draw_under_plots(screen.plot);
  const bool draws = plot_variables.plotType == PLOT_3D || plots_enabled();
  if (draws && !screen.needs_drawing) run_plots(screen);
}

}  // namespace

void plot_it() {
  TPlotScreen& screen = plot_screen();
  if (screen.plotting) return;
  draw_plot(screen);
  show_plot();
}

const TSurface& shown_plot() {
  TPlotScreen& screen = plot_screen();
  // A picture that is asked for in the middle of an evaluation on the side is the one that there is.
  if (screen.needs_drawing && !is_evaluated_aside()) draw_plot(screen);
  return screen.marks_shown ? screen.marks : screen.plot;
}

bool is_plotting() { return plot_screen().plotting; }

void request_plot() {
  TPlotScreen& screen = plot_screen();
  if (screen.plotting || is_evaluated_aside()) return;  // what such an evaluation changes is brought back
  screen.needs_drawing = true;
  if (state.calcMode == PLOT_MODE && !state.program_running) platform().invalidate(false);
}

namespace {

// A drawing command ran. What it drew shows at once; the plots follow when nothing is evaluated any more.
void refresh_plot() {
  if (plot_screen().plotting || is_evaluated_aside()) return;
  request_plot();
  if (!plots_wait()) return;
  draw_plot(plot_screen());
  show_progress();
}

// Takes its place in front of the owners of other items.
void (*clear_other_item)(int item) = nullptr;

void clear_plot_item(int item) {
  if (item == CLEAR_PLOT_FUNCTIONS) request_plot();
  clear_other_item(item);
}

void register_clearing() {
  if (clear_other_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_plot_item;
}

}  // namespace

void register_plot() {
  register_clearing();
  hooks.plot_changed = request_plot;
  hooks.request_plot_redraw = refresh_plot;
  register_backup_of<&plot_variables>();
  register_backup_of<&trace_functions>();
  register_backup_of<&drawing>();
  register_backup_of<&zoom_locks>();
  static TSurface layer(PLOT_WIDTH, PLOT_HEIGHT);
  register_backup({[] { layer = drawing_bitmap(); }, [] { drawing_bitmap() = layer; }});
}

void reset_plot() {
  forget_pen();
  reset_plot_slots();
  reset_plot_screen();
  plot_point_count = 0;
  plot_calculation = {};
}

}  // namespace zephyl
