// What the list folder registers with the engine.
#pragma once

namespace zephyl {

// All operations on lists but those of statistics, drawing, strings and cash flows.
void register_list_operations();

void register_list_values();   // results that are numbers
void register_list_editing();  // results that are lists

}  // namespace zephyl
