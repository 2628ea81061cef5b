// What the string files register with the engine.
#pragma once

namespace zephyl {

// All operations on strings but those of drawing, state files and formulas; listToString( and numToString(
// too.
void register_string_operations();

void register_string_editing();      // joins, parts, comparisons, the store
void register_string_conversions();  // to and from lists and numbers

}  // namespace zephyl
