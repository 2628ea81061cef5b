#include "faceplate/dialogs/select_variable.h"

#include "engine/memory.h"
#include "faceplate/dialogs/running.h"
#include "faceplate/dialogs/variable_picker.h"

namespace zephyl {

namespace {

int last_stored = SLOT_R0;
int last_recalled = SLOT_R0;

}  // namespace

int choose_store_variable() {
  TDialog dialog(157, "Select Variable");
  const TVariablePicker picker(dialog, last_stored, false);
  add_ok_cancel(dialog);
  dialog.procedure = [&](TDialog& open, const TDialogEvent& event) { picker.handle(open, event); };
  if (!confirmed(dialog)) return NO_VARIABLE;
  return last_stored = picker.selection(dialog);
}

int choose_recall_variable(bool& by_value) {
  TDialog dialog(170, "Select Variable");
  const TVariablePicker picker(dialog, last_recalled, true);
  const int value = dialog.add(check_control("By Value?", false));
  add_ok_cancel(dialog);
  dialog.procedure = [&](TDialog& open, const TDialogEvent& event) { picker.handle(open, event); };
  if (!confirmed(dialog)) return NO_VARIABLE;
  by_value = dialog[value].checked;
  return last_recalled = picker.selection(dialog);
}

}  // namespace zephyl
