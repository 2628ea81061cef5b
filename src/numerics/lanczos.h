// Lanczos' approximation to the logarithm of the gamma function, with the constants of Numerical Recipes
// (2nd edition, 6.1), and its form for real arguments.
#pragma once

#include <cmath>

namespace zephyl {

constexpr double lanczos_shift = 5.5;
constexpr double lanczos_first = 1.000000000190015;
constexpr double lanczos_root_two_pi = 2.5066282746310007;
constexpr double lanczos_coefficients[] = {76.18009172947146,  -86.50532032941678,   24.01409824083091,
                                           -1.231739572450155, 0.001208650973866179, -5.395239384953e-06};

// ln Gamma(x), x above 0; the square root of 2 pi is each caller's own, in its last digit.
inline double lanczos_log_gamma(double x, double root_two_pi) {
  double series = lanczos_first;
  double y = x;
  for (const double coefficient : lanczos_coefficients) series += coefficient / ++y;
  const double t = x + lanczos_shift;
  return std::log(root_two_pi * series / x) - (t - (x + 0.5) * std::log(t));
}

}  // namespace zephyl
