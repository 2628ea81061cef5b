#include "numerics/distributions.h"

#include <cmath>

#include "engine/errors.h"
#include "engine/operations.h"
#include "engine/values.h"
#include "numerics/incomplete_functions.h"
#include "numerics/real_functions.h"
#include "numerics/special_functions.h"

namespace zephyl {

namespace {

constexpr int INTEGER_LIMIT = 1000000000;
constexpr double two_pi = 6.283185307179586;
constexpr double pi = 3.141592653589793;
constexpr double nearly_zero = 1e-20;  // a bound this close to 0 takes the value at 0

// The real arguments of a call, in written order.
struct TArgs {
  double v[ARGUMENT_LIMIT];
  double operator[](int i) const { return v[i]; }
};

bool holds(bool condition) {
  if (!condition) report_error(ERR_DOMAIN);
  return condition;
}

// An integer argument from `low`; false, with the error reported, for anything else.
bool is_count(double x, int low) {
  checked_integer(x, low, INTEGER_LIMIT, ERR_DOMAIN);
  return !errors.error_flag;
}

bool is_probability(double p) { return holds(p >= 0.0 && p <= 1.0); }

double gamma(double x) { return complex_gamma({x, 0.0}).re; }

// |C(upper) - C(lower)| of a one-sided function.
template <typename TOneSided>
double between(double a, double b, TOneSided one_sided) {
  return std::fabs(one_sided(std::fmax(a, b)) - one_sided(std::fmin(a, b)));
}

// A value above 1 comes of a part that could not be computed.
double unless_above_one(double value) { return value > 1.0 ? NOT_COMPUTED : value; }

// --- Normal: x or bounds, mean, standard deviation.

double normal_pdf(const TArgs& a) {
  if (!holds(a[2] > 0.0)) return 0.0;
  const double distance = a[0] - a[1];
  return std::exp(-(distance * distance) / (2.0 * a[2] * a[2])) / (std::sqrt(two_pi) * a[2]);
}

double normal_one_sided(double v, double mean, double deviation) {
  const double z = (v - mean) / deviation;
  const double p = 0.5 * gamma_p(0.5, z * z / 2.0);
  if (p < 0.0) return NOT_COMPUTED;
  return z >= 0.0 ? 0.5 + p : 0.5 - p;
}

double normal_cdf(const TArgs& a) {
  if (!holds(a[3] > 0.0)) return 0.0;
  return between(a[0], a[1], [&](double v) { return normal_one_sided(v, a[2], a[3]); });
}

// --- Student's t: x or bounds, degrees of freedom.

double t_pdf(const TArgs& a) {
  const double x = a[0], df = a[1];
  if (!holds(df > 0.0)) return 0.0;
  const double shape = real_power(1.0 + x * x / df, -(df + 1.0) / 2.0);
  return gamma((df + 1.0) / 2.0) / gamma(df / 2.0) * shape / std::sqrt(df * pi);
}

double t_one_sided(double v, double df) {
  if (std::fabs(v) < nearly_zero) return 0.5;
  const double tail = 0.5 * beta_i(df / 2.0, 0.5, df / (v * v + df));
  return unless_above_one(v <= 0.0 ? tail : 1.0 - tail);
}

double t_cdf(const TArgs& a) {
  if (!holds(a[2] > 0.0)) return 0.0;
  return between(a[0], a[1], [&](double v) { return t_one_sided(v, a[2]); });
}

// --- Chi square: x or bounds, degrees of freedom.

double chi_square_pdf(const TArgs& a) {
  if (!holds(a[0] >= 0.0) || !is_count(a[1], 1)) return 0.0;
  const double x = a[0], half = a[1] / 2.0;
  return real_power(x, half - 1.0) * real_power(0.5, half) * std::exp(-x / 2.0) / gamma(half);
}

double chi_square_cdf(const TArgs& a) {
  if (!holds(a[0] >= 0.0 && a[1] >= 0.0) || !is_count(a[2], 1)) return 0.0;
  return between(a[0], a[1], [&](double v) { return gamma_p(a[2] / 2.0, v / 2.0); });
}

// --- F: x or bounds, degrees of freedom of numerator and denominator.

double f_pdf(const TArgs& a) {
  if (!holds(a[0] >= 0.0) || !is_count(a[1], 1) || !is_count(a[2], 1)) return 0.0;
  const double x = a[0], n = a[1], d = a[2];
  const double front = gamma((n + d) / 2.0) / (gamma(n / 2.0) * gamma(d / 2.0));
  return front * real_power(n / d, n / 2.0) * real_power(x, n / 2.0 - 1.0) *
         real_power(1.0 + x * n / d, -(n + d) / 2.0);
}

double f_one_sided(double v, double n, double d) {
  if (std::fabs(v) < nearly_zero) return 0.0;
  return unless_above_one(1.0 - beta_i(d / 2.0, n / 2.0, d / (v * n + d)));
}

double f_cdf(const TArgs& a) {
  if (!holds(a[0] >= 0.0 && a[1] >= 0.0) || !is_count(a[2], 1) || !is_count(a[3], 1)) return 0.0;
  return between(a[0], a[1], [&](double v) { return f_one_sided(v, a[2], a[3]); });
}

// --- Binomial: x, n, p.

// As nCr( goes: n, then n - r, then r must have a factorial.
double binomial_coefficient(double n, double r) {
  const double of_all = factorial(n);
  const double of_rest = factorial(n - r);
  return of_all / (of_rest * factorial(r));
}

double binomial_pdf(const TArgs& a) {
  if (!is_probability(a[2]) || !is_count(a[0], 0) || !is_count(a[1], 1)) return 0.0;
  const double ways = binomial_coefficient(a[1], a[0]);
  if (errors.error_flag) return 0.0;
  return ways * real_power(a[2], a[0]) * real_power(1.0 - a[2], a[1] - a[0]);
}

double binomial_cdf(const TArgs& a) {
  if (!is_probability(a[2])) return 0.0;
  return unless_above_one(1.0 - beta_i(a[0] + 1.0, a[1] - a[0], a[2]));
}

// --- Poisson: x, mean.

bool poisson_arguments(const TArgs& a) { return holds(a[1] > 0.0) && is_count(a[0], 0); }

double poisson_pdf(const TArgs& a) {
  if (!poisson_arguments(a)) return 0.0;
  const double ways = factorial(a[0]);
  if (errors.error_flag) return 0.0;
  return real_power(a[1], a[0]) * std::exp(-a[1]) / ways;
}

double poisson_cdf(const TArgs& a) { return poisson_arguments(a) ? gamma_q(a[0] + 1.0, a[1]) : 0.0; }

// --- Geometric: x, p.

bool geometric_arguments(const TArgs& a) { return is_probability(a[1]) && is_count(a[0], 1); }

double geometric_pdf(const TArgs& a) {
  return geometric_arguments(a) ? a[1] * real_power(1.0 - a[1], a[0] - 1.0) : 0.0;
}

double geometric_cdf(const TArgs& a) {
  return geometric_arguments(a) ? 1.0 - real_power(1.0 - a[1], a[0]) : 0.0;
}

// --- Weibull: x or bounds, alpha, beta.

double weibull_pdf(const TArgs& a) {
  const double x = a[0], alpha = a[1], beta = a[2];
  if (!holds(alpha > 0.0 && beta >= 1.0)) return 0.0;
  return alpha * beta * real_power(x, beta - 1.0) * std::exp(-alpha * real_power(x, beta));
}

double weibull_cdf(const TArgs& a) {
  if (!holds(a[2] > 0.0 && a[3] >= 1.0)) return 0.0;
  return between(a[0], a[1], [&](double v) { return 1.0 - std::exp(-a[2] * real_power(v, a[3])); });
}

// --- Gamma: x or bounds, alpha, lambda.

double gamma_pdf(const TArgs& a) {
  const double x = a[0], alpha = a[1], lambda = a[2];
  if (!holds(alpha > 0.0 && lambda > 0.0 && x >= 0.0)) return 0.0;
  return real_power(lambda, alpha) * real_power(x, alpha - 1.0) * std::exp(-lambda * x) / gamma(alpha);
}

double gamma_cdf(const TArgs& a) {
  if (!holds(a[2] > 0.0 && a[3] > 0.0 && a[0] >= 0.0 && a[1] >= 0.0)) return 0.0;
  return between(a[0], a[1], [&](double v) { return gamma_p(a[2], v * a[3]); });
}

// --- Exponential: x or bounds, lambda.

double exponential_pdf(const TArgs& a) { return a[1] * std::exp(-a[0] * a[1]); }

double exponential_cdf(const TArgs& a) {
  return between(a[0], a[1], [&](double v) { return 1.0 - std::exp(-v * a[2]); });
}

// --- The rows.

template <double (*function)(const TArgs&)>
void distribution(TScalarCall& call) {
  TArgs args{};
  for (int i = 0; i < call.count; ++i) args.v[i] = call.args[i].re;
  call.result = {function(args), 0.0};
}

}  // namespace

void register_distribution_operations() {
  const struct {
    TOp_Code op;
    TScalarHandler handler;
  } rows[] = {{OP_NORMAL_PDF, distribution<normal_pdf>},
              {OP_NORMAL_CDF, distribution<normal_cdf>},
              {OP_T_PDF, distribution<t_pdf>},
              {OP_T_CDF, distribution<t_cdf>},
              {OP_CHI_SQ_PDF, distribution<chi_square_pdf>},
              {OP_CHI_SQ_CDF, distribution<chi_square_cdf>},
              {OP_F_PDF, distribution<f_pdf>},
              {OP_F_CDF, distribution<f_cdf>},
              {OP_BINOM_PDF, distribution<binomial_pdf>},
              {OP_BINOM_CDF, distribution<binomial_cdf>},
              {OP_POISSON_PDF, distribution<poisson_pdf>},
              {OP_POISSON_CDF, distribution<poisson_cdf>},
              {OP_GEOMET_PDF, distribution<geometric_pdf>},
              {OP_GEOMET_CDF, distribution<geometric_cdf>},
              {OP_WEIBULL_PDF, distribution<weibull_pdf>},
              {OP_WEIBULL_CDF, distribution<weibull_cdf>},
              {OP_GAMMA_PDF, distribution<gamma_pdf>},
              {OP_GAMMA_CDF, distribution<gamma_cdf>},
              {OP_EXPON_PDF, distribution<exponential_pdf>},
              {OP_EXPON_CDF, distribution<exponential_cdf>}};
  for (const auto& row : rows) operations[row.op].scalar = row.handler;
}

}  // namespace zephyl
