#include "faceplate/dialogs/select_expression.h"

#include "engine/expression.h"
#include "engine/tokens.h"
#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/running.h"

namespace zephyl {

namespace {

// What the dialog is closed with.
enum TUse { REPLACE_LINE = 0, INSERT_AT_CURSOR };

constexpr int LISTING_SIZE = 2000;

int& last_row = remembered.expression_row;

std::vector<std::string> entry_texts() {
  std::vector<std::string> texts;
  char listing[LISTING_SIZE];
  for (int i = 0; i < history.count; ++i) {
    expression_text(history.entries[i], listing, sizeof listing);
    texts.emplace_back(listing);
  }
  return texts;
}

}  // namespace

void show_expressions() {
  if (history.count == 0) return;
  TDialog dialog(168, "Select Expression");
  const int list = dialog.add(list_control("Expression Entries:", entry_texts(), last_row));
  dialog.add(button_control("Replace Current Expression", BUTTON_DEFAULT));
  const int insert = dialog.add(button_control("Insert Expression at Cursor"));
  dialog[insert].enabled = entry_line.cursor_shown && entry_line.expression.count > 0;
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == insert) open.close(INSERT_AT_CURSOR);
  };
  if (!confirmed(dialog)) return;
  last_row = dialog[list].selected;
  use_history(last_row, dialog.result() == INSERT_AT_CURSOR);
}

}  // namespace zephyl
