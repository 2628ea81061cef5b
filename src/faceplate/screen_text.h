// What the display shows, in words and plain text, for whoever can't see the picture.
#pragma once

#include <string>

namespace zephyl {

// The line that is written on: the expression as a listing has it, or the text of an alpha entry.
std::string shown_entry();
// The place of the cursor in it, in bytes.
int shown_entry_cursor();
// What that line is: "Entry line", "Program name", "Constant unit".
std::string shown_entry_name();

// The result line: the result, the error, the question of a program; in the program editor the line at the
// cursor.
std::string shown_result();
// An error stands.
bool shows_error();

// "COMP, degrees", "BASE, hexadecimal, 16 bits", "Program editor".
std::string shown_mode();

}  // namespace zephyl
