// Modulus and angle of a complex number, and angles by the angle mode. Here and not with the other numerics
// because the result line shows numbers in polar form.
#pragma once

#include "engine/state.h"

namespace zephyl {

constexpr double half_turn = 3.141592653589793;
constexpr double quarter_turn = 1.5707963267948966;
constexpr double degrees_to_radians = 0.017453292519943295;
constexpr double grads_to_radians = 0.015707963267948967;
constexpr double radians_to_degrees = 57.29577951308232;
constexpr double radians_to_grads = 63.66197723675814;

// An angle in the unit of the angle mode, as radians; 0 for an unknown mode.
inline double to_radians(double x) {
  switch (settings.angleMode) {
    case RADIANS:
      return x;
    case DEGREES:
      return x * degrees_to_radians;
    case GRADS:
      return x * grads_to_radians;
    default:
      return 0.0;
  }
}

// Radians in the unit of the angle mode.
inline double radians_to_mode(double x) {
  if (settings.angleMode == DEGREES) return x * radians_to_degrees;
  if (settings.angleMode == GRADS) return x * radians_to_grads;
  return x;
}

// Both parts of an inverse function's result.
inline void from_radians_pair(double& re, double& im) {
  re = radians_to_mode(re);
  im = radians_to_mode(im);
}

// |a + bi| without intermediate overflow.
double complex_magnitude(double a, double b);

// The angle of a + bi in radians, from above -pi to pi; 0 for 0. The quotient b/a may overflow and raise that
// fault.
double complex_angle(double a, double b);

// Modulus, and angle in the unit of the angle mode. (0, 0) for 0. Raises and reports nothing: for a modulus
// too large for a double it is infinite.
void rect_to_polar(double a, double b, double& modulus, double& angle);

}  // namespace zephyl
