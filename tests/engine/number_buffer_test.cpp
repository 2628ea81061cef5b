// Reading of numbers: decimals to the last bit, integers of base-n arithmetic by radix and width.

#include "engine/number_buffer.h"

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

#include "engine/errors.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class number_buffer : public calculator {
 protected:
  // The value of a text; fails the test if it is none.
  double number(const std::string& text) {
    double value = -1.0;
    EXPECT_TRUE(take(text, value)) << text;
    return value;
  }
  // The message that a text ends in.
  std::string refusal(const std::string& text) {
    double value = -1.0;
    EXPECT_FALSE(take(text, value)) << text << " gave " << value;
    EXPECT_EQ(value, 0.0);
    return errors.error_text;
  }
  bool take(const std::string& text, double& value) {
    clear_error();
    TNumberBuffer buffer;
    for (char c : text) EXPECT_TRUE(append_to_number(buffer, c));
    const bool taken = take_number(buffer, value);
    EXPECT_FALSE(buffer.open());
    EXPECT_EQ(taken, !errors.error_flag);
    return taken;
  }
  void use_base(int type, int bits) {
    state.calcMode = BASE_MODE;
    settings.baseType = type;
    settings.baseBits = bits;
  }
};

TEST_F(number_buffer, reads_digits_a_point_and_an_exponent) {
  EXPECT_EQ(number("0"), 0.0);
  EXPECT_EQ(number("12.5"), 12.5);
  EXPECT_EQ(number(".5"), 0.5);
  EXPECT_EQ(number("5."), 5.0);
  EXPECT_EQ(number("1e5"), 1e5);
  EXPECT_EQ(number("1.5e-3"), 1.5e-3);
  EXPECT_EQ(number("5.e2"), 500.0);
  EXPECT_EQ(number("007"), 7.0);
}

TEST_F(number_buffer, a_leading_exponent_letter_means_one) {
  EXPECT_EQ(number("e5"), 1e5);
  EXPECT_EQ(number("e-2"), 0.01);
}

TEST_F(number_buffer, the_hexadecimal_E_is_an_exponent_mark_too) { EXPECT_EQ(number("1E5"), 1e5); }

TEST_F(number_buffer, text_that_is_no_number_is_a_syntax_error) {
  for (const char* text :
       {".", "e", "1e", "1e-", "2-3", "1e5-", "1e--5", "1.2.3", "1e5.5", "A", "12h", ".e5", "E5"})
    EXPECT_EQ(refusal(text), "Invalid Syntax") << text;
}

TEST_F(number_buffer, a_number_too_large_is_an_overflow) {
  EXPECT_EQ(number("1.7976931348623157e308"), 1.7976931348623157e308);
  EXPECT_EQ(refusal("1.7976931348623159e308"), "Overflow");
  EXPECT_EQ(refusal("1e999999999999999999"), "Overflow");
}

TEST_F(number_buffer, an_overflow_stands_before_bad_text_behind_it) {
  EXPECT_EQ(refusal("1e400-"), "Overflow");
}

TEST_F(number_buffer, a_number_too_small_is_zero) {
  EXPECT_EQ(number("5e-324"), 5e-324);
  EXPECT_EQ(number("1e-400"), 0.0);
  EXPECT_EQ(number("1e-999999999999999999"), 0.0);
  EXPECT_EQ(number("0e999999999999999999"), 0.0);
}

TEST_F(number_buffer, holds_120_characters) {
  TNumberBuffer buffer;
  for (int i = 0; i < NUMBER_TEXT_LIMIT; ++i) ASSERT_TRUE(append_to_number(buffer, '1'));
  EXPECT_FALSE(append_to_number(buffer, '1'));
  EXPECT_STREQ(errors.error_text, "Memory Limit Error");
  clear_error();
  double value = 0.0;
  EXPECT_TRUE(take_number(buffer, value));
  EXPECT_EQ(value, std::strtod(std::string(120, '1').c_str(), nullptr));
}

TEST_F(number_buffer, a_full_buffer_still_takes_the_one_in_front_of_its_exponent_letter) {
  EXPECT_EQ(number("e" + std::string(118, '0') + "3"), 1000.0);
}

std::string random_decimal(std::mt19937& generator) {
  const auto below = [&](int limit) { return static_cast<int>(generator() % static_cast<unsigned>(limit)); };
  std::string text;
  const int digits = 1 + below(25);
  const int point = below(digits + 1);
  for (int i = 0; i < digits; ++i) {
    if (i == point) text += '.';
    text += static_cast<char>('0' + (below(4) ? below(10) : 0));
  }
  if (below(2)) text += "e" + std::to_string(below(60) - 30);
  if (below(8) == 0)
    text += text.find('e') == std::string::npos ? "e" + std::to_string(below(660) - 340) : "";
  return text;
}

TEST_F(number_buffer, decimals_are_those_of_the_c_library_to_the_last_bit) {
  std::mt19937 generator(20240101);
  for (int i = 0; i < 100000; ++i) {
    const std::string text = random_decimal(generator);
    char* library_end = nullptr;
    const double expected = std::strtod(text.c_str(), &library_end);
    double value = -1.0;
    const char* const end = read_decimal(text.c_str(), value);
    ASSERT_EQ(end - text.c_str(), library_end - text.c_str()) << text;
    ASSERT_EQ(value, expected) << text;
  }
}

TEST_F(number_buffer, halfway_cases_are_rounded_to_even) {
  EXPECT_EQ(number("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(number("9007199254740993.000000000000000000000000000001"), 9007199254740994.0);
  EXPECT_EQ(number("9007199254740995"), 9007199254740996.0);
}

TEST_F(number_buffer, read_decimal_says_where_the_number_ends) {
  const auto length = [](const std::string& text) {
    double value = 0.0;
    return static_cast<int>(read_decimal(text.c_str(), value) - text.c_str());
  };
  EXPECT_EQ(length("12,5"), 2);
  EXPECT_EQ(length("12e"), 2);
  EXPECT_EQ(length("12e+5x"), 5);
  EXPECT_EQ(length("-1"), 0);
  EXPECT_EQ(length("."), 0);
  EXPECT_EQ(length(""), 0);
}

TEST_F(number_buffer, digits_beyond_the_limit_count_as_zeros) {
  double value = 0.0;
  read_decimal((std::string(NUMBER_TEXT_LIMIT, '9') + "99").c_str(), value);
  EXPECT_EQ(value, 1e122);
}

// --- Integers

TEST_F(number_buffer, without_a_suffix_the_radix_is_that_of_the_setting) {
  use_base(U_BIN, BITS_32);
  EXPECT_EQ(number("101"), 5.0);
  use_base(U_OCT, BITS_32);
  EXPECT_EQ(number("17"), 15.0);
  use_base(U_DEC, BITS_32);
  EXPECT_EQ(number("17"), 17.0);
  use_base(U_HEX, BITS_32);
  EXPECT_EQ(number("1F"), 31.0);
}

TEST_F(number_buffer, a_suffix_names_the_radix) {
  use_base(U_DEC, BITS_32);
  EXPECT_EQ(number("101b"), 5.0);
  EXPECT_EQ(number("17o"), 15.0);
  EXPECT_EQ(number("FFh"), 255.0);
  use_base(U_HEX, BITS_32);
  EXPECT_EQ(number("99d"), 99.0);
}

TEST_F(number_buffer, a_suffix_alone_or_inside_is_a_syntax_error) {
  use_base(U_HEX, BITS_32);
  for (const char* text : {"b", "d", "h", "o", "1b1", "1hh", "1d2d"})
    EXPECT_EQ(refusal(text), "Invalid Syntax") << text;
}

TEST_F(number_buffer, a_digit_that_the_radix_lacks_is_a_syntax_error) {
  use_base(U_BIN, BITS_32);
  EXPECT_EQ(refusal("102"), "Invalid Syntax");
  use_base(U_OCT, BITS_32);
  EXPECT_EQ(refusal("8"), "Invalid Syntax");
  use_base(U_DEC, BITS_32);
  for (const char* text : {"1A", "1.5", "1e5", "2-3"}) EXPECT_EQ(refusal(text), "Invalid Syntax") << text;
}

TEST_F(number_buffer, the_exponent_letter_is_a_hexadecimal_digit) {
  use_base(U_HEX, BITS_32);
  EXPECT_EQ(number("1e5"), 0x1E5);
  EXPECT_EQ(number("e"), 14.0);
}

TEST_F(number_buffer, an_integer_is_a_pattern_of_32_bits) {
  use_base(U_HEX, BITS_32);
  EXPECT_EQ(number("7FFFFFFF"), 2147483647.0);
  EXPECT_EQ(number("80000000"), -2147483648.0);
  EXPECT_EQ(number("FFFFFFFFh"), -1.0);
  EXPECT_EQ(number("3000000000d"), 3000000000.0 - 4294967296.0);
}

TEST_F(number_buffer, a_larger_integer_clamps_to_all_ones) {
  use_base(U_DEC, BITS_32);
  EXPECT_EQ(number("4294967296"), -1.0);
  EXPECT_EQ(number(std::string(100, '9')), -1.0);
}

TEST_F(number_buffer, an_integer_is_cut_to_the_width) {
  use_base(U_DEC, BITS_8);
  EXPECT_EQ(number("255"), -1.0);
  EXPECT_EQ(number("128"), -128.0);
  EXPECT_EQ(number("257"), 1.0);
  use_base(U_DEC, BITS_16);
  EXPECT_EQ(number("32768"), -32768.0);
  EXPECT_EQ(number("65537"), 1.0);
}

}  // namespace
}  // namespace zephyl
