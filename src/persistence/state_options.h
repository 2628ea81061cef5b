// The options of a state file: single numbers, each by its own number in the file. One table says where an
// option lives, with which item it is saved and what a reader makes of a value that can't be.
#pragma once

#include <string>

#include "persistence/state_numbers.h"

namespace zephyl {

// All options of the items that are saved, each a record, in the order of the format.
void append_options(std::string& text);

// Takes the field of the option `number`; an unknown number does nothing.
void read_option(int number, const TFieldReader& field);

}  // namespace zephyl
