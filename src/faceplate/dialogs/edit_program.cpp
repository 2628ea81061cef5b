#include "faceplate/dialogs/edit_program.h"

#include <algorithm>

#include "faceplate/dialogs/running.h"
#include "faceplate/dialogs/statement_rows.h"
#include "platform/dialog.h"
#include "programs/built_in_programs.h"
#include "programs/function_header.h"
#include "programs/program_files.h"

namespace zephyl {

namespace {

constexpr int BUILT_IN = 1;  // row of the types
constexpr const char* NONE_FOUND = "(Found no Custom Programs)";

enum TEditControl { NAME, ACTION, TYPE };

TEditChoice last;

TRows names_of_type(int type) { return type == BUILT_IN ? built_in_names() : program_names(); }

// A custom function is followed by its arguments.
std::string row_text(const std::string& name, int type) {
  TFunctionHeader header;
  if (type == BUILT_IN || read_function_header(name.c_str(), header) == NO_FUNCTION) return name;
  return name + "(" + arguments_text(header) + ")";
}

void fill(TDialog& dialog) {
  TControl& list = dialog[NAME];
  const int type = dialog[TYPE].selected;
  const TRows names = names_of_type(type);
  list.rows.clear();
  for (const std::string& name : names) list.rows.push_back(row_text(name, type));
  if (list.rows.empty()) list.rows.emplace_back(NONE_FOUND);
  const auto found = std::find(names.begin(), names.end(), last.name);
  list.selected = found == names.end() ? 0 : static_cast<int>(found - names.begin());
}

// The name in the selected row; empty where there is none.
std::string selected_name(const TDialog& dialog) {
  const TRows names = names_of_type(dialog[TYPE].selected);
  const auto row = static_cast<std::size_t>(dialog[NAME].selected);
  return row < names.size() ? names[row] : "";
}

}  // namespace

bool select_program_to_edit(TEditChoice& choice) {
  TDialog dialog(152, "Select Program");
  dialog.add(list_control("Program Name:", {}));
  dialog.add(combo_control("Action:", {"Edit Program", "New Program", "Copy Program", "Delete Program"},
                           last.action));
  dialog.add(
      combo_control("Program Type:", {"Custom Program", "Built-in Program"}, last.built_in ? BUILT_IN : 0));
  fill(dialog);
  dialog.procedure = [](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == TYPE) fill(open);
  };
  if (!confirmed_with_ok(dialog)) return false;
  choice.built_in = dialog[TYPE].selected == BUILT_IN;
  choice.action = dialog[ACTION].selected;
  choice.name = selected_name(dialog);
  if (choice.name.empty() && choice.action != NEW_PROGRAM) return false;
  last = choice;
  return true;
}

void reset_edit_program_dialog() { last = {}; }

}  // namespace zephyl
