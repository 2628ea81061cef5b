// Random deviates over the uniform generator of random.h.
#pragma once

namespace zephyl {

// A whole number from lower to upper, in either order; each from -1000000000 to 1000000000, else ERR_DOMAIN.
double random_integer(double lower, double upper);
// Leva (1992), "A fast normal random number generator", with its simplified quadratic bounds.
double random_normal(double mean, double deviation);
// Product method below a mean of 12, rejection by a Lorentzian from there (Numerical Recipes, 2nd
// edition, 7.3). ERR_ITERATIONS where a million rounds accept nothing: a mean beyond about 1e15 has no digits
// left for it.
double random_poisson(double mean);
// How many of n trials of probability p succeed; p from 0 to 1, n from 1 to 1000000000, else ERR_DOMAIN.
double random_binomial(double p, double n);

// randInt(, randNorm(, randPois(, randBin(.
void register_deviate_operations();

}  // namespace zephyl
