#include "programs/dialogs/select_program.h"

#include <algorithm>
#include <vector>

#include "platform/dialog.h"
#include "platform/platform.h"
#include "programs/built_in_programs.h"
#include "programs/program_files.h"

namespace zephyl {

namespace {

constexpr int RUN_DIALOG_ID = 156;
constexpr int CALL_DIALOG_ID = 161;
constexpr int NAME_LINES = 8;
constexpr int BUILT_IN_ROW = 1;  // of the types
constexpr const char* NONE_FOUND = "(Found no Custom Programs)";

TProgramChoice last_run;
TProgramChoice last_called;

std::vector<std::string> names_of_type(bool built_in) {
  std::vector<std::string> names = built_in ? built_in_names() : runnable_names();
  if (names.empty()) names.push_back(NONE_FOUND);
  return names;
}

struct TControls {
  int name = 0;
  int type = 0;
};

void fill_names(TDialog& dialog, const TControls& controls, const std::string& wanted) {
  TControl& list = dialog[controls.name];
  list.rows = names_of_type(dialog[controls.type].selected == BUILT_IN_ROW);
  const auto found = std::find(list.rows.begin(), list.rows.end(), wanted);
  list.selected = found == list.rows.end() ? 0 : static_cast<int>(found - list.rows.begin());
}

// False for the row that stands in an empty list.
bool read_choice(const TDialog& dialog, const TControls& controls, TProgramChoice& choice) {
  const TControl& list = dialog[controls.name];
  if (list.selected < 0) return false;
  choice.built_in = dialog[controls.type].selected == BUILT_IN_ROW;
  choice.name = list.rows[static_cast<std::size_t>(list.selected)];
  return choice.built_in || choice.name != NONE_FOUND;
}

// last: what the dialog opens on, and the choice made.
bool select_program(TDialog& dialog, TProgramChoice& last) {
  TControls controls;
  controls.name = dialog.add(list_control("Program Name:", {}));
  dialog[controls.name].lines = NAME_LINES;
  controls.type = dialog.add(combo_control("Program Type:", {"Custom Program", "Built-in Program"},
                                           last.built_in ? BUILT_IN_ROW : 0));
  add_ok_cancel(dialog);
  fill_names(dialog, controls, last.name);
  dialog.procedure = [&](TDialog& self, const TDialogEvent& event) {
    if (event.kind == CONTROL_CHANGED && event.control == controls.type)
      fill_names(self, controls, last.name);
  };
  platform().run_dialog(dialog);
  TProgramChoice chosen;
  if (dialog.result() == DIALOG_CANCELLED || !read_choice(dialog, controls, chosen)) return false;
  last = chosen;
  return true;
}

bool choose(TDialog dialog, TProgramChoice& last, TProgramChoice& choice) {
  if (!select_program(dialog, last)) return false;
  choice = last;
  return true;
}

}  // namespace

bool select_program_to_run(TProgramChoice& choice) {
  return choose(TDialog(RUN_DIALOG_ID, "Select Program to Run"), last_run, choice);
}

bool select_program_to_call(TProgramChoice& choice) {
  return choose(TDialog(CALL_DIALOG_ID, "Select Program to Call"), last_called, choice);
}

void reset_program_dialogs() { last_run = last_called = {}; }

}  // namespace zephyl
