// The parameter of a flat plot as dialogs name it: x, theta or t.
#pragma once

#include <string>

namespace zephyl {

// Of the current plot type: "theta".
const char* parameter_name();
// With the angle mode behind it where the parameter is an angle: "theta (Rad)" or, with a word in between,
// "theta Value: (Rad)".
std::string parameter_label(const std::string& word = "");

}  // namespace zephyl
