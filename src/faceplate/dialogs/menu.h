// Dialog 200, "Menu": the modes and tools of the calculator by name.
#pragma once

namespace zephyl {

// Opens the menu and does what its chosen row says.
void show_menu();

}  // namespace zephyl
