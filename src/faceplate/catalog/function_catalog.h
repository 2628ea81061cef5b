// Dialog 196, "Select Function": every function of the language, and the user's own, with what each does.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

constexpr int NO_FUNCTION_TOKEN = -1;

// Asks for a function and puts it into the expression: a call with the solver's variables for the functions of the money
// solver, the name of a custom function with its token; any other token is the result, for the entry path. Nothing for
// Cancel and for a heading: NO_FUNCTION_TOKEN, as where the expression is complete already.
int select_function();

// What a dialog lists for a group: sorted without regard to case, but for the two groups with headings.
std::vector<std::string> function_rows(int group);

constexpr int CUSTOM_FUNCTION_GROUP = 14;

// The dialog opens as at the very start.
void reset_function_catalog();

}  // namespace zephyl
