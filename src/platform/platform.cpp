#include "platform/platform.h"

#include "platform/dialog.h"
#include "platform/silent_platform.h"

namespace zephyl {

namespace {

TSilentPlatform silent_platform;
TPlatform* current_platform = &silent_platform;

}  // namespace

// Nobody is there to answer.
void TSilentPlatform::run_dialog(TDialog& dialog) {
  dialog.tell(DIALOG_OPENED);
  cancel_dialog(dialog);
}

TPlatform& platform() { return *current_platform; }

void set_platform(TPlatform* platform) { current_platform = platform ? platform : &silent_platform; }

}  // namespace zephyl
