#include "faceplate/dialogs/menu.h"

#include <iterator>

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/sample_plots.h"
#include "faceplate/modes.h"
#include "persistence/constant_dialogs.h"
#include "persistence/conversion_dialog.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "tools/dialogs/money_dialogs.h"
#include "tools/stopwatch.h"

namespace zephyl {

namespace {

// When a row does nothing.
enum TRowRefusal : unsigned {
  FREE = 0,
  ON_ERROR = 1,
  RUNNING = 2,           // a program runs, even at a pause
  RUNNING_UNPAUSED = 4,  // it runs and stands at no prompt or pause
};

void show_help() { platform().show_help(); }

// The rows of tools that work on the expression line need a screen that has one.
void periodic_table() {
  leave_plot_and_program_edit();
  show_periodic_screen();
}

void constants() {
  leave_plot_and_program_edit();
  if (insert_selected_constant() == CONSTANT_ELEMENTS) show_periodic_screen();
}

void conversions() {
  leave_plot_and_program_edit();
  insert_selected_conversion();
}

void sample_plots() {
  if (choose_sample_plot()) set_mode(PLOT_MODE, false);
}

struct TMenuRow {
  const char* text;
  const char* description;
  unsigned refused;
  int mode;       // the mode that it sets, or NO_MODE
  void (*act)();  // else what it does
};
constexpr int NO_MODE = -1;

constexpr TMenuRow menu_items[] = {
    {"COMP Mode", "Standard scientific computations.", FREE, COMP_MODE, nullptr},
    {"STATS Mode", "Statistical calculations.", FREE, STATS_MODE, nullptr},
    {"BASE-n Mode", "Binary, octal, decimal and hexadecimal calculations.", FREE, BASE_MODE, nullptr},
    {"LIST Mode", "List computations.", ON_ERROR, LIST_MODE, nullptr},
    {"MATRIX Mode", "Linear algebra matrix computations.", ON_ERROR, MATRIX_MODE, nullptr},
    {"PROG Mode", "Create and edit programs.", ON_ERROR, PROGRAM_EDIT_MODE, nullptr},
    {"PLOT Mode", "Function, polar, parametric and 3D plotting.", ON_ERROR, PLOT_MODE, nullptr},
    {"TVM Solver", "Solve time value of money problems.", ON_ERROR | RUNNING, NO_MODE, show_tvm_solver},
    {"Constants", "Scientific constants.", ON_ERROR | RUNNING_UNPAUSED, NO_MODE, constants},
    {"Conversions", "Convert from one unit to another.", ON_ERROR | RUNNING_UNPAUSED, NO_MODE, conversions},
    {"Periodic Table", "View the periodic table of the elements.", ON_ERROR | RUNNING_UNPAUSED, NO_MODE,
     periodic_table},
    {"Plot Samples",
     "Sample plots for each plot type (function, polar, parametric, 3D cartesian, 3D cylindrical, 3D "
     "spherical).",
     ON_ERROR, NO_MODE, sample_plots},
    {"Stopwatch", "Time events.", ON_ERROR | RUNNING, NO_MODE, show_stopwatch},
    {"View Help File", "View the help file.", FREE, NO_MODE, show_help},
};

int& last_row = remembered.menu_row;

bool refused(unsigned refusals) {
  const bool paused = state.at_prompt || state.key_wait;
  return ((refusals & ON_ERROR) && errors.error_flag) || ((refusals & RUNNING) && state.program_running) ||
         ((refusals & RUNNING_UNPAUSED) && state.program_running && !paused);
}

void act(const TMenuRow& row) {
  if (refused(row.refused)) return;
  if (row.mode != NO_MODE)
    set_mode(row.mode, true);
  else if (row.act)
    row.act();
}

}  // namespace

void show_menu() {
  TDialog dialog(200, "Menu");
  std::vector<std::string> texts;
  for (const TMenuRow& row : menu_items) texts.emplace_back(row.text);
  const int list = dialog.add(list_control("", texts, last_row));
  dialog[list].lines = static_cast<int>(std::size(menu_items));
  const int description = dialog.add(text_control("Description:", menu_items[last_row].description, 3));
  add_ok_cancel(dialog);
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.control != list) return;
    if (event.kind == CONTROL_CHANGED) open[description].text = menu_items[open[list].selected].description;
  };
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) return;
  last_row = dialog[list].selected;
  act(menu_items[last_row]);
}

}  // namespace zephyl
