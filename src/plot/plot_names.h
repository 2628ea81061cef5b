// The parts of the current plot type as dialogs name them: its parameter, its slots and its curves.
#pragma once

#include <string>
#include <vector>

namespace zephyl {

// Of a flat plot: "theta".
const char* parameter_name();
// With the angle mode behind it where the parameter is an angle: "theta (Rad)" or, with a word in between,
// "theta Value: (Rad)".
std::string parameter_label(const std::string& word = "");

// "f1(x)", "Y1(t)", "Z2(u,v)".
const char* slot_label(int slot);
// The curves and surfaces, each by the names of its slots: "X1(t), Y1(t)".
std::vector<std::string> curve_labels();

}  // namespace zephyl
