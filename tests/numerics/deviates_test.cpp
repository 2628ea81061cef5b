// Random deviates: each one draws from the uniform generator exactly as its method says, and its draws have
// the moments of its distribution. Programs that seed the generator depend on the former.
#include "numerics/deviates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "numerics/random.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr double pi = 3.141592653589793;
constexpr int DRAW_COUNT = 20000;

class deviates : public calculator {
 protected:
  // The same numbers from the same place of the generator.
  static void expect_same_draws(const std::function<double()>& drawn, const std::function<double()>& expected,
                                int count = 500) {
    for (int seed = 1; seed <= count; ++seed) {
      seed_random(seed * 0.001);
      const double first = drawn();
      const double next = next_random();
      seed_random(seed * 0.001);
      ASSERT_DOUBLE_EQ(first, expected()) << seed;
      ASSERT_EQ(next, next_random()) << "another number of draws, seed " << seed;
    }
  }

  // Mean and variance within `allowed` standard errors of the mean, and correspondingly for the variance.
  static void expect_moments(const std::function<double()>& draw, double mean, double variance) {
    seed_random(0.25);
    double sum = 0.0, squares = 0.0;
    for (int i = 0; i < DRAW_COUNT; ++i) {
      const double x = draw() - mean;
      sum += x;
      squares += x * x;
    }
    EXPECT_NEAR(sum / DRAW_COUNT, 0.0, 5 * std::sqrt(variance / DRAW_COUNT));
    EXPECT_NEAR(squares / DRAW_COUNT, variance, 0.1 * variance);
  }
};

// ln Gamma of the six coefficients, as the rejections use it.
double log_gamma(double x) {
  const double c[] = {76.18009172947146,  -86.50532032941678,   24.01409824083091,
                      -1.231739572450155, 0.001208650973866179, -5.395239384953e-06};
  double ser = 1.000000000190015;
  for (int j = 0; j < 6; ++j) ser += c[j] / (x + 1 + j);
  return std::log(2.5066282746310007 * ser / x) - (x + 5.5 - (x + 0.5) * std::log(x + 5.5));
}

double leva_normal() {
  for (;;) {
    double u = next_random(), v = next_random();
    if (!(u > 0)) u = 1;
    if (!(v > 0)) v = 1;
    v = (v - 0.5) * 1.7156;
    const double x = u - 0.449871, y = std::fabs(v) + 0.386595;
    const double q = x * x + y * (0.196 * y - 0.25472 * x);
    if (q < 0.27597) return v / u;
    if (q > 0.27846) continue;
    if (v * v <= -4 * std::log(u) * u * u) return v / u;
  }
}

double product_poisson(double x) {
  const double g = std::exp(-x);
  double t = 1, k = -1;
  do {
    k = k + 1;
    t = t * next_random();
  } while (t > g);
  return k;
}

double rejection_poisson(double x) {
  const double sq = std::sqrt(2 * x), lnx = std::log(x), g = x * lnx - log_gamma(x + 1);
  double em, t, y;
  do {
    do {
      y = std::tan(pi * next_random());
      em = sq * y + x;
    } while (em < 0);
    em = std::floor(em);
    t = 0.9 * (1 + y * y) * std::exp(em * lnx - log_gamma(em + 1) - g);
  } while (next_random() > t);
  return em;
}

double rejection_binomial(double q, double n) {
  const double mean = n * q, sq = std::sqrt(2 * mean * (1 - q));
  double em, t, y;
  do {
    do {
      y = std::tan(pi * next_random());
      em = sq * y + mean;
    } while (em < 0 || em >= n + 1);
    em = std::floor(em);
    t = 1.2 * sq * (1 + y * y) *
        std::exp(log_gamma(n + 1) - log_gamma(em + 1) - log_gamma(n - em + 1) + em * std::log(q) +
                 (n - em) * std::log(1 - q));
  } while (next_random() > t);
  return em;
}

// --- randInt(

TEST_F(deviates, an_integer_is_cut_from_one_draw) {
  expect_same_draws([] { return random_integer(-3, 8); }, [] { return std::trunc(next_random() * 12) - 3; });
}

TEST_F(deviates, bounds_of_an_integer_are_swapped) {
  expect_same_draws([] { return random_integer(5, 1); }, [] { return random_integer(1, 5); });
}

TEST_F(deviates, an_integer_reaches_both_bounds_and_nothing_else) {
  int counts[7] = {};
  for (int i = 0; i < 1000; ++i) {
    const double drawn = random_integer(1, 5);
    ASSERT_TRUE(drawn >= 1 && drawn <= 5 && drawn == std::floor(drawn));
    ++counts[static_cast<int>(drawn)];
  }
  for (int n = 1; n <= 5; ++n) EXPECT_NEAR(counts[n], 200, 60) << n;
}

TEST_F(deviates, an_integer_between_equal_bounds_is_that) { EXPECT_EQ(value("randInt(7,7)"), 7.0); }

TEST_F(deviates, integers_want_integer_bounds_within_a_thousand_million) {
  for (const char* text :
       {"randInt(1.5,2)", "randInt(1,2.5)", "randInt(1000000001,1)", "randInt(1,-1000000001)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
  EXPECT_EQ(error_of("randInt(-1000000000,1000000000)"), "");
}

TEST_F(deviates, refused_bounds_draw_nothing) {
  expect_same_draws([] { return random_integer(1.5, 2); }, [] { return 0.0; }, 5);
}

// --- randNorm(

TEST_F(deviates, a_normal_deviate_is_a_ratio_of_uniforms) {
  expect_same_draws([] { return random_normal(10, 3); }, [] { return 10 + 3 * leva_normal(); });
}

TEST_F(deviates, normal_deviates_have_their_moments) {
  expect_moments([] { return random_normal(-2, 4); }, -2, 16);
}

TEST_F(deviates, a_normal_deviate_checks_nothing) {
  EXPECT_EQ(value("randNorm(5,0)"), 5.0);
  EXPECT_EQ(error_of("randNorm(5,-1)"), "");
}

// --- randPois(

TEST_F(deviates, a_poisson_deviate_of_a_small_mean_is_a_product) {
  for (const double mean : {0.0, 0.5, 3.0, 11.99})
    expect_same_draws([=] { return random_poisson(mean); }, [=] { return product_poisson(mean); }, 100);
}

TEST_F(deviates, a_poisson_deviate_from_twelve_is_a_rejection) {
  for (const double mean : {12.0, 50.0, 1234.5})
    expect_same_draws([=] { return random_poisson(mean); }, [=] { return rejection_poisson(mean); }, 100);
}

TEST_F(deviates, poisson_constants_follow_the_mean) {
  expect_same_draws([] { return random_poisson(20) + 1000 * random_poisson(30) + 1e6 * random_poisson(20); },
                    [] {
                      const double a = rejection_poisson(20), b = rejection_poisson(30);
                      return a + 1000 * b + 1e6 * rejection_poisson(20);
                    });
}

TEST_F(deviates, poisson_deviates_have_their_moments) {
  expect_moments([] { return random_poisson(4.5); }, 4.5, 4.5);
  expect_moments([] { return random_poisson(80); }, 80, 80);
}

TEST_F(deviates, a_poisson_deviate_of_a_negative_mean_is_zero) {
  EXPECT_EQ(value("randPois(-1)"), 0.0);
  EXPECT_EQ(error_of("randPois(-1000)"), "Overflow");
}

TEST_F(deviates, a_poisson_mean_without_digits_left_comes_to_an_end) {
  eval("randPois(1e308)");
  EXPECT_EQ(value("2+2"), 4.0);
}

TEST_F(deviates, a_tap_ends_a_rejection_that_does_not_end) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.ticks_per_look = 1000;
  platform_.pen_downs.push_back({20, 200});
  EXPECT_EQ(error_of("randPois(1e308)"), "Operation Canceled");
}

// --- randBin(

TEST_F(deviates, a_binomial_deviate_of_few_trials_counts_them) {
  for (const double p : {0.0, 0.3, 0.5})
    expect_same_draws([=] { return random_binomial(p, 24); },
                      [=] {
                        double count = 0;
                        for (int i = 0; i < 24; ++i) count += next_random() < p;
                        return count;
                      });
}

TEST_F(deviates, a_binomial_deviate_of_a_small_mean_is_a_product) {
  expect_same_draws([] { return random_binomial(0.01, 50); }, [] { return product_poisson(0.5); });
}

TEST_F(deviates, any_other_binomial_deviate_is_a_rejection) {
  expect_same_draws([] { return random_binomial(0.3, 100); }, [] { return rejection_binomial(0.3, 100); });
  expect_same_draws([] { return random_binomial(0.5, 1e6); }, [] { return rejection_binomial(0.5, 1e6); },
                    50);
}

TEST_F(deviates, binomial_constants_follow_trials_and_probability) {
  expect_same_draws(
      [] {
        const double a = random_binomial(0.3, 100), b = random_binomial(0.2, 100);
        return a + 1000 * b + 1e6 * random_binomial(0.2, 60);
      },
      [] {
        const double a = rejection_binomial(0.3, 100), b = rejection_binomial(0.2, 100);
        return a + 1000 * b + 1e6 * rejection_binomial(0.2, 60);
      });
}

TEST_F(deviates, a_probability_above_a_half_counts_failures) {
  expect_same_draws([] { return random_binomial(0.75, 100); },
                    [] { return 100 - rejection_binomial(0.25, 100); });
  expect_same_draws([] { return random_binomial(0.75, 10); }, [] { return 10 - random_binomial(0.25, 10); });
}

TEST_F(deviates, binomial_deviates_have_their_moments) {
  expect_moments([] { return random_binomial(0.3, 20); }, 6, 4.2);
  expect_moments([] { return random_binomial(0.002, 100); }, 0.2, 0.2);
  expect_moments([] { return random_binomial(0.9, 200); }, 180, 18);
}

TEST_F(deviates, certain_and_impossible_trials) {
  for (const char* trials : {"5", "100", "1000000000"}) {
    EXPECT_EQ(value(std::string("randBin(0,") + trials + ")"), 0.0);
    EXPECT_EQ(value(std::string("randBin(1,") + trials + ")"), std::stod(trials));
  }
}

TEST_F(deviates, binomial_checks) {
  for (const char* text :
       {"randBin(-0.1,5)", "randBin(1.1,5)", "randBin(0.5,0)", "randBin(0.5,2.5)", "randBin(0.5,1000000001)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
}

}  // namespace
}  // namespace zephyl
