// The dialogs of the constants: 147, "Select Constant", and 181, "Edit Constant". Each opens on the row it
// was left on.
#pragma once

#include <string>

namespace zephyl {

enum TConstantChoice {
  CONSTANT_CANCELLED,
  CONSTANT_CHOSEN,
  CONSTANT_ELEMENTS  // the periodic table is asked for instead
};

// Dialog 147. value: the chosen constant's, as text.
TConstantChoice select_constant(std::string& value);
// The key and the menu row: the chosen constant's value goes into the expression.
TConstantChoice insert_selected_constant();

// Dialog 181. Deletes a constant (delete_constant asks first). True if one is to be added: then its name is
// to be typed, and its unit, for add_constant.
bool edit_constants();

void reset_constant_dialogs();

}  // namespace zephyl
