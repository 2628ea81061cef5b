// Where the files of the programs lie. A program that runs where it was built keeps everything beside it; one
// that was installed finds its own files in "share/zephyl" and keeps the user's in the user's data folder.
#pragma once

#include <string>

namespace zephyl {

// The folder of the running program, "" where the system doesn't tell.
std::string executable_folder();

// The folder of what was installed with the programs of `executable_folder`; "" if they weren't installed.
std::string installed_folder(const std::string& executable_folder);

// The folder of the user's programs, constants and settings: executable_folder itself if nothing was
// installed with it and it can be written, else "zephyl" in the user's data folder ($XDG_DATA_HOME,
// ~/.local/share), which is made if it isn't there; without either the current folder.
std::string data_folder_of(const std::string& executable_folder);

// The help, as a path that exists, from what was installed or from beside the program; "" where there is
// none.
std::string help_file_of(const std::string& executable_folder);

}  // namespace zephyl
