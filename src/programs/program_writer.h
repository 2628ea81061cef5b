// A program as the text of its file.
#pragma once

#include <string>

namespace zephyl {

struct TProgram;

// All lines, each with CR LF: the name, the version, the statements with their fields that are not 0.
std::string program_file_text(const TProgram& program);

}  // namespace zephyl
