// fnDeriv(.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "numerics/operators/derivative.h"
#include "support/accuracy.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

double derivative_of(const std::function<double(double)>& function, double at, int* samples = nullptr) {
  TDerivative derivative;
  double x = derivative.start(at);
  int count = 1;
  while (derivative.next(function(x), x)) ++count;
  if (samples) *samples = count;
  return derivative.result();
}

class derivative_operator : public calculator {};

TEST_F(derivative_operator, of_a_cube) { EXPECT_NEAR(value("fnDeriv(x^3,x,5)"), 75.0, 1e-9); }

TEST_F(derivative_operator, samples_lie_on_both_sides_at_a_step_that_shrinks) {
  TDerivative derivative;
  double x = derivative.start(3.0);
  EXPECT_DOUBLE_EQ(x, 3.01);
  ASSERT_TRUE(derivative.next(0.0, x));
  EXPECT_DOUBLE_EQ(x, 2.99);
  ASSERT_TRUE(derivative.next(0.0, x));
  EXPECT_DOUBLE_EQ(x, 3.0 + 0.01 / 1.4);
  ASSERT_TRUE(derivative.next(0.0, x));
  EXPECT_DOUBLE_EQ(x, 3.0 - 0.01 / 1.4);
}

TEST_F(derivative_operator, ends_after_fifteen_steps_at_most) {
  // The quotients of this one shrink by the same factor with each step, and so do the errors.
  int samples = 0;
  derivative_of([](double x) { return x * std::sqrt(std::fabs(x)); }, 0.0, &samples);
  EXPECT_EQ(samples, 32);
}

TEST_F(derivative_operator, comes_close) {
  TAccuracy accuracy("fnDeriv(, sin, e^x, ln, x^5-x, 1000 places each", 1e-8);
  TSpread spread;
  for (int i = 0; i < 1000; ++i) {
    const double x = spread.between(-5, 5), positive = spread.between(0.1, 10);
    const auto scale = [](double d) { return 1.0 + std::fabs(d); };
    accuracy.compare(derivative_of([](double t) { return std::sin(t); }, x), std::cos(x), 1.0, {x});
    accuracy.compare(derivative_of([](double t) { return std::exp(t); }, x), std::exp(x), scale(std::exp(x)),
                     {x});
    accuracy.compare(derivative_of([](double t) { return std::log(t); }, positive), 1 / positive,
                     scale(1 / positive), {positive});
    const double d = 5 * std::pow(x, 4) - 1;
    accuracy.compare(derivative_of([](double t) { return std::pow(t, 5) - t; }, x), d, scale(d), {x});
  }
}

TEST_F(derivative_operator, near_zero_is_zero) {
  EXPECT_EQ(value("fnDeriv(cos(x),x,0)"), 0.0);
  EXPECT_EQ(value("fnDeriv(7,x,2)"), 0.0);
  EXPECT_EQ(value("fnDeriv(1e-15*x,x,2)"), 0.0);
}

TEST_F(derivative_operator, differences_are_central) { EXPECT_EQ(value("fnDeriv(abs(x),x,0)"), 0.0); }

TEST_F(derivative_operator, a_sample_out_of_the_domain_is_its_error) {
  EXPECT_EQ(error_of("fnDeriv(ln(x),x,0.001)"), "Domain Error");
  EXPECT_NEAR(value("fnDeriv(ln(x),x,0.011)"), 1 / 0.011, 0.5);
}

TEST_F(derivative_operator, a_place_where_the_step_is_lost_has_derivative_zero) {
  EXPECT_EQ(value("fnDeriv(x,x,1e308)"), 0.0);
  EXPECT_EQ(error_of("fnDeriv(x^2,x,1e308)"), "Overflow");
}

TEST_F(derivative_operator, samples_are_real) {
  EXPECT_EQ(error_of("fnDeriv((i)*x,x,1)"), "Function Argument Type");
  EXPECT_EQ(error_of("fnDeriv(x,x,(i))"), "Function Argument Type");
  eval("2->complexFormat");
  EXPECT_EQ(error_of("fnDeriv(sqRt x,x,-1)"), "Function Argument Type");
}

TEST_F(derivative_operator, of_a_derivative) {
  EXPECT_NEAR(value("fnDeriv(fnDeriv(x^4,x,x),x,2)"), 48.0, 1e-4);
}

}  // namespace
}  // namespace zephyl
