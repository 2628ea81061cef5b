// Functions of real numbers that the other numerics build on. Bad input raises a floating-point fault where a
// function has no test of its own; the evaluator reads the flags and reports what they mean.
#pragma once

#include <cmath>

#include "engine/state.h"
#include "engine/values.h"

namespace zephyl {

// Sine and cosine of x in radians. A result that is nearly 0 is 0, so that sin(pi) shows 0; not in PLOT_MODE,
// where a curve must not flatten at its zero crossings.
inline double snapped_unless_plotted(double x) {
  return std::fabs(x) < near_zero_limit && state.calcMode != PLOT_MODE ? 0.0 : x;
}
inline double snap_sin(double x) { return snapped_unless_plotted(std::sin(x)); }
inline double snap_cos(double x) { return snapped_unless_plotted(std::cos(x)); }

// Tangent of x in radians, snapped likewise. ERR_DOMAIN and 0 where the snapped cosine is 0.
double snap_tan(double x);

// x to the power y. 1 for y = 0, also of 0; ERR_DOMAIN for 0 to a negative power. A negative x has a real
// root where 1/y is an odd integer; otherwise a y that isn't an integer is an invalid operation.
double real_power(double x, double y);

// The square root of all numerics: real_power(x, 0.5), by the library's root; of a negative zero it is 0.
inline double square_root_real(double x) { return std::sqrt(x + 0.0); }

// The closest integer; halves go away from zero.
double nearest_integer(double x);

// x! by table. ERR_DOMAIN for a negative x or one with a fraction, ERR_OVERFLOW above 170.
double factorial(double x);

// |x| as mantissa times ten to the exponent; the mantissa is 0 or from 0.99999999995 to below 9.99999999995,
// and the exponent of 0 is 0.
struct TDecimalParts {
  double mantissa;
  double exponent;
};
TDecimalParts decimal_parts(double x);

// Euclid's algorithm; both from 0 to 1000000000 without a fraction, else ERR_DOMAIN and 0. The greatest
// common divisor of 0 and n is n.
double greatest_common_divisor(double n1, double n2);

}  // namespace zephyl
