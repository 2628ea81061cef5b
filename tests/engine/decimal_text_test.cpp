#include "engine/decimal_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "support/exact_decimal.h"

namespace zephyl {
namespace {

std::string fixed(double value, int decimals) {
  char text[DECIMAL_TEXT_SIZE];
  const int length = print_fixed(text, value, decimals);
  EXPECT_EQ(std::strlen(text), static_cast<std::size_t>(length));
  return text;
}

std::string scientific(double value, int decimals) {
  char text[DECIMAL_TEXT_SIZE];
  const int exponent = print_mantissa(text, value, decimals);
  return std::string(text) + "E" + std::to_string(exponent);
}

std::string exact_scientific(double value, int decimals) {
  int exponent = 0;
  const std::string mantissa = TExactDecimal(value).mantissa(decimals, exponent);
  return mantissa + "E" + std::to_string(exponent);
}

std::string library_scientific(double value, int decimals) {
  char text[100];
  std::snprintf(text, sizeof text, "%.*E", decimals, value);
  char* mark = std::strchr(text, 'E');
  *mark = 0;
  return std::string(text) + "E" + std::to_string(std::atoi(mark + 1));
}

double any_finite(std::mt19937_64& random) {
  for (;;) {
    const std::uint64_t bits = random();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    if (std::isfinite(value)) return value;
  }
}

TEST(decimal_text, halves_go_away_from_zero) {
  EXPECT_EQ(fixed(0.5, 0), "1");
  EXPECT_EQ(fixed(2.5, 0), "3");
  EXPECT_EQ(fixed(-2.5, 0), "-3");
  EXPECT_EQ(fixed(0.125, 2), "0.13");
  EXPECT_EQ(fixed(0.375, 2), "0.38");
  EXPECT_EQ(scientific(12345, 3), "1.235E4");
  EXPECT_EQ(scientific(-12325, 3), "-1.233E4");
  EXPECT_EQ(scientific(25, 0), "3E1");
  EXPECT_EQ(scientific(9.5, 0), "1E1");
}

TEST(decimal_text, what_only_looks_like_a_half_is_rounded_to_the_nearer_side) {
  EXPECT_EQ(fixed(0.15, 1), "0.1");    // 0.1499999999999999944
  EXPECT_EQ(fixed(0.45, 1), "0.5");    // 0.4500000000000000111
  EXPECT_EQ(fixed(1.005, 2), "1.00");  // 1.00499999999999989
  EXPECT_EQ(fixed(std::nextafter(2.5, 0.0), 0), "2");
  EXPECT_EQ(fixed(std::nextafter(2.5, 3.0), 0), "3");
}

TEST(decimal_text, zero_has_no_sign) {
  EXPECT_EQ(fixed(0.0, 3), "0.000");
  EXPECT_EQ(fixed(-0.0, 3), "0.000");
  EXPECT_EQ(fixed(-0.0, 0), "0");
  EXPECT_EQ(scientific(-0.0, 2), "0.00E0");
}

TEST(decimal_text, a_negative_number_that_rounds_to_zero_keeps_its_sign) {
  EXPECT_EQ(fixed(-0.001, 2), "-0.00");
}

TEST(decimal_text, a_carry_into_a_new_digit_moves_the_exponent) {
  EXPECT_EQ(scientific(9.9996, 3), "1.000E1");
  EXPECT_EQ(scientific(0.00099999, 2), "1.00E-3");
  EXPECT_EQ(fixed(999.96, 1), "1000.0");
}

TEST(decimal_text, the_ends_of_the_range_print) {
  EXPECT_EQ(scientific(std::numeric_limits<double>::max(), 16), "1.7976931348623157E308");
  EXPECT_EQ(scientific(std::numeric_limits<double>::min(), 16), "2.2250738585072014E-308");
  EXPECT_EQ(scientific(std::numeric_limits<double>::denorm_min(), 16), "4.9406564584124654E-324");
  EXPECT_EQ(fixed(std::numeric_limits<double>::denorm_min(), 10), "0.0000000000");
}

TEST(decimal_text, powers_of_ten_keep_their_exponent) {
  for (int power = -307; power <= 308; ++power) {
    const double value = std::stod("1e" + std::to_string(power));
    for (const double near : {value, std::nextafter(value, 0.0), std::nextafter(value, INFINITY)})
      for (const int decimals : {0, 10, 16})
        EXPECT_EQ(scientific(near, decimals), exact_scientific(near, decimals));
  }
}

TEST(decimal_text, mantissas_of_all_magnitudes_are_exact) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 3000; ++i) {
    const double value = any_finite(random);
    const int decimals = static_cast<int>(random() % (DECIMALS_LIMIT + 1));
    EXPECT_EQ(scientific(value, decimals), exact_scientific(value, decimals));
  }
}

TEST(decimal_text, fixed_numbers_are_exact) {
  std::mt19937_64 random(2);
  std::uniform_real_distribution<double> exponents(-14.0, 7.9);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::pow(10.0, exponents(random)) * (random() % 2 ? 1.0 : -1.0);
    const int decimals = static_cast<int>(random() % 11);
    EXPECT_EQ(fixed(value, decimals), TExactDecimal(value).fixed(decimals));
  }
}

TEST(decimal_text, every_kind_of_half_is_exact) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 20000; ++i) {
    const int bits = static_cast<int>(random() % 12);
    const double value = std::ldexp(static_cast<double>(random() % 2000000), -bits);
    for (const int decimals : {bits, bits > 0 ? bits - 1 : 0}) {
      EXPECT_EQ(fixed(value, decimals), TExactDecimal(value).fixed(decimals));
      EXPECT_EQ(scientific(value, decimals % 6), exact_scientific(value, decimals % 6));
    }
  }
}

TEST(decimal_text, other_digits_are_those_of_the_c_library) {
  std::mt19937_64 random(4);
  for (int i = 0; i < 200000; ++i) {
    const double value = any_finite(random);
    const int decimals = static_cast<int>(random() % (DECIMALS_LIMIT + 1));
    const std::string library = library_scientific(value, decimals);
    const std::string own = scientific(value, decimals);
    if (own == library) continue;
    EXPECT_EQ(own, exact_scientific(value, decimals));  // a half, which the library takes to even
  }
}

TEST(decimal_text, strips_zeros_only_behind_a_point) {
  const auto stripped = [](const char* given) {
    char text[40];
    std::snprintf(text, sizeof text, "%s", given);
    strip_zeros(text);
    return std::string(text);
  };
  EXPECT_EQ(stripped("1.500"), "1.5");
  EXPECT_EQ(stripped("100.000"), "100");
  EXPECT_EQ(stripped("100"), "100");
  EXPECT_EQ(stripped("-0.00"), "-0");
}

}  // namespace
}  // namespace zephyl
