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

// A double click on a row of a list is OK.
inline void close_on_activation(TDialog& dialog, const TDialogEvent& event, int list) {
  if (event.kind == CONTROL_ACTIVATED && event.control == list) dialog.close(0);
}

}  // namespace zephyl
