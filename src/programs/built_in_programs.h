// The programs that ship with the calculator: one text in the form of program files, joined from
// resources/programs/ when the calculator is built. They can be run and looked at, not changed.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zephyl {

// The whole text: the lines of one program after the other, each program beginning with its line "N: name".
// The last one only closes the text.
const char* built_in_text();
std::size_t built_in_size();

// The lines of a program behind its "N:" line; null, with size 0, for a name that is none of them.
const char* find_built_in(const char* name, std::size_t& size);

// Names in the order of the text, which is the alphabet's, without the closing one.
std::vector<std::string> built_in_names();

}  // namespace zephyl
