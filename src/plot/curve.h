// A curve that grows point by point, as parametric, polar and 3D plots draw it: lines between the points with
// connectDots, else dots.
#pragma once

#include "plot/plot_mapping.h"

namespace zephyl {

class TCurve {
 public:
  TCurve(TSurface& target, TColour colour) : target_(target), colour_(colour) {}

  // In plot units; a coordinate of undefined_value makes a gap. first: no line leads to this point.
  // column, row: where it lies on the picture; undefined_value in a gap.
  void add(double x, double y, bool first, double& column, double& row);
  // A point that was projected before.
  void add_pixel(double column, double row, bool first);

 private:
  TSurface& target_;
  TColour colour_;
  double column_ = 0.0;  // of the point before
  double row_ = 0.0;
  bool gap_ = true;
};

// Where a point lies on the picture, clamped; undefined_value for both where a coordinate is undefined.
void project(double x, double y, double& column, double& row);

}  // namespace zephyl
