// Hyperbolic functions and their inverses: plain numbers, whatever the angle mode.

#include <cmath>

#include "numerics/complex_functions.h"
#include "numerics/real_functions.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

double hyperbolic_sine(double x, double) { return std::sinh(x); }
double hyperbolic_cosine(double x, double) { return std::cosh(x); }
double hyperbolic_tangent(double x, double) { return std::tanh(x); }
double area_sine(double x, double) { return std::log(x + square_root_real(x * x + 1.0)); }
double area_cosine(double x, double) { return std::log(x + square_root_real(x * x - 1.0)); }
double area_tangent(double x, double) { return 0.5 * std::log((x + 1.0) / (1.0 - x)); }

}  // namespace

void register_hyperbolic_operations() {
  register_when_forced(OP_SINH, hyperbolic_sine, apply<complex_sinh>);
  register_when_forced(OP_COSH, hyperbolic_cosine, apply<complex_cosh>);
  register_when_forced(OP_TANH, hyperbolic_tangent, apply<complex_tanh>);
  register_when_forced(OP_ASINH, area_sine, apply<complex_asinh>);
  register_when_forced(OP_ACOSH, area_cosine, apply<complex_acosh>);
  register_when_forced(OP_ATANH, area_tangent, apply<complex_atanh>);
}

}  // namespace zephyl
