// The dialogs behind the cells of the periodic table.
#pragma once

namespace zephyl {

// The facts of an element, 0 to 108; nothing for another index. A fact that is a number can be taken: the mode is then
// COMP_MODE and the number stands in the expression.
void show_element_information(int index);

// All elements with all their facts.
void show_element_table();

}  // namespace zephyl
