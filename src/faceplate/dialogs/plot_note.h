// Dialog 187, "Note": how something to plot is entered.
#pragma once

namespace zephyl {

void show_plot_note();

}  // namespace zephyl
