// The six kinds of plot as a person chooses among them.
#pragma once

namespace zephyl {

constexpr int PLOT_KIND_COUNT = 6;

// 0 to 5: "Function", "Polar", "Parametric", "3D Cartesian", "3D Cylindrical", "3D Spherical".
const char* plot_kind_name(int kind);
// The kind of a plotType and, in 3D, a plotType3D, and back. -1 for types that there are none of.
int plot_kind(int plot_type, int plot_type_3d);
int plot_type_of_kind(int kind);
// The plotType3D of a kind; of a flat one the one that stands.
int plot_type_3d_of_kind(int kind);

}  // namespace zephyl
