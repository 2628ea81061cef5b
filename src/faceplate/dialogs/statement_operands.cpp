#include "faceplate/dialogs/statement_operands.h"
#include "faceplate/dialogs/running.h"

#include <string>
#include <vector>

#include "engine/memory.h"
#include "faceplate/dialogs/statement_rows.h"
#include "faceplate/dialogs/variable_picker.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "programs/dialogs/program_description.h"
#include "programs/dialogs/select_program.h"
#include "programs/editor.h"

namespace zephyl {

namespace {

constexpr int LABEL_COUNT = 26;
constexpr int DESCRIPTION_LINES = 10;

// What the dialogs were left on, beside new_statement.
struct TLast {
  int left_row = 0;
  int right_row = 0;
  int input_slot = SLOT_R0;
  int output_row = 0;
  int file_row = 0;
  int loop_slot = SLOT_R0;
  int menu_function = MENU_DISPLAY;
  bool input_prompt = false;
  bool function_prompt = false;
  bool text_label = false;
};
TLast last;

TRows scalar_rows(TRows rows = {}) {
  add_variable_names(rows, 0, SCALAR_COUNT);
  return rows;
}

// Variables that a statement can show: all but functions.
constexpr struct {
  int first_slot;
  int count;
} data_groups[] = {{SLOT_R0, SCALAR_COUNT}, {SLOT_LIST_A, 10}, {SLOT_MATRIX_A, 10}, {SLOT_STR1, 9}};

std::vector<int> data_slots() {
  std::vector<int> slots;
  for (const auto& group : data_groups)
    for (int i = 0; i < group.count; ++i) slots.push_back(group.first_slot + i);
  return slots;
}

TRows data_rows(TRows rows) {
  for (const int slot : data_slots()) rows.push_back(variable_name_text(slot));
  return rows;
}

// var0 of `out` and `fout` for a row of a list that begins with "Ans".
std::int16_t output_operand(int row) {
  return static_cast<std::int16_t>(row == 0 ? 0 : data_slots()[static_cast<std::size_t>(row - 1)] + 1);
}

}  // namespace

bool ask_label() {
  TRows rows;
  for (int label = 0; label < LABEL_COUNT; ++label)
    rows.push_back(std::string(1, static_cast<char>('A' + label)));
  TDialog dialog(148, "Select Label");
  const int label = dialog.add(combo_control("Label:", std::move(rows), new_statement.label));
  if (!confirmed_with_ok(dialog)) return false;
  new_statement.label = static_cast<std::int16_t>(dialog[label].selected);
  return true;
}

bool ask_condition() {
  TDialog dialog(149, "Select Conditional");
  const int left = dialog.add(combo_control("Memory Variable 1:", scalar_rows({"Ans"}), last.left_row));
  const int compare =
      dialog.add(combo_control("Conditional:",
                               {"= (equal to)", "<> (not equal to)", "< (less than)", "> (greater than)",
                                ">= (greater than or equal to)", "<= (less than or equal to)"},
                               new_statement.compare));
  const int right =
      dialog.add(combo_control("Memory Variable 2:", scalar_rows({"ZERO", "Ans"}), last.right_row));
  if (!confirmed_with_ok(dialog)) return false;
  last.left_row = dialog[left].selected;
  last.right_row = dialog[right].selected;
  new_statement.var0 = static_cast<std::int16_t>(last.left_row);
  new_statement.compare = static_cast<std::int16_t>(dialog[compare].selected);
  new_statement.var1 = static_cast<std::int16_t>(last.right_row);
  return true;
}

bool ask_input_variable(bool& custom_prompt) {
  TDialog dialog(150, "Select Variable");
  const TVariablePicker picker(dialog, last.input_slot, false);
  const int prompt = dialog.add(check_control("Custom Prompt?", last.input_prompt));
  dialog.procedure = [&](TDialog& open, const TDialogEvent& event) { picker.handle(open, event); };
  if (!confirmed_with_ok(dialog)) return false;
  last.input_slot = picker.selection(dialog);
  custom_prompt = last.input_prompt = dialog[prompt].checked;
  new_statement.var0 = static_cast<std::int16_t>(last.input_slot);
  set_statement_text("");
  return true;
}

bool ask_output_variable(bool& text_label) {
  TDialog dialog(151, "Select Variable");
  const int variable = dialog.add(combo_control("Memory Variable:", data_rows({"Ans"}), last.output_row));
  const int pause = dialog.add(check_control("Pause?", new_statement.pause != 0));
  const int label = dialog.add(check_control("Text Label?", last.text_label));
  if (!confirmed_with_ok(dialog)) return false;
  last.output_row = dialog[variable].selected;
  new_statement.var0 = output_operand(last.output_row);
  new_statement.pause = dialog[pause].checked ? 1 : 0;
  text_label = last.text_label = dialog[label].checked;
  set_statement_text("");
  return true;
}

bool ask_file_variable() {
  TDialog dialog(166, "Select Variable");
  const int variable = dialog.add(combo_control("Memory Variable:", data_rows({"Ans"}), last.file_row));
  if (!confirmed_with_ok(dialog)) return false;
  last.file_row = dialog[variable].selected;
  new_statement.var0 = output_operand(last.file_row);
  return true;
}

bool ask_loop_variable() {
  TDialog dialog(167, "Select Variable");
  const int variable = dialog.add(combo_control("Memory Variable:", scalar_rows(), last.loop_slot));
  if (!confirmed_with_ok(dialog)) return false;
  last.loop_slot = dialog[variable].selected;
  new_statement.var0 = static_cast<std::int16_t>(last.loop_slot);
  return true;
}

namespace {

TControl function_control() {
  TRows rows;
  for (int number = 1; number <= FUNCTION_COUNT; ++number)
    rows.push_back("Function " + std::to_string(number));
  return combo_control("Function:", std::move(rows), new_statement.func);
}

}  // namespace

bool ask_function() {
  TDialog dialog(163, "Select Function");
  const int function = dialog.add(function_control());
  if (!confirmed_with_ok(dialog)) return false;
  new_statement.func = static_cast<std::int16_t>(dialog[function].selected);
  return true;
}

bool ask_input_function(bool& custom_prompt) {
  TDialog dialog(164, "Select Function");
  const int function = dialog.add(function_control());
  const int prompt = dialog.add(check_control("Custom Prompt?", last.function_prompt));
  if (!confirmed_with_ok(dialog)) return false;
  new_statement.func = static_cast<std::int16_t>(dialog[function].selected);
  custom_prompt = last.function_prompt = dialog[prompt].checked;
  set_statement_text("");
  return true;
}

bool ask_called_program() {
  TProgramChoice choice;
  if (!select_program_to_call(choice)) return false;
  set_statement_text(choice.name);
  return true;
}

int ask_menu_function() {
  TDialog dialog(175, "Select Menu Function");
  const int row = dialog.add(list_control(
      "Menu Function:", {"Menu Display", "Menu Item", "Menu Title", "Menu Clear"}, last.menu_function));
  dialog[row].lines = 4;
  if (!confirmed_with_ok(dialog)) return -1;
  return last.menu_function = dialog[row].selected;
}

namespace {

// Line breaks take two bytes, so that fewer characters than the field takes may be too many. What was written
// stays in the dialog then.
void keep_long_description(TDialog& dialog, const std::string& stored) {
  if (stored.size() <= STORED_DESCRIPTION_LIMIT) return;
  const std::size_t over = stored.size() - STORED_DESCRIPTION_LIMIT;
  platform().show_message(("The description is too long by " + std::to_string(over)).c_str(), "Limit");
  dialog.keep_open();
}

}  // namespace

void edit_description() {
  TDialog dialog(182, "Program Description");
  TControl text = edit_control("Description:", shown_description(program.description), DESCRIPTION_LIMIT);
  text.lines = DESCRIPTION_LINES;
  const int description = dialog.add(std::move(text));
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    const bool ok = event.kind == CONTROL_ACTIVATED && open[event.control].role == BUTTON_DEFAULT;
    if (ok) keep_long_description(open, stored_description(open[description].text));
  };
  if (confirmed_with_ok(dialog)) set_description(stored_description(dialog[description].text));
}

void reset_statement_dialogs() {
  last = {};
  reset_argument_dialog();
}

}  // namespace zephyl
