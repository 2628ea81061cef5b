// The picture of how a kind of plot takes its coordinates.
#pragma once

namespace zephyl {

// kind: 0 to 5 as in plot_types.h.
void show_coordinate_system(int kind);

}  // namespace zephyl
