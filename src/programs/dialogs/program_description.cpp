#include "programs/dialogs/program_description.h"

#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int SHOWING_DIALOG_ID = 184;
constexpr int LINES = 10;
constexpr char BREAK = '~';
constexpr char STORED_TILDE = 7;

}  // namespace

std::string shown_description(const std::string& stored) {
  std::string shown;
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const bool breaks = stored[i] == BREAK;
    if (breaks && i + 1 < stored.size() && stored[i + 1] == BREAK) ++i;
    shown += breaks ? '\n' : stored[i] == STORED_TILDE ? '~' : stored[i];
  }
  return shown;
}

std::string stored_description(const std::string& shown) {
  std::string stored;
  for (const char c : shown) {
    if (c == '\n')
      stored.append(2, BREAK);
    else if (c != '\r')
      stored += c == '~' ? STORED_TILDE : c;
  }
  return stored;
}

void show_program_description(const char* stored) {
  TDialog dialog(SHOWING_DIALOG_ID, "Program Description");
  dialog.add(text_control("", shown_description(stored), LINES));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
