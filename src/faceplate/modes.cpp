#include "faceplate/modes.h"

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/dialogs/menu.h"
#include "faceplate/dialogs/plot_note.h"
#include "faceplate/dialogs/setup.h"
#include "faceplate/program_edit.h"
#include "faceplate/title.h"
#include "platform/platform.h"
#include "plot/drawing.h"
#include "plot/plot_slots.h"

namespace zephyl {

namespace {

bool takes_the_fourth_tab(int mode) {
  return mode == BASE_MODE || mode == STATS_MODE || mode == MATRIX_MODE || mode == LIST_MODE;
}

bool nothing_to_plot() { return plot_variables.enablePlots && !any_slot_in_use() && !drawing_present(); }

void show_plot(bool ask) {
  if (ask && nothing_to_plot()) show_plot_note();
  show_mode(PLOT_MODE);
  hooks.plot_changed();
}

}  // namespace

void show_mode(int mode) {
  state.calcMode = mode;
  refresh_title();
  refresh_result();
  platform().invalidate(state.program_running);
}

void set_mode(int mode, bool ask) {
  switch (mode) {
    case BASE_MODE:
    case STATS_MODE:
    case MATRIX_MODE:
    case LIST_MODE:
    case COMP_MODE:
      if (mode == state.calcMode) return;
      if (takes_the_fourth_tab(mode)) state.dynamic_mode = mode;
      return show_mode(mode);
    case PLOT_MODE:
      if (mode != state.calcMode) show_plot(ask);
      return;
    case PROGRAM_EDIT_MODE:
      return enter_program_edit();
    default:
      return;
  }
}

void show_periodic_screen() {
  state.calcMode = PERIODIC_MODE;
  refresh_title();
  platform().invalidate(true);
}

void leave_plot_and_program_edit() {
  if (state.calcMode == PLOT_MODE || state.calcMode == PROGRAM_EDIT_MODE) set_mode(COMP_MODE, true);
}

namespace {

void show_dynamic_mode() {
  const bool table = state.dynamic_mode == MATRIX_MODE || state.dynamic_mode == LIST_MODE;
  if (!(table && errors.error_flag)) set_mode(state.dynamic_mode, true);
}

}  // namespace

void press_tab(int tab) {
  switch (tab) {
    case TAB_COMP:
      return set_mode(COMP_MODE, true);
    case TAB_PROGRAMS:
      if (!errors.error_flag) set_mode(PROGRAM_EDIT_MODE, true);
      return;
    case TAB_PLOT:
      if (!errors.error_flag) set_mode(PLOT_MODE, true);
      return;
    case TAB_DYNAMIC:
      return show_dynamic_mode();
    case TAB_MENU:
      return show_menu();
    case TAB_SETUP:
      return show_setup();
    default:
      return;
  }
}

}  // namespace zephyl
