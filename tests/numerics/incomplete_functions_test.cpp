#include "numerics/incomplete_functions.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zephyl {
namespace {

TEST(incomplete_functions, gamma_of_an_argument_out_of_range_is_not_computed) {
  for (const auto function : {gamma_p, gamma_q}) {
    EXPECT_EQ(function(0.0, 1.0), -1.0);
    EXPECT_EQ(function(-2.0, 1.0), -1.0);
    EXPECT_EQ(function(1.0, -0.5), -1.0);
  }
}

TEST(incomplete_functions, gamma_at_zero) {
  EXPECT_EQ(gamma_p(3.0, 0.0), 0.0);
  EXPECT_EQ(gamma_q(3.0, 0.0), 1.0);
}

TEST(incomplete_functions, gamma_of_shape_one_is_exponential) {
  for (const double x : {0.1, 1.0, 1.99, 2.0, 2.01, 10.0}) {
    EXPECT_NEAR(gamma_p(1.0, x), 1.0 - std::exp(-x), 1e-9) << x;
    EXPECT_NEAR(gamma_q(1.0, x), std::exp(-x), 1e-9) << x;
  }
}

TEST(incomplete_functions, one_of_the_two_is_the_complement_of_the_other) {
  for (const double x : {0.5, 3.4}) EXPECT_EQ(gamma_q(2.5, x), 1.0 - gamma_p(2.5, x)) << x;
  for (const double x : {3.6, 20.0}) EXPECT_EQ(gamma_p(2.5, x), 1.0 - gamma_q(2.5, x)) << x;
}

TEST(incomplete_functions, where_three_hundred_rounds_do_not_converge_both_are_not_computed) {
  EXPECT_EQ(gamma_p(5000.0, 5000.0), -1.0);
  EXPECT_EQ(gamma_q(5000.0, 5000.0), -1.0);
  EXPECT_EQ(gamma_p(1e6, 1e6 + 5.0), -1.0);
  EXPECT_EQ(gamma_q(1e6, 1e6 + 5.0), -1.0);
}

TEST(incomplete_functions, log_gamma_below_seven_hundred) {
  EXPECT_NEAR(log_gamma(1.0), 0.0, 1e-10);
  EXPECT_NEAR(log_gamma(0.5), 0.5723649429247001, 1e-10);
  EXPECT_NEAR(log_gamma(699.999), std::lgamma(699.999), 1e-8);
}

// From 700 the form is that of the gamma function one further on: larger by ln x.
TEST(incomplete_functions, log_gamma_jumps_at_seven_hundred) {
  EXPECT_NEAR(log_gamma(700.0), std::lgamma(701.0), 1e-3);
  EXPECT_NEAR(log_gamma(700.0) - log_gamma(699.999), std::log(700.0), 0.01);
}

// The factor of the jump is 1/700: what was a probability is no longer one.
TEST(incomplete_functions, the_jump_shows_in_the_incomplete_gamma_function) {
  EXPECT_NEAR(gamma_p(699.0, 650.0), 0.0294, 1e-3);
  EXPECT_NEAR(gamma_p(701.0, 650.0), 0.0245 / 701.0, 2e-6);
}

// Where the sum of its parameters alone reaches 700, it is too large by that factor.
TEST(incomplete_functions, the_jump_shows_in_the_incomplete_beta_function) {
  const double below = beta_i(699.49, 0.5, 0.997), above = beta_i(699.51, 0.5, 0.997);
  EXPECT_GT(below, 0.0);
  EXPECT_NEAR(above / below, 700.0, 1.0);
}

TEST(incomplete_functions, beta_outside_of_its_interval_is_not_computed) {
  EXPECT_EQ(beta_i(2.0, 3.0, -0.1), -1.0);
  EXPECT_EQ(beta_i(2.0, 3.0, 1.1), -1.0);
}

TEST(incomplete_functions, beta_is_zero_at_both_ends) {
  EXPECT_EQ(beta_i(2.0, 3.0, 0.0), 0.0);
  EXPECT_EQ(beta_i(2.0, 3.0, 1.0), 0.0);
}

TEST(incomplete_functions, beta_of_shape_one_is_a_power) {
  for (const double x : {0.01, 0.3, 0.5, 0.7, 0.99}) {
    EXPECT_NEAR(beta_i(3.0, 1.0, x), x * x * x, 1e-9) << x;
    EXPECT_NEAR(beta_i(1.0, 3.0, x), 1.0 - std::pow(1.0 - x, 3.0), 1e-9) << x;
  }
}

TEST(incomplete_functions, a_beta_fraction_that_does_not_converge_is_not_computed) {
  EXPECT_EQ(beta_i(1e6, 1e6, 0.5), -1.0);
  EXPECT_EQ(beta_i(1e6, 1e6, 0.5000001), -1.0);
}

}  // namespace
}  // namespace zephyl
