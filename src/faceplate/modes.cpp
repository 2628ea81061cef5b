#include "faceplate/modes.h"

#include "engine/calculator.h"
#include "engine/state.h"
#include "faceplate/dialogs/setup.h"
#include "faceplate/title.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

bool can_be_set(int mode) {
  return mode >= BASE_MODE && mode <= LIST_MODE && mode != PROGRAM_EDIT_MODE && mode != PERIODIC_MODE;
}

bool takes_the_fourth_tab(int mode) {
  return mode == BASE_MODE || mode == STATS_MODE || mode == MATRIX_MODE || mode == LIST_MODE;
}

}  // namespace

void set_mode(int mode, bool) {
  if (mode == state.calcMode || !can_be_set(mode)) return;
  if (takes_the_fourth_tab(mode)) state.dynamic_mode = mode;
  state.calcMode = mode;
  refresh_title();
  refresh_result();
  platform().invalidate(state.program_running);
}

void press_tab(int tab) {
  if (tab == TAB_COMP) set_mode(COMP_MODE, true);
  if (tab == TAB_SETUP) show_setup();
}

}  // namespace zephyl
