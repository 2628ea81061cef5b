// The result line on the display and its scroll keys.

#include "faceplate/result_line_view.h"

#include <cstdio>
#include <cstring>

#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "faceplate/resources.h"

namespace zephyl {
namespace {

class result_line_view : public face {
 protected:
  static void show(const std::string& text) {
    std::snprintf(state.result_text, sizeof state.result_text, "%s", text.c_str());
    draw_result(true);
  }
  static bool has_ink(const TRect& rect) {
    for (const TColour colour : pixels(rect))
      if (colour != rgb(210, 203, 158)) return true;
    return false;
  }
  static std::vector<TColour> line() { return pixels({7, 27, 232, 44}); }
};

constexpr int LEFT_KEY = 50;
constexpr int RIGHT_KEY = 51;
constexpr TRect LEFT_RECT = {9, 27, 17, 42};
constexpr TRect RIGHT_RECT = {223, 27, 231, 42};
constexpr TRect TEXT_RECT = {20, 27, 222, 44};

const std::string long_text =
    "The quick brown fox jumps over the lazy dog, and the lazy dog is not amused by it at all";

TEST_F(result_line_view, a_short_result_has_no_marks) {
  show("2.5");
  EXPECT_TRUE(has_ink(TEXT_RECT));
  EXPECT_FALSE(has_ink(LEFT_RECT));
  EXPECT_FALSE(has_ink(RIGHT_RECT));
}

TEST_F(result_line_view, a_long_result_is_marked_on_the_right) {
  show(long_text);
  EXPECT_FALSE(has_ink(LEFT_RECT));
  EXPECT_TRUE(has_ink(RIGHT_RECT));
}

TEST_F(result_line_view, the_scroll_keys_move_by_one_character) {
  show(long_text);
  tap_key(RIGHT_KEY);
  EXPECT_EQ(state.result_offset, 1);
  EXPECT_TRUE(has_ink(LEFT_RECT));
  tap_key(LEFT_KEY);
  EXPECT_EQ(state.result_offset, 0);
  EXPECT_FALSE(has_ink(LEFT_RECT));
}

TEST_F(result_line_view, scrolling_stops_at_both_ends) {
  show(long_text);
  tap_key(LEFT_KEY);
  EXPECT_EQ(state.result_offset, 0);
  for (int i = 0; i < 200; ++i) tap_key(RIGHT_KEY);
  const int end = state.result_offset;
  EXPECT_LT(end, static_cast<int>(long_text.size()));
  EXPECT_FALSE(has_ink(RIGHT_RECT));
  tap_key(LEFT_KEY);
  EXPECT_EQ(state.result_offset, end - 1);
  EXPECT_TRUE(has_ink(RIGHT_RECT));
}

TEST_F(result_line_view, a_scrolled_line_looks_as_its_end_would_by_itself) {
  show(long_text);
  for (int i = 0; i < 200; ++i) tap_key(RIGHT_KEY);
  const std::vector<TColour> scrolled = pixels(TEXT_RECT);
  show(long_text.substr(static_cast<std::size_t>(state.result_offset)));
  EXPECT_EQ(pixels(TEXT_RECT), scrolled);
}

TEST_F(result_line_view, a_short_result_does_not_scroll) {
  show("2.5");
  tap_key(RIGHT_KEY);
  EXPECT_EQ(state.result_offset, 0);
}

TEST_F(result_line_view, a_new_result_is_scrolled_home) {
  show(long_text);
  tap_key(RIGHT_KEY);
  type("12\r");
  EXPECT_EQ(state.result_offset, 0);
}

TEST_F(result_line_view, the_scroll_position_outlives_a_repaint) {
  show(long_text);
  tap_keys({RIGHT_KEY, RIGHT_KEY});
  const std::vector<TColour> before = line();
  paint();
  EXPECT_EQ(line(), before);
}

TEST_F(result_line_view, text_takes_203_pixels_and_no_more) {
  const int narrow = find_glyph("U_ASCII_29")->width;
  std::string text;
  for (int used = 0; used + narrow <= 203; used += narrow) text += '\x1d';
  ASSERT_LT(text.size(), sizeof state.result_text - 1);
  show(text);
  EXPECT_FALSE(has_ink(RIGHT_RECT));
  show(text + '\x1d');
  EXPECT_TRUE(has_ink(RIGHT_RECT));
}

TEST_F(result_line_view, digits_use_the_glyphs_of_numbers_and_letters_those_of_text) {
  show("7b");
  const TBitmap& seven = *find_glyph("7_dig");
  const TBitmap& letter = *find_glyph("U_ASCII_98");
  for (int y = 0; y < 17; ++y) {
    for (int x = 0; x < seven.width; ++x) EXPECT_EQ(screen().pixel(20 + x, 27 + y) == BLACK, seven.ink(x, y));
    for (int x = 0; x < letter.width; ++x)
      EXPECT_EQ(screen().pixel(20 + seven.width + x, 27 + y) == BLACK, letter.ink(x, y));
  }
}

TEST_F(result_line_view, every_character_draws_without_complaint) {
  for (int code = 1; code < 256; ++code) show(std::string(3, static_cast<char>(code)));
  EXPECT_EQ(message(), "none");
}

TEST_F(result_line_view, an_error_shows_its_message) {
  type("1/0\r");
  EXPECT_STREQ(state.result_text, "Division by Zero");
  EXPECT_TRUE(has_ink(TEXT_RECT));
}

TEST_F(result_line_view, a_token_blanks_the_line) {
  type("12\r3");
  EXPECT_FALSE(has_ink(TEXT_RECT));
}

TEST_F(result_line_view, at_a_prompt_an_empty_line_shows_the_prompt) {
  state.program_running = state.at_prompt = true;
  std::snprintf(state.prompt_text, sizeof state.prompt_text, "x?");
  show("");
  const std::vector<TColour> prompt = line();
  state.program_running = false;
  show("x?");
  EXPECT_EQ(line(), prompt);
  show("");
  EXPECT_NE(line(), prompt);
}

TEST_F(result_line_view, screens_without_the_line_are_left_alone) {
  for (const int mode : std::vector<int>{PROGRAM_EDIT_MODE, PERIODIC_MODE, PLOT_MODE, 8}) {
    state.calcMode = mode;
    paint();
    const std::vector<TColour> before = picture();
    show("123");
    EXPECT_EQ(picture(), before) << "mode " << mode;
  }
}

}  // namespace
}  // namespace zephyl
