// The operands of statements as values.
#pragma once

#include "programs/program.h"

namespace zephyl {

// True for a slot that holds a number, 0 to 89. Reports ERR_DATA_TYPE for the slot of something else and
// ERR_UNEXPECTED for none.
bool is_scalar_slot(int slot);

// The comparison of `if` and `while`, on real parts. False, with the error reported, where an operand is no
// number or the comparison isn't known.
bool condition_holds(const ProgramStatement& statement);

}  // namespace zephyl
