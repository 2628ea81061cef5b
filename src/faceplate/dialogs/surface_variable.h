// Dialog 192, "Select Variable": the two parameters of a 3D plot.
#pragma once

namespace zephyl {

// 0 for u, 1 for v; -1 on Cancel.
int choose_surface_variable();

}  // namespace zephyl
