// The user's programs: files of the folder "programs" beneath the data folder.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

// The path of a program's file, in a folder that is made if it isn't there. A '/' of the name, which no file
// name may hold, stands in it as '|', which no program name may hold.
std::string program_path(const std::string& name);
// Likewise the file that `fout` statements of the program write.
std::string output_path(const std::string& name);

// The name of the program whose file has that name, which comes without folder and extension.
std::string program_name_of(const std::string& file);

bool program_exists(const std::string& name);
// Removes the file; false if that can't be done.
bool delete_program(const std::string& name);

// The names of all program files, sorted without regard to case.
std::vector<std::string> program_names();
// Those that are custom functions, and the rest.
std::vector<std::string> function_names();
std::vector<std::string> runnable_names();

}  // namespace zephyl
