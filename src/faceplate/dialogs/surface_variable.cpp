#include "faceplate/dialogs/surface_variable.h"

#include "faceplate/dialogs/running.h"

namespace zephyl {

int choose_surface_variable() {
  TDialog dialog(192, "Select Variable");
  const int u = dialog.add(button_control("u"));
  TControl other = button_control("v");
  other.beside = true;
  const int v = dialog.add(other);
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && (event.control == u || event.control == v))
      open.close(event.control - u);
  };
  platform().run_dialog(dialog);
  return dialog.result();
}

}  // namespace zephyl
