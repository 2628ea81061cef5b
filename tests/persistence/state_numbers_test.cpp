// Numbers as the records of a state file have them.

#include "persistence/state_numbers.h"

#include <gtest/gtest.h>

#include "engine/values.h"

namespace zephyl {

TEST(state_numbers, are_as_short_as_their_digits) {
  EXPECT_STREQ(format_state_number(0.0), "0.0");
  EXPECT_STREQ(format_state_number(-0.0), "0.0");
  EXPECT_STREQ(format_state_number(1.5), "1.5");
  EXPECT_STREQ(format_state_number(100.0), "1.0e2");
  EXPECT_STREQ(format_state_number(0.001), "1.0e-3");
  EXPECT_STREQ(format_state_number(1e100), "1.0e100");
  EXPECT_STREQ(format_state_number(1e-100), "1.0e-100");
  EXPECT_STREQ(format_state_number(-2.5e-8), "-2.5e-8");
  EXPECT_STREQ(format_state_number(3.14159265358979312), "3.1415926535898");
  EXPECT_STREQ(format_state_number(undefined_value), "9.54334561e300");
}

TEST(state_numbers, indices_are_bounded) {
  const auto index = [](const char* text) { return TFieldReader(text).read_index(); };
  EXPECT_EQ(index("12:x"), 12);
  EXPECT_EQ(index("1000:x"), 1000);
  EXPECT_EQ(index("1001:x"), 0);
  EXPECT_EQ(index("-1:x"), 0);
  EXPECT_EQ(index("x:1"), 0);
  EXPECT_EQ(index("12345:x"), 0);  // four characters count: 1234
  EXPECT_EQ(index("00071:x"), 7);
  EXPECT_EQ(index("5"), 5);
  EXPECT_EQ(index(""), 0);
}

TEST(state_numbers, the_next_field_stands_behind_the_colon) {
  TFieldReader fields("1:22:333:4.5");
  EXPECT_EQ(fields.read_index(), 1);
  EXPECT_EQ(fields.read_index(), 22);
  EXPECT_EQ(fields.read_index(), 333);
  EXPECT_EQ(fields.read_real(), 4.5);
  TFieldReader without_colon("17");
  without_colon.read_index();
  EXPECT_STREQ(without_colon.rest(), "");
}

TEST(state_numbers, only_finite_numbers_are_read) {
  for (const char* text : {"nan", "inf", "-infinity", "1e999", "none", ""})
    EXPECT_EQ(TFieldReader(text).read_real(), 0.0) << text;
  EXPECT_EQ(TFieldReader("-1.5e-3").read_real(), -0.0015);
}

TEST(state_numbers, what_is_out_of_bounds_becomes_the_default) {
  EXPECT_EQ(TFieldReader("3").read_bounded(0, 3, 1), 3);
  EXPECT_EQ(TFieldReader("4").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("-1").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("99999999999999999999").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("x").read_bounded(0, 3, 1), 0);
}

}  // namespace zephyl
