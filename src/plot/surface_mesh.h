// The samples of the two surfaces of a 3D plot, as points in space.
#pragma once

#include "plot/plot_kinds.h"

namespace zephyl {

constexpr int MESH_LIMIT = 51;  // samples of a parameter
constexpr int SURFACE_COUNT = 2;

struct TMeshPoint {
  double x = 0.0;  // undefined_value in all three where a slot gave nothing
  double y = 0.0;
  double z = 0.0;
  double values[3] = {};  // what the slots gave
};

// Samples of u lie on rows, those of v on columns.
struct TMesh {
  TMeshPoint points[MESH_LIMIT][MESH_LIMIT];
  int rows = 0;
  int columns = 0;
};

// Forces the steps of both parameters, and writes them back, into the limits of a mesh, and zScale into those
// of a plot.
void limit_surface_variables();

// Is told of each row that has all its coordinates, which after a cancel the rest of the rows don't get.
class TRowListener {
 public:
  virtual void row_done(int row) = 0;

 protected:
  ~TRowListener() = default;
};

// Fills the mesh of the surface whose first slot is `slot`.
void sample_surface(TMesh& mesh, int slot, TRowListener& listener);

// The meshes of the last full plot, by surface; one that isn't in use has no rows.
TMesh& surface_mesh(int surface);

}  // namespace zephyl
