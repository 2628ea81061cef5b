// Dialog 214, "Select Variable": the system variables, to read or to write.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

constexpr int NO_VARIABLE_TOKEN = -1;

// The token that reads the chosen variable or stores into it; NO_VARIABLE_TOKEN on Cancel.
int select_system_variable();

// What the dialog lists for a group: in the order of the table; the last group has all, sorted without regard to case.
std::vector<std::string> variable_rows(int group);

constexpr int ALL_VARIABLES_GROUP = 8;

// The dialog opens as at the very start.
void reset_variable_catalog();

}  // namespace zephyl
