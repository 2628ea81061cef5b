// The dialog of the money solver: seven values as text, a choice of when payments are due, and a button for each unknown.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/format.h"
#include "engine/state.h"
#include "engine/values.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "tools/dialogs/money_dialogs.h"
#include "tools/tvm_solver.h"

namespace zephyl {

namespace {

constexpr int SOLVER_DIALOG = 206;
constexpr int VALUE_COUNT = 7;      // fields, by TTvmValue
constexpr int SOLVE_COUNT = 5;      // buttons, by TTvmValue
constexpr double SCHEDULE_LIMIT = 2000.0;

// Fields first, so that a value's number is its control's.
enum TSolverControl {
  PAYMENTS_AT = VALUE_COUNT,
  FIRST_SOLVE,
  EXIT = FIRST_SOLVE + SOLVE_COUNT,
  DEFAULTS,
  SCHEDULE
};

std::string field_text(double value) {
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, FORMAT_FLOAT, 0, false);
  return text;
}

// undefined_value for a text that is no number as the fields write it: a comma is the decimal mark only where it is set,
// or "200,000" would be a loan of 200.
double read_field(const std::string& text) {
  std::string point = text;
  if (settings.decimalMark == 1) std::replace(point.begin(), point.end(), ',', '.');
  if (point.find_first_not_of("0123456789+-.eE") != std::string::npos) return undefined_value;
  char* end = nullptr;
  const double value = std::strtod(point.c_str(), &end);
  const bool whole = end != point.c_str() && *end == 0 && std::isfinite(value);
  return whole ? value : undefined_value;
}

void show_value(TDialog& dialog, int index) { dialog[index].text = field_text(tvm_value(index)); }

void show_values(TDialog& dialog) {
  for (int index = 0; index < VALUE_COUNT; ++index) show_value(dialog, index);
  dialog[PAYMENTS_AT].selected = tvm_state.begin ? 1 : 0;
}

// A field that nobody has touched keeps the digits that it doesn't show.
void read_value(int index, const std::string& text) {
  if (text != field_text(tvm_value(index))) set_tvm_value(index, read_field(text));
}

void read_values(const TDialog& dialog) {
  for (int index = 0; index < VALUE_COUNT; ++index) read_value(index, dialog[index].text);
  set_tvm_value(TVM_PMT_AT, dialog[PAYMENTS_AT].selected);
}

void solve(TDialog& dialog, int unknown) {
  clear_error();
  TControl& button = dialog[FIRST_SOLVE + unknown];
  button.enabled = unknown != TVM_I;
  const double value = reporting_faults(solve_tvm, tvm_state, unknown);
  button.enabled = true;
  if (errors.error_flag) {
    platform().show_message(errors.error_text, "TVM Solver");
    clear_error();
    return;
  }
  set_tvm_value(unknown, value);
  show_value(dialog, unknown);
}

void set_defaults(TDialog& dialog) {
  reset_tvm_state();
  show_values(dialog);
}

void open_schedule() {
  if (tvm_state.values[TVM_N] > SCHEDULE_LIMIT)
    platform().show_message("Can't create schedule due to the TVM N value being greater than 2000.",
                            "Amortization Schedule");
  else
    show_amortization_schedule();
}

void press(TDialog& dialog, int control) {
  read_values(dialog);
  if (control >= FIRST_SOLVE && control < EXIT) solve(dialog, control - FIRST_SOLVE);
  if (control == DEFAULTS) set_defaults(dialog);
  if (control == SCHEDULE) open_schedule();
}

}  // namespace

void show_tvm_solver() {
  TDialog dialog(SOLVER_DIALOG, "Time Value of Money Solver");
  for (const char* label : {"N", "I%YR =", "PV", "PMT", "FV", "P/Y", "C/Y"}) dialog.add(edit_control(label, "", 30));
  dialog.add(combo_control("PMT @", {"End of period", "Beginning of period"}));
  for (const char* label : {"Solve N", "Solve I%YR", "Solve PV", "Solve PMT", "Solve FV"})
    dialog.add(button_control(label));
  for (int i = 1; i < SOLVE_COUNT; ++i) dialog[FIRST_SOLVE + i].beside = true;
  dialog.add(button_control("Exit", BUTTON_CANCEL));
  dialog.add(beside(button_control("Defaults")));
  dialog.add(beside(button_control("Amortization Schedule")));
  show_values(dialog);
  dialog.procedure = [](TDialog& shown, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && shown[event.control].kind == CONTROL_BUTTON) press(shown, event.control);
  };
  platform().run_dialog(dialog);
}

}  // namespace zephyl
