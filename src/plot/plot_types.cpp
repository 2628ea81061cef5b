#include "plot/plot_types.h"

#include "plot/plot_variables.h"

namespace zephyl {

const char* plot_kind_name(int kind) {
  constexpr const char* names[PLOT_KIND_COUNT] = {"Function",     "Polar",          "Parametric",
                                                  "3D Cartesian", "3D Cylindrical", "3D Spherical"};
  return kind >= 0 && kind < PLOT_KIND_COUNT ? names[kind] : "";
}

int plot_kind(int plot_type, int plot_type_3d) {
  if (plot_type >= PLOT_FUNCTION && plot_type < PLOT_3D) return plot_type;
  const bool known = plot_type == PLOT_3D && plot_type_3d >= PLOT_CARTESIAN && plot_type_3d <= PLOT_SPHERICAL;
  return known ? PLOT_3D + plot_type_3d : -1;
}

int plot_type_of_kind(int kind) { return kind < PLOT_3D ? kind : static_cast<int>(PLOT_3D); }

int plot_type_3d_of_kind(int kind) { return kind < PLOT_3D ? plot_variables.plotType3D : kind - PLOT_3D; }

}  // namespace zephyl
