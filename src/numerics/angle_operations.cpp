// Conversions between units of angle: the suffixes (d), (r) and (g), degToRad( and radToDeg(.

#include "engine/polar.h"
#include "engine/state.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

constexpr double grads_to_degrees = 0.9;
constexpr double degrees_to_grads = 1.1111111111111112;

// By the angle mode that the suffixed angle is converted to.
constexpr double from_degrees[] = {degrees_to_radians, 1.0, degrees_to_grads};
constexpr double from_radians[] = {1.0, radians_to_degrees, radians_to_grads};
constexpr double from_grads[] = {grads_to_radians, grads_to_degrees, 1.0};

double degree_suffix(double x, double) { return x * from_degrees[settings.angleMode]; }
double radian_suffix(double x, double) { return x * from_radians[settings.angleMode]; }
double grad_suffix(double x, double) { return x * from_grads[settings.angleMode]; }
double degrees_as_radians(double x, double) { return x * degrees_to_radians; }
double radians_as_degrees(double x, double) { return x * radians_to_degrees; }

}  // namespace

void register_angle_operations() {
  register_on_real(OP_ANGLE_DEG, degree_suffix, apply_to_each_part);
  register_on_real(OP_ANGLE_RAD, radian_suffix, apply_to_each_part);
  register_on_real(OP_ANGLE_GRAD, grad_suffix, apply_to_each_part);
  register_on_real(OP_DEG_TO_RAD, degrees_as_radians, apply_to_each_part);
  register_on_real(OP_RAD_TO_DEG, radians_as_degrees, apply_to_each_part);
}

}  // namespace zephyl
