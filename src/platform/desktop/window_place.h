// Where the window stood and how large its picture was, kept in "window.ini" of the data folder.
#pragma once

#include <string>

namespace zephyl {

class TCalculatorWindow;

void save_place(const TCalculatorWindow& window, const std::string& folder);
// Leaves the place to the desktop where none is kept, or where no screen holds it any more.
void restore_place(TCalculatorWindow& window, const std::string& folder);

}  // namespace zephyl
