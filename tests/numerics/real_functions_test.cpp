#include "numerics/real_functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numeric>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/polar.h"
#include "engine/state.h"
#include "engine/values.h"

namespace zephyl {
namespace {

class real_functions : public ::testing::Test {
 protected:
  real_functions() {
    reset_settings();
    reset_state();
    reset_errors();
    clear_faults();
  }
  // The standing error, that of the floating-point flags included; -1 none.
  static int error() {
    report_fault();
    return errors.error_flag ? errors.error_code : -1;
  }
};

TEST_F(real_functions, sine_of_a_half_turn_is_zero) { EXPECT_EQ(snap_sin(half_turn), 0.0); }
TEST_F(real_functions, cosine_of_a_quarter_turn_is_zero) { EXPECT_EQ(snap_cos(quarter_turn), 0.0); }

TEST_F(real_functions, snapping_begins_below_1e_14) {
  EXPECT_EQ(snap_sin(9.99e-15), 0.0);
  EXPECT_EQ(snap_sin(-9.99e-15), 0.0);
  EXPECT_EQ(snap_sin(1e-14), 1e-14);
  EXPECT_EQ(snap_sin(-1.01e-14), -1.01e-14);
}

TEST_F(real_functions, plots_see_raw_sines_and_cosines) {
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(snap_sin(half_turn), std::sin(half_turn));
  EXPECT_NE(snap_sin(half_turn), 0.0);
  EXPECT_EQ(snap_cos(quarter_turn), std::cos(quarter_turn));
  EXPECT_NE(snap_cos(quarter_turn), 0.0);
}

TEST_F(real_functions, tangent_at_a_right_angle_is_a_domain_error) {
  EXPECT_EQ(snap_tan(quarter_turn), 0.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, tangent_at_a_right_angle_is_steep_in_a_plot) {
  state.calcMode = PLOT_MODE;
  EXPECT_GT(std::fabs(snap_tan(quarter_turn)), 1e15);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, tangent_is_snapped) {
  EXPECT_EQ(snap_tan(half_turn), 0.0);
  EXPECT_EQ(snap_tan(5e-15), 0.0);
  EXPECT_DOUBLE_EQ(snap_tan(0.7), std::tan(0.7));
}

TEST_F(real_functions, tangent_is_raw_in_a_plot) {
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(snap_tan(5e-15), 5e-15);
}

TEST_F(real_functions, power_zero_is_one_even_of_zero) {
  EXPECT_EQ(real_power(0.0, 0.0), 1.0);
  EXPECT_EQ(real_power(-3.0, 0.0), 1.0);
}

TEST_F(real_functions, zero_to_a_negative_power_is_a_domain_error) {
  EXPECT_EQ(real_power(0.0, -1.0), 0.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, zero_to_a_positive_power_is_zero) {
  EXPECT_EQ(real_power(0.0, 2.5), 0.0);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, odd_roots_of_negative_numbers_are_negative) {
  EXPECT_EQ(real_power(-8.0, 1.0 / 3.0), -2.0);
  EXPECT_DOUBLE_EQ(real_power(-32.0, 0.2), -2.0);
  EXPECT_DOUBLE_EQ(real_power(-8.0, -1.0 / 3.0), -0.5);
  EXPECT_DOUBLE_EQ(real_power(-1.0, 1.0 / 49.0), -1.0);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, other_fractional_powers_of_negative_numbers_are_invalid) {
  for (double power : {0.4, 2.0 / 3.0, 0.5, 0.25, 1.5, 2.5, -0.4}) {
    reset_errors();
    clear_faults();
    real_power(-8.0, power);
    EXPECT_EQ(error(), ERR_DOMAIN) << power;
  }
}

TEST_F(real_functions, integer_powers_of_negative_numbers_are_exact) {
  EXPECT_EQ(real_power(-2.0, 3.0), -8.0);
  EXPECT_EQ(real_power(-2.0, -2.0), 0.25);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, a_power_too_large_is_an_overflow) {
  real_power(10.0, 309.0);
  EXPECT_EQ(error(), ERR_OVERFLOW);
}

TEST_F(real_functions, a_power_too_small_is_zero_without_an_error) {
  EXPECT_EQ(real_power(10.0, -400.0), 0.0);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, a_root_of_a_negative_number_with_a_reciprocal_out_of_range_is_an_overflow) {
  real_power(-2.0, 1e-310);
  EXPECT_EQ(error(), ERR_OVERFLOW);
}

TEST_F(real_functions, square_root_of_a_square_is_exact) {
  for (int n = 0; n < 2000; ++n) EXPECT_EQ(square_root_real(n * n), n);
}

TEST_F(real_functions, square_root_is_the_power_to_a_half) {
  for (double x = 0.001; x < 1e9; x *= 1.37) {
    EXPECT_EQ(square_root_real(x), real_power(x, 0.5));
    EXPECT_NEAR(square_root_real(x), std::pow(x, 0.5), 2.3e-16 * square_root_real(x));
  }
}

TEST_F(real_functions, square_root_of_a_negative_number_is_invalid) {
  // Computed when the test runs, not by the compiler.
  volatile double negative = -1.0;
  volatile double root = square_root_real(negative);
  EXPECT_TRUE(std::isnan(root));
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, square_root_of_negative_zero_has_no_sign) {
  EXPECT_FALSE(std::signbit(square_root_real(-0.0)));
}

TEST_F(real_functions, nearest_integer_takes_halves_away_from_zero) {
  EXPECT_EQ(nearest_integer(2.5), 3.0);
  EXPECT_EQ(nearest_integer(-2.5), -3.0);
  EXPECT_EQ(nearest_integer(0.5), 1.0);
  EXPECT_EQ(nearest_integer(-0.5), -1.0);
}

TEST_F(real_functions, nearest_integer_takes_the_closer_side) {
  EXPECT_EQ(nearest_integer(2.4999), 2.0);
  EXPECT_EQ(nearest_integer(2.5001), 3.0);
  EXPECT_EQ(nearest_integer(-2.4999), -2.0);
  EXPECT_EQ(nearest_integer(-2.5001), -3.0);
  EXPECT_EQ(nearest_integer(7.0), 7.0);
  EXPECT_EQ(nearest_integer(-7.0), -7.0);
  EXPECT_EQ(nearest_integer(0.0), 0.0);
  EXPECT_EQ(nearest_integer(1e300), 1e300);
}

TEST_F(real_functions, integer_part_counts_a_value_just_below_an_integer_as_that_integer) {
  EXPECT_EQ(int_part(2.99999999999), 3.0);
  EXPECT_EQ(int_part(-2.99999999999), -3.0);
  EXPECT_EQ(int_part(2.9999999998), 2.0);
  EXPECT_EQ(int_part(2.5), 2.0);
  EXPECT_EQ(int_part(-2.5), -2.0);
}

TEST_F(real_functions, fractional_part_just_below_an_integer_is_the_rest_of_the_nudged_value) {
  EXPECT_NEAR(frac_part(2.99999999999), 1.4e-10, 1e-12);
  EXPECT_NEAR(frac_part(-2.99999999999), -1.4e-10, 1e-12);
  EXPECT_EQ(frac_part(2.25), 0.25);
  EXPECT_EQ(frac_part(-2.25), -0.25);
  EXPECT_EQ(frac_part(3.0), 0.0);
}

TEST_F(real_functions, integer_part_of_a_large_integer_is_the_nudged_one) {
  EXPECT_EQ(int_part(1e11), 100000000005.0);
}

TEST_F(real_functions, factorial_wants_integers_up_to_170) {
  EXPECT_EQ(factorial(0.0), 1.0);
  EXPECT_EQ(factorial(5.0), 120.0);
  EXPECT_EQ(factorial(170.0), 7.257415615307999e+306);
  EXPECT_EQ(error(), -1);
}

TEST_F(real_functions, factorial_of_a_fraction_is_a_domain_error) {
  factorial(2.5);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, factorial_of_a_negative_number_is_a_domain_error) {
  factorial(-1.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, factorial_above_170_is_an_overflow) {
  factorial(171.0);
  EXPECT_EQ(error(), ERR_OVERFLOW);
}

TEST_F(real_functions, mantissa_and_exponent_drop_the_sign) {
  const TDecimalParts parts = decimal_parts(-312.4);
  EXPECT_DOUBLE_EQ(parts.mantissa, 3.124);
  EXPECT_EQ(parts.exponent, 2.0);
}

TEST_F(real_functions, mantissa_and_exponent_of_zero_are_zero) {
  EXPECT_EQ(decimal_parts(0.0).mantissa, 0.0);
  EXPECT_EQ(decimal_parts(0.0).exponent, 0.0);
}

TEST_F(real_functions, mantissa_almost_ten_counts_as_ten) {
  EXPECT_EQ(decimal_parts(9.99999999995).exponent, 1.0);
  EXPECT_EQ(decimal_parts(9.9999999999).exponent, 0.0);
}

TEST_F(real_functions, mantissa_almost_one_counts_as_one) {
  EXPECT_EQ(decimal_parts(0.99999999995).exponent, 0.0);
  EXPECT_EQ(decimal_parts(0.9999999999).exponent, -1.0);
}

TEST_F(real_functions, mantissa_of_the_whole_range_comes_to_an_end) {
  EXPECT_EQ(decimal_parts(1.7e308).exponent, 308.0);
  EXPECT_NEAR(decimal_parts(1.7e308).mantissa, 1.7, 1e-12);
  EXPECT_EQ(decimal_parts(5e-324).exponent, -324.0);
  EXPECT_NEAR(decimal_parts(2.5e-300).mantissa, 2.5, 1e-12);
}

TEST_F(real_functions, greatest_common_divisor_with_zero_is_the_other) {
  EXPECT_EQ(greatest_common_divisor(0.0, 5.0), 5.0);
  EXPECT_EQ(greatest_common_divisor(5.0, 0.0), 5.0);
  EXPECT_EQ(greatest_common_divisor(0.0, 0.0), 0.0);
}

TEST_F(real_functions, greatest_common_divisor_agrees_with_integer_arithmetic) {
  std::uint32_t word = 12345;
  const auto draw = [&word](std::uint32_t limit) { return (word = word * 1664525u + 1013904223u) % limit; };
  for (int i = 0; i < 20000; ++i) {
    const std::uint32_t limit = i % 3 ? 1000000001u : 1000u;
    const std::uint32_t m = draw(limit);
    const std::uint32_t n = draw(limit);
    EXPECT_EQ(greatest_common_divisor(m, n), std::gcd(m, n)) << m << ' ' << n;
  }
}

TEST_F(real_functions, greatest_common_divisor_of_a_fraction_is_a_domain_error) {
  EXPECT_EQ(greatest_common_divisor(2.5, 5.0), 0.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(real_functions, greatest_common_divisor_has_limits) {
  EXPECT_EQ(greatest_common_divisor(1e9, 1e9), 1e9);
  EXPECT_EQ(error(), -1);
  greatest_common_divisor(1000000001.0, 5.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
  reset_errors();
  greatest_common_divisor(5.0, -5.0);
  EXPECT_EQ(error(), ERR_DOMAIN);
}

}  // namespace
}  // namespace zephyl
