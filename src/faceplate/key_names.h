// What the keys of the screen that shows are called, for whoever can't see them: a screen reader, a list of
// keys.
#pragma once

#include <string>

namespace zephyl {

// The name of a row of the shown key table, with what stands on the key just now: "Sine", "Angle unit:
// degrees", "Hydrogen". Empty for a row that is no key there, such as the dead pixel of the plot screen.
std::string key_name(int key);

// What the key does behind a shift: "Blue: inverse sine. Orange: ..."; empty if that is nothing else.
std::string key_shift_names(int key);

// Keys that stay on or off, as the shifts and the locks of the plot.
enum TKeyMark { KEY_WITHOUT_MARK, KEY_OFF, KEY_ON };
TKeyMark key_mark(int key);

}  // namespace zephyl
