#include "plot/rotation.h"

#include <cmath>

#include "engine/faults.h"
#include "engine/values.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr double RADIANS_A_PIXEL = 0.0125;
// The view at rest: z upwards, x and y towards the lower corners.
constexpr double REST_A = -3.7468;
constexpr double REST_B = 3.6568;
constexpr double TILT = -0.618106781;

double angle_a(double drag_y) { return (drag_y + plot_variables.rotation_y) * RADIANS_A_PIXEL + REST_A; }
double angle_b(double drag_x) { return (drag_x + plot_variables.rotation_x) * RADIANS_A_PIXEL + REST_B; }

}  // namespace

void rotate_point(double& x, double& y, double z, double sin_a, double sin_b, double sin_c, double cos_a,
                  double cos_b, double cos_c) {
  const bool defined = x != undefined_value && y != undefined_value && z != undefined_value;
  const double p = z * sin_a + y * cos_a;
  const double q = z * cos_a - y * sin_a;
  const double r = q * sin_b + x * cos_b;
  x = p * sin_c + r * cos_c;
  y = p * cos_c - r * sin_c;
  if (defined && std::isfinite(x) && std::isfinite(y)) return;
  x = y = undefined_value;
  clear_faults();
}

TRotation::TRotation(double drag_x, double drag_y)
    : sin_a_(std::sin(angle_a(drag_y))),
      cos_a_(std::cos(angle_a(drag_y))),
      sin_b_(std::sin(angle_b(drag_x))),
      cos_b_(std::cos(angle_b(drag_x))),
      sin_c_(std::sin(TILT)),
      cos_c_(std::cos(TILT)) {}

}  // namespace zephyl
