// Gamma, beta and Bessel functions.
#pragma once

#include "engine/values.h"

namespace zephyl {

// The gamma function by the Lanczos form for its logarithm, in complex arithmetic (Lanczos 1964, with the
// coefficients of Numerical Recipes): about 10 digits, whole numbers included. ERR_DOMAIN and 0 on the real
// axis at 0 and below.
TValue complex_gamma(TValue z);

// complex_gamma(z) complex_gamma(w) / complex_gamma(z + w), each with its own check.
TValue complex_beta(TValue z, TValue w);

// Bessel functions of the first and second kind, order from 0 (fractional too), x above 0; ERR_DOMAIN
// otherwise and where a series or fraction takes more than 10000 rounds. Temme (1975) below x = 2, Steed's
// continued fractions from there.
double bessel_j(double order, double x);
double bessel_y(double order, double x);

// Gamma(, Beta(, Jn(, Yn(.
void register_special_operations();

}  // namespace zephyl
