// The pair of combos that several dialogs choose a variable with: its group, and the variables of that group
// with their values.
#pragma once

#include "platform/dialog.h"

namespace zephyl {

class TVariablePicker {
 public:
  // Adds the combos to a dialog and opens them on `selected`, a memory slot or the token of an answer
  // (TOKEN_M_ANS, TOKEN_L_ANS, TOKEN_STR_ANS). with_answers: the answers stand behind the variables of their
  // kind.
  TVariablePicker(TDialog& dialog, int selected, bool with_answers);

  // To be called by the dialog's procedure: another group shows its own variables.
  void handle(TDialog& dialog, const TDialogEvent& event) const;

  // The memory slot or the answer's token.
  int selection(const TDialog& dialog) const;

 private:
  bool with_answers_;
  int group_;
  int variable_;
};

}  // namespace zephyl
