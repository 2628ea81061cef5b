#include "faceplate/dialogs/about.h"

#include "engine/errors.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr const char* INVITATION =
    "Send comments, suggestions, bug reports, or a custom function you would like to share";

}  // namespace

void show_about() {
  TDialog dialog(160, "About");
  dialog.add(label_control(std::string("Zephyl v") + VERSION_TEXT));
  dialog.add(text_control("", INVITATION, 3));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
