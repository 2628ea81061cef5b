// Every row of the scalar operations: its real rule, its complex rule, its refusals.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/operations.h"
#include "engine/polar.h"
#include "engine/state.h"
#include "numerics/complex_functions.h"
#include "numerics/integral_error.h"
#include "numerics/numerics.h"
#include "numerics/operation_call.h"
#include "numerics/real_functions.h"

namespace zephyl {
namespace {

class scalar_operations : public ::testing::Test {
 protected:
  scalar_operations() {
    reset_settings();
    reset_state();
  }
  static int error_of(TOp_Code op, double left, double right = 0.0) { return operate(op, left, right).error; }
  static int complex_error_of(TOp_Code op, TValue left, TValue right = {}) {
    return operate(op, left, right).error;
  }
  static void show_complex() { settings.complexFormat = ST_COMPLEX_R; }
};

void expect_value(TValue actual, TValue expected) {
  EXPECT_NEAR(actual.re, expected.re, 1e-14 * (1.0 + std::fabs(expected.re)));
  EXPECT_NEAR(actual.im, expected.im, 1e-14 * (1.0 + std::fabs(expected.im)));
}

TEST_F(scalar_operations, four_operations) {
  EXPECT_EQ(real_result_of(OP_PLUS, 2, 3), 5);
  EXPECT_EQ(real_result_of(OP_MINUS, 2, 3), -1);
  EXPECT_EQ(real_result_of(OP_DIVIDE, 3, 2), 1.5);
  EXPECT_EQ(real_result_of(OP_NEG, 3), -3);
  for (TOp_Code op : {OP_MULTIPLY, OP_MULTIPLY_OPERAND, OP_MULTIPLY_FUNCTION}) {
    EXPECT_EQ(real_result_of(op, 2, 3), 6);
    EXPECT_EQ(result_of(op, {1, 2}, {3, 5}), (TValue{-7, 11}));
  }
  EXPECT_EQ(result_of(OP_PLUS, {1, 2}, {3, 5}), (TValue{4, 7}));
  EXPECT_EQ(result_of(OP_MINUS, {1, 2}, {3, 5}), (TValue{-2, -3}));
  EXPECT_EQ(result_of(OP_DIVIDE, {-5, 10}, {3, 4}), (TValue{1, 2}));
  EXPECT_EQ(result_of(OP_NEG, {1, -2}), (TValue{-1, 2}));
}

TEST_F(scalar_operations, one_complex_operand_is_enough_for_the_complex_rule) {
  EXPECT_EQ(result_of(OP_MULTIPLY, {2, 0}, {1, 1}), (TValue{2, 2}));
  EXPECT_EQ(result_of(OP_DIVIDE, {2, 0}, {0, 1}), (TValue{0, -2}));
}

TEST_F(scalar_operations, division_by_zero) {
  EXPECT_EQ(error_of(OP_DIVIDE, 1, 0), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_DIVIDE, 0, 0), ERR_ZERO_DIVIDE);
  EXPECT_EQ(complex_error_of(OP_DIVIDE, {1, 1}, {}), ERR_ZERO_DIVIDE);
}

TEST_F(scalar_operations, results_out_of_range_are_an_overflow) {
  EXPECT_EQ(error_of(OP_PLUS, 1.7e308, 1.7e308), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_MULTIPLY, 1e200, 1e200), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_DIVIDE, 1e200, 1e-200), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_SQUARED, 1e200), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_CUBE, 1e200), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_INV_LN, 1000), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_SINH, 1000), ERR_OVERFLOW);
}

TEST_F(scalar_operations, reciprocals_and_small_powers) {
  EXPECT_EQ(real_result_of(OP_INVERT, 4), 0.25);
  EXPECT_EQ(error_of(OP_INVERT, 0), ERR_ZERO_DIVIDE);
  EXPECT_EQ(result_of(OP_INVERT, {0, 2}), (TValue{0, -0.5}));
  EXPECT_EQ(real_result_of(OP_SQUARED, -3), 9);
  EXPECT_EQ(result_of(OP_SQUARED, {1, 2}), (TValue{-3, 4}));
  EXPECT_EQ(real_result_of(OP_CUBE, -3), -27);
  EXPECT_EQ(result_of(OP_CUBE, {0, 1}), (TValue{0, -1}));
}

TEST_F(scalar_operations, percent_and_percent_change) {
  EXPECT_EQ(real_result_of(OP_PERCENT, 50), 0.5);
  EXPECT_EQ(result_of(OP_PERCENT, {50, 100}), (TValue{0.5, 1}));
  EXPECT_EQ(real_result_of(OP_PERCENT_CHANGE, 50, 75), 50);
  EXPECT_EQ(real_result_of(OP_PERCENT_CHANGE, 4, 3), -25);
  EXPECT_EQ(error_of(OP_PERCENT_CHANGE, 0, 3), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_PERCENT_CHANGE, 0, 0), ERR_DOMAIN);
  EXPECT_EQ(complex_error_of(OP_PERCENT_CHANGE, {1, 1}, {2, 0}), ERR_DATA_TYPE);
}

TEST_F(scalar_operations, exponentials) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_INV_LN, 1), std::exp(1.0));
  EXPECT_EQ(result_of(OP_INV_LN, {0, half_turn}), (TValue{-1, 0}));
  EXPECT_EQ(real_result_of(OP_INV_LOG, 3), 1000);
  EXPECT_EQ(error_of(OP_INV_LOG, 309), ERR_OVERFLOW);
  expect_value(result_of(OP_INV_LOG, {1, 1}), {10 * std::cos(std::log(10.0)), 10 * std::sin(std::log(10.0))});
}

TEST_F(scalar_operations, square_roots_stay_real_where_real_numbers_are_shown) {
  EXPECT_EQ(real_result_of(OP_SQUARE_ROOT, 9), 3);
  EXPECT_EQ(error_of(OP_SQUARE_ROOT, -1), ERR_DOMAIN);
  show_complex();
  EXPECT_EQ(result_of(OP_SQUARE_ROOT, {-1, 0}), (TValue{0, 1}));
  expect_value(result_of(OP_SQUARE_ROOT, {3, 4}), {2, 1});
}

TEST_F(scalar_operations, square_root_of_a_complex_number_is_complex_wherever_real_numbers_are_shown) {
  expect_value(result_of(OP_SQUARE_ROOT, {3, 4}), {2, 1});
}

TEST_F(scalar_operations, cube_roots_of_real_numbers_are_real_under_complex_display_too) {
  EXPECT_EQ(real_result_of(OP_CUBE_ROOT, -8), -2);
  show_complex();
  EXPECT_EQ(real_result_of(OP_CUBE_ROOT, -8), -2);
  expect_value(result_of(OP_CUBE_ROOT, {0, 8}), {std::sqrt(3.0), 1});
}

TEST_F(scalar_operations, powers) {
  EXPECT_EQ(real_result_of(OP_POWER, 2, 10), 1024);
  EXPECT_EQ(real_result_of(OP_POWER, 0, 0), 1);
  EXPECT_EQ(real_result_of(OP_POWER, -8, 1.0 / 3.0), -2);
  EXPECT_EQ(error_of(OP_POWER, -8, 0.4), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_POWER, 0, -1), ERR_DOMAIN);
  show_complex();
  EXPECT_EQ(real_result_of(OP_POWER, 0, 0), 1);
  EXPECT_EQ(real_result_of(OP_POWER, -2, 3), -8);
  EXPECT_EQ(error_of(OP_POWER, 0, -1), ERR_DOMAIN);
  expect_value(result_of(OP_POWER, {-8, 0}, {1.0 / 3.0, 0}), {1, std::sqrt(3.0)});
  EXPECT_NE(result_of(OP_POWER, {-8, 0}, {0.4, 0}).im, 0);
  EXPECT_EQ(result_of(OP_POWER, {}, {-1, 1}), (TValue{}));
}

TEST_F(scalar_operations, roots_of_real_numbers) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_INV_POWER, 3, 8), 2);
  EXPECT_EQ(real_result_of(OP_INV_POWER, 3, -8), -2);
  EXPECT_EQ(real_result_of(OP_INV_POWER, 2, 9), 3);
  EXPECT_DOUBLE_EQ(real_result_of(OP_INV_POWER, -2, 9), 1.0 / 3.0);
  EXPECT_EQ(error_of(OP_INV_POWER, 0, 9), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_INV_POWER, 2, -9), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_INV_POWER, -2, 0), ERR_DOMAIN);
}

TEST_F(scalar_operations, a_root_whose_reciprocal_is_out_of_range_is_an_overflow) {
  EXPECT_EQ(error_of(OP_INV_POWER, 1e-310, 0.5), ERR_OVERFLOW);
  register_scalar_operations();
  EXPECT_TRUE(operations[OP_INV_POWER].real_is_composite);
}

TEST_F(scalar_operations, odd_roots_stay_real_under_complex_display) {
  show_complex();
  EXPECT_EQ(real_result_of(OP_INV_POWER, 3, -8), -2);
  EXPECT_DOUBLE_EQ(real_result_of(OP_INV_POWER, -3, -8), -0.5);
  EXPECT_EQ(real_result_of(OP_INV_POWER, 5, 0), 0);
  EXPECT_EQ(error_of(OP_INV_POWER, -3, 0), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_INV_POWER, 0, 8), ERR_DOMAIN);
  EXPECT_EQ(complex_error_of(OP_INV_POWER, {}, {0, 8}), ERR_DOMAIN);
}

TEST_F(scalar_operations, other_roots_are_complex_under_complex_display) {
  show_complex();
  expect_value(result_of(OP_INV_POWER, {2, 0}, {-9, 0}), {0, 3});
  expect_value(result_of(OP_INV_POWER, {4, 0}, {-4, 0}), {1, 1});
  expect_value(result_of(OP_INV_POWER, {3, 0}, {0, 8}), {std::sqrt(3.0), 1});
  expect_value(result_of(OP_INV_POWER, {0, 1}, {2, 0}), complex_power({2, 0}, {0, -1}));
}

TEST_F(scalar_operations, logarithms) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_LN, std::exp(2.0)), 2);
  EXPECT_EQ(real_result_of(OP_LOG, 1000), 3);
  EXPECT_DOUBLE_EQ(real_result_of(OP_LOGB, 8, 2), 3);
  for (double x : {0.0, -1.0}) {
    EXPECT_EQ(error_of(OP_LN, x), ERR_DOMAIN);
    EXPECT_EQ(error_of(OP_LOG, x), ERR_DOMAIN);
    EXPECT_EQ(error_of(OP_LOGB, 8, x), ERR_DOMAIN);
  }
}

TEST_F(scalar_operations, logarithm_to_a_base_leaves_its_argument_to_the_faults) {
  EXPECT_EQ(error_of(OP_LOGB, 0, 2), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_LOGB, -1, 2), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_LOGB, 5, 1), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_LOGB, 1, 1), ERR_DOMAIN);
}

TEST_F(scalar_operations, logarithms_of_negative_numbers_under_complex_display) {
  show_complex();
  EXPECT_EQ(result_of(OP_LN, {-1, 0}), (TValue{0, half_turn}));
  EXPECT_EQ(error_of(OP_LN, 0), ERR_DOMAIN);
  expect_value(result_of(OP_LOG, {-10, 0}), {1, half_turn / std::log(10.0)});
  EXPECT_EQ(error_of(OP_LOG, 0), ERR_DOMAIN);
  expect_value(result_of(OP_LOGB, {-8, 0}, {2, 0}), {3, half_turn / std::log(2.0)});
  EXPECT_EQ(error_of(OP_LOGB, 8, -2), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_LOGB, 8, 0), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_LOGB, 8, 1), ERR_ZERO_DIVIDE);
}

TEST_F(scalar_operations, factorials) {
  EXPECT_EQ(real_result_of(OP_FACTORIAL, 170), 7.257415615307999e+306);
  EXPECT_EQ(error_of(OP_FACTORIAL, 171), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_FACTORIAL, 2.5), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_FACTORIAL, -1), ERR_DOMAIN);
  EXPECT_EQ(complex_error_of(OP_FACTORIAL, {1, 1}), ERR_DATA_TYPE);
}

TEST_F(scalar_operations, arrangements_and_combinations) {
  EXPECT_EQ(real_result_of(OP_NPR, 5, 2), 20);
  EXPECT_EQ(real_result_of(OP_NCR, 5, 2), 10);
  EXPECT_NEAR(real_result_of(OP_NCR, 170, 85), 9.144841845131556e49, 1e36);
  for (TOp_Code op : {OP_NPR, OP_NCR}) {
    EXPECT_EQ(error_of(op, 200, 1), ERR_OVERFLOW);
    EXPECT_EQ(error_of(op, 5, 6), ERR_DOMAIN);
    EXPECT_EQ(error_of(op, 2.5, 1), ERR_DOMAIN);
    EXPECT_EQ(error_of(op, 5, 1.5), ERR_DOMAIN);
    EXPECT_EQ(complex_error_of(op, {5, 1}, {2, 0}), ERR_DATA_TYPE);
  }
  EXPECT_EQ(error_of(OP_NCR, 5, -2), ERR_DOMAIN);
  EXPECT_DOUBLE_EQ(real_result_of(OP_NPR, 5, -2), 120.0 / 5040.0);
}

TEST_F(scalar_operations, remainder_has_the_sign_of_the_dividend) {
  EXPECT_EQ(real_result_of(OP_FMOD, 7.5, 2), 1.5);
  EXPECT_EQ(real_result_of(OP_FMOD, -7.5, 2), -1.5);
  EXPECT_EQ(real_result_of(OP_FMOD, 7.5, -2), 1.5);
  EXPECT_EQ(error_of(OP_FMOD, 1, 0), ERR_DOMAIN);
  EXPECT_EQ(complex_error_of(OP_FMOD, {1, 1}, {2, 0}), ERR_DATA_TYPE);
}

TEST_F(scalar_operations, sign) {
  EXPECT_EQ(real_result_of(OP_SIGN, -0.1), -1);
  EXPECT_EQ(real_result_of(OP_SIGN, 0), 0);
  EXPECT_EQ(real_result_of(OP_SIGN, 0.1), 1);
  EXPECT_EQ(complex_error_of(OP_SIGN, {1, 1}), ERR_DATA_TYPE);
}

TEST_F(scalar_operations, integer_and_fractional_parts) {
  EXPECT_EQ(real_result_of(OP_INT_PART, 2.99999999999), 3);
  EXPECT_EQ(result_of(OP_INT_PART, {2.5, -2.5}), (TValue{2, -2}));
  EXPECT_NEAR(real_result_of(OP_FRAC_PART, 2.99999999999), 1.4e-10, 1e-12);
  EXPECT_EQ(result_of(OP_FRAC_PART, {2.5, -2.25}), (TValue{0.5, -0.25}));
  EXPECT_EQ(error_of(OP_INT_PART, 1.7976931348623157e308), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_FRAC_PART, 1.7976931348623157e308), ERR_OVERFLOW);
}

TEST_F(scalar_operations, floor_and_ceiling) {
  EXPECT_EQ(real_result_of(OP_FLOOR, -2.5), -3);
  EXPECT_EQ(real_result_of(OP_CEIL, -2.5), -2);
  EXPECT_EQ(real_result_of(OP_FLOOR, 2.99999999999), 2);
  EXPECT_EQ(result_of(OP_FLOOR, {2.5, -2.5}), (TValue{2, -3}));
  EXPECT_EQ(result_of(OP_CEIL, {2.5, -2.5}), (TValue{3, -2}));
}

TEST_F(scalar_operations, rounding_to_digits) {
  EXPECT_EQ(real_result_of(OP_ROUND, 2.5, 0), 3);
  EXPECT_EQ(real_result_of(OP_ROUND, -2.5, 0), -3);
  EXPECT_EQ(result_of(OP_ROUND, {1.256, -1.254}, {2, 0}), (TValue{126 * 0.01, -125 * 0.01}));
  EXPECT_EQ(error_of(OP_ROUND, 1.5, 11), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ROUND, 1.5, -1), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ROUND, 1.5, 0.5), ERR_DOMAIN);
  EXPECT_EQ(complex_error_of(OP_ROUND, {1.5, 1}, {11, 0}), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ROUND, 1e300, 10), ERR_OVERFLOW);
}

TEST_F(scalar_operations, rounding_multiplies_by_the_stored_inverse_of_each_power) {
  constexpr double powers[] = {1, 10, 100, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
  constexpr double inverses[] = {1, 0.1, 0.01, 1e-3, 1e-4, 1e-5, 1e-6, 1e-7, 1e-8, 1e-9, 1e-10};
  for (int n = 0; n <= 10; ++n) {
    EXPECT_EQ(real_result_of(OP_ROUND, half_turn, n), nearest_integer(powers[n] * half_turn) * inverses[n])
        << n;
    EXPECT_EQ(real_result_of(OP_ROUND, 3 * inverses[n], n), 3 * inverses[n]) << n;
  }
}

TEST_F(scalar_operations, truncation_to_digits) {
  EXPECT_EQ(real_result_of(OP_TRUNC, 2.567, 2), 2.56);
  EXPECT_EQ(real_result_of(OP_TRUNC, -2.567, 1), -2.5);
  EXPECT_EQ(real_result_of(OP_TRUNC, 1234, -2), 1200);
  EXPECT_EQ(result_of(OP_TRUNC, {2.567, -2.567}, {1, 0}), (TValue{2.5, -2.5}));
  EXPECT_EQ(real_result_of(OP_TRUNC, 1e-90, 100), 1e-90);
  EXPECT_EQ(error_of(OP_TRUNC, 1.5, 101), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_TRUNC, 1.5, -101), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_TRUNC, 1e300, 100), ERR_OVERFLOW);
}

TEST_F(scalar_operations, magnitudes) {
  EXPECT_EQ(real_result_of(OP_ABS, -3), 3);
  EXPECT_EQ(result_of(OP_ABS, {3, -4}), (TValue{5, 0}));
}

TEST_F(scalar_operations, the_smaller_and_the_larger) {
  EXPECT_EQ(real_result_of(OP_MIN, -5, 3), -5);
  EXPECT_EQ(real_result_of(OP_MIN, 3, -5), -5);
  EXPECT_EQ(real_result_of(OP_MAX, -5, 3), 3);
  EXPECT_EQ(real_result_of(OP_MAX, 3, -5), 3);
  EXPECT_EQ(result_of(OP_MIN, {-5, 0}, {0, 3}), (TValue{0, 3}));
  EXPECT_EQ(result_of(OP_MIN, {0, 3}, {-5, 0}), (TValue{0, 3}));
  EXPECT_EQ(result_of(OP_MAX, {-5, 0}, {0, 3}), (TValue{-5, 0}));
  EXPECT_EQ(result_of(OP_MAX, {0, 3}, {-5, 0}), (TValue{-5, 0}));
}

TEST_F(scalar_operations, of_two_numbers_of_one_modulus_the_second_is_taken) {
  EXPECT_EQ(result_of(OP_MIN, {3, 0}, {0, 3}), (TValue{0, 3}));
  EXPECT_EQ(result_of(OP_MAX, {3, 0}, {0, 3}), (TValue{0, 3}));
  EXPECT_EQ(result_of(OP_MIN, {0, 3}, {3, 0}), (TValue{3, 0}));
  EXPECT_EQ(result_of(OP_MAX, {0, 3}, {3, 0}), (TValue{3, 0}));
}

TEST_F(scalar_operations, common_divisors_and_multiples) {
  EXPECT_EQ(real_result_of(OP_GCD, 12, 18), 6);
  EXPECT_EQ(real_result_of(OP_GCD, 0, 5), 5);
  EXPECT_EQ(real_result_of(OP_GCD, 5, 0), 5);
  EXPECT_EQ(error_of(OP_GCD, 2.5, 5), ERR_DOMAIN);
  EXPECT_EQ(real_result_of(OP_LCM, 4, 6), 12);
  EXPECT_EQ(real_result_of(OP_LCM, 0, 6), 0);
  EXPECT_EQ(error_of(OP_LCM, 0, 0), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_LCM, -4, 6), ERR_DOMAIN);
  EXPECT_EQ(real_result_of(OP_LCM, 1e9, 999999999), 1e9 * 999999999);
}

TEST_F(scalar_operations, mantissa_and_exponent) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_MANT, -312.4), 3.124);
  EXPECT_EQ(real_result_of(OP_XPON, -312.4), 2);
  EXPECT_EQ(real_result_of(OP_MANT, -5), 5);
  EXPECT_EQ(real_result_of(OP_MANT, 0), 0);
  EXPECT_EQ(real_result_of(OP_XPON, 0), 0);
  EXPECT_EQ(result_of(OP_XPON, {0.02, 300}), (TValue{-2, 2}));
  expect_value(result_of(OP_MANT, {0.02, -300}), {2, 3});
}

TEST_F(scalar_operations, circular_functions_in_each_unit) {
  constexpr double thirty[] = {half_turn / 6, 30, 100.0 / 3.0};
  constexpr double half[] = {half_turn, 180, 200};
  for (int mode : {RADIANS, DEGREES, GRADS}) {
    settings.angleMode = mode;
    EXPECT_NEAR(real_result_of(OP_SIN, thirty[mode]), 0.5, 1e-15);
    EXPECT_NEAR(real_result_of(OP_COS, thirty[mode]), std::sqrt(0.75), 1e-15);
    EXPECT_NEAR(real_result_of(OP_TAN, thirty[mode]), std::sqrt(1.0 / 3.0), 1e-15);
    EXPECT_EQ(real_result_of(OP_SIN, half[mode]), 0);
    EXPECT_EQ(real_result_of(OP_COS, half[mode] / 2), 0);
    EXPECT_EQ(real_result_of(OP_TAN, half[mode]), 0);
    EXPECT_EQ(error_of(OP_TAN, half[mode] / 2), ERR_DOMAIN);
  }
}

TEST_F(scalar_operations, circular_functions_of_complex_numbers_convert_both_parts) {
  for (int mode : {RADIANS, DEGREES, GRADS}) {
    settings.angleMode = mode;
    const TValue z{0.7, -0.4};
    const TValue in_unit{radians_to_mode(z.re), radians_to_mode(z.im)};
    expect_value(result_of(OP_SIN, in_unit),
                 {std::sin(0.7) * std::cosh(0.4), -std::cos(0.7) * std::sinh(0.4)});
    expect_value(result_of(OP_COS, in_unit),
                 {std::cos(0.7) * std::cosh(0.4), std::sin(0.7) * std::sinh(0.4)});
    expect_value(result_of(OP_TAN, in_unit), complex_tan(z));
  }
}

TEST_F(scalar_operations, circular_functions_are_real_on_real_numbers_under_complex_display) {
  show_complex();
  settings.angleMode = DEGREES;
  EXPECT_EQ(real_result_of(OP_COS, 90), 0);
  EXPECT_EQ(error_of(OP_TAN, 90), ERR_DOMAIN);
}

TEST_F(scalar_operations, inverse_circular_functions_in_each_unit) {
  constexpr double thirty[] = {half_turn / 6, 30, 100.0 / 3.0};
  for (int mode : {RADIANS, DEGREES, GRADS}) {
    settings.angleMode = mode;
    EXPECT_DOUBLE_EQ(real_result_of(OP_ASIN, 0.5), thirty[mode]);
    EXPECT_DOUBLE_EQ(real_result_of(OP_ACOS, 0.5), 2 * thirty[mode]);
    EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN, std::sqrt(1.0 / 3.0)), thirty[mode]);
    EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN2, 1, -std::sqrt(3.0)), 5 * thirty[mode]);
    const double unit = radians_to_mode(1);
    const TValue arc = complex_asin({2, 1});
    expect_value(result_of(OP_ASIN, {2, 1}), {arc.re * unit, arc.im * unit});
    const TValue cosine_arc = complex_acos({2, 1});
    expect_value(result_of(OP_ACOS, {2, 1}), {cosine_arc.re * unit, cosine_arc.im * unit});
    const TValue tangent_arc = complex_atan({2, 1});
    expect_value(result_of(OP_ATAN, {2, 1}), {tangent_arc.re * unit, tangent_arc.im * unit});
  }
}

TEST_F(scalar_operations, arcsine_and_arccosine_beyond_one_are_a_domain_error) {
  for (TOp_Code op : {OP_ASIN, OP_ACOS}) {
    EXPECT_EQ(error_of(op, 1.1), ERR_DOMAIN);
    EXPECT_EQ(error_of(op, -1.1), ERR_DOMAIN);
  }
}

TEST_F(scalar_operations, arcsine_and_arccosine_beyond_one_are_complex_under_complex_display) {
  show_complex();
  expect_value(result_of(OP_ASIN, {2, 0}), {quarter_turn, -std::acosh(2.0)});
  expect_value(result_of(OP_ACOS, {2, 0}), {0, std::acosh(2.0)});
  expect_value(result_of(OP_ASIN, {0.5, 0}), {half_turn / 6, 0});
}

TEST_F(scalar_operations, arctangent_of_two_in_each_quadrant) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN2, 1, 1), half_turn / 4);
  EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN2, 1, -1), half_turn * 0.75);
  EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN2, -1, -1), -half_turn * 0.75);
  EXPECT_DOUBLE_EQ(real_result_of(OP_ATAN2, -1, 1), -half_turn / 4);
  EXPECT_EQ(real_result_of(OP_ATAN2, 0, -1), half_turn);
  EXPECT_EQ(real_result_of(OP_ATAN2, -0.0, -1), half_turn);
  EXPECT_EQ(real_result_of(OP_ATAN2, 1, 0), quarter_turn);
}

TEST_F(scalar_operations, arctangent_of_zero_and_zero_is_zero) {
  EXPECT_EQ(real_result_of(OP_ATAN2, 0, 0), 0);
  EXPECT_EQ(real_result_of(OP_ATAN2, 0, -0.0), 0);
}

TEST_F(scalar_operations, hyperbolic_functions_whatever_the_angle_mode) {
  settings.angleMode = DEGREES;
  EXPECT_DOUBLE_EQ(real_result_of(OP_SINH, 1), std::sinh(1.0));
  EXPECT_DOUBLE_EQ(real_result_of(OP_COSH, 1), std::cosh(1.0));
  EXPECT_DOUBLE_EQ(real_result_of(OP_TANH, 1), std::tanh(1.0));
  expect_value(result_of(OP_SINH, {1, 2}), complex_sinh({1, 2}));
  expect_value(result_of(OP_COSH, {1, 2}), complex_cosh({1, 2}));
  expect_value(result_of(OP_TANH, {1, 2}), complex_tanh({1, 2}));
}

TEST_F(scalar_operations, inverse_hyperbolic_functions) {
  EXPECT_DOUBLE_EQ(real_result_of(OP_ASINH, 2), std::asinh(2.0));
  EXPECT_DOUBLE_EQ(real_result_of(OP_ACOSH, 2), std::acosh(2.0));
  EXPECT_DOUBLE_EQ(real_result_of(OP_ATANH, 0.5), std::atanh(0.5));
  expect_value(result_of(OP_ASINH, {1, 2}), complex_asinh({1, 2}));
  expect_value(result_of(OP_ACOSH, {1, 2}), complex_acosh({1, 2}));
  expect_value(result_of(OP_ATANH, {1, 2}), complex_atanh({1, 2}));
}

TEST_F(scalar_operations, inverse_hyperbolic_functions_leave_bad_input_to_the_faults) {
  EXPECT_EQ(error_of(OP_ACOSH, 0.5), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ACOSH, -2), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ATANH, 1), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_ATANH, -1), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_ATANH, 2), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_ASINH, 1e200), ERR_OVERFLOW);
  EXPECT_EQ(error_of(OP_ASINH, -1e10), ERR_ZERO_DIVIDE);
}

TEST_F(scalar_operations, inverse_hyperbolic_functions_are_complex_under_complex_display) {
  show_complex();
  expect_value(result_of(OP_ATANH, {2, 0}), {0.5 * std::log(3.0), quarter_turn});
  expect_value(result_of(OP_ACOSH, {-2, 0}), {std::acosh(2.0), half_turn});
  EXPECT_EQ(error_of(OP_ATANH, 1), ERR_ZERO_DIVIDE);
}

TEST_F(scalar_operations, parts_of_numbers) {
  EXPECT_EQ(result_of(OP_CONJ, {1, 2}), (TValue{1, -2}));
  EXPECT_EQ(result_of(OP_REAL, {1, 2}), (TValue{1, 0}));
  EXPECT_EQ(result_of(OP_IMAG, {1, 2}), (TValue{2, 0}));
  EXPECT_EQ(real_result_of(OP_CONJ, 3), 3);
  EXPECT_EQ(real_result_of(OP_REAL, 3), 3);
  EXPECT_EQ(real_result_of(OP_IMAG, 3), 0);
}

TEST_F(scalar_operations, angles_of_numbers_in_each_unit) {
  for (int mode : {RADIANS, DEGREES, GRADS}) {
    settings.angleMode = mode;
    EXPECT_DOUBLE_EQ(real_result_of(OP_ANGLE, -3), radians_to_mode(half_turn));
    EXPECT_EQ(real_result_of(OP_ANGLE, 3), 0);
    EXPECT_DOUBLE_EQ(result_of(OP_ANGLE, {0, 2}).re, radians_to_mode(quarter_turn));
    EXPECT_DOUBLE_EQ(result_of(OP_ANGLE, {0, -2}).re, radians_to_mode(-quarter_turn));
    EXPECT_DOUBLE_EQ(result_of(OP_ANGLE, {1, 1}).re, radians_to_mode(half_turn / 4));
    EXPECT_DOUBLE_EQ(result_of(OP_ANGLE, {-1, 1}).re, radians_to_mode(half_turn * 0.75));
    EXPECT_DOUBLE_EQ(result_of(OP_ANGLE, {-1, -1}).re, radians_to_mode(-half_turn * 0.75));
    EXPECT_EQ(error_of(OP_ANGLE, 0), ERR_DOMAIN);
  }
}

TEST_F(scalar_operations, an_angle_whose_quotient_is_out_of_range_is_an_overflow) {
  EXPECT_EQ(complex_error_of(OP_ANGLE, {1e-200, 1e200}), ERR_OVERFLOW);
}

TEST_F(scalar_operations, numbers_of_modulus_and_angle) {
  expect_value(result_of(OP_Z_DEG, {2, 0}, {60, 0}), {1, std::sqrt(3.0)});
  expect_value(result_of(OP_Z_RAD, {2, 0}, {quarter_turn, 0}), {0, 2});
  settings.angleMode = GRADS;
  expect_value(result_of(OP_Z_PHASE, {2, 0}, {100, 0}), {0, 2});
  settings.angleMode = DEGREES;
  expect_value(result_of(OP_Z_PHASE, {2, 0}, {90, 0}), {0, 2});
  expect_value(result_of(OP_Z_RAD, {2, 0}, {quarter_turn, 0}), {0, 2});
  for (TOp_Code op : {OP_Z_DEG, OP_Z_RAD, OP_Z_PHASE}) EXPECT_EQ(error_of(op, -1, 1), ERR_DOMAIN);
}

TEST_F(scalar_operations, degrees_and_radians_whatever_the_angle_mode) {
  for (int mode : {RADIANS, DEGREES, GRADS}) {
    settings.angleMode = mode;
    EXPECT_EQ(real_result_of(OP_DEG_TO_RAD, 100), 100 * 0.017453292519943295);
    EXPECT_EQ(real_result_of(OP_RAD_TO_DEG, 2), 2 * 57.29577951308232);
    EXPECT_EQ(result_of(OP_DEG_TO_RAD, {100, -10}),
              (TValue{100 * 0.017453292519943295, -10 * 0.017453292519943295}));
    EXPECT_EQ(result_of(OP_RAD_TO_DEG, {2, -1}), (TValue{2 * 57.29577951308232, -57.29577951308232}));
  }
}

TEST_F(scalar_operations, angle_suffixes_convert_to_the_angle_mode) {
  struct TRow {
    TOp_Code op;
    double factors[3];
  };
  const TRow rows[] = {{OP_ANGLE_DEG, {0.017453292519943295, 1, 1.1111111111111112}},
                       {OP_ANGLE_RAD, {1, 57.29577951308232, 63.66197723675814}},
                       {OP_ANGLE_GRAD, {0.015707963267948967, 0.9, 1}}};
  for (const TRow& row : rows)
    for (int mode : {RADIANS, DEGREES, GRADS}) {
      settings.angleMode = mode;
      EXPECT_EQ(real_result_of(row.op, 50), 50 * row.factors[mode]) << row.op << ' ' << mode;
      EXPECT_EQ(result_of(row.op, {50, -7}), (TValue{50 * row.factors[mode], -7 * row.factors[mode]}));
    }
}

TEST_F(scalar_operations, comparisons_of_real_numbers) {
  struct TRow {
    TOp_Code op;
    double of_less, of_equal, of_greater;
  };
  const TRow rows[] = {{OP_EQUAL, 0, 1, 0},         {OP_NOT_EQUAL, 1, 0, 1}, {OP_GREATER, 0, 0, 1},
                       {OP_GREATER_EQUAL, 0, 1, 1}, {OP_LESS, 1, 0, 0},      {OP_LESS_EQUAL, 1, 1, 0}};
  for (const TRow& row : rows) {
    EXPECT_EQ(real_result_of(row.op, -5, 3), row.of_less) << row.op;
    EXPECT_EQ(real_result_of(row.op, 3, 3), row.of_equal) << row.op;
    EXPECT_EQ(real_result_of(row.op, 3, -5), row.of_greater) << row.op;
  }
}

TEST_F(scalar_operations, equality_of_complex_numbers_looks_at_both_parts) {
  EXPECT_EQ(result_of(OP_EQUAL, {1, 2}, {1, 2}), (TValue{1, 0}));
  EXPECT_EQ(result_of(OP_EQUAL, {1, 2}, {1, -2}), (TValue{0, 0}));
  EXPECT_EQ(result_of(OP_EQUAL, {1, 2}, {1, 0}), (TValue{0, 0}));
  EXPECT_EQ(result_of(OP_NOT_EQUAL, {1, 2}, {1, 2}), (TValue{0, 0}));
  EXPECT_EQ(result_of(OP_NOT_EQUAL, {3, 2}, {1, 2}), (TValue{1, 0}));
}

TEST_F(scalar_operations, order_of_complex_numbers_is_that_of_their_moduli) {
  EXPECT_EQ(result_of(OP_GREATER, {-5, 0}, {0, 3}).re, 1);
  EXPECT_EQ(result_of(OP_GREATER_EQUAL, {0, 3}, {-3, 0}).re, 1);
  EXPECT_EQ(result_of(OP_LESS, {0, 3}, {-5, 0}).re, 1);
  EXPECT_EQ(result_of(OP_LESS, {0, 3}, {-3, 0}).re, 0);
  EXPECT_EQ(result_of(OP_LESS_EQUAL, {0, 3}, {-3, 0}).re, 1);
}

TEST_F(scalar_operations, logic_of_real_numbers) {
  struct TRow {
    TOp_Code op;
    double results[4];  // of 0 and 0, 0 and true, true and 0, true and true
  };
  const TRow rows[] = {
      {OP_LOGIC_AND, {0, 0, 0, 1}}, {OP_LOGIC_OR, {0, 1, 1, 1}}, {OP_LOGIC_XOR, {0, 1, 1, 0}}};
  for (const TRow& row : rows) {
    EXPECT_EQ(real_result_of(row.op, 0, 0), row.results[0]) << row.op;
    EXPECT_EQ(real_result_of(row.op, 0, -0.5), row.results[1]) << row.op;
    EXPECT_EQ(real_result_of(row.op, 7, 0), row.results[2]) << row.op;
    EXPECT_EQ(real_result_of(row.op, 7, -0.5), row.results[3]) << row.op;
  }
  EXPECT_EQ(real_result_of(OP_LOGIC_NOT, 0), 1);
  EXPECT_EQ(real_result_of(OP_LOGIC_NOT, -0.5), 0);
}

TEST_F(scalar_operations, a_complex_number_is_true_by_either_part) {
  EXPECT_EQ(result_of(OP_LOGIC_AND, {0, 1}, {1, 0}).re, 1);
  EXPECT_EQ(result_of(OP_LOGIC_AND, {0, 1}, {0, 0}).re, 0);
  EXPECT_EQ(result_of(OP_LOGIC_OR, {0, 1}, {0, 0}).re, 1);
  EXPECT_EQ(result_of(OP_LOGIC_XOR, {0, 1}, {1, 0}).re, 0);
  EXPECT_EQ(result_of(OP_LOGIC_NOT, {0, 1}), (TValue{0, 0}));
}

TEST_F(scalar_operations, error_takes_only_one) {
  last_integral_error = 2.5e-12;
  EXPECT_EQ(real_result_of(OP_ERROR, 1), 2.5e-12);
  for (double n : {0.0, 2.0, 4.0, 1.5}) EXPECT_EQ(error_of(OP_ERROR, n), ERR_DOMAIN) << n;
  last_integral_error = 0.0;
}

TEST_F(scalar_operations, no_row_is_left_empty) {
  register_scalar_operations();
  const auto filled = [](int op) { return operations[op].scalar != nullptr; };
  const auto expect_filled = [&filled](int first, int last) {
    for (int op = first; op <= last; ++op) EXPECT_TRUE(filled(op)) << op;
  };
  expect_filled(OP_INV_LN, OP_CUBE_ROOT);
  expect_filled(OP_FACTORIAL, OP_PERCENT);
  expect_filled(OP_BASE_NOT, OP_BASE_MOD);
  expect_filled(OP_PLUS, OP_LOGIC_OR);
  expect_filled(OP_LOGIC_NOT, OP_NCR);
  expect_filled(OP_MIN, OP_RAND_SEED);
  expect_filled(OP_ROUND, OP_GCD);
  expect_filled(OP_ERROR, OP_ERROR);
  expect_filled(OP_MANT, OP_RAD_TO_DEG);
  expect_filled(OP_CONJ, OP_Z_PHASE);
  expect_filled(OP_SIGN, OP_LOG);
}

}  // namespace
}  // namespace zephyl
