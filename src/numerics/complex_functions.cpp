#include "numerics/complex_functions.h"

#include <cmath>

#include "engine/errors.h"
#include "engine/polar.h"
#include "numerics/real_functions.h"

namespace zephyl {

namespace {

constexpr TValue one = {1.0, 0.0};

bool is_zero(TValue z) { return z.re == 0.0 && z.im == 0.0; }

}  // namespace

TValue complex_divide(TValue z, TValue w) {
  if (is_zero(w)) {
    report_error(ERR_ZERO_DIVIDE);
    return {};
  }
  const auto [a, b] = z;
  const auto [c, d] = w;
  if (std::fabs(c) <= std::fabs(d)) {
    const double t = c / d;
    const double r = 1.0 / (t * c + d);
    return {(t * a + b) * r, (t * b - a) * r};
  }
  const double t = d / c;
  const double r = 1.0 / (t * d + c);
  return {(t * b + a) * r, (b - t * a) * r};
}

double complex_magnitude(TValue z) { return complex_magnitude(z.re, z.im); }

TValue complex_sqrt(TValue z) {
  if (is_zero(z)) return {};
  const double x = std::fabs(z.re);
  const double y = std::fabs(z.im);
  const bool re_is_larger = x >= y;
  const double r = re_is_larger ? y / x : x / y;
  const double root = square_root_real(r * r + 1.0);
  const double w = re_is_larger ? square_root_real(x) * square_root_real((1.0 + root) * 0.5)
                                : square_root_real(y) * square_root_real((r + root) * 0.5);
  if (z.re >= 0.0) return {w, z.im / (2.0 * w)};
  const double v = z.im >= 0.0 ? w : -w;
  return {z.im / (2.0 * v), v};
}

TValue complex_exp(TValue z) {
  const double modulus = std::exp(z.re);
  return {modulus * snap_cos(z.im), modulus * snap_sin(z.im)};
}

double complex_angle_radians(TValue z) {
  if (is_zero(z)) return 0.0;
  if (z.re == 0.0) return z.im > 0.0 ? quarter_turn : -quarter_turn;
  if (z.im == 0.0) return z.re < 0.0 ? half_turn : 0.0;
  const double t = std::atan(std::fabs(z.im / z.re));
  if (z.re > 0.0) return z.im > 0.0 ? t : -t;
  return z.im > 0.0 ? half_turn - t : t - half_turn;
}

TValue complex_log(TValue z) {
  const double modulus = square_root_real(z.re * z.re + z.im * z.im);
  if (modulus <= 0.0) {
    report_error(ERR_DOMAIN);
    return {};
  }
  return {std::log(modulus), complex_angle_radians(z)};
}

namespace {

TValue power_of_zero(TValue w) {
  if (w.re < 0.0 && w.im == 0.0) report_error(ERR_DOMAIN);
  return {};
}

TValue power_by_polar_form(TValue z, TValue w) {
  const double modulus = complex_magnitude(z);
  const double power = real_power(modulus, w.re);
  const double theta = std::atan2(z.im + 0.0, z.re);  // + 0.0: a negative zero counts as zero
  const double damping = std::exp(-theta * w.im);
  const double phase = std::log(modulus) * w.im + theta * w.re;
  return {snap_cos(phase) * damping * power, snap_sin(phase) * damping * power};
}

}  // namespace

TValue complex_power(TValue z, TValue w) {
  if (is_zero(w)) return one;
  if (is_zero(z)) return power_of_zero(w);
  const bool real_to_integer = is_real(z) && is_real(w) && frac_part(w.re) == 0.0;
  return real_to_integer ? real_value(real_power(z.re, w.re)) : power_by_polar_form(z, w);
}

TValue complex_sin(TValue z) { return {snap_sin(z.re) * std::cosh(z.im), snap_cos(z.re) * std::sinh(z.im)}; }

TValue complex_cos(TValue z) { return {snap_cos(z.re) * std::cosh(z.im), -snap_sin(z.re) * std::sinh(z.im)}; }

TValue complex_tan(TValue z) { return complex_divide(complex_sin(z), complex_cos(z)); }

TValue complex_sinh(TValue z) { return {snap_cos(z.im) * std::sinh(z.re), snap_sin(z.im) * std::cosh(z.re)}; }

TValue complex_cosh(TValue z) { return {snap_cos(z.im) * std::cosh(z.re), snap_sin(z.im) * std::sinh(z.re)}; }

TValue complex_tanh(TValue z) { return complex_divide(complex_sinh(z), complex_cosh(z)); }

TValue complex_asin(TValue z) { return over_i(complex_log(times_i(z) + complex_sqrt(one - z * z))); }

TValue complex_acos(TValue z) { return over_i(complex_log(z + times_i(complex_sqrt(one - z * z)))); }

TValue complex_atan(TValue z) {
  if (is_zero(z)) return {};
  if (z.im == 0.0) return real_value(std::atan(z.re));
  if (z.re == 0.0) return times_i(complex_atanh(real_value(z.im)));
  const TValue t = times_i(z);
  return 0.5 * times_i(complex_log(complex_divide(one - t, one + t)));
}

TValue complex_asinh(TValue z) { return complex_log(z + complex_sqrt(z * z + one)); }

// The minus under the logarithm gives the logarithm of the other sign; which is then made the one right of
// the axis.
TValue complex_acosh(TValue z) {
  const TValue w = complex_log(z - complex_sqrt(z * z - one));
  if (w.re < 0.0) return -w;
  return w.re == 0.0 ? TValue{w.re, std::fabs(w.im)} : w;
}

TValue complex_atanh(TValue z) {
  if (z.re == 0.0) return {0.0, std::atan(z.im)};
  if (std::fabs(z.re) <= 1.0 && z.im == 0.0) return real_value(0.5 * std::log((z.re + 1.0) / (1.0 - z.re)));
  return 0.5 * complex_log(complex_divide(one + z, one - z));
}

TValue polar_to_rect(int unit, double modulus, double angle) {
  constexpr double factors[] = {1.0, degrees_to_radians, grads_to_radians};
  if (unit < RADIANS || unit > GRADS) {
    report_error(ERR_UNEXPECTED);
    return {};
  }
  const double theta = factors[unit] * angle;
  return {snap_cos(theta) * modulus, snap_sin(theta) * modulus};
}

}  // namespace zephyl
