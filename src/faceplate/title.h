// The title line of the window, which carries the state: the number of statistics data, the variable on the
// table screens with its size, the plot's type and cursor.
#pragma once

namespace zephyl {

void refresh_title();

}  // namespace zephyl
