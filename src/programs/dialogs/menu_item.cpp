#include "programs/dialogs/menu_item.h"

#include <algorithm>

#include "platform/dialog.h"
#include "platform/platform.h"
#include "programs/menu.h"

namespace zephyl {

namespace {

constexpr int DIALOG_ID = 176;
constexpr const char* USUAL_TITLE = "Select Menu Item";
constexpr int MOST_LINES = 10;
constexpr int LEAST_LINES = 3;

}  // namespace

int select_menu_item(const TMenu& items) {
  TDialog dialog(DIALOG_ID, items.title[0] ? items.title : USUAL_TITLE);
  const int list = dialog.add(list_control("Menu Item:", {items.text, items.text + items.count}));
  dialog[list].lines = std::clamp(items.count, LEAST_LINES, MOST_LINES);
  add_ok_cancel(dialog);
  platform().run_dialog(dialog);
  return dialog.result() == DIALOG_CANCELLED ? DIALOG_CANCELLED : dialog[list].selected;
}

}  // namespace zephyl
