// How the dialogs of this folder are run.
#pragma once

#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

// Shows a dialog until it is closed; true if it was not cancelled.
inline bool confirmed(TDialog& dialog) {
  platform().run_dialog(dialog);
  return dialog.result() != DIALOG_CANCELLED;
}

// The same with OK and Cancel added as its last controls.
inline bool confirmed_with_ok(TDialog& dialog) {
  add_ok_cancel(dialog);
  return confirmed(dialog);
}

}  // namespace zephyl
