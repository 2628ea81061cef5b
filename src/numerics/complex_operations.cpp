// Parts and polar forms of complex numbers.

#include "engine/errors.h"
#include "engine/polar.h"
#include "engine/state.h"
#include "numerics/complex_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double itself(double x, double) { return x; }
double no_imaginary_part(double, double) { return 0.0; }

TValue conjugate(TValue z) { return {z.re, -z.im}; }
TValue real_part(TValue z) { return real_value(z.re); }
TValue imaginary_part(TValue z) { return real_value(z.im); }

double angle(double a, double b) {
  if (a != 0.0 || b != 0.0) return radians_to_mode(complex_angle(a, b));
  report_error(ERR_DOMAIN);
  return 0.0;
}

double angle_of_real(double x, double) { return angle(x, 0.0); }
TValue angle_of_complex(TValue z) { return real_value(angle(z.re, z.im)); }

TValue number_of_polar(int unit, const TScalarCall& call) {
  const double modulus = call.args[0].re;
  if (modulus >= 0.0) return polar_to_rect(unit, modulus, call.args[1].re);
  report_error(ERR_DOMAIN);
  return {};
}

void polar_in_degrees(TScalarCall& call) { call.result = number_of_polar(DEGREES, call); }
void polar_in_radians(TScalarCall& call) { call.result = number_of_polar(RADIANS, call); }
void polar_in_angle_mode(TScalarCall& call) { call.result = number_of_polar(settings.angleMode, call); }

}  // namespace

void register_complex_operations() {
  register_on_real(OP_CONJ, itself, apply<conjugate>);
  register_on_real(OP_REAL, itself, apply<real_part>);
  register_on_real(OP_IMAG, no_imaginary_part, apply<imaginary_part>);
  register_on_real(OP_ANGLE, angle_of_real, apply<angle_of_complex>);
  operations[OP_Z_DEG].scalar = polar_in_degrees;
  operations[OP_Z_RAD].scalar = polar_in_radians;
  operations[OP_Z_PHASE].scalar = polar_in_angle_mode;
}

}  // namespace zephyl
