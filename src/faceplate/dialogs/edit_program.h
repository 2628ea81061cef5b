// Dialog 152, "Select Program": a program to edit, to copy or to delete, or a new one.
#pragma once

#include <string>

namespace zephyl {

enum TProgramAction { EDIT_PROGRAM = 0, NEW_PROGRAM, COPY_PROGRAM, DELETE_PROGRAM };

struct TEditChoice {
  std::string name;  // empty: none
  int action = EDIT_PROGRAM;
  bool built_in = false;
};

// False on Cancel.
bool select_program_to_edit(TEditChoice& choice);

void reset_edit_program_dialog();

}  // namespace zephyl
