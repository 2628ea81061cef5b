#include "faceplate/dialogs/surface_variable.h"

#include "faceplate/dialogs/running.h"

namespace zephyl {

int choose_surface_variable() {
  TDialog dialog(192, "Select Variable");
  const int u = dialog.add(button_control("u"));
  const int v = dialog.add(beside(button_control("v")));
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && (event.control == u || event.control == v))
      open.close(event.control - u);
  };
  platform().run_dialog(dialog);
  return dialog.result();
}

}  // namespace zephyl
