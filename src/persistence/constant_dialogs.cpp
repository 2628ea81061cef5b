#include "persistence/constant_dialogs.h"

#include <algorithm>
#include <vector>

#include "engine/expression.h"
#include "engine/state.h"
#include "persistence/constants.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int SELECT_DIALOG = 147;
constexpr int EDIT_DIALOG = 181;
enum { NAME_COMBO = 0, VALUE_TEXT = 1, ELEMENTS_BUTTON = 2, ACTION_COMBO = 2 };
enum { ADD_ROW = 0, DELETE_ROW = 1 };
constexpr int ELEMENTS_RESULT = -2;

struct TLast {
  int selected = 0;
  int edited = 0;
  int action = ADD_ROW;
};
TLast last;

std::vector<std::string> constant_names() {
  std::vector<std::string> names;
  for (int i = 0; i < constant_count(); ++i) names.emplace_back(constant_name(i));
  return names;
}

// "9.80665 (m/s^2)", with the decimal mark of the settings.
std::string value_text(int i) {
  if (i < 0) return "";
  const std::string unit = constant_unit(i);
  std::string text = constant_value(i);
  if (settings.decimalMark == 1) std::replace(text.begin(), text.end(), '.', ',');
  return text + (unit.empty() ? " " : " (" + unit + ")");
}

void show_value(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind == DIALOG_OPENED || event.control == NAME_COMBO)
    dialog[VALUE_TEXT].text = value_text(dialog[NAME_COMBO].selected);
}

void add_constant_controls(TDialog& dialog, int selected) {
  dialog.add(combo_control("Constant:", constant_names(), std::min(selected, constant_count() - 1)));
  dialog.add(text_control("Value:", ""));
}

void answer_select_dialog(TDialog& dialog, const TDialogEvent& event) {
  show_value(dialog, event);
  if (event.kind == CONTROL_ACTIVATED && event.control == ELEMENTS_BUTTON) dialog.close(ELEMENTS_RESULT);
}

}  // namespace

TConstantChoice select_constant(std::string& value) {
  TDialog dialog(SELECT_DIALOG, "Select Constant");
  add_constant_controls(dialog, last.selected);
  dialog.add(button_control("Elements"));
  add_ok_cancel(dialog);
  dialog.procedure = answer_select_dialog;
  platform().run_dialog(dialog);
  if (dialog.result() == ELEMENTS_RESULT) return CONSTANT_ELEMENTS;
  const int selected = dialog[NAME_COMBO].selected;
  if (dialog.result() == DIALOG_CANCELLED || selected < 0) return CONSTANT_CANCELLED;
  last.selected = selected;
  value = constant_value(selected);
  return CONSTANT_CHOSEN;
}

TConstantChoice insert_selected_constant() {
  std::string value;
  const TConstantChoice choice = select_constant(value);
  if (choice == CONSTANT_CHOSEN) insert_constant_string(value.c_str(), false);
  return choice;
}

bool edit_constants() {
  TDialog dialog(EDIT_DIALOG, "Edit Constant");
  add_constant_controls(dialog, last.edited);
  dialog.add(combo_control("Action:", {"Add Constant", "Delete Constant"}, last.action));
  add_ok_cancel(dialog);
  dialog.procedure = show_value;
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) return false;
  last.edited = std::max(dialog[NAME_COMBO].selected, 0);
  last.action = dialog[ACTION_COMBO].selected;
  if (last.action == DELETE_ROW && last.edited < constant_count())
    delete_constant(constant_name(last.edited));
  return last.action == ADD_ROW;
}

void reset_constant_dialogs() { last = {}; }

}  // namespace zephyl
