// The four operations and what is made of one product, quotient or comparison.

#include <cmath>

#include "engine/errors.h"
#include "numerics/complex_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double add(double x, double y) { return x + y; }
double subtract(double x, double y) { return x - y; }
double multiply(double x, double y) { return x * y; }
double negate(double x, double) { return -x; }
double reciprocal(double x, double) { return 1.0 / x; }
double square(double x, double) { return x * x; }
double cube(double x, double) { return x * x * x; }
double percent(double x, double) { return x * 0.01; }
double percent_change(double a, double b) { return (b / a - 1.0) * 100.0; }
double remainder_of(double x, double y) { return std::fmod(x, y); }
double sign(double x, double) { return x > 0.0 ? 1.0 : x < 0.0 ? -1.0 : 0.0; }
double magnitude(double x, double) { return std::fabs(x); }
double smaller(double x, double y) { return !(x < y) ? y : x; }
double larger(double x, double y) { return !(x > y) ? y : x; }

double divide(double x, double y) {
  if (y != 0.0) return x / y;
  report_error(ERR_ZERO_DIVIDE);
  return 0.0;
}

TValue complex_add(TValue z, TValue w) { return z + w; }
TValue complex_subtract(TValue z, TValue w) { return z - w; }
TValue complex_multiply(TValue z, TValue w) { return z * w; }
TValue complex_negate(TValue z) { return -z; }
TValue complex_reciprocal(TValue z) { return complex_divide(real_value(1.0), z); }
TValue complex_square(TValue z) { return z * z; }
TValue complex_cube(TValue z) { return z * z * z; }
TValue complex_percent(TValue z) { return z * real_value(0.01); }
TValue magnitude_of(TValue z) { return real_value(complex_magnitude(z)); }

// Of two numbers of one modulus it is the second.
TValue smaller_modulus(TValue z, TValue w) { return complex_magnitude(w) <= complex_magnitude(z) ? w : z; }
TValue larger_modulus(TValue z, TValue w) { return complex_magnitude(w) >= complex_magnitude(z) ? w : z; }

}  // namespace

void register_arithmetic_operations() {
  register_on_real(OP_MULTIPLY, multiply, apply_to_both<complex_multiply>);
  register_on_real(OP_MULTIPLY_OPERAND, multiply, apply_to_both<complex_multiply>);
  register_on_real(OP_MULTIPLY_FUNCTION, multiply, apply_to_both<complex_multiply>);
  register_on_real(OP_PLUS, add, apply_to_both<complex_add>);
  register_on_real(OP_MINUS, subtract, apply_to_both<complex_subtract>);
  register_on_real(OP_DIVIDE, divide, apply_to_both<complex_divide>);
  register_on_real(OP_NEG, negate, apply<complex_negate>);
  register_on_real(OP_INVERT, reciprocal, apply<complex_reciprocal>);
  register_on_real(OP_SQUARED, square, apply<complex_square>);
  register_on_real(OP_CUBE, cube, apply<complex_cube>);
  register_on_real(OP_PERCENT, percent, apply<complex_percent>);
  register_on_real(OP_PERCENT_CHANGE, percent_change, refuse_complex);
  register_on_real(OP_FMOD, remainder_of, refuse_complex);
  register_on_real(OP_SIGN, sign, refuse_complex);
  register_on_real(OP_ABS, magnitude, apply<magnitude_of>);
  register_on_real(OP_MIN, smaller, apply_to_both<smaller_modulus>);
  register_on_real(OP_MAX, larger, apply_to_both<larger_modulus>);
}

}  // namespace zephyl
