// Where the calculator keeps its files.
#pragma once

#include <string>

namespace zephyl {

// The folder of the executable if it can be written, else the user's own, which is made if it isn't there;
// without either the current folder.
std::string find_data_folder();

}  // namespace zephyl
