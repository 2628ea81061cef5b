// Integer and fractional parts, rounding, and the decimal mantissa and exponent.

#include <cmath>

#include "engine/errors.h"
#include "numerics/real_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

constexpr int MOST_ROUND_DIGITS = 10;

// 10^n and 10^-n. Both are stored: a rounded number is multiplied by the inverse, not divided.
struct TRoundFactors {
  double power;
  double inverse;
};
constexpr TRoundFactors round_table[MOST_ROUND_DIGITS + 1] = {
    {1.0, 1.0},  {1e1, 1e-1}, {1e2, 1e-2}, {1e3, 1e-3}, {1e4, 1e-4},   {1e5, 1e-5},
    {1e6, 1e-6}, {1e7, 1e-7}, {1e8, 1e-8}, {1e9, 1e-9}, {1e10, 1e-10},
};

double integer_part(double x, double) { return int_part(x); }
double fractional_part(double x, double) { return frac_part(x); }
double floor_of(double x, double) { return std::floor(x); }
double ceiling_of(double x, double) { return std::ceil(x); }
double mantissa(double x, double) { return decimal_parts(x).mantissa; }
double exponent(double x, double) { return decimal_parts(x).exponent; }

double round_to_digits(double x, double digits) {
  const int n = checked_integer(digits, 0, MOST_ROUND_DIGITS, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  return nearest_integer(round_table[n].power * x) * round_table[n].inverse;
}

double truncate_to_digits(double x, double digits) {
  const int n = checked_integer(digits, -100, 100, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  const double power = real_power(10.0, n);
  return int_part(power * x) / power;
}

}  // namespace

void register_rounding_operations() {
  register_on_real(OP_INT_PART, integer_part, apply_to_each_part);
  register_on_real(OP_FRAC_PART, fractional_part, apply_to_each_part);
  register_on_real(OP_FLOOR, floor_of, apply_to_each_part);
  register_on_real(OP_CEIL, ceiling_of, apply_to_each_part);
  register_on_real(OP_ROUND, round_to_digits, apply_to_each_part);
  register_on_real(OP_TRUNC, truncate_to_digits, apply_to_each_part);
  register_on_real(OP_MANT, mantissa, apply_to_each_part);
  register_on_real(OP_XPON, exponent, apply_to_each_part);
}

}  // namespace zephyl
