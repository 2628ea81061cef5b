#include "numerics/real_functions.h"

#include <cmath>

#include "engine/errors.h"
#include "engine/state.h"
#include "engine/values.h"
#include "numerics/factorial_table.h"

namespace zephyl {

namespace {

// The library's power, where a product or the square root gives it several times faster: to within a rounding for the cube,
// exactly for the others.
double library_power(double x, double y) {
  if (y == 2.0) return x * x;
  if (y == 3.0) return x * x * x;
  return y == 0.5 ? std::sqrt(x) : std::pow(x, y);
}

bool is_odd_root(double power) {
  const double remainder = std::fmod(1.0 / power, 2.0);
  return std::fabs(std::fabs(remainder) - 1.0) < near_zero_limit;
}

}  // namespace

double snap_tan(double x) {
  const double sine = snap_sin(x);
  const double cosine = snap_cos(x);
  if (sine == 0.0) return 0.0;
  if (cosine == 0.0) {
    report_error(ERR_DOMAIN);
    return 0.0;
  }
  return snapped_unless_plotted(sine / cosine);
}

double real_power(double x, double y) {
  if (y == 0.0) return 1.0;
  if (x == 0.0) {
    if (y < 0.0) report_error(ERR_DOMAIN);
    return 0.0;
  }
  if (x < 0.0 && std::fabs(y) < 1.0 && is_odd_root(y)) return -library_power(-x, y);
  return library_power(x, y);
}

double nearest_integer(double x) {
  const double below = std::floor(x);
  const double above = std::ceil(x);
  const bool above_is_nearest = x > 0.0 ? above - x <= x - below : above - x < x - below;
  return above_is_nearest ? above : below;
}

double factorial(double x) {
  if (x < 0.0 || frac_part(x) != 0.0) {
    report_error(ERR_DOMAIN);
    return 0.0;
  }
  if (x > FACTORIAL_LIMIT) {
    report_error(ERR_OVERFLOW);
    return 0.0;
  }
  return factorial_table[static_cast<int>(int_part(x))];
}

TDecimalParts decimal_parts(double x) {
  constexpr double upper_bound = 9.99999999995;
  constexpr double lower_bound = 0.99999999995;
  TDecimalParts parts{std::fabs(x), 0.0};
  if (!std::isfinite(x)) return parts;
  while (!(parts.mantissa < upper_bound)) {
    parts.mantissa *= 0.1;
    parts.exponent += 1.0;
  }
  while (parts.mantissa < lower_bound && parts.mantissa != 0.0) {
    parts.mantissa *= 10.0;
    parts.exponent -= 1.0;
  }
  return parts;
}

double greatest_common_divisor(double n1, double n2) {
  constexpr int integer_limit = 1000000000;
  double a = checked_integer(n1, 0, integer_limit, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  double b = checked_integer(n2, 0, integer_limit, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  if (b == 0.0) return a;
  for (;;) {
    const double remainder = a - int_part(a / b) * b;
    if (remainder == 0.0) return b;
    a = b;
    b = remainder;
  }
}

}  // namespace zephyl
