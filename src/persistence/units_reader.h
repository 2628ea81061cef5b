// Reads the text of units and constants: lines "Prop: name", "Unit: code, short name, long name, factor,
// offset" and "Cons: name, unit, value". The built-in text and the user's file have the same form.
#pragma once

#include <string>
#include <string_view>

#include "persistence/text_file.h"

namespace zephyl {

// Adds to the tables what the lines say. A line of fewer than 6 or of 120 and more characters ends the
// reading; one of another kind is passed over. Order and limits are checked, faults told. Returns the lines
// read that are no constants.
std::string read_units_text(TLineReader& reader);

// Empties both tables, reads the built-in text into them and checks that the codes of the units are the
// numbers from 0, without a gap.
void read_built_in_units(std::string_view text);

}  // namespace zephyl
