// A dialog as text: what the command `dialog` prints.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

class TDialog;

// "dialog ID TITLE", a line "KIND LABEL = VALUE" for each control in order, and ".". A control that has no
// value ends with its label. The rows of a combo, list or table follow it, indented by two blanks, the cells
// of a table parted by " | ". "(disabled)" and "(hidden)" stand behind controls that can't be used.
std::vector<std::string> dialog_lines(const TDialog& dialog);

// A row as it is printed.
std::string row_text(const std::string& row);

}  // namespace zephyl
