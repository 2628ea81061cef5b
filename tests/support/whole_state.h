// Whether the calculator's state can be one: no count beyond its store, no text without an end, no choice
// without a meaning. What a damaged file may never bring about.
#pragma once

#include <string>

namespace zephyl {

// What is wrong with it; "" if nothing is.
std::string state_fault();

// The calculator after whatever happened to it: says what is wrong with its state or with 2+2; "" if all is
// well. The settings are those of the start afterwards.
std::string calculator_fault();

}  // namespace zephyl
