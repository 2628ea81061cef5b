// Dialog 103, "Setup Options": the settings, and the ways to what has no key of its own.
#pragma once

namespace zephyl {

// Opens it; nothing in the error state and while a program runs. OK takes the settings over; however it
// closes, but for the way to the constants, the settings are saved.
void show_setup();

}  // namespace zephyl
