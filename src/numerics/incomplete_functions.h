// Incomplete gamma and beta functions, after Numerical Recipes (2nd edition, 6.2 and 6.4). Where an argument
// is out of range or 300 rounds don't converge the result is -1, silently: the distributions show it as their
// value.
#pragma once

namespace zephyl {

constexpr double NOT_COMPUTED = -1.0;

// ln Gamma(x), x above 0: Lanczos below 700, from there (x + 0.5) ln x + 0.5 ln(2 pi) - x, which belongs to
// Gamma(x + 1). Kept: results of programs in circulation hang on it.
double log_gamma(double x);

// P(a, x) and Q(a, x) = 1 - P(a, x); a above 0, x from 0.
double gamma_p(double a, double x);
double gamma_q(double a, double x);

// I_x(a, b); 0 at both x = 0 and x = 1.
double beta_i(double a, double b, double x);

}  // namespace zephyl
