// Scalar operations as they are met in expressions: what is entered, what the result line shows.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/calculator.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

TEST_F(calculator, sine_of_thirty_degrees) {
  settings.angleMode = DEGREES;
  EXPECT_EQ(eval("2+sin(30)"), "2.5");
}

TEST_F(calculator, zero_to_the_power_zero_is_one) {
  EXPECT_EQ(eval("0^0"), "1");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("0^0"), "1");
}

TEST_F(calculator, zero_to_a_negative_power_is_a_domain_error) {
  EXPECT_EQ(eval("0^-1"), "Domain Error");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("0^-1"), "Domain Error");
}

TEST_F(calculator, zero_to_a_complex_power_is_zero) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("0^(-1+(i))"), "0");
}

TEST_F(calculator, real_odd_root_of_a_negative_number) { EXPECT_EQ(eval("(-8)^(1/3)"), "-2"); }

TEST_F(calculator, fractional_power_of_a_negative_number) {
  EXPECT_EQ(eval("(-8)^0.4"), "Domain Error");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_NEAR(value("(-8)^0.4"), std::pow(8.0, 0.4) * std::cos(0.4 * std::acos(-1.0)), 1e-14);
  EXPECT_NEAR(imaginary("(-8)^0.4"), std::pow(8.0, 0.4) * std::sin(0.4 * std::acos(-1.0)), 1e-14);
}

TEST_F(calculator, cube_root_of_minus_eight) {
  EXPECT_EQ(eval("cubeRt (-8)"), "-2");
  EXPECT_EQ(eval("3 Rt (-8)"), "-2");
}

TEST_F(calculator, square_root_of_minus_one_is_i_where_complex_numbers_are_shown) {
  EXPECT_EQ(eval("sqRt (-1)"), "Domain Error");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("sqRt (-1)"), "i");
}

TEST_F(calculator, degrees_snap_to_zero) {
  settings.angleMode = DEGREES;
  EXPECT_EQ(value("sin(180)"), 0.0);
  EXPECT_EQ(value("cos(90)"), 0.0);
  EXPECT_EQ(eval("tan(90)"), "Domain Error");
}

TEST_F(calculator, plots_see_raw_values) {
  settings.angleMode = DEGREES;
  state.calcMode = PLOT_MODE;
  EXPECT_NE(value("sin(180)"), 0.0);
  EXPECT_NE(value("cos(90)"), 0.0);
  EXPECT_GT(std::fabs(value("tan(90)")), 1e15);
}

TEST_F(calculator, integer_part_just_below_an_integer) {
  EXPECT_EQ(eval("iPart(2.99999999999)"), "3");
  EXPECT_NEAR(value("fPart(2.99999999999)"), 1.4e-10, 1e-11);
}

TEST_F(calculator, integer_part_of_a_large_number_is_nudged) {
  EXPECT_EQ(value("iPart(1e11)"), 100000000005.0);
}

TEST_F(calculator, an_overflow_inside_a_function_is_no_other_error) {
  for (const char* text :
       {"asin(1e200+1e200(i))", "acosh(1e200+1e200(i))", "Jn(1e9,1e-300)", "Jn(0,1e-308)", "Yn(0,1e-308)"})
    EXPECT_EQ(error_of(text), "Overflow") << text;
}

TEST_F(calculator, bessel_functions_of_huge_arguments_come_to_an_end) {
  for (const char* text : {"Jn(1,3e9)", "Jn(1,1e308)", "Yn(2,1e15)"}) EXPECT_EQ(error_of(text), "Domain Error") << text;
}

TEST_F(calculator, a_factorial_is_that_of_the_integer_that_a_number_counts_as) {
  EXPECT_EQ(eval("2.99999999985!"), "6");
}

TEST_F(calculator, factorials_up_to_170) {
  EXPECT_EQ(value("170!"), 7.257415615307999e+306);
  EXPECT_EQ(eval("171!"), "Overflow");
  EXPECT_EQ(eval("2.5!"), "Domain Error");
}

TEST_F(calculator, combinations_of_200_overflow) {
  EXPECT_EQ(eval("nCr(200,1)"), "Overflow");
  EXPECT_EQ(eval("nCr(5,2)"), "10");
  EXPECT_EQ(eval("nPr(5,2)"), "20");
}

TEST_F(calculator, rounding_halves_away_from_zero) {
  EXPECT_EQ(eval("Round(2.5,0)"), "3");
  EXPECT_EQ(eval("Round(-2.5,0)"), "-3");
  EXPECT_EQ(eval("Round(1.5,11)"), "Domain Error");
}

TEST_F(calculator, ties_of_moduli_go_to_the_second) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("Min(3,3(i))"), "3i");
  EXPECT_EQ(eval("Max(3,3(i))"), "3i");
}

TEST_F(calculator, mantissa_and_exponent) {
  EXPECT_EQ(eval("Mant(0)"), "0");
  EXPECT_EQ(eval("Xpon(0)"), "0");
  EXPECT_EQ(eval("Mant(-5)"), "5");
  EXPECT_EQ(eval("Mant(-312.4)"), "3.124");
}

TEST_F(calculator, angle_of_zero_is_a_domain_error) {
  EXPECT_EQ(eval("Angle(0)"), "Domain Error");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(imaginary("ln(-1)"), 3.141592653589793);
}

TEST_F(calculator, greatest_common_divisors) {
  EXPECT_EQ(eval("gcd(0,5)"), "5");
  EXPECT_EQ(eval("gcd(5,0)"), "5");
  EXPECT_EQ(eval("gcd(2.5,5)"), "Domain Error");
  EXPECT_EQ(eval("lcm(0,0)"), "Domain Error");
  EXPECT_EQ(eval("lcm(4,6)"), "12");
}

TEST_F(calculator, faults_of_the_hardware_have_words) {
  EXPECT_EQ(eval("0^(-1)"), "Division by Zero");
  EXPECT_EQ(eval("1/0"), "Division by Zero");
  EXPECT_EQ(eval("2+ln(-1)"), "Domain Error");
  EXPECT_EQ(eval("e^1000"), "Overflow");
  EXPECT_EQ(eval("asin(2)"), "Domain Error");
  EXPECT_EQ(eval("atanh(1)"), "Division by Zero");
}

TEST_F(calculator, faults_of_computed_operands_have_the_same_words) {
  EXPECT_EQ(eval("(2-2)^(-1)"), "Division by Zero");
  EXPECT_EQ(eval("(2-2) d% 3"), "Division by Zero");
  EXPECT_EQ(eval("(2-2) d% 0"), "Domain Error");
  EXPECT_EQ(eval("asin(1+1)"), "Domain Error");
  EXPECT_EQ(eval("(0-8)^0.4"), "Domain Error");
  EXPECT_EQ(eval("acosh(1/2)"), "Domain Error");
  EXPECT_EQ(eval("atanh(2/2)"), "Division by Zero");
  EXPECT_EQ(eval("2+e^(10^3)"), "Overflow");
}

TEST_F(calculator, a_fault_leaves_a_calculator_that_answers) {
  eval("1/0");
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(calculator, operations_without_a_complex_form_refuse_complex_numbers) {
  EXPECT_EQ(eval("(1+(i))!"), "Data Type Error");
  EXPECT_EQ(eval("(1+(i)) d% 2"), "Data Type Error");
  EXPECT_EQ(eval("Sign(1+(i))"), "Data Type Error");
}

TEST_F(calculator, functions_of_real_arguments_refuse_complex_ones) {
  EXPECT_EQ(eval("fmod((i),2)"), "Function Argument Type");
  EXPECT_EQ(eval("nCr((i),2)"), "Function Argument Type");
  EXPECT_EQ(eval("gcd((i),2)"), "Function Argument Type");
  EXPECT_EQ(eval("zDeg((i),2)"), "Function Argument Type");
}

TEST_F(calculator, functions_of_both_kinds_take_a_complex_first_argument) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("Round(1.26+2.34(i),1)"), "1.3+2.3i");
  EXPECT_EQ(eval("Trunc(1.26+2.37(i),1)"), "1.2+2.3i");
  EXPECT_EQ(eval("iPart(1.26-2.37(i))"), "1-2i");
}

TEST_F(calculator, a_plain_list_goes_through_a_scalar_function) {
  EXPECT_EQ(eval("abs({1,-2})"), "Result in List Answer");
}

TEST_F(calculator, angle_suffixes) {
  settings.angleMode = DEGREES;
  EXPECT_EQ(eval("100(g)"), "90");
  EXPECT_EQ(eval("(pi)(r)"), "180");
  settings.angleMode = GRADS;
  EXPECT_EQ(eval("90(d)"), "100");
}

TEST_F(calculator, base_integers_wrap_in_their_width) {
  state.calcMode = BASE_MODE;
  settings.baseBits = BITS_8;
  EXPECT_EQ(value("127+1"), -128.0);
  EXPECT_EQ(value("1<<7"), -128.0);
  EXPECT_EQ(value("12 and 10"), 8.0);
  EXPECT_EQ(eval("5 mod 0"), "Division by Zero");
}

TEST_F(calculator, base_operations_outside_of_base_mode) {
  EXPECT_EQ(value("12.9 xor 10"), 6.0);
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("(i) and 1"), "Domain Error");
}

TEST_F(calculator, error_of_the_last_integral_is_zero_before_any) {
  EXPECT_EQ(eval("Error(1)"), "0");
  EXPECT_EQ(eval("Error(2)"), "Domain Error");
}

}  // namespace
}  // namespace zephyl
