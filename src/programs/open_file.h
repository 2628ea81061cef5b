// Files that the user opens from outside of the calculator, by a double click say: what each kind of them
// means.
#pragma once

#include <string>

namespace zephyl {

// A state file is loaded, as "Load State" does it. A program is added to the user's programs under the name
// of its file; one that is there already is replaced only if the user says so. What is no such file, or is
// damaged, gets a message and changes nothing; a program under edit is saved before. Nothing happens while an error
// stands, a text is written on the keyboard of the face, or a program runs.
void open_file(const std::string& path);

}  // namespace zephyl
