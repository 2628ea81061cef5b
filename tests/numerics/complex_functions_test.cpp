// The rules that the complex formulas are built by; their accuracy is tested in complex_accuracy_test.cpp.
#include "numerics/complex_functions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/polar.h"
#include "engine/state.h"

namespace zephyl {
namespace {

class complex_functions : public ::testing::Test {
 protected:
  complex_functions() {
    reset_settings();
    reset_state();
    reset_errors();
    clear_faults();
  }
  static int error() {
    report_fault();
    return errors.error_flag ? errors.error_code : -1;
  }
};

void expect_value(TValue actual, TValue expected) {
  EXPECT_NEAR(actual.re, expected.re, 1e-14 * (1.0 + std::fabs(expected.re)));
  EXPECT_NEAR(actual.im, expected.im, 1e-14 * (1.0 + std::fabs(expected.im)));
}

constexpr TValue imaginary_unit = {0.0, 1.0};

TEST_F(complex_functions, sums_and_products_are_the_plain_formulas) {
  EXPECT_EQ((TValue{1, 2} + TValue{3, 5}), (TValue{4, 7}));
  EXPECT_EQ((TValue{1, 2} - TValue{3, 5}), (TValue{-2, -3}));
  EXPECT_EQ((TValue{1, 2} * TValue{3, 5}), (TValue{-7, 11}));
  EXPECT_EQ((-TValue{1, -2}), (TValue{-1, 2}));
}

TEST_F(complex_functions, quotient_by_the_smaller_real_part) {
  EXPECT_EQ(complex_divide({-5, 10}, {3, 4}), (TValue{1, 2}));
  EXPECT_EQ(complex_divide({2, 4}, {0, 2}), (TValue{2, -1}));
  EXPECT_EQ(complex_divide({0, 2}, {1, 1}), (TValue{1, 1}));
}

TEST_F(complex_functions, quotient_by_the_larger_real_part) {
  expect_value(complex_divide({-2, 11}, {4, 3}), {1, 2});
}

TEST_F(complex_functions, quotient_does_not_overflow_in_its_squares) {
  expect_value(complex_divide({2e200, 2e200}, {1e200, 1e200}), {2, 0});
  EXPECT_EQ(error(), -1);
}

TEST_F(complex_functions, quotient_by_zero_is_reported) {
  EXPECT_EQ(complex_divide({1, 1}, {}), (TValue{}));
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
}

TEST_F(complex_functions, magnitude_does_not_overflow_in_its_squares) {
  EXPECT_EQ(complex_magnitude({}), 0.0);
  EXPECT_EQ(complex_magnitude({0, -7}), 7.0);
  EXPECT_EQ(complex_magnitude({-7, 0}), 7.0);
  EXPECT_DOUBLE_EQ(complex_magnitude({3, 4}), 5.0);
  EXPECT_DOUBLE_EQ(complex_magnitude({4e200, -3e200}), 5e200);
  EXPECT_EQ(error(), -1);
}

TEST_F(complex_functions, square_root_lies_right_of_the_axis) {
  EXPECT_EQ(complex_sqrt({}), (TValue{}));
  expect_value(complex_sqrt({-4, 0}), {0, 2});
  expect_value(complex_sqrt({-4, -0.0}), {0, 2});
  expect_value(complex_sqrt({-3, 4}), {1, 2});
  expect_value(complex_sqrt({-3, -4}), {1, -2});
  expect_value(complex_sqrt({3, 4}), {2, 1});
  expect_value(complex_sqrt({0, 2}), {1, 1});
  expect_value(complex_sqrt({0, -2}), {1, -1});
}

TEST_F(complex_functions, angle_by_quadrant) {
  EXPECT_EQ(complex_angle_radians({}), 0.0);
  EXPECT_EQ(complex_angle_radians({0, 3}), quarter_turn);
  EXPECT_EQ(complex_angle_radians({0, -3}), -quarter_turn);
  EXPECT_EQ(complex_angle_radians({-3, 0}), half_turn);
  EXPECT_EQ(complex_angle_radians({-3, -0.0}), half_turn);
  EXPECT_EQ(complex_angle_radians({3, 0}), 0.0);
  EXPECT_DOUBLE_EQ(complex_angle_radians({1, 1}), half_turn / 4);
  EXPECT_DOUBLE_EQ(complex_angle_radians({1, -1}), -half_turn / 4);
  EXPECT_DOUBLE_EQ(complex_angle_radians({-1, 1}), half_turn * 0.75);
  EXPECT_DOUBLE_EQ(complex_angle_radians({-1, -1}), -half_turn * 0.75);
}

TEST_F(complex_functions, logarithm_of_a_negative_number_has_a_half_turn) {
  EXPECT_EQ(complex_log({-1, 0}), (TValue{0, half_turn}));
}

TEST_F(complex_functions, logarithm_of_zero_is_a_domain_error) {
  EXPECT_EQ(complex_log({}), (TValue{}));
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(complex_functions, logarithm_squares_plainly) {
  complex_log({1e200, 0});
  EXPECT_EQ(error(), ERR_OVERFLOW);
  reset_errors();
  complex_log({1e-200, 1e-200});
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(complex_functions, power_zero_is_one_even_of_zero) {
  EXPECT_EQ(complex_power({}, {}), (TValue{1, 0}));
  EXPECT_EQ(complex_power({2, 3}, {}), (TValue{1, 0}));
}

TEST_F(complex_functions, zero_to_a_negative_power_is_a_domain_error) {
  EXPECT_EQ(complex_power({}, {-1, 0}), (TValue{}));
  EXPECT_EQ(error(), ERR_DOMAIN);
}

TEST_F(complex_functions, zero_to_a_complex_power_is_zero) {
  EXPECT_EQ(complex_power({}, {-1, 1}), (TValue{}));
  EXPECT_EQ(complex_power({}, {2, 0}), (TValue{}));
  EXPECT_EQ(error(), -1);
}

TEST_F(complex_functions, real_numbers_to_integer_powers_stay_exact) {
  EXPECT_EQ(complex_power({-3, 0}, {3, 0}), (TValue{-27, 0}));
  EXPECT_EQ(complex_power({-2, 0}, {-1, 0}), (TValue{-0.5, 0}));
  for (double n = 101; n < 200; ++n)
    EXPECT_EQ(complex_power({-3, 0}, {n, 0}), (TValue{std::pow(-3.0, n), 0}));
}

TEST_F(complex_functions, powers_take_the_principal_value) {
  expect_value(complex_power({-8, 0}, {1.0 / 3.0, 0}), {1, std::sqrt(3.0)});
  expect_value(complex_power({-8, -0.0}, {1.0 / 3.0, 0}), {1, std::sqrt(3.0)});
  expect_value(complex_power(imaginary_unit, imaginary_unit), {std::exp(-quarter_turn), 0});
  EXPECT_EQ(complex_power(imaginary_unit, {2, 0}), (TValue{-1, 0}));
}

TEST_F(complex_functions, arcs_of_the_hyperbolic_tangent_on_the_axes) {
  for (double b = -3; b < 3; b += 0.17) EXPECT_EQ(complex_atanh({0, b}), (TValue{0, std::atan(b)}));
  expect_value(complex_atanh({0.5, 0}), {0.5 * std::log(3.0), 0});
  expect_value(complex_atanh({2, 0}), {0.5 * std::log(3.0), quarter_turn});
}

TEST_F(complex_functions, the_pole_of_the_hyperbolic_arctangent_divides_by_zero) {
  complex_atanh({1, 0});
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
  reset_errors();
  complex_atanh({-1, 0});
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
}

TEST_F(complex_functions, arctangent_on_the_axes) {
  EXPECT_EQ(complex_atan({}), (TValue{}));
  EXPECT_EQ(complex_atan({1, 0}), (TValue{std::atan(1.0), 0}));
  expect_value(complex_atan({0, 0.5}), {0, 0.5 * std::log(3.0)});
  expect_value(complex_atan({0, 2}), {-quarter_turn, 0.5 * std::log(3.0)});
}

TEST_F(complex_functions, the_pole_of_the_arctangent_divides_by_zero) {
  complex_atan(imaginary_unit);
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
  reset_errors();
  complex_atan({0, -1});
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
}

TEST_F(complex_functions, exponential_of_a_half_turn_is_exactly_minus_one) {
  EXPECT_EQ(complex_exp({0, half_turn}), (TValue{-1, 0}));
}

TEST_F(complex_functions, the_pole_of_the_tangent_divides_by_zero) {
  complex_tan({quarter_turn, 0});
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
  reset_errors();
  complex_tanh({0, quarter_turn});
  EXPECT_EQ(error(), ERR_ZERO_DIVIDE);
}

TEST_F(complex_functions, hyperbolic_arccosine_lies_right_of_the_axis) {
  expect_value(complex_acosh({2, 0}), {std::acosh(2.0), 0});
  expect_value(complex_acosh({-2, 0}), {std::acosh(2.0), half_turn});
  EXPECT_EQ(complex_acosh({0, 0}), (TValue{0, quarter_turn}));
  EXPECT_EQ(complex_acosh({-1, 0}), (TValue{0, half_turn}));
}

TEST_F(complex_functions, polar_form_in_each_unit) {
  expect_value(polar_to_rect(RADIANS, 2, quarter_turn), {0, 2});
  expect_value(polar_to_rect(DEGREES, 2, 60), {1, std::sqrt(3.0)});
  expect_value(polar_to_rect(GRADS, 2, 50), {std::sqrt(2.0), std::sqrt(2.0)});
  EXPECT_EQ(polar_to_rect(DEGREES, 3, 180), (TValue{-3, 0}));
}

TEST_F(complex_functions, polar_form_in_another_unit_is_unexpected) {
  EXPECT_EQ(polar_to_rect(3, 2, 1), (TValue{}));
  EXPECT_EQ(error(), ERR_UNEXPECTED);
}

}  // namespace
}  // namespace zephyl
