// The constants of Lanczos' approximation to the logarithm of the gamma function, as Numerical Recipes gives
// them.
#pragma once

namespace zephyl {

constexpr double lanczos_shift = 5.5;
constexpr double lanczos_first = 1.000000000190015;
constexpr double lanczos_root_two_pi = 2.5066282746310007;
constexpr double lanczos_coefficients[] = {76.18009172947146,  -86.50532032941678,   24.01409824083091,
                                           -1.231739572450155, 0.001208650973866179, -5.395239384953e-06};

}  // namespace zephyl
