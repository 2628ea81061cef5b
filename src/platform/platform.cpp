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

std::string path_to_save(const TFileQuestion& question, const std::string& chosen) {
  const std::string ending = std::string(".") + question.extension;
  const std::string name = chosen.substr(chosen.rfind('/') + 1);
  return name.find(ending) == std::string::npos ? chosen + ending : chosen;
}

TPlatform& platform() { return *current_platform; }

void set_platform(TPlatform* platform) { current_platform = platform ? platform : &silent_platform; }

}  // namespace zephyl
