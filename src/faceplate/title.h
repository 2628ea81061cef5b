// The title line of the window, which carries the state: the number of statistics data, the variable on the
// table screens with its size, the plot's type and cursor.
#pragma once

namespace zephyl {

void refresh_title();

// The plot cursor that acts: on a plane there is nothing to rotate, and that cursor acts as the trace.
int shown_plot_cursor();

}  // namespace zephyl
