// The description of a program: shown by a running one, edited by the program editor.
#pragma once

#include <string>

namespace zephyl {

constexpr int DESCRIPTION_LIMIT = 1050;  // characters that can be edited

// A description is stored on one line: a line break is two "~", and a "~" of the text is stored as code 7. A
// "~" that stands alone in a file is a break too. Line breaks of the shown text are "\n".
std::string shown_description(const std::string& stored);
std::string stored_description(const std::string& shown);

// "Program Description", read only.
void show_program_description(const char* stored);

}  // namespace zephyl
