// Numbers in the small font of the plot screens.

#include "plot/small_numbers.h"

#include <string>

#include "faceplate/resources.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class small_numbers : public calculator {
 protected:
  static int width_of(const std::string& text) {
    int width = 0;
    for (char c : text) width += find_glyph(get_small_number_character_bitmap(c))->width;
    return width;
  }
  static int ink(const TSurface& surface) {
    int count = 0;
    for (int y = 0; y < surface.height(); ++y)
      for (int x = 0; x < surface.width(); ++x) count += surface.pixel(x, y) != WHITE;
    return count;
  }

  TSurface surface{100, 20};
};

TEST_F(small_numbers, name_every_character_of_a_number) {
  const std::pair<char, const char*> rows[] = {
      {'(', "SMALL_START_PAREN"}, {')', "SMALL_END_PAREN"}, {'+', "SMALL_PLUSS"}, {',', "SMALL_COMMA"},
      {'-', "SMALL_MINUS"},       {'.', "SMALL_DP"},        {'0', "SMALL_0"},     {'1', "SMALL_1"},
      {'2', "SMALL_2"},           {'3', "SMALL_3"},         {'4', "SMALL_4"},     {'5', "SMALL_5"},
      {'6', "SMALL_6"},           {'7', "SMALL_7"},         {'8', "SMALL_8"},     {'9', "SMALL_9"},
      {'=', "SMALL_EQUAL"},       {'E', "SMALL_E"},         {'e', "SMALL_E"},     {'^', "SMALL_E_TO_X"},
      {'i', "SMALL_IMAG"},
  };
  for (const auto& [character, name] : rows) {
    EXPECT_STREQ(get_small_number_character_bitmap(character), name);
    EXPECT_NE(find_glyph(name), nullptr) << name;
  }
  EXPECT_EQ(message(), "none");
}

TEST_F(small_numbers, say_that_another_character_has_no_bitmap) {
  EXPECT_STREQ(get_small_number_character_bitmap('x'), "");
  EXPECT_EQ(message(), "get_small_number_character_bitmap | bitmap not found");
}

TEST_F(small_numbers, move_the_pen_to_the_right) {
  EXPECT_EQ(draw_small_number(surface, "-1.5e20", 3, 2, false, true), 3 + width_of("-1.5e20"));
  EXPECT_GT(ink(surface), 0);
}

TEST_F(small_numbers, move_the_pen_to_the_left_edge) {
  EXPECT_EQ(draw_small_number(surface, "-1.5e20", 90, 2, false, false), 90 - width_of("-1.5e20"));
}

TEST_F(small_numbers, look_the_same_from_both_ends) {
  TSurface other(100, 20);
  const int left = draw_small_number(surface, "(3+2i)", 90, 2, false, false);
  draw_small_number(other, "(3+2i)", left, 2, false, true);
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 100; ++x) ASSERT_EQ(surface.pixel(x, y), other.pixel(x, y));
}

TEST_F(small_numbers, draw_nothing_while_they_measure) {
  EXPECT_EQ(draw_small_number(surface, "123", 50, 2, true, false), 50 - width_of("123"));
  EXPECT_EQ(ink(surface), 0);
}

}  // namespace
}  // namespace zephyl
