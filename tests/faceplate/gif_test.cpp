// The decoder: the codes it judges by, its LZW, its strips and its colour rules.

#include "faceplate/gif.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "engine/state.h"
#include "faceplate/gif_bytes.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr TColour RED = rgb(255, 0, 0);
constexpr TColour BLUE = rgb(0, 0, 255);
constexpr TColour MAGENTA = rgb(255, 0, 255);
constexpr TColour GREEN = rgb(0, 255, 0);
constexpr TColour GROUND = rgb(9, 9, 9);
enum { R = 0, B = 1, M = 2, G = 3 };  // the indices of the default table

class gif : public calculator {
 protected:
  gif() {
    reset_settings();
    clear();
  }

  void clear() { surface.fill({0, 0, surface.width() - 1, surface.height() - 1}, GROUND); }
  TGifResult draw(const TGifText& text, int x = 0, int y = 0) {
    const std::vector<std::uint8_t> bytes = text.bytes();
    return draw_gif(surface, bytes.data(), bytes.size(), x, y, transparent, adjust);
  }
  // The first pixels of a row: one letter each, "." for what lay there before.
  std::string row(int y, int width) const {
    std::string out;
    for (int x = 0; x < width; ++x) {
      const TColour colour = surface.pixel(x, y);
      out += colour == RED       ? 'R'
             : colour == BLUE    ? 'B'
             : colour == MAGENTA ? 'M'
             : colour == GREEN   ? 'G'
             : colour == GROUND  ? '.'
             : colour == WHITE   ? 'W'
             : colour == BLACK   ? 'K'
                                 : '?';
    }
    return out;
  }
  // The colour that a picture of one pixel becomes.
  TColour drawn(TColour colour) {
    clear();
    TGifText text = literal_picture(1, 1, {0});
    text.colours = {colour};
    EXPECT_EQ(draw(text), GIF_OK);
    return surface.pixel(0, 0);
  }

  TSurface surface{240, 320};
  bool transparent = false;
  bool adjust = false;
};

// Header

TEST_F(gif, accepts_the_one_form) {
  EXPECT_EQ(draw(literal_picture(4, 1, {R, B, B, R})), GIF_OK);
  EXPECT_EQ(row(0, 6), "RBBR..");
}

TEST_F(gif, turns_the_newer_version_away_though_all_else_is_valid) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.signature = "GIF89a";
  EXPECT_EQ(draw(text), GIF_89A);
  EXPECT_EQ(row(0, 4), "....");
}

TEST_F(gif, wants_a_global_table) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.flags = 0;
  EXPECT_EQ(draw(text), GIF_NO_TABLE);
  EXPECT_EQ(row(0, 4), "....");
}

TEST_F(gif, refuses_a_local_table) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.image_flags = 0x80;
  EXPECT_EQ(draw(text), GIF_LOCAL_TABLE);
}

TEST_F(gif, refuses_interlaced_rows) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.image_flags = 0x40;
  EXPECT_EQ(draw(text), GIF_INTERLACED);
}

TEST_F(gif, refuses_another_signature) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.signature = "GIF86a";
  EXPECT_EQ(draw(text), GIF_NOT_GIF);
}

TEST_F(gif, refuses_an_aspect) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.aspect = 1;
  EXPECT_EQ(draw(text), GIF_NOT_GIF);
}

TEST_F(gif, judges_the_aspect_before_the_version) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.signature = "GIF89a";
  text.aspect = 49;
  EXPECT_EQ(draw(text), GIF_NOT_GIF);
}

TEST_F(gif, judges_the_signature_before_the_table_and_the_table_before_the_image) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.flags = 0;
  text.image_flags = 0xC0;
  text.signature = "GIF89a";
  EXPECT_EQ(draw(text), GIF_89A);
  text.signature = "PNG87a";
  EXPECT_EQ(draw(text), GIF_NOT_GIF);
  text.signature = "GIF87a";
  EXPECT_EQ(draw(text), GIF_NO_TABLE);
  text.flags = 0x80;
  EXPECT_EQ(draw(text), GIF_LOCAL_TABLE);
}

TEST_F(gif, refuses_a_header_that_is_cut_off) {
  const std::vector<std::uint8_t> bytes = literal_picture(4, 1, {R, B, B, R}).bytes();
  const std::size_t header = 13 + 4 * 3 + 10;
  for (std::size_t size = 0; size <= header; ++size)
    EXPECT_EQ(draw_gif(surface, bytes.data(), size, 0, 0, false, false), GIF_NOT_GIF) << size;
  EXPECT_EQ(row(0, 4), "....");
}

// LZW

TEST_F(gif, expands_codes_of_its_table) {
  TGifText text;
  text.width = 6;
  // 6 is the string of the first two pixels.
  text.codes = {4, R, B, 6, R, B};
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 6), "RBRBRB");
}

TEST_F(gif, expands_the_code_that_it_is_about_to_enter) {
  TGifText text;
  text.width = 6;
  // 6 stands for the string before it and that string's first colour, 7 likewise.
  text.codes = {4, R, 6, 7};
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 7), "RRRRRR.");
}

TEST_F(gif, begins_anew_at_a_clear_code) {
  TGifText text;
  text.width = 7;
  text.codes = {4, R, B, 6, 4, B, R, 6};
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 8), "RBRBBRB" + std::string("."));
}

TEST_F(gif, takes_a_stream_without_a_clear_code_at_its_start) {
  TGifText text;
  text.codes = {R, B, B, R};
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 4), "RBBR");
}

TEST_F(gif, goes_on_with_codes_of_12_bits_when_the_table_is_full) {
  // One clear code and 6000 literals: the table of 4096 is full after about 4000 of them.
  TGifText text;
  text.width = 240;
  text.height = 25;
  text.codes = {4};
  std::vector<int> pixels;
  for (int i = 0; i < 6000; ++i) pixels.push_back(i * i % 7 % 2);
  text.codes.insert(text.codes.end(), pixels.begin(), pixels.end());
  EXPECT_EQ(draw(text), GIF_OK);
  int wrong = 0;
  for (int i = 0; i < 6000; ++i)
    wrong += surface.pixel(i % 240, i / 240) != (pixels[static_cast<std::size_t>(i)] == R ? RED : BLUE);
  EXPECT_EQ(wrong, 0);
}

TEST_F(gif, keeps_a_full_table_as_it_is) {
  // The last slot, 4095, is entered; a string that would be number 4096 is not.
  TGifText text;
  text.width = 240;
  text.height = 20;
  text.codes = {4};
  for (int i = 0; i < 4091; ++i) text.codes.push_back(i % 2);
  text.codes.insert(text.codes.end(), {4095, 4095});
  EXPECT_EQ(draw(text), GIF_OK);
  const int at = 4091;  // code 4095 is the last two literals, the second of which is number 4090
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(surface.pixel((at + 2 * i) % 240, (at + 2 * i) / 240), BLUE);
    EXPECT_EQ(surface.pixel((at + 2 * i + 1) % 240, (at + 2 * i + 1) / 240), RED);
  }
}

TEST_F(gif, reads_across_sub_blocks) {
  TGifText text = literal_picture(5, 40, std::vector<int>(200, B));
  for (int size : {1, 2, 7, 254}) {
    clear();
    text.block_size = size;
    EXPECT_EQ(draw(text), GIF_OK);
    EXPECT_EQ(row(39, 6), "BBBBB.") << size;
  }
}

TEST_F(gif, tells_literals_by_the_colours_and_not_by_the_code_size) {
  // 8 bits of codes with 2 bits of colours: the literals keep their low bits.
  TGifText text;
  text.code_size = 8;
  text.codes = {256, 4 + R, 8 + B, 252 + M, G};
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 4), "RBMG");
}

// Strips

TEST_F(gif, draws_20_rows_as_one_strip) {
  EXPECT_EQ(draw(literal_picture(2, 20, std::vector<int>(40, R))), GIF_OK);
  EXPECT_EQ(row(19, 3), "RR.");
  EXPECT_EQ(row(20, 3), "...");
}

TEST_F(gif, draws_the_21st_row_as_a_strip_of_its_own) {
  std::vector<int> pixels(40, R);
  pixels.insert(pixels.end(), {B, B});
  EXPECT_EQ(draw(literal_picture(2, 21, pixels)), GIF_OK);
  EXPECT_EQ(row(19, 3), "RR.");
  EXPECT_EQ(row(20, 3), "BB.");
  EXPECT_EQ(row(21, 3), "...");
}

TEST_F(gif, leaves_the_strips_that_were_done_when_the_data_stop) {
  TGifText text = literal_picture(2, 30, std::vector<int>(50, R));
  text.ends = false;
  EXPECT_EQ(draw(text), GIF_NOT_GIF);
  EXPECT_EQ(row(19, 2), "RR");
  EXPECT_EQ(row(20, 2), "..");
}

TEST_F(gif, draws_the_rows_that_came_before_an_early_end_code) {
  EXPECT_EQ(draw(literal_picture(2, 30, std::vector<int>(49, R))), GIF_OK);
  EXPECT_EQ(row(23, 2), "RR");
  EXPECT_EQ(row(24, 2), "R.");
}

TEST_F(gif, stops_at_the_height_of_the_picture) {
  EXPECT_EQ(draw(literal_picture(2, 3, std::vector<int>(100, R))), GIF_OK);
  EXPECT_EQ(row(2, 2), "RR");
  EXPECT_EQ(row(3, 2), "..");
}

TEST_F(gif, starts_the_first_row_at_the_left_field_and_others_at_0) {
  TGifText text = literal_picture(4, 2, {R, R, B, B, B, B});
  text.left = 2;
  EXPECT_EQ(draw(text), GIF_OK);
  EXPECT_EQ(row(0, 4), "..RR");
  EXPECT_EQ(row(1, 4), "BBBB");
}

TEST_F(gif, draws_the_widest_strip_and_refuses_a_wider_one) {
  EXPECT_EQ(draw(literal_picture(240, 1, std::vector<int>(240, R))), GIF_OK);
  EXPECT_EQ(surface.pixel(239, 0), RED);
  EXPECT_EQ(draw(literal_picture(241, 1, std::vector<int>(241, B))), GIF_NOT_GIF);
  EXPECT_EQ(surface.pixel(0, 0), RED);
}

TEST_F(gif, draws_nothing_of_a_picture_without_columns) {
  EXPECT_EQ(draw(literal_picture(0, 4, {R, R})), GIF_OK);
  EXPECT_EQ(row(0, 2), "..");
}

TEST_F(gif, is_cut_at_the_edges_of_the_surface) {
  const TGifText text = literal_picture(3, 3, {R, R, R, R, B, R, R, R, R});
  EXPECT_EQ(draw(text, -1, -1), GIF_OK);
  EXPECT_EQ(row(0, 3), "BR.");
  EXPECT_EQ(row(1, 3), "RR.");
  EXPECT_EQ(row(2, 3), "...");
  EXPECT_EQ(draw(text, 238, 318), GIF_OK);
  EXPECT_EQ(surface.pixel(239, 319), BLUE);
  EXPECT_EQ(draw(text, -500, 5000), GIF_OK);
}

// Colours

TEST_F(gif, lets_through_what_lies_under_magenta) {
  transparent = true;
  EXPECT_EQ(draw(literal_picture(4, 1, {R, M, M, B})), GIF_OK);
  EXPECT_EQ(row(0, 4), "R..B");
}

TEST_F(gif, lets_through_magenta_where_it_is_adjusted_too) {
  transparent = adjust = true;
  EXPECT_EQ(draw(literal_picture(4, 1, {R, M, M, B})), GIF_OK);
  EXPECT_EQ(row(0, 4), "R..B");
}

TEST_F(gif, draws_colours_as_they_are_where_nothing_is_asked) {
  settings.brightness = 0;
  EXPECT_EQ(draw(literal_picture(4, 1, {R, M, G, B})), GIF_OK);
  EXPECT_EQ(row(0, 4), "RMGB");
}

TEST_F(gif, turns_adjusted_magenta_white_at_any_brightness) {
  adjust = true;
  for (int brightness : {0, 128, 255}) {
    settings.brightness = brightness;
    EXPECT_EQ(drawn(MAGENTA), WHITE) << brightness;
  }
}

TEST_F(gif, draws_legends_white_in_the_dark_skin_and_black_in_others) {
  adjust = true;
  const TColour expected[] = {BLACK, WHITE, BLACK, BLACK};
  for (int skin = 0; skin < 4; ++skin) {
    settings.skin = skin;
    EXPECT_EQ(drawn(GREEN), expected[skin]) << skin;
  }
}

TEST_F(gif, brightens_legends_too) {
  adjust = true;
  settings.brightness = 255;
  EXPECT_EQ(drawn(GREEN), rgb(63, 63, 63));
  settings.skin = 1;
  settings.brightness = 0;
  EXPECT_EQ(drawn(GREEN), rgb(191, 191, 191));
}

TEST_F(gif, is_black_or_white_at_a_brightness_far_out) {
  settings.brightness = std::numeric_limits<int>::max();
  EXPECT_EQ(adjusted_colour(rgb(1, 2, 3)), WHITE);
  settings.brightness = std::numeric_limits<int>::min();
  EXPECT_EQ(adjusted_colour(rgb(250, 251, 252)), BLACK);
}

TEST_F(gif, moves_colours_by_half_of_the_brightness) {
  adjust = true;
  const TColour colour = rgb(100, 10, 250);
  settings.brightness = 128;
  EXPECT_EQ(drawn(colour), colour);
  settings.brightness = 0;
  EXPECT_EQ(drawn(colour), rgb(36, 0, 186));
  settings.brightness = 255;
  EXPECT_EQ(drawn(colour), rgb(163, 73, 255));
  settings.brightness = 127;  // half of -1, shifted with its sign
  EXPECT_EQ(drawn(colour), rgb(99, 9, 249));
  settings.brightness = 129;
  EXPECT_EQ(drawn(colour), colour);
}

// Files of pairs

class gif_file : public gif {
 protected:
  ~gif_file() override {
    if (file) std::fclose(file);
  }
  void write(const std::string& before, const TGifText& text) {
    file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    std::fputs(before.c_str(), file);
    for (std::uint8_t byte : text.bytes()) std::fputc(byte, file);
    std::fseek(file, static_cast<long>(before.size()), SEEK_SET);
  }
  // Pixels of 8 bits, one code each.
  static TGifText picture(int width, int height, const std::vector<int>& pixels) {
    TGifText text;
    text.colour_bits = text.code_size = 8;
    text.width = width;
    text.height = height;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      if (i % 200 == 0) text.codes.push_back(text.clear_code());
      text.codes.push_back(pixels[i]);
    }
    return text;
  }

  std::FILE* file = nullptr;
};

TEST_F(gif_file, takes_two_pixels_as_one_colour) {
  // Blue in bits 15 to 11, green in 10 to 5, red in 4 to 0.
  write("", picture(8, 1, {0x1F, 0x00, 0xE0, 0x07, 0x00, 0xF8, 0xFF, 0xFF}));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, false), GIF_OK);
  EXPECT_EQ(surface.pixel(0, 0), rgb(248, 0, 0));
  EXPECT_EQ(surface.pixel(1, 0), rgb(0, 252, 0));
  EXPECT_EQ(surface.pixel(2, 0), rgb(0, 0, 248));
  EXPECT_EQ(surface.pixel(3, 0), rgb(248, 252, 248));
  EXPECT_EQ(surface.pixel(4, 0), GROUND);
}

TEST_F(gif_file, reads_from_where_the_file_stands) {
  write("G: \n", picture(4, 1, {0x1F, 0x00, 0x00, 0xF8}));
  EXPECT_EQ(draw_gif_file(surface, file, 3, 2, false, false), GIF_OK);
  EXPECT_EQ(surface.pixel(3, 2), rgb(248, 0, 0));
  EXPECT_EQ(surface.pixel(4, 2), rgb(0, 0, 248));
}

TEST_F(gif_file, reads_pictures_of_many_blocks) {
  std::vector<int> pixels;
  for (int i = 0; i < 452 * 45; ++i) pixels.push_back(i % 452 % 2 ? 0xF8 : 0);
  write("", picture(452, 45, pixels));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, false), GIF_OK);
  EXPECT_EQ(surface.pixel(225, 44), rgb(0, 0, 248));
  EXPECT_EQ(surface.pixel(226, 44), GROUND);
  EXPECT_EQ(surface.pixel(225, 45), GROUND);
}

TEST_F(gif_file, draws_every_colour_of_a_pair_since_none_is_pure_magenta) {
  write("", picture(2, 1, {0x1F, 0xF8}));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, true, true), GIF_OK);
  EXPECT_EQ(surface.pixel(0, 0), rgb(248, 0, 248));
}

TEST_F(gif_file, drops_a_pixel_without_a_fellow) {
  write("", picture(3, 2, {0x1F, 0x00, 0xFF, 0x00, 0xF8, 0xFF}));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, false), GIF_OK);
  EXPECT_EQ(surface.pixel(0, 0), rgb(248, 0, 0));
  EXPECT_EQ(surface.pixel(0, 1), rgb(0, 0, 248));
  EXPECT_EQ(surface.pixel(1, 0), GROUND);
  EXPECT_EQ(surface.pixel(1, 1), GROUND);
}

TEST_F(gif_file, draws_no_row_of_another_width_than_the_surface_takes) {
  write("", picture(482, 1, std::vector<int>(482, 0)));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, false), GIF_NOT_GIF);
  EXPECT_EQ(surface.pixel(0, 0), GROUND);
}

TEST_F(gif_file, brightens_the_colour_of_a_pair) {
  settings.brightness = 0;
  write("", picture(2, 1, {0x00, 0xF8}));
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, true), GIF_OK);
  EXPECT_EQ(surface.pixel(0, 0), rgb(0, 0, 184));
}

TEST_F(gif_file, says_that_it_cannot_load) {
  TGifText text = literal_picture(4, 1, {R, B, B, R});
  text.signature = "GIF89a";
  write("", text);
  EXPECT_EQ(draw_gif_file(surface, file, 0, 0, false, false), GIF_89A);
  EXPECT_EQ(message(), "Gif | Gif load error");
}

// Resources

TEST_F(gif, draws_a_resource_by_name_without_regard_to_case) {
  EXPECT_EQ(draw_gif_resource(surface, "green_led_gif", 0, 0, true, true), GIF_OK);
  EXPECT_NE(surface.pixel(4, 4), GROUND);
  EXPECT_EQ(message(), "none");
}

TEST_F(gif, says_that_a_resource_is_missing) {
  EXPECT_EQ(draw_gif_resource(surface, "no_such_gif", 0, 0, true, true), GIF_NOT_FOUND);
  EXPECT_EQ(message(), "Resource Error | GIF resource not found: 'no_such_gif'");
}

// Any bytes

class TNoise {
 public:
  unsigned next() { return (state_ = state_ * 1664525u + 1013904223u) >> 8; }

 private:
  unsigned state_ = 12345;
};

TEST_F(gif, survives_any_bytes) {
  TNoise noise;
  std::vector<int> pixels;
  for (int i = 0; i < 600; ++i) pixels.push_back(static_cast<int>(noise.next() % 4));
  const std::vector<std::uint8_t> valid = literal_picture(20, 30, pixels).bytes();
  int accepted = 0;
  for (int round = 0; round < 20000; ++round) {
    std::vector<std::uint8_t> bytes = valid;
    for (unsigned i = noise.next() % 6; i > 0; --i)
      bytes[noise.next() % bytes.size()] = static_cast<std::uint8_t>(noise.next());
    if (noise.next() % 4 == 0) bytes.resize(noise.next() % bytes.size());
    const int x = static_cast<int>(noise.next() % 300) - 40, y = static_cast<int>(noise.next() % 400) - 40;
    accepted += draw_gif(surface, bytes.data(), bytes.size(), x, y, round % 2 == 0, round % 3 == 0) == GIF_OK;
  }
  EXPECT_GT(accepted, 2000);
  EXPECT_LT(accepted, 18000);
}

TEST_F(gif, survives_any_codes) {
  TNoise noise;
  for (int round = 0; round < 2000; ++round) {
    TGifText text;
    text.code_size = 1 + static_cast<int>(noise.next() % 11);
    text.colour_bits = 1 + static_cast<int>(noise.next() % 8);
    text.width = static_cast<int>(noise.next() % 241);
    text.height = 1 + static_cast<int>(noise.next() % 300);
    text.left = static_cast<int>(noise.next() % 300);
    for (unsigned i = noise.next() % 3000; i > 0; --i)
      text.codes.push_back(static_cast<int>(noise.next() % 4096));
    text.ends = noise.next() % 2 == 0;
    const TGifResult result = draw(text);
    EXPECT_TRUE(result == GIF_OK || result == GIF_NOT_GIF);
  }
}

}  // namespace
}  // namespace zephyl
