// Every density and distribution function against Boost.Math: densities in parts of their value, distribution
// functions, which are differences of probabilities, absolutely.
#include <gtest/gtest.h>

#include <boost/math/distributions.hpp>
#include <cmath>
#include <initializer_list>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/operations.h"
#include "engine/state.h"
#include "numerics/distributions.h"
#include "support/accuracy.h"

namespace zephyl {
namespace {

constexpr int ARGUMENT_COUNT = 3000;
constexpr double DENSITY_TOLERANCE = 1e-9;
constexpr double PROBABILITY_TOLERANCE = 1e-9;

class distributions_peers : public ::testing::Test {
 protected:
  distributions_peers() {
    reset_errors();
    reset_state();
    register_distribution_operations();
  }

  // Through the handler: the argument table would keep one of them from being called. Not a number with an
  // error.
  static double call(TOp_Code op, std::initializer_list<double> arguments) {
    TScalarCall call{};
    call.op = op;
    for (const double argument : arguments) call.args[call.count++] = {argument, 0.0};
    clear_error();
    clear_faults();
    operations[op].scalar(call);
    report_fault();
    return errors.error_flag ? std::nan("") : call.result.re;
  }

  template <typename TDistribution>
  static void compare_density(TAccuracy& accuracy, TOp_Code op, const TDistribution& peer,
                              std::initializer_list<double> arguments) {
    const double expected = boost::math::pdf(peer, *arguments.begin());
    if (expected > 1e-250) accuracy.compare(call(op, arguments), expected, arguments);
  }

  template <typename TDistribution>
  static void compare_range(TAccuracy& accuracy, TOp_Code op, const TDistribution& peer,
                            std::initializer_list<double> arguments) {
    const double from = *arguments.begin(), to = *(arguments.begin() + 1);
    const double expected = std::fabs(boost::math::cdf(peer, to) - boost::math::cdf(peer, from));
    accuracy.compare(call(op, arguments), expected, 1.0, arguments);
  }

  TSpread spread_;
};

TEST_F(distributions_peers, normal) {
  TAccuracy pdf("normalPdf(, 10 deviations", 1e-13), cdf("normalCdf(, 10 deviations", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double mean = spread_.between(-50, 50), deviation = spread_.by_magnitude(0.01, 100);
    const double a = mean + deviation * spread_.between(-10, 10);
    const double b = mean + deviation * spread_.between(-10, 10);
    const boost::math::normal peer(mean, deviation);
    compare_density(pdf, OP_NORMAL_PDF, peer, {a, mean, deviation});
    compare_range(cdf, OP_NORMAL_CDF, peer, {a, b, mean, deviation});
  }
}

TEST_F(distributions_peers, t) {
  TAccuracy pdf("tPdf(, df 0.1 to 300", DENSITY_TOLERANCE),
      cdf("tCdf(, df 0.1 to 300", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double df = spread_.by_magnitude(0.1, 300), a = spread_.between(-10, 10),
                 b = spread_.between(-10, 10);
    const boost::math::students_t peer(df);
    compare_density(pdf, OP_T_PDF, peer, {a, df});
    compare_range(cdf, OP_T_CDF, peer, {a, b, df});
  }
}

TEST_F(distributions_peers, chi_square) {
  TAccuracy pdf("chiSqPdf(, df 1 to 200", DENSITY_TOLERANCE);
  TAccuracy cdf("chiSqCdf( behind its argument table, df 1 to 200", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double df = spread_.whole(1, 200), a = spread_.by_magnitude(0.01, 300),
                 b = spread_.by_magnitude(0.01, 300);
    const boost::math::chi_squared peer(df);
    compare_density(pdf, OP_CHI_SQ_PDF, peer, {a, df});
    compare_range(cdf, OP_CHI_SQ_CDF, peer, {a, b, df});
  }
}

TEST_F(distributions_peers, f) {
  TAccuracy pdf("FPdf(, n and d 1 to 150", DENSITY_TOLERANCE),
      cdf("FCdf(, n and d 1 to 150", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double n = spread_.whole(1, 150), d = spread_.whole(1, 150);
    const double a = spread_.by_magnitude(0.01, 100), b = spread_.by_magnitude(0.01, 100);
    const boost::math::fisher_f peer(n, d);
    compare_density(pdf, OP_F_PDF, peer, {a, n, d});
    compare_range(cdf, OP_F_CDF, peer, {a, b, n, d});
  }
}

TEST_F(distributions_peers, binomial) {
  TAccuracy pdf("binomPdf(, n 1 to 170", 1e-12),
      cdf("binomCdf(, n 1 to 690, x below n", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double p = spread_.between(0.001, 0.999);
    const int n = static_cast<int>(spread_.whole(1, 170)), many = static_cast<int>(spread_.whole(1, 690));
    compare_density(pdf, OP_BINOM_PDF, boost::math::binomial(n, p),
                    {spread_.whole(0, n), static_cast<double>(n), p});
    const double x = spread_.whole(0, many - 1);
    const double own = call(OP_BINOM_CDF, {x, static_cast<double>(many), p});
    if (own != -1.0)
      cdf.compare(own, boost::math::cdf(boost::math::binomial(many, p), x), 1.0,
                  {x, static_cast<double>(many), p});
  }
}

TEST_F(distributions_peers, poisson) {
  TAccuracy pdf("poissonPdf(, u 0.01 to 50, x to 170", 1e-12);
  TAccuracy cdf("poissonCdf(, u 0.01 to 500, x to 600", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double u = spread_.by_magnitude(0.01, 50), large = spread_.by_magnitude(0.01, 500);
    compare_density(pdf, OP_POISSON_PDF, boost::math::poisson(u), {spread_.whole(0, 170), u});
    const double x = spread_.whole(0, 600);
    cdf.compare(call(OP_POISSON_CDF, {x, large}), boost::math::cdf(boost::math::poisson(large), x), 1.0,
                {x, large});
  }
}

// Boost counts the failures in front of the success, the calculator the trials.
TEST_F(distributions_peers, geometric) {
  TAccuracy pdf("geometPdf(, x 1 to 200", 1e-12), cdf("geometCdf(, x 1 to 200", 1e-13);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double p = spread_.between(0.001, 0.999), x = spread_.whole(1, 200);
    const boost::math::geometric peer(p);
    const double expected = boost::math::pdf(peer, x - 1);
    if (expected > 1e-250) pdf.compare(call(OP_GEOMET_PDF, {x, p}), expected, {x, p});
    cdf.compare(call(OP_GEOMET_CDF, {x, p}), boost::math::cdf(peer, x - 1), 1.0, {x, p});
  }
}

// Ours is 1 - exp(-alpha x^beta); Boost's scale is alpha^(-1/beta).
TEST_F(distributions_peers, weibull) {
  TAccuracy pdf("weibullPdf(, alpha 0.01 to 100, beta 1 to 20", 1e-11),
      cdf("weibullCdf(, alpha 0.01 to 100, beta 1 to 20", 1e-13);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double alpha = spread_.by_magnitude(0.01, 100), beta = spread_.between(1, 20);
    const double scale = std::pow(alpha, -1 / beta);
    const double a = scale * spread_.between(0.01, 2), b = scale * spread_.between(0.01, 2);
    const boost::math::weibull peer(beta, scale);
    const double expected = boost::math::pdf(peer, a);
    if (expected > 1e-100) pdf.compare(call(OP_WEIBULL_PDF, {a, alpha, beta}), expected, {a, alpha, beta});
    compare_range(cdf, OP_WEIBULL_CDF, peer, {a, b, alpha, beta});
  }
}

TEST_F(distributions_peers, gamma) {
  TAccuracy pdf("gammaPdf(, alpha 0.1 to 80, lambda 0.1 to 10", DENSITY_TOLERANCE);
  TAccuracy cdf("gammaCdf(, alpha 0.1 to 80, lambda 0.1 to 10", PROBABILITY_TOLERANCE);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double alpha = spread_.by_magnitude(0.1, 80), lambda = spread_.by_magnitude(0.1, 10);
    const double a = spread_.between(0.01, 3) * alpha / lambda, b = spread_.between(0.01, 3) * alpha / lambda;
    const boost::math::gamma_distribution<> peer(alpha, 1 / lambda);
    compare_density(pdf, OP_GAMMA_PDF, peer, {a, alpha, lambda});
    compare_range(cdf, OP_GAMMA_CDF, peer, {a, b, alpha, lambda});
  }
}

TEST_F(distributions_peers, exponential) {
  TAccuracy pdf("exponPdf(, lambda 0.01 to 100", 1e-12), cdf("exponCdf(, lambda 0.01 to 100", 1e-14);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double lambda = spread_.by_magnitude(0.01, 100);
    const double a = spread_.between(0, 30) / lambda, b = spread_.between(0, 30) / lambda;
    const boost::math::exponential peer(lambda);
    compare_density(pdf, OP_EXPON_PDF, peer, {a, lambda});
    compare_range(cdf, OP_EXPON_CDF, peer, {a, b, lambda});
  }
}

}  // namespace
}  // namespace zephyl
