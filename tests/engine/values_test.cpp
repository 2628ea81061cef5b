#include "engine/values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace zephyl {
namespace {

TEST(values, the_mark_of_no_value_has_its_bits) {
  std::uint64_t bits;
  std::memcpy(&bits, &undefined_value, sizeof bits);
  EXPECT_EQ(bits, 0x7E6C802B77013B71u);
}

TEST(values, the_integer_part_drops_the_fraction_towards_zero) {
  EXPECT_EQ(int_part(2.7), 2.0);
  EXPECT_EQ(int_part(-2.7), -2.0);
  EXPECT_EQ(int_part(0.0), 0.0);
}

TEST(values, the_integer_part_of_a_number_just_below_an_integer_is_that_integer) {
  EXPECT_EQ(int_part(2.99999999999), 3.0);
  EXPECT_EQ(int_part(-2.99999999999), -3.0);
  EXPECT_EQ(int_part(2.999999999), 2.0);
}

TEST(values, the_integer_part_of_a_large_number_is_nudged) { EXPECT_EQ(int_part(1e11), 1e11 + 5); }

TEST(values, the_fraction_of_a_number_just_below_an_integer_is_tiny) {
  EXPECT_NEAR(frac_part(2.99999999999), 1.4e-10, 1e-11);
  EXPECT_NEAR(frac_part(-2.99999999999), -1.4e-10, 1e-11);
}

TEST(values, other_fractions_are_those_of_the_number_itself) {
  EXPECT_EQ(frac_part(2.75), 0.75);
  EXPECT_EQ(frac_part(-2.75), -0.75);
  EXPECT_EQ(frac_part(5.0), 0.0);
}

TEST(values, an_integer_within_its_limits_passes) {
  EXPECT_EQ(checked_integer(1, 1, 5, ERR_DOMAIN), 1);
  EXPECT_EQ(checked_integer(5, 1, 5, ERR_DOMAIN), 5);
  EXPECT_EQ(checked_integer(-7, -10, 10, ERR_DOMAIN), -7);
  EXPECT_FALSE(errors.error_flag);
}

TEST(values, an_integer_out_of_its_limits_is_reported) {
  EXPECT_EQ(checked_integer(6, 1, 5, ERR_LIST_INDEX), 0);
  EXPECT_EQ(errors.error_code, ERR_LIST_INDEX);
  clear_error();
  EXPECT_EQ(checked_integer(0, 1, 5, ERR_DOMAIN), 0);
  EXPECT_TRUE(errors.error_flag);
}

TEST(values, a_fraction_is_no_integer) {
  EXPECT_EQ(checked_integer(2.5, 1, 5, ERR_DOMAIN), 0);
  EXPECT_TRUE(errors.error_flag);
}

TEST(values, a_number_a_little_below_an_integer_is_none_yet) {
  EXPECT_EQ(checked_integer(2.99999999999, 1, 5, NO_REPORT), 0);
}

TEST(values, the_number_that_is_nudged_onto_an_integer_is_that_integer) {
  const double below = 3 / 1.00000000005;
  ASSERT_EQ(frac_part(below), 0.0);
  EXPECT_EQ(checked_integer(below, 1, 5, ERR_DOMAIN), 3);
  EXPECT_EQ(checked_integer(below, 3, 5, ERR_DOMAIN), 3) << "the integer counts, at the bound too";
}

TEST(values, magnitudes_from_two_thousand_million_on_are_no_integers) {
  constexpr int most = std::numeric_limits<int>::max();
  EXPECT_EQ(checked_integer(1999999999, 0, most, ERR_DOMAIN), 1999999999);
  EXPECT_EQ(checked_integer(2e9, 0, most, NO_REPORT), 0);
  EXPECT_EQ(checked_integer(std::numeric_limits<double>::quiet_NaN(), 0, most, NO_REPORT), 0);
  EXPECT_EQ(checked_integer(std::numeric_limits<double>::infinity(), 0, most, NO_REPORT), 0);
}

TEST(values, a_failure_can_be_silent) {
  EXPECT_EQ(checked_integer(9, 1, 5, NO_REPORT), 0);
  EXPECT_FALSE(errors.error_flag);
}

TEST(values, a_32_bit_integer_is_cut_and_clamped) {
  EXPECT_EQ(to_int32(2.9), 2);
  EXPECT_EQ(to_int32(-2.9), -2);
  EXPECT_EQ(to_int32(1e30), 2147483647);
  EXPECT_EQ(to_int32(-1e30), -2147483647 - 1);
  EXPECT_EQ(to_int32(2147483646.5), 2147483646);
  EXPECT_EQ(to_int32(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(values, a_number_is_real_without_an_imaginary_part) {
  EXPECT_TRUE(is_real({5.0, 0.0}));
  EXPECT_TRUE(is_real({5.0, -0.0}));
  EXPECT_FALSE(is_real({5.0, 1e-300}));
}

}  // namespace
}  // namespace zephyl
