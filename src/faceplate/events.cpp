// The events of a driver: start and stop, the pen, the keyboard, painting, the idle round.

#include "platform/events.h"

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/faults.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "faceplate/catalog/function_catalog.h"
#include "faceplate/catalog/variable_catalog.h"
#include "faceplate/dialogs/edit_program.h"
#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/statement_operands.h"
#include "faceplate/display.h"
#include "faceplate/entry_line_view.h"
#include "faceplate/key_feedback.h"
#include "faceplate/key_path.h"
#include "faceplate/program_list.h"
#include "faceplate/screens.h"
#include "faceplate/title.h"
#include "numerics/random.h"
#include "persistence/constant_dialogs.h"
#include "persistence/constants.h"
#include "persistence/conversion_dialog.h"
#include "persistence/settings.h"
#include "platform/platform.h"
#include "plot/drawing.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "programs/editor.h"
#include "programs/programs.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

void reset_all() {
  reset_programs();
  reset_engine();
  list_view = {};
  matrix_view = {};
  reset_stats();
  reset_plot_variables();
  zoom_locks = {};
  reset_plot();
  reset_drawing();
  reset_tvm_state();
  remembered = {};
  reset_function_catalog();
  reset_variable_catalog();
  reset_editor();
  reset_statement_dialogs();
  reset_edit_program_dialog();
  reset_constant_dialogs();
  reset_conversion_dialog();
  histogram = {};
  forget_key_feedback();
}

}  // namespace

// Each step leaves ready what the next one needs.
void on_start() {
  reset_all();
  clear_faults();
  check_operation_array();
  seed_random(0.0);
  load_settings();
  clear_calculator(true);
  check_function_arguments();
  load_units_and_constants(false);
  state.init_done = true;
  refresh_title();
  set_plot_defaults();
  platform().invalidate(false);
}

void on_stop() {
  if (state.calcMode == PROGRAM_EDIT_MODE) save_program();
  forget_key_feedback();
  save_settings();
}

void on_pen_down(int x, int y) {
  state.swallow_up = false;
  if (!state.alpha_active && !program_works()) cursor_to_tap(x, y);
  if (!state.alpha_active && state.calcMode == PROGRAM_EDIT_MODE) select_tapped_statement(x, y);
  if (!state.alpha_active && plot_pen_down(x, y)) return;
  handle_faceplate_input(x, y, -1, -1);
  state.drag_in_progress = false;
}

void on_pen_move(int x, int y) { plot_pen_move(x, y); }

void on_pen_up(int x, int y) {
  if (state.swallow_up) {
    state.swallow_up = state.drag_in_progress = false;
    return forget_pen();
  }
  if (state.plot_button > 0) state.plot_button = 0;
  release_key_feedback();
  plot_pen_up(x, y);
  state.drag_in_progress = false;
}

void on_char(std::uint16_t character) { handle_faceplate_input(0, 0, character, -1); }

void on_arrow(TArrow arrow) { handle_faceplate_input(0, 0, -1, arrow); }

void on_paint() {
  release_key_feedback();
  paint_screen(screen_surface());
}

// All that goes on by itself between two events is a program, one statement a round.
bool on_idle() { return program_tick(); }

const TSurface& screen() { return screen_surface(); }

}  // namespace zephyl
