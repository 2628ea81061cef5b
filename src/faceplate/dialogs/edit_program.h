// Dialog 152, "Select Program": a program to edit, to copy or to delete, or a new one.
#pragma once

#include "programs/dialogs/select_program.h"

namespace zephyl {

enum TProgramAction { EDIT_PROGRAM = 0, NEW_PROGRAM, COPY_PROGRAM, DELETE_PROGRAM };

// Without a name: none was chosen.
struct TEditChoice : TProgramChoice {
  int action = EDIT_PROGRAM;
};

// False on Cancel.
bool select_program_to_edit(TEditChoice& choice);

void reset_edit_program_dialog();

}  // namespace zephyl
