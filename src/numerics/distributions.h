// Densities (Pdf) and distribution functions (Cdf): normal, t, chi square, F, binomial, Poisson, geometric,
// Weibull, gamma, exponential. Arguments are real; each one's checks report ERR_DOMAIN. A Cdf with two bounds
// takes them in either order. A value of -1 says that it could not be computed (see incomplete_functions.h).
#pragma once

namespace zephyl {

void register_distribution_operations();

}  // namespace zephyl
