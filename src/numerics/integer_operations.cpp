// Factorials, arrangements, combinations and common divisors: functions of integers, held as reals.

#include "engine/errors.h"
#include "numerics/real_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double factorial_of(double x, double) { return factorial(x); }

// n, then n - r, then r must have a factorial, although the quotient may be a small number. Where one has
// none, its error stands and no quotient is taken.
double arrangements(double n, double r) {
  const double of_all = factorial(n);
  const double of_rest = factorial(n - r);
  return errors.error_flag ? 0.0 : of_all / of_rest;
}

double combinations(double n, double r) {
  const double of_all = factorial(n);
  const double of_rest = factorial(n - r);
  const double of_chosen = factorial(r);
  return errors.error_flag ? 0.0 : of_all / (of_rest * of_chosen);
}

double least_common_multiple(double n1, double n2) {
  const double divisor = greatest_common_divisor(n1, n2);
  return errors.error_flag ? 0.0 : n1 * n2 / divisor;
}

}  // namespace

void register_integer_operations() {
  register_on_real(OP_FACTORIAL, factorial_of, refuse_complex);
  register_on_real(OP_NPR, arrangements, refuse_complex);
  register_on_real(OP_NCR, combinations, refuse_complex);
  register_on_real(OP_GCD, greatest_common_divisor, apply_to_real_parts);
  register_on_real(OP_LCM, least_common_multiple, apply_to_real_parts);
}

}  // namespace zephyl
