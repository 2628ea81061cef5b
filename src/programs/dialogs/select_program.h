// The dialogs that ask for a program by its name.
#pragma once

#include <string>

namespace zephyl {

struct TProgramChoice {
  std::string name;
  bool built_in = false;
};

// "Select Program to Run". False on Cancel, or where there is none to choose.
bool select_program_to_run(TProgramChoice& choice);
// "Select Program to Call", of a `call` statement.
bool select_program_to_call(TProgramChoice& choice);

// Both dialogs forget what was chosen last.
void reset_program_dialogs();

}  // namespace zephyl
