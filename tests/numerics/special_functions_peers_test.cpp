// Gamma, beta and Bessel functions against GSL and Boost.Math.
#include <gsl/gsl_sf_gamma.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>

#include "engine/errors.h"
#include "engine/state.h"
#include "numerics/special_functions.h"
#include "support/accuracy.h"

namespace zephyl {
namespace {

constexpr int ARGUMENT_COUNT = 5000;

class special_functions_peers : public ::testing::Test {
 protected:
  special_functions_peers() {
    reset_errors();
    reset_state();
  }
  ~special_functions_peers() override { EXPECT_FALSE(errors.error_flag) << errors.error_text; }

  TSpread spread_;
};

TEST_F(special_functions_peers, gamma_of_real_numbers) {
  TAccuracy accuracy("Gamma(x), x from 0.001 to 170", 1e-9);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double x = spread_.by_magnitude(0.001, 170);
    accuracy.compare(complex_gamma({x, 0}).re, boost::math::tgamma(x), {x});
  }
}

// |Gamma(z) - peer| in parts of the modulus.
void compare_complex(TAccuracy& accuracy, TValue z) {
  gsl_sf_result log_modulus, argument;
  ASSERT_EQ(gsl_sf_lngamma_complex_e(z.re, z.im, &log_modulus, &argument), 0);
  const double modulus = std::exp(log_modulus.val);
  const TValue own = complex_gamma(z);
  const double error =
      std::hypot(own.re - modulus * std::cos(argument.val), own.im - modulus * std::sin(argument.val));
  accuracy.compare(error, 0.0, modulus, {z.re, z.im});
}

TEST_F(special_functions_peers, gamma_of_complex_numbers_right_of_the_axis) {
  TAccuracy accuracy("Gamma(z), re 0 to 50, |im| to 50", 1e-9);
  for (int i = 0; i < ARGUMENT_COUNT; ++i)
    compare_complex(accuracy, {spread_.between(0, 50), spread_.between(-50, 50)});
}

TEST_F(special_functions_peers, gamma_of_complex_numbers_left_of_the_axis) {
  TAccuracy accuracy("Gamma(z), re -4 to 0, |im| 0.01 to 10", 1e-5);
  for (int i = 0; i < ARGUMENT_COUNT; ++i)
    compare_complex(accuracy, {spread_.between(-4, 0), spread_.by_magnitude(0.01, 10)});
}

TEST_F(special_functions_peers, beta) {
  TAccuracy accuracy("Beta(a,b), a and b from 0.01 to 80", 1e-9);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double a = spread_.by_magnitude(0.01, 80), b = spread_.by_magnitude(0.01, 80);
    accuracy.compare(complex_beta({a, 0}, {b, 0}).re, boost::math::beta(a, b), {a, b});
  }
}

// In parts of the value where the function rises or falls steeply, of the amplitude where it oscillates.
void compare_bessel(TAccuracy& j, TAccuracy& y, double order, double x) {
  const double expected_j = boost::math::cyl_bessel_j(order, x),
               expected_y = boost::math::cyl_neumann(order, x);
  const double amplitude = x > order ? std::hypot(expected_j, expected_y) : 0.0;
  j.compare(bessel_j(order, x), expected_j, std::max(std::fabs(expected_j), amplitude), {order, x});
  y.compare(bessel_y(order, x), expected_y, std::max(std::fabs(expected_y), amplitude), {order, x});
}

TEST_F(special_functions_peers, bessel_functions_of_whole_order) {
  TAccuracy j("Jn(n,x), n 0 to 50, x 0.1 to 500", 1e-11), y("Yn(n,x), n 0 to 50, x 0.1 to 500", 1e-11);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double order = spread_.whole(0, 50), x = spread_.by_magnitude(0.1, 500);
    compare_bessel(j, y, order, x);
  }
}

TEST_F(special_functions_peers, bessel_functions_of_fractional_order) {
  TAccuracy j("Jn(v,x), v 0 to 50, x 0.1 to 500", 1e-11), y("Yn(v,x), v 0 to 50, x 0.1 to 500", 1e-11);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double order = spread_.between(0, 50), x = spread_.by_magnitude(0.1, 500);
    compare_bessel(j, y, order, x);
  }
}

// Below 5 the rounding of the continued fractions has not added up yet.
TEST_F(special_functions_peers, bessel_functions_of_small_arguments) {
  TAccuracy j("Jn(v,x), v 0 to 20, x 0.01 to 5", 1e-12), y("Yn(v,x), v 0 to 20, x 0.01 to 5", 1e-12);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const double order = spread_.between(0, 20), x = spread_.by_magnitude(0.01, 5);
    compare_bessel(j, y, order, x);
  }
}

TEST_F(special_functions_peers, bessel_functions_of_large_arguments) {
  TAccuracy j("Jn(v,x), v 0 to 400, x 500 to 5000", 1e-9), y("Yn(v,x), v 0 to 400, x 500 to 5000", 1e-9);
  for (int i = 0; i < 500; ++i) {
    const double order = spread_.between(0, 400), x = spread_.by_magnitude(500, 5000);
    compare_bessel(j, y, order, x);
  }
}

}  // namespace
}  // namespace zephyl
