// Exponentials, powers, roots and logarithms.

#include <cmath>

#include "engine/errors.h"
#include "numerics/complex_functions.h"
#include "numerics/real_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

constexpr double third = 1.0 / 3.0;

double report_domain() {
  report_error(ERR_DOMAIN);
  return 0.0;
}

double power_of_e(double x, double) { return std::exp(x); }
double power_of_ten(double x, double) { return real_power(10.0, x); }
double square_root(double x, double) { return x < 0.0 ? report_domain() : square_root_real(x); }
double cube_root(double x, double) { return real_power(x, third); }
double root(double index, double x) { return index == 0.0 ? report_domain() : real_power(x, 1.0 / index); }
double natural_logarithm(double x, double) { return x > 0.0 ? std::log(x) : report_domain(); }
double common_logarithm(double x, double) { return x > 0.0 ? std::log10(x) : report_domain(); }
double logarithm_to_base(double x, double base) {
  return base > 0.0 ? std::log(x) / std::log(base) : report_domain();
}

TValue complex_power_of_ten(TValue z) { return complex_power(real_value(10.0), z); }
TValue complex_cube_root(TValue z) { return complex_power(z, real_value(third)); }

bool is_odd_integer(double x) { return frac_part(x) == 0.0 && frac_part(0.5 * std::fabs(x)) == 0.5; }

TValue complex_root(TValue index, TValue z) {
  if (index == TValue{}) return real_value(report_domain());
  if (is_real(index) && is_real(z) && is_odd_integer(index.re)) {
    const double power = 1.0 / index.re;
    return real_value(z.re < 0.0 ? -real_power(-z.re, power) : real_power(z.re, power));
  }
  return complex_power(z, complex_divide(real_value(1.0), index));
}

TValue complex_common_logarithm(TValue z) {
  return complex_divide(complex_log(z), real_value(std::log(10.0)));
}

TValue complex_logarithm_to_base(TValue z, TValue base) {
  if (!(base.re > 0.0)) return real_value(report_domain());
  return complex_divide(complex_log(z), real_value(std::log(base.re)));
}

}  // namespace

void register_power_operations() {
  register_on_real(OP_INV_LN, power_of_e, apply<complex_exp>);
  register_on_real(OP_INV_LOG, power_of_ten, apply<complex_power_of_ten>);
  register_on_real(OP_CUBE_ROOT, cube_root, apply<complex_cube_root>);
  register_when_forced(OP_SQUARE_ROOT, square_root, apply<complex_sqrt>);
  register_when_forced(OP_POWER, real_power, apply_to_both<complex_power>);
  register_when_forced(OP_INV_POWER, root, apply_to_both<complex_root>);
  operations[OP_INV_POWER].real_is_composite = true;  // the reciprocal of a tiny index overflows
  register_when_forced(OP_LOGB, logarithm_to_base, apply_to_both<complex_logarithm_to_base>);
  register_when_forced(OP_LN, natural_logarithm, apply<complex_log>);
  register_when_forced(OP_LOG, common_logarithm, apply<complex_common_logarithm>);
}

}  // namespace zephyl
