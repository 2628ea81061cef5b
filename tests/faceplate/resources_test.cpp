// Finding pictures and glyphs by name, names of characters, and the width cache.

#include "faceplate/resources.h"

#include <cstring>
#include <string>
#include <vector>

#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class resources : public calculator {};

TEST_F(resources, are_found_without_regard_to_case) {
  const TImageResource* image = find_image("CALCULATOR_GIF_0");
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(find_image("calculator_gif_0"), image);
  EXPECT_EQ(find_image("Calculator_Gif_0"), image);
  ASSERT_NE(find_glyph("ACOSH"), nullptr);
  EXPECT_EQ(find_glyph("acosh"), find_glyph("ACOSH"));
  EXPECT_EQ(find_picture("blue_box"), find_picture("BLUE_BOX"));
}

TEST_F(resources, are_not_found_by_a_part_of_a_name) {
  for (const char* name : {"", "CALCULATOR_GIF_", "CALCULATOR_GIF_00", "~", "\xff"})
    EXPECT_EQ(find_image(name), nullptr) << name;
  EXPECT_EQ(find_glyph("ACOS_H"), nullptr);
  EXPECT_EQ(message(), "none");
}

TEST_F(resources, keep_images_and_glyphs_apart) {
  // Both a tab of the matrix screen and the answer's glyph go by this name.
  EXPECT_NE(find_image("MATRIX_ANS"), nullptr);
  EXPECT_NE(find_glyph("MATRIX_ANS"), nullptr);
  EXPECT_EQ(find_image("ACOSH"), nullptr);
  EXPECT_EQ(find_glyph("BACKGROUND_GIF_0"), nullptr);
}

TEST_F(resources, take_the_suffix_of_the_skin) {
  const char* expected[] = {"ac_button_gif_0", "ac_button_gif_1", "ac_button_gif_2"};
  for (int skin = 0; skin < 3; ++skin) {
    settings.skin = skin;
    EXPECT_STREQ(skinned_name("ac_button_gif"), expected[skin]);
  }
  for (int skin : {3, -1, 99}) {
    settings.skin = skin;
    EXPECT_STREQ(skinned_name("ac_button_gif"), "ac_button_gif_0") << skin;
  }
}

TEST_F(resources, say_that_a_bitmap_is_missing) {
  EXPECT_EQ(load_bitmap("no_such_bitmap"), nullptr);
  EXPECT_EQ(message(), "Bitmap Error | Bitmap not found: 'no_such_bitmap'");
  EXPECT_NE(load_bitmap("pluss"), nullptr);
  EXPECT_EQ(message(), "none");
}

TEST_F(resources, name_characters_by_their_codes) {
  EXPECT_STREQ(glyph_name_of_char('a', false), "U_ASCII_97");
  EXPECT_STREQ(glyph_name_of_char('7', false), "U_ASCII_55");
  EXPECT_STREQ(glyph_name_of_char('.', false), "U_ASCII_46");
  EXPECT_STREQ(glyph_name_of_char(144, false), "U_ASCII_144");
}

TEST_F(resources, name_the_characters_of_numbers) {
  const std::vector<std::pair<unsigned char, const char*>> rows = {
      {'0', "0_dig"},       {'9', "9_dig"},    {'.', "decimal"},     {',', "U_ASCII_44"}, {'_', "underline"},
      {151, "U_ASCII_151"}, {'A', "hex_A"},    {'F', "hex_F"},       {'b', "base_bin"},   {'d', "base_dec"},
      {'h', "base_hex"},    {'o', "base_oct"}, {'e', "U_ASCII_101"}, {'G', "U_ASCII_71"}, {'-', "U_ASCII_45"},
  };
  for (const auto& [character, name] : rows) EXPECT_STREQ(glyph_name_of_char(character, true), name);
}

TEST_F(resources, leave_hexadecimal_and_radix_letters_of_the_result_line_alone) {
  EXPECT_STREQ(glyph_name_of_result_char('A'), "U_ASCII_65");
  EXPECT_STREQ(glyph_name_of_result_char('h'), "U_ASCII_104");
  EXPECT_STREQ(glyph_name_of_result_char('5'), "5_dig");
  EXPECT_STREQ(glyph_name_of_result_char('.'), "decimal");
  EXPECT_STREQ(glyph_name_of_result_char(','), "U_ASCII_44");
}

TEST_F(resources, pass_longer_names_through) {
  EXPECT_STREQ(glyph_name("start_paren", true), "start_paren");
  EXPECT_STREQ(glyph_name("", true), "");
  EXPECT_STREQ(glyph_name("5", true), "5_dig");
  EXPECT_STREQ(glyph_name("5", false), "U_ASCII_53");
}

TEST_F(resources, draw_a_character_without_a_glyph_as_the_box_in_silence) {
  EXPECT_STREQ(glyph_name_of_char(1, false), "U_ASCII_255");
  EXPECT_STREQ(glyph_name_of_char(127, true), "U_ASCII_255");
  EXPECT_EQ(&character_glyph(1), find_glyph("U_ASCII_255"));
  EXPECT_EQ(&character_glyph('a'), find_glyph("U_ASCII_97"));
  EXPECT_EQ(message(), "none");
}

TEST_F(resources, measure_glyphs) {
  EXPECT_EQ(glyph_width("0_dig"), 8);
  EXPECT_EQ(glyph_width("U_ASCII_32"), 12);
  EXPECT_EQ(glyph_width("ACOSH"), 34);
  EXPECT_EQ(glyph_width("acosh"), 34);
  EXPECT_EQ(glyph_width("XMAX"), 35);
  EXPECT_EQ(glyph_width(""), 0);
}

TEST_F(resources, measure_a_missing_glyph_as_0_and_say_so) {
  EXPECT_EQ(glyph_width("no_such_glyph"), 0);
  EXPECT_EQ(message(), "Bitmap Error | Bitmap not found: 'no_such_glyph'");
}

TEST_F(resources, measure_rightly_when_the_cache_is_full) {
  std::vector<std::string> names;
  for (int code = 32; code < 127; ++code) names.push_back("U_ASCII_" + std::to_string(code));
  for (int code = 144; code < 256; ++code) names.push_back("U_ASCII_" + std::to_string(code));
  for (char digit = '0'; digit <= '9'; ++digit) names.push_back(std::string(1, digit) + "_DIG");
  ASSERT_GT(names.size(), 200u);
  for (int round = 0; round < 2; ++round)
    for (const std::string& name : names)
      EXPECT_EQ(glyph_width(name.c_str()), find_glyph(name.c_str())->width) << name;
}

TEST_F(resources, measure_names_too_long_for_the_cache) {
  for (int round = 0; round < 2; ++round)
    EXPECT_EQ(glyph_width("SMALL_NO_INTERSECT_FOUND"), find_glyph("SMALL_NO_INTERSECT_FOUND")->width);
}

TEST_F(resources, tell_names_apart_that_end_alike) {
  EXPECT_EQ(glyph_width("SIN"), find_glyph("SIN")->width);
  EXPECT_EQ(glyph_width("ASIN"), find_glyph("ASIN")->width);
  EXPECT_NE(glyph_width("SIN"), glyph_width("ASIN"));
}

TEST_F(resources, draw_pictures_in_their_colours_and_inverted) {
  TSurface surface(20, 20);
  blit_bitmap(surface, "red_box", 2, 2);
  EXPECT_EQ(surface.pixel(10, 10), rgb(255, 0, 0));
  EXPECT_EQ(surface.pixel(1, 1), WHITE);
  blit_bitmap(surface, "red_box", 2, 2, true);
  EXPECT_EQ(surface.pixel(10, 10), rgb(0, 255, 255));
}

TEST_F(resources, draw_bitmaps_without_transparency) {
  TSurface surface(20, 20);
  surface.fill({0, 0, 19, 19}, rgb(1, 2, 3));
  blit_bitmap(surface, "checkered_brush", 4, 4);
  EXPECT_EQ(surface.pixel(4, 4), BLACK);
  EXPECT_EQ(surface.pixel(5, 4), WHITE);
  blit_bitmap(surface, "checkered_brush", 4, 4, true);
  EXPECT_EQ(surface.pixel(4, 4), WHITE);
  EXPECT_EQ(surface.pixel(5, 4), BLACK);
  EXPECT_EQ(surface.pixel(12, 4), rgb(1, 2, 3));
}

}  // namespace
}  // namespace zephyl
