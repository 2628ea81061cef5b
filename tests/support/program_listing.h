// Programs for tests, transcripts and the manual, written as the program screen lists them.
//
//   in r, "radius"
//   pi*r^(2)->V
//   out V (p), "area"
//
// Each line is a statement, with or without its number in front ("2: "). Expressions stand in text form.
// Comparisons are written as `if (A > 0)` and `while (Ans <> B)`, an argument list as `func(a,[A])`, a
// description as `Program Description "text"`; `end` may name what it ends.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

// The text of the program's file. Ends the process, with the line, for one that can't be read.
std::string program_file_from_listing(const std::string& name, const std::vector<std::string>& lines);

}  // namespace zephyl
