// Dialogs 157 and 170, "Select Variable": a variable to store into, or to recall.
#pragma once

namespace zephyl {

constexpr int NO_VARIABLE = -1;

// A memory slot, or NO_VARIABLE.
int choose_store_variable();

// A memory slot or the token of an answer, or NO_VARIABLE. by_value: its value is wanted, not its name.
int choose_recall_variable(bool& by_value);

}  // namespace zephyl
