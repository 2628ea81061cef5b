// How a 3D plot is seen: turned about two axes by the pen and tilted about the third. Depth plays no part.
#pragma once

namespace zephyl {

// Turns x, y, z and leaves what the eye sees in x and y; undefined_value in both where a coordinate is
// undefined or the turn overflows.
void rotate_point(double& x, double& y, double z, double sin_a, double sin_b, double sin_c, double cos_a,
                  double cos_b, double cos_c);

// The sines and cosines of a plot: of the rotation offsets, in pixels of drag, and of a drag that is under
// way.
class TRotation {
 public:
  TRotation(double drag_x, double drag_y);

  void turn(double& x, double& y, double z) const {
    rotate_point(x, y, z, sin_a_, sin_b_, sin_c_, cos_a_, cos_b_, cos_c_);
  }

 private:
  double sin_a_, cos_a_;
  double sin_b_, cos_b_;
  double sin_c_, cos_c_;
};

}  // namespace zephyl
