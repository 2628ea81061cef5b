// Dialog 168, "Select Expression": an earlier entry comes back to the entry line.
#pragma once

namespace zephyl {

// Acts at once. With no earlier entry there is nothing to open.
void show_expressions();

}  // namespace zephyl
