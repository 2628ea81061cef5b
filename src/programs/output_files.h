// The files that `fout` statements write: one for each program, begun anew in each run.
#pragma once

#include <string>

namespace zephyl {

constexpr int OUTPUT_FILE_LIMIT = 100;  // programs in one run; further ones write nothing

// Adds to the file of a program. What can't be written is dropped, with nothing said.
void write_output(const char* program_name, const std::string& line);
void close_output_files();

}  // namespace zephyl
