#include "faceplate/dialogs/select_variable.h"

#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/running.h"
#include "faceplate/dialogs/variable_picker.h"

namespace zephyl {

int choose_store_variable() {
  TDialog dialog(157, "Select Variable");
  const TVariablePicker picker(dialog, remembered.store_variable, false);
  add_ok_cancel(dialog);
  dialog.procedure = [&](TDialog& open, const TDialogEvent& event) { picker.handle(open, event); };
  if (!confirmed(dialog)) return NO_VARIABLE;
  return remembered.store_variable = picker.selection(dialog);
}

int choose_recall_variable(bool& by_value) {
  TDialog dialog(170, "Select Variable");
  const TVariablePicker picker(dialog, remembered.recall_variable, true);
  const int value = dialog.add(check_control("By Value?", remembered.recall_by_value));
  add_ok_cancel(dialog);
  dialog.procedure = [&](TDialog& open, const TDialogEvent& event) { picker.handle(open, event); };
  if (!confirmed(dialog)) return NO_VARIABLE;
  by_value = remembered.recall_by_value = dialog[value].checked;
  return remembered.recall_variable = picker.selection(dialog);
}

}  // namespace zephyl
