#include "programs/open_program.h"

#include "engine/errors.h"
#include "platform/platform.h"
#include "programs/dialogs/select_program.h"
#include "programs/program.h"
#include "programs/program_cache.h"

namespace zephyl {

namespace {

// Of a later release the reader has said what is the matter.
void tell_unreadable(const std::string& name) {
  if (errors.error_flag) return;
  platform().show_message(("The program can't be read: " + name).c_str(), "Program Error");
}

}  // namespace

bool open_program(const TProgramChoice& choice) {
  const TProgram before = program;
  if (load_program(choice.name.c_str(), choice.built_in) >= 0) return true;
  program = before;
  tell_unreadable(choice.name);
  return false;
}

}  // namespace zephyl
