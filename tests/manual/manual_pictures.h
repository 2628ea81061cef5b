// The pictures of the manual. A line `$ png NAME.png` of a page makes one, docs/pictures/NAME.png keeps it,
// and the page shows it as ![...](../pictures/NAME.png).
#pragma once

#include <string>

namespace zephyl {

// True for a command of zephyl-script that writes a picture.
bool makes_picture(const std::string& command);

// The same command with the place that the picture is written to: to be kept, or only to be compared.
std::string picture_command(const std::string& command, bool keep);

// What is wrong with the picture that the command has written to be compared; empty if it is the one that is
// kept.
std::string picture_fault(const std::string& command);

}  // namespace zephyl
