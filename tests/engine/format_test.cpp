#include "engine/format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "support/exact_decimal.h"

namespace zephyl {
namespace {

std::string real(double value, int format = FORMAT_FLOAT, int digits = 4, bool small = false) {
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, format, digits, small);
  return text;
}

std::string integer(double value, int base, bool small = false) {
  char text[RESULT_TEXT_SIZE];
  format_integer(text, value, base, small);
  return text;
}

std::string result(double re, double im = 0.0, bool small = false, bool force = false) {
  return format_result(re, im, small, force);
}

std::string value(double re, double im, bool plain = false, bool small = false) {
  return format_value(re, im, FORMAT_FLOAT, 10, U_DEC, small, plain);
}

std::string plain(const std::string& text, int size = 400) {
  char out[400];
  plain_text(text.c_str(), out, size);
  return out;
}

// Float, Fixed, Scientific and Engineering step by step, over exact expansions.

std::string stripped(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

int digit_count(const std::string& text) {
  int count = 0;
  for (const char c : text) count += c >= '0' && c <= '9';
  return count;
}

std::string float_with_exponent(double x) {
  int exponent;
  const std::string mantissa = stripped(TExactDecimal(x).mantissa(10, exponent));
  return mantissa + "e" + std::to_string(exponent);
}

std::string float_by_trying_decimals(double x) {
  const double a = std::fabs(x);
  if (a != 0.0 && (a < 0.001 || a >= 1e20)) return float_with_exponent(x);
  const TExactDecimal exact(x);
  for (int decimals = 10; decimals >= 0; --decimals) {
    const std::string text = stripped(exact.fixed(decimals));
    if (digit_count(text) >= 12) continue;
    return std::stod(text) == 0.0 && x != 0.0 ? float_with_exponent(x) : text;
  }
  return float_with_exponent(x);
}

std::string scientific_by_steps(double x, int digits) {
  int exponent;
  const std::string mantissa = TExactDecimal(x).mantissa(digits, exponent);
  return mantissa + "e" + std::to_string(exponent);
}

std::string fixed_by_steps(double x, int digits) {
  double limit = 1e12;
  for (int i = 0; i < digits + 1; ++i) limit *= 0.1;
  return std::fabs(x) <= limit ? TExactDecimal(x).fixed(digits) : scientific_by_steps(x, digits);
}

std::string engineering_by_steps(double x, int digits) {
  int e;
  std::string text = TExactDecimal(x).mantissa(std::max(digits, 2), e);
  const int s = e >= 0 ? e % 3 : (3 - (-e % 3)) % 3;
  text.erase(text.find('.'), 1);
  const auto front = static_cast<std::size_t>(s + 1 + (x < 0.0 ? 1 : 0));
  if (front < text.size()) text.insert(front, ".");
  return text + "e" + std::to_string(e - s);
}

// Numbers as they occur: of all magnitudes, short decimals, integers, and neighbours of powers of ten.
double some_number(std::mt19937_64& random) {
  const double sign = random() % 2 ? 1.0 : -1.0;
  std::uniform_real_distribution<double> exponents(-8.0, 23.0);
  switch (random() % 4) {
    case 0:
      return sign * std::pow(10.0, exponents(random));
    case 1:
      return sign * static_cast<double>(random() % 100000) /
             std::pow(10.0, static_cast<double>(random() % 12));
    case 2:
      return sign * std::floor(std::pow(10.0, std::fabs(exponents(random))));
    default: {
      const double power = std::pow(10.0, std::floor(exponents(random)));
      return sign * power * (1.0 + (static_cast<double>(random() % 2000) - 1000.0) * 1e-14);
    }
  }
}

TEST(format, float_gives_what_trying_decimals_from_ten_down_gives) {
  std::mt19937_64 random(5);
  for (int i = 0; i < 100000; ++i) {
    const double x = some_number(random);
    ASSERT_EQ(real(x), float_by_trying_decimals(x)) << i;
  }
}

TEST(format, the_other_formats_are_exact_at_each_number_of_digits) {
  std::mt19937_64 random(6);
  for (int i = 0; i < 30000; ++i) {
    const double x = some_number(random);
    const int digits = static_cast<int>(random() % 11);
    ASSERT_EQ(real(x, FORMAT_FIXED, digits), fixed_by_steps(x, digits));
    ASSERT_EQ(real(x, FORMAT_SCIENTIFIC, digits), scientific_by_steps(x, digits));
    ASSERT_EQ(real(x, FORMAT_ENGINEERING, digits), engineering_by_steps(x, digits));
  }
}

TEST(format, float_shows_at_most_eleven_digits) {
  EXPECT_EQ(real(1.0 / 3), "0.3333333333");
  EXPECT_EQ(real(100.0 / 3), "33.333333333");
  EXPECT_EQ(real(1e10 / 3), "3333333333.3");
  EXPECT_EQ(real(99999999999.0), "99999999999");
  EXPECT_EQ(real(-99999999999.0), "-99999999999");
}

TEST(format, float_takes_the_exponent_form_for_twelve_digits_in_front_of_the_point) {
  EXPECT_EQ(real(1e11), "1e11");
  EXPECT_EQ(real(-123456789012.0), "-1.2345678901e11");
  EXPECT_EQ(real(99999999999.7), "1e11");
  EXPECT_EQ(real(1e20), "1e20");
  EXPECT_EQ(real(1.5e20), "1.5e20");
  EXPECT_EQ(real(9.9e307), "9.9e307");
}

TEST(format, float_takes_the_exponent_form_below_a_thousandth) {
  EXPECT_EQ(real(0.001), "0.001");
  EXPECT_EQ(real(0.0001), "1e-4");
  EXPECT_EQ(real(std::nextafter(0.001, 0.0)), "1e-3");
  EXPECT_EQ(real(-1.25e-7), "-1.25e-7");
}

TEST(format, zero_has_no_sign_in_any_format) {
  EXPECT_EQ(real(-0.0), "0");
  EXPECT_EQ(real(-0.0, FORMAT_FIXED, 2), "0.00");
  EXPECT_EQ(real(-0.0, FORMAT_SCIENTIFIC, 2), "0.00e0");
  EXPECT_EQ(real(-0.0, FORMAT_ENGINEERING, 2), "0.00e0");
}

TEST(format, fixed_changes_to_the_exponent_form_above_its_limit) {
  EXPECT_EQ(real(1e9, FORMAT_FIXED, 2), "1000000000.00");
  EXPECT_EQ(real(1e10, FORMAT_FIXED, 2), "1.00e10");
  EXPECT_EQ(real(1e11, FORMAT_FIXED, 0), "100000000000");
  EXPECT_EQ(real(1.1e11, FORMAT_FIXED, 0), "1e11");
  EXPECT_EQ(real(0.5, FORMAT_FIXED, 10), "0.5000000000");
  EXPECT_EQ(real(11.0, FORMAT_FIXED, 10), "1.1000000000e1");
}

TEST(format, fixed_rounds_halves_away_from_zero) {
  EXPECT_EQ(real(2.5, FORMAT_FIXED, 0), "3");
  EXPECT_EQ(real(-2.5, FORMAT_FIXED, 0), "-3");
  EXPECT_EQ(real(0.125, FORMAT_FIXED, 2), "0.13");
}

TEST(format, scientific_keeps_its_zeros) {
  EXPECT_EQ(real(1.0, FORMAT_SCIENTIFIC, 3), "1.000e0");
  EXPECT_EQ(real(12345.0, FORMAT_SCIENTIFIC, 2), "1.23e4");
  EXPECT_EQ(real(0.00012, FORMAT_SCIENTIFIC, 0), "1e-4");
}

TEST(format, engineering_moves_the_point_to_an_exponent_that_three_divides) {
  EXPECT_EQ(real(12345.0, FORMAT_ENGINEERING, 3), "12.35e3");
  EXPECT_EQ(real(123456.0, FORMAT_ENGINEERING, 3), "123.5e3");
  EXPECT_EQ(real(1234567.0, FORMAT_ENGINEERING, 3), "1.235e6");
  EXPECT_EQ(real(-0.05, FORMAT_ENGINEERING, 4), "-50.000e-3");
  EXPECT_EQ(real(0.5, FORMAT_ENGINEERING, 4), "500.00e-3");
  EXPECT_EQ(real(0.005, FORMAT_ENGINEERING, 4), "5.0000e-3");
}

TEST(format, engineering_has_at_least_three_digits) {
  EXPECT_EQ(real(5.0, FORMAT_ENGINEERING, 0), "5.00e0");
  EXPECT_EQ(real(512.0, FORMAT_ENGINEERING, 1), "512e0");
  EXPECT_EQ(real(-512.0, FORMAT_ENGINEERING, 1), "-512e0");
}

TEST(format, an_unknown_format_is_a_question_mark) { EXPECT_EQ(real(1.5, 4), "?"); }

TEST(format, small_text_has_the_exponent_glyph) {
  EXPECT_EQ(real(0.0001, FORMAT_FLOAT, 4, true), "1\x1b-4");
  EXPECT_EQ(real(1.0, FORMAT_SCIENTIFIC, 1, true),
            "1.0\x1b"
            "0");
}

TEST(format, the_decimal_mark_may_be_a_comma) {
  settings.decimalMark = 1;
  EXPECT_EQ(real(1.5), "1,5");
  EXPECT_EQ(real(1.5e30), "1,5e30");
  EXPECT_EQ(real(3.0), "3");
}

TEST(format, a_number_that_is_none_does_not_print_as_one) {
  EXPECT_EQ(real(std::numeric_limits<double>::infinity()), "Overflow");
  EXPECT_EQ(real(std::numeric_limits<double>::quiet_NaN()), "?");
}

TEST(format, binary_shows_all_digits_in_groups_of_four) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(-1, U_BIN), "1111 1111b");
  EXPECT_EQ(integer(5, U_BIN), "0000 0101b");
  settings.baseBits = BITS_16;
  EXPECT_EQ(integer(5, U_BIN), "0000 0000 0000 0101b");
  settings.baseBits = BITS_32;
  EXPECT_EQ(integer(1, U_BIN), "0000 0000 0000 0000 0000 0000 0000 0001b");
}

TEST(format, small_binary_is_narrow_where_it_is_long) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(5, U_BIN, true), "0000 0101b");
  settings.baseBits = BITS_16;
  EXPECT_EQ(integer(5, U_BIN, true),
            "0000\x1d"
            "0000\x1d"
            "0000\x1d"
            "0101b");
  settings.baseBits = BITS_32;
  EXPECT_EQ(integer(1, U_BIN, true).substr(30),
            "\x1e\x1e\x1e\x1e\x1d"
            "\x1e\x1e\x1e\x1f\x1d"
            "b");
  EXPECT_EQ(plain(integer(1, U_BIN, true)), "0000 0000 0000 0000 0000 0000 0000 0001b");
}

TEST(format, octal_is_masked_to_the_width) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(-1, U_OCT), "377o");
  EXPECT_EQ(integer(8, U_OCT), "010o");
  settings.baseBits = BITS_16;
  EXPECT_EQ(integer(-1, U_OCT), "177 777o");
  settings.baseBits = BITS_32;
  EXPECT_EQ(integer(-1, U_OCT), "37 777 777 777o");
}

TEST(format, decimal_has_its_sign) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(-5, U_DEC), "-5d");
  EXPECT_EQ(integer(127, U_DEC), "127d");
}

TEST(format, hexadecimal_has_the_digits_of_the_width) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(-1, U_HEX), "FFh");
  settings.baseBits = BITS_16;
  EXPECT_EQ(integer(0xABC, U_HEX), "0ABCh");
  settings.baseBits = BITS_32;
  EXPECT_EQ(integer(-2, U_HEX), "FFFF FFFEh");
}

TEST(format, an_integer_is_cut_to_its_width_with_sign) {
  settings.baseBits = BITS_8;
  EXPECT_EQ(integer(255, U_DEC), "-1d");
  EXPECT_EQ(integer(128.9, U_DEC), "-128d");
  settings.baseBits = BITS_16;
  EXPECT_EQ(integer(65537, U_DEC), "1d");
}

TEST(format, an_integer_is_clamped_to_32_bits) {
  settings.baseBits = BITS_32;
  EXPECT_EQ(integer(1e20, U_DEC), "2147483647d");
  EXPECT_EQ(integer(-1e20, U_DEC), "-2147483648d");
}

TEST(format, an_unknown_base_is_a_question_mark) { EXPECT_EQ(integer(5, 4), "?"); }

TEST(format, an_integer_is_empty_while_an_error_stands) {
  report_error(ERR_DOMAIN);
  EXPECT_EQ(integer(5, U_DEC), "");
}

TEST(format, base_form_needs_base_mode_and_the_wish_for_it) {
  EXPECT_STREQ(format_number(255.5, FORMAT_FLOAT, 4, U_HEX, false, true), "255.5");
  state.calcMode = BASE_MODE;
  EXPECT_STREQ(format_number(255.5, FORMAT_FLOAT, 4, U_HEX, false, true), "00FFh");
  EXPECT_STREQ(format_number(255.5, FORMAT_FLOAT, 4, U_HEX, false, false), "255.5");
}

TEST(format, an_error_takes_the_place_of_the_result) {
  report_error(ERR_ZERO_DIVIDE);
  EXPECT_EQ(result(5, 3), "Division by Zero");
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(result(5, 3), "Division by Zero");
  EXPECT_EQ(result(5, 3, false, true), "Division by Zero");
}

TEST(format, an_error_in_a_program_shows_the_text_with_the_line) {
  report_error(ERR_DOMAIN);
  errors.error_in_program = true;
  std::strcpy(state.result_text, "Domain Error (line 3)");
  EXPECT_EQ(result(5), "Domain Error (line 3)");
}

TEST(format, an_aggregate_answer_is_named) {
  answers.m_ans_valid = true;
  EXPECT_EQ(result(5, 2), "Result in Matrix Answer");
  answers = {};
  answers.l_ans_valid = true;
  EXPECT_EQ(result(5, 2), "Result in List Answer");
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(result(5, 2), "Result in List Answer");
}

TEST(format, force_gives_the_number_although_an_aggregate_answer_stands) {
  answers.l_ans_valid = true;
  EXPECT_EQ(result(5, 0, false, true), "5");
  EXPECT_EQ(result(5, 2, false, true), "5+2i");
  settings.complexFormat = ST_COMPLEX_P;
  settings.angleMode = DEGREES;
  EXPECT_EQ(result(0, 5, false, true), "5e^(90i)");
}

TEST(format, in_polar_form_a_number_has_its_angle_whatever_the_answer_is) {
  settings.complexFormat = ST_COMPLEX_P;
  for (bool* answer : {&answers.str_ans_valid, &answers.l_ans_valid, &answers.m_ans_valid}) {
    *answer = true;
    EXPECT_EQ(result(3, 4, false, true), "5e^(0.927295218i)");
    EXPECT_EQ(result(-5, 0, false, true), "5e^(3.1415926536i)");
    *answer = false;
  }
}

TEST(format, a_string_answer_is_the_string) {
  answers.str_ans_valid = true;
  std::strcpy(stores.strings[ANSWER_RECORD].text, "Hello");
  EXPECT_EQ(result(5), "Hello");
}

TEST(format, a_string_answer_shows_119_characters) {
  answers.str_ans_valid = true;
  const std::string fits(119, 'x');
  std::strcpy(stores.strings[ANSWER_RECORD].text, fits.c_str());
  EXPECT_EQ(result(5), fits);
  std::strcpy(stores.strings[ANSWER_RECORD].text, (fits + "x").c_str());
  EXPECT_EQ(result(5), std::string(116, 'x') + "...");
}

TEST(format, a_string_answer_has_no_characters_of_glyphs) {
  answers.str_ans_valid = true;
  std::strcpy(stores.strings[ANSWER_RECORD].text,
              "a\x1b"
              "b\x7f"
              "c\x01\x90 ");
  EXPECT_EQ(result(5),
            "a\xff"
            "b\xff"
            "c\xff\x90 ");
}

TEST(format, rectangular_results_leave_out_what_need_not_be_said) {
  EXPECT_EQ(result(2, 1), "2+i");
  EXPECT_EQ(result(2, -1), "2-i");
  EXPECT_EQ(result(0, -1), "-i");
  EXPECT_EQ(result(0, 1), "i");
  EXPECT_EQ(result(0, 2), "2i");
  EXPECT_EQ(result(0, -2.5), "-2.5i");
  EXPECT_EQ(result(-1.5, 2.5), "-1.5+2.5i");
  EXPECT_EQ(result(3, 0), "3");
  EXPECT_EQ(result(0, 0), "0");
}

TEST(format, complex_numbers_are_whole_under_real_display_too) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(result(2, 3), "2+3i");
  settings.complexFormat = ST_REAL;
  EXPECT_EQ(result(2, 3), "2+3i");
}

TEST(format, small_results_have_the_glyph_of_i) {
  EXPECT_EQ(result(2, 3, true), "2+3\x1a");
  settings.complexFormat = ST_COMPLEX_P;
  settings.angleMode = DEGREES;
  EXPECT_EQ(result(0, 2, true), "2\x19(90\x1a)");
}

TEST(format, polar_results_have_the_angle_in_the_angle_mode) {
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(result(0, 2), "2e^(1.5707963268i)");
  settings.angleMode = DEGREES;
  EXPECT_EQ(result(0, 2), "2e^(90i)");
  EXPECT_EQ(result(0, -2), "2e^(-90i)");
  EXPECT_EQ(result(-3, 0), "3e^(180i)");
  settings.angleMode = GRADS;
  EXPECT_EQ(result(0, 2), "2e^(100i)");
  EXPECT_EQ(result(-1, -1), "1.4142135624e^(-150i)");
}

TEST(format, a_polar_angle_of_one_is_left_out) {
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(result(std::cos(1.0) * 2, std::sin(1.0) * 2), "2e^(i)");
  EXPECT_EQ(result(std::cos(1.0) * 2, -std::sin(1.0) * 2), "2e^(-i)");
}

TEST(format, a_polar_angle_of_zero_leaves_the_modulus) {
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(result(5, 0), "5");
  EXPECT_EQ(result(0, 0), "0");
  EXPECT_FALSE(errors.error_flag);
}

TEST(format, a_polar_modulus_out_of_range_is_said_and_not_reported) {
  settings.complexFormat = ST_COMPLEX_P;
  clear_faults();
  EXPECT_EQ(result(1.5e308, 1.5e308), "Overflow");
  EXPECT_EQ(result(1e-300, 1e300), "1e300e^(1.5707963268i)");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(fault_raised());
}

TEST(format, results_in_base_mode_have_integer_parts) {
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  EXPECT_EQ(result(255, 16), "00FFh+0010hi");
}

TEST(format, values_leave_out_what_need_not_be_said) {
  EXPECT_EQ(value(2, 0), "2");
  EXPECT_EQ(value(2, 1), "2+i");
  EXPECT_EQ(value(2, -1), "2-i");
  EXPECT_EQ(value(0, 1), "i");
  EXPECT_EQ(value(0, -1), "-i");
  EXPECT_EQ(value(0, -3), "-3i");
  EXPECT_EQ(value(2, -3.5), "2-3.5i");
  EXPECT_EQ(value(2, 3, false, true), "2+3\x1a");
}

TEST(format, a_value_of_one_in_exponent_form_is_left_out_in_front_of_i) {
  EXPECT_STREQ(format_value(2, 1, FORMAT_SCIENTIFIC, 0, U_DEC, false, false), "2e0+i");
  EXPECT_STREQ(format_value(2, -1, FORMAT_SCIENTIFIC, 0, U_DEC, false, false), "2e0-i");
  EXPECT_STREQ(format_value(2, 1, FORMAT_SCIENTIFIC, 0, U_DEC, true, false),
               "2\x1b"
               "0+\x1a");
  EXPECT_STREQ(format_value(2, 1, FORMAT_SCIENTIFIC, 1, U_DEC, false, false), "2.0e0+1.0e0i");
}

TEST(format, plain_values_write_both_parts_out) {
  EXPECT_EQ(value(2, 1, true), "2+1i");
  EXPECT_EQ(value(2, -1, true), "2+-1i");
  EXPECT_EQ(value(0, 3, true), "0+3i");
  EXPECT_EQ(value(2, 0, true), "2");
}

TEST(format, polar_values_have_the_angle_with_its_sign) {
  settings.complexFormat = ST_COMPLEX_P;
  settings.angleMode = DEGREES;
  EXPECT_EQ(value(0, -2), "2^(-90i)");
  EXPECT_EQ(value(0, 2, true), "2e^(90i)");
  EXPECT_EQ(value(-2, 0), "2^(180i)");
  EXPECT_EQ(value(2, 0), "2");
  settings.angleMode = RADIANS;
  EXPECT_EQ(value(std::cos(1.0), std::sin(1.0)), "1^(1i)");
}

TEST(format, values_follow_the_settings_they_are_given) {
  EXPECT_STREQ(format_value(2, 3.14159, FORMAT_FIXED, 2, U_DEC, false, false), "2.00+3.14i");
  state.calcMode = BASE_MODE;
  EXPECT_STREQ(format_value(2, 3, FORMAT_FIXED, 2, U_HEX, false, false), "0002h+0003hi");
}

TEST(format, plain_text_spells_the_glyphs) {
  EXPECT_EQ(plain("1\x1b"
                  "11"),
            "1e11");
  EXPECT_EQ(plain("2\x19(90\x1a)"), "2e^(90i)");
  EXPECT_EQ(plain("1111\x1d\x1e\x1f\x1f\x1e"
                  "b"),
            "1111 0110b");
}

TEST(format, plain_text_is_cut_to_its_size) {
  EXPECT_EQ(plain("2\x19(90\x1a)", 3), "2e");
  EXPECT_EQ(plain("abc", 1), "");
}

}  // namespace
}  // namespace zephyl
