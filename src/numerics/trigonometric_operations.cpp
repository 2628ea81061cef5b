// Circular functions and their inverses, in the unit of the angle mode. Of a complex number both parts are
// converted, the imaginary one too.

#include <cmath>

#include "engine/polar.h"
#include "numerics/complex_functions.h"
#include "numerics/real_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double sine(double x, double) { return snap_sin(to_radians(x)); }
double cosine(double x, double) { return snap_cos(to_radians(x)); }
double tangent(double x, double) { return snap_tan(to_radians(x)); }
double arcsine(double x, double) { return radians_to_mode(std::asin(x)); }
double arccosine(double x, double) { return radians_to_mode(std::acos(x)); }
double arctangent(double x, double) { return radians_to_mode(std::atan(x)); }

double arctangent_of_two(double y, double x) {
  if (y == 0.0 && x == 0.0) return 0.0;
  return radians_to_mode(std::atan2(y + 0.0, x));  // + 0.0: a negative zero counts as zero
}

template <TValue (*function)(TValue)>
TValue of_angle(TValue z) {
  return function({to_radians(z.re), to_radians(z.im)});
}

template <TValue (*function)(TValue)>
TValue to_angle(TValue z) {
  TValue result = function(z);
  from_radians_pair(result.re, result.im);
  return result;
}

}  // namespace

void register_trigonometric_operations() {
  register_on_real(OP_SIN, sine, apply<of_angle<complex_sin>>);
  register_on_real(OP_COS, cosine, apply<of_angle<complex_cos>>);
  register_on_real(OP_TAN, tangent, apply<of_angle<complex_tan>>);
  register_when_forced(OP_ASIN, arcsine, apply<to_angle<complex_asin>>);
  register_when_forced(OP_ACOS, arccosine, apply<to_angle<complex_acos>>);
  register_on_real(OP_ATAN, arctangent, apply<to_angle<complex_atan>>);
  register_on_real(OP_ATAN2, arctangent_of_two, apply_to_real_parts);
}

}  // namespace zephyl
