// Functions of complex numbers, by the formulas that the calculator's answers are known for: their faults and
// the sides they take on branch cuts are part of what programs in circulation rely on. A zero part has no
// sign here. Square roots, sines and cosines are those of real_functions.h; intermediate results may overflow
// and raise that fault.
#pragma once

#include "engine/values.h"

namespace zephyl {

constexpr TValue real_value(double re) { return {re, 0.0}; }

constexpr TValue operator+(TValue z, TValue w) { return {z.re + w.re, z.im + w.im}; }
constexpr TValue operator-(TValue z, TValue w) { return {z.re - w.re, z.im - w.im}; }
constexpr TValue operator-(TValue z) { return {-z.re, -z.im}; }
constexpr TValue operator*(TValue z, TValue w) {
  return {z.re * w.re - z.im * w.im, z.im * w.re + z.re * w.im};
}
constexpr TValue operator*(double factor, TValue z) { return {factor * z.re, factor * z.im}; }

// iz and -iz.
constexpr TValue times_i(TValue z) { return {-z.im, z.re}; }
constexpr TValue over_i(TValue z) { return {z.im, -z.re}; }

// z/w. Smith (1962), "Algorithm 116: Complex division". ERR_ZERO_DIVIDE and 0 for w = 0.
TValue complex_divide(TValue z, TValue w);

double complex_magnitude(TValue z);
TValue complex_sqrt(TValue z);
TValue complex_exp(TValue z);

// The argument in radians, above -pi to pi; 0 for 0.
double complex_angle_radians(TValue z);

// The principal logarithm. ERR_DOMAIN and 0 where |z|, by the plain sum of squares, is 0.
TValue complex_log(TValue z);

// z to the power w. 1 for w = 0, also of 0; ERR_DOMAIN for 0 to a real negative power, 0 for 0 to any other.
TValue complex_power(TValue z, TValue w);

// Circular functions of radians and hyperbolic ones. complex_tan and complex_tanh: ERR_ZERO_DIVIDE at a pole.
TValue complex_sin(TValue z);
TValue complex_cos(TValue z);
TValue complex_tan(TValue z);
TValue complex_sinh(TValue z);
TValue complex_cosh(TValue z);
TValue complex_tanh(TValue z);

// Inverse functions; the circular ones in radians. At 1 and -1 complex_atanh, at i and -i complex_atan raises
// a division by zero.
TValue complex_asin(TValue z);
TValue complex_acos(TValue z);
TValue complex_atan(TValue z);
TValue complex_asinh(TValue z);
TValue complex_acosh(TValue z);
TValue complex_atanh(TValue z);

// The number of a modulus and an angle in `unit`, a TAngleMode; ERR_UNEXPECTED and 0 for another.
TValue polar_to_rect(int unit, double modulus, double angle);

}  // namespace zephyl
