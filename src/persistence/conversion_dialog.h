// Dialog 138, "Select Conversion": a property, and two of its units.
#pragma once

namespace zephyl {

// from: the code of the unit converted from; position: that of the other one, as unit_position gives it.
// False if the user cancelled. The three choices are there again next time.
bool select_conversion(int& from, int& position);

// The key and the menu row: the chosen conversion goes into the expression.
void insert_selected_conversion();

void reset_conversion_dialog();

}  // namespace zephyl
