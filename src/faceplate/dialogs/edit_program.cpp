#include "faceplate/dialogs/edit_program.h"

#include <algorithm>

#include "faceplate/dialogs/statement_rows.h"
#include "platform/dialog.h"
#include "programs/built_in_programs.h"
#include "programs/program_files.h"

namespace zephyl {

namespace {

constexpr int BUILT_IN = 1;  // row of the types
constexpr const char* NONE_FOUND = "(Found no Custom Programs)";

enum TEditControl { NAME, ACTION, TYPE };

TEditChoice last;

TRows names_of_type(int type) {
  TRows names = type == BUILT_IN ? built_in_names() : program_names();
  if (names.empty()) names.emplace_back(NONE_FOUND);
  return names;
}

void fill(TDialog& dialog) {
  TControl& list = dialog[NAME];
  list.rows = names_of_type(dialog[TYPE].selected);
  const auto found = std::find(list.rows.begin(), list.rows.end(), last.name);
  list.selected = found == list.rows.end() ? 0 : static_cast<int>(found - list.rows.begin());
}

}  // namespace

bool select_program_to_edit(TEditChoice& choice) {
  TDialog dialog(152, "Select Program");
  dialog.add(list_control("Program Name:", {}));
  dialog.add(combo_control("Action:", {"Edit Program", "New Program", "Copy Program", "Delete Program"}, last.action));
  dialog.add(combo_control("Program Type:", {"Custom Program", "Built-in Program"}, last.built_in ? BUILT_IN : 0));
  fill(dialog);
  dialog.procedure = [](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == TYPE) fill(open);
    if (event.kind == CONTROL_ACTIVATED && event.control == NAME) open.close(0);
  };
  if (!confirmed_with_ok(dialog)) return false;
  const std::string name = dialog[NAME].rows[static_cast<std::size_t>(dialog[NAME].selected)];
  choice.built_in = dialog[TYPE].selected == BUILT_IN;
  choice.action = dialog[ACTION].selected;
  choice.name = !choice.built_in && name == NONE_FOUND ? "" : name;
  last = choice;
  return true;
}

void reset_edit_program_dialog() { last = {}; }

}  // namespace zephyl
