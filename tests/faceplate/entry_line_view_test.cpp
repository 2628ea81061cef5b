// The entry line on the display: glyphs of tokens, what shows of a long line, taps on it.

#include "faceplate/entry_line_view.h"

#include <cstring>

#include "engine/expression.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/face.h"
#include "faceplate/resources.h"
#include "faceplate/token_glyphs.h"

namespace zephyl {
namespace {

class entry_line_view : public face {
 protected:
  static TExpression line_of(const std::vector<int>& tokens) {
    TExpression line;
    for (const int token : tokens) line.tokens[line.count++] = static_cast<TToken>(token);
    return line;
  }
  static void show(const std::vector<int>& tokens, int cursor, bool with_cursor) {
    entry_line.expression = line_of(tokens);
    entry_line.cursor = cursor;
    draw_expression(with_cursor);
  }
  // The glyphs of one token by itself, or of one in a line.
  static TGlyphRun glyphs_of(const std::vector<int>& tokens, int index = 0) {
    TGlyphRun run;
    token_glyphs(line_of(tokens), index, run);
    return run;
  }
  static void expect_glyphs(const TGlyphRun& run, const std::vector<std::string>& names) {
    ASSERT_EQ(run.count, static_cast<int>(names.size())) << (names.empty() ? "" : names[0]);
    int width = 0;
    for (int i = 0; i < run.count; ++i) {
      const TBitmap* glyph = find_glyph(names[static_cast<std::size_t>(i)].c_str());
      ASSERT_NE(glyph, nullptr) << names[static_cast<std::size_t>(i)];
      EXPECT_EQ(run.glyphs[i], glyph) << names[static_cast<std::size_t>(i)];
      width += glyph->width;
    }
    EXPECT_EQ(run.width, width);
  }
  static std::vector<std::string> spelled(const std::string& text) {
    std::vector<std::string> names;
    for (const char c : text)
      names.push_back("U_ASCII_" + std::to_string(static_cast<int>(static_cast<unsigned char>(c))));
    return names;
  }
  static std::vector<std::string> followed_by(std::vector<std::string> names, const std::string& last) {
    names.push_back(last);
    return names;
  }
};

TEST_F(entry_line_view, digits_have_their_own_glyphs) {
  expect_glyphs(glyphs_of({23}), {"7_dig"});
  expect_glyphs(glyphs_of({38}), {"0_dig"});
  expect_glyphs(glyphs_of({39}), {"decimal"});
  expect_glyphs(glyphs_of({40}), {"U_ASCII_101"});
  expect_glyphs(glyphs_of({511}), {"hex_A"});
  expect_glyphs(glyphs_of({516}), {"hex_F"});
  expect_glyphs(glyphs_of({517}), {"base_dec"});
  expect_glyphs(glyphs_of({518}), {"base_hex"});
  expect_glyphs(glyphs_of({519}), {"base_bin"});
  expect_glyphs(glyphs_of({619}), {"base_oct"});
}

TEST_F(entry_line_view, operators_are_one_glyph) {
  expect_glyphs(glyphs_of({36}), {"PLUSS"});
  expect_glyphs(glyphs_of({111}), {"INV_LN"});
  expect_glyphs(glyphs_of({20}), {"U_ASCII_44"});
}

TEST_F(entry_line_view, functions_bring_their_parenthesis) {
  expect_glyphs(glyphs_of({5}), {"SIN", "start_paren"});
  expect_glyphs(glyphs_of({54 + 296}), followed_by(spelled("normalPdf"), "start_paren"));
}

TEST_F(entry_line_view, functions_without_arguments_hold_both_parentheses) {
  expect_glyphs(glyphs_of({490}), spelled("clrDraw()"));
}

TEST_F(entry_line_view, calls_spell_the_name_of_the_program) {
  expect_glyphs(glyphs_of({181, 5000 + 'a', 5000 + 'b'}), followed_by(spelled("ab"), "start_paren"));
  expect_glyphs(glyphs_of({182, 5000 + 'a'}), {"U_ASCII_97", "start_paren", "end_paren"});
  expect_glyphs(glyphs_of({181, 5000 + 'a'}, 1), {});
}

TEST_F(entry_line_view, brackets_answers_and_constants_are_one_glyph) {
  const struct {
    int token;
    const char* glyph;
  } rows[] = {{3, "start_paren"},
              {4, "end_paren"},
              {103, "start_brack_1"},
              {104, "end_brack_1"},
              {203, "start_brack_2"},
              {204, "end_brack_2"},
              {41, "Ans"},
              {1299, "matrix_ans"},
              {1300, "list_ans"},
              {1301, "string_ans"},
              {117, "pi"},
              {120, "imaginary"},
              {118, "rand_num"},
              {217, "e_constant"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.token);
    expect_glyphs(glyphs_of({row.token}), {row.glyph});
  }
}

TEST_F(entry_line_view, statistics_values_are_one_glyph) {
  for (int index = 0; index < NO_STATISTIC; ++index) {
    SCOPED_TRACE(index);
    expect_glyphs(glyphs_of({statistics_token(index)}), {statistics_glyph(index)});
  }
}

TEST_F(entry_line_view, hidden_parentheses_and_unknown_tokens_draw_nothing) {
  for (const int token : {42, 43, 10, 0}) expect_glyphs(glyphs_of({token}), {});
}

TEST_F(entry_line_view, memories_show_their_name_and_stores_an_arrow_before_it) {
  expect_glyphs(glyphs_of({2010}), {"U_ASCII_65"});
  expect_glyphs(glyphs_of({2069}), {"U_ASCII_151"});
  expect_glyphs(glyphs_of({2090}), spelled("[A]"));
  expect_glyphs(glyphs_of({3010}), {"save_m", "U_ASCII_65"});
}

TEST_F(entry_line_view, system_variables_and_function_slots_are_spelled) {
  expect_glyphs(glyphs_of({1424}), spelled("xMin"));
  expect_glyphs(glyphs_of({1600}), spelled("f1(x)"));
  std::vector<std::string> store = {"save_m"};
  for (const std::string& name : spelled("xMin")) store.push_back(name);
  expect_glyphs(glyphs_of({1524}), store);
}

TEST_F(entry_line_view, strings_show_their_quotes) {
  const std::vector<int> text = {668 + 'a', 668 + 'b'};
  expect_glyphs(glyphs_of(text, 0), spelled("\"a"));
  expect_glyphs(glyphs_of(text, 1), spelled("b\""));
}

TEST_F(entry_line_view, a_decimal_comma_changes_places_with_the_comma) {
  settings.decimalMark = 1;
  expect_glyphs(glyphs_of({39}), {"U_ASCII_44"});
  expect_glyphs(glyphs_of({20}), {"decimal"});
}

TEST_F(entry_line_view, every_token_there_is_draws_without_complaint) {
  for (int token = 0; token <= 0xFFFF; ++token) {
    show({token, token}, 1, true);
    ASSERT_TRUE(platform_.messages.empty()) << token << ": " << platform_.messages[0];
  }
}

TEST_F(entry_line_view, tokens_stand_side_by_side_in_the_map) {
  show({33, 5, 34}, 3, true);
  const TScreenMap& map = screen_map();
  ASSERT_EQ(map.count, 3);
  EXPECT_EQ(map.entries[0].left, 20);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(map.entries[i].token, i);
    EXPECT_EQ(map.entries[i].right - map.entries[i].left + 1, glyphs_of({33, 5, 34}, i).width);
    if (i == 0) continue;
    EXPECT_EQ(map.entries[i].left, map.entries[i - 1].right + 1);
  }
}

constexpr TRect LEFT_MARK = {9, 13, 15, 19};
constexpr TRect RIGHT_MARK = {224, 13, 230, 19};

bool empty(const std::vector<TColour>& colours) {
  for (const TColour colour : colours)
    if (colour != rgb(210, 203, 158)) return false;
  return true;
}

TEST_F(entry_line_view, a_long_line_without_cursor_begins_at_its_start) {
  show(std::vector<int>(60, 33), 60, false);
  EXPECT_EQ(screen_map().entries[0].token, 0);
  EXPECT_TRUE(empty(pixels(LEFT_MARK)));
  EXPECT_FALSE(empty(pixels(RIGHT_MARK)));
}

TEST_F(entry_line_view, a_long_line_with_its_cursor_at_the_end_shows_its_end) {
  show(std::vector<int>(60, 33), 60, true);
  EXPECT_GT(screen_map().entries[0].token, 0);
  EXPECT_EQ(screen_map().entries[screen_map().count - 1].token, 59);
  EXPECT_FALSE(empty(pixels(LEFT_MARK)));
  EXPECT_TRUE(empty(pixels(RIGHT_MARK)));
}

TEST_F(entry_line_view, a_short_line_has_no_marks) {
  show({33, 34}, 1, true);
  EXPECT_TRUE(empty(pixels(LEFT_MARK)));
  EXPECT_TRUE(empty(pixels(RIGHT_MARK)));
}

TEST_F(entry_line_view, as_many_glyphs_show_as_fit_into_202_pixels) {
  const int width = glyphs_of({33}).width;
  show(std::vector<int>(60, 33), 0, false);
  EXPECT_EQ(screen_map().count, 202 / width);
}

TEST_F(entry_line_view, nothing_shows_the_cursor_alone) {
  show({}, 0, true);
  EXPECT_EQ(screen_map().count, 0);
  EXPECT_FALSE(empty(pixels({20, 8, 30, 25})));
  show({}, 0, false);
  EXPECT_TRUE(empty(pixels({7, 8, 232, 25})));
}

// Where the cursor must stand by the map.
int cursor_x() {
  const TScreenMap& map = screen_map();
  int x = 20;
  for (int i = 0; i < map.count; ++i) {
    if (map.entries[i].token == entry_line.cursor) return map.entries[i].left;
    if (map.entries[i].token < entry_line.cursor) x = map.entries[i].right + 1;
  }
  return x;
}

void expect_cursor_in_view() {
  const TBitmap& cursor = *find_glyph("underline");
  const int x = cursor_x();
  ASSERT_LE(x + cursor.width, 222) << "cursor " << entry_line.cursor;
  for (int dy = 0; dy < cursor.height; ++dy)
    for (int dx = 0; dx < cursor.width; ++dx)
      EXPECT_TRUE(!cursor.ink(dx, dy) || screen().pixel(x + dx, 8 + dy) == BLACK) << entry_line.cursor;
}

TEST_F(entry_line_view, the_cursor_is_always_in_view) {
  std::vector<int> tokens;
  const int mixed[] = {33, 5, 350, 2090, 1424, 32768, 36, 4, 700, 1011};
  for (int i = 0; i < 99; ++i) tokens.push_back(mixed[i * 7 % 10]);
  for (int cursor = 0; cursor <= 99; ++cursor) {
    show(tokens, cursor, true);
    expect_cursor_in_view();
  }
}

TEST_F(entry_line_view, a_token_wider_than_the_line_leaves_the_cursor_in_view) {
  std::vector<int> tokens = {181};
  for (int i = 0; i < 80; ++i) tokens.push_back(5000 + 'm');
  tokens.push_back(4);
  for (const int cursor : {0, 81, 82}) {
    show(tokens, cursor, true);
    expect_cursor_in_view();
  }
}

TEST_F(entry_line_view, the_line_stays_within_its_rectangle) {
  const std::vector<TColour> above = pixels({0, 0, 239, 7}), below = pixels({0, 26, 239, 293});
  const std::vector<TColour> left = pixels({0, 8, 6, 25}), right = pixels({233, 8, 239, 25});
  show(std::vector<int>(60, 350), 30, true);
  EXPECT_EQ(pixels({0, 0, 239, 7}), above);
  EXPECT_EQ(pixels({0, 26, 239, 293}), below);
  EXPECT_EQ(pixels({0, 8, 6, 25}), left);
  EXPECT_EQ(pixels({233, 8, 239, 25}), right);
}

TEST_F(entry_line_view, a_tap_moves_the_cursor_to_the_token_drawn_there) {
  type("123");
  for (int i = 2; i >= 0; --i) {
    on_pen_down(screen_map().entries[i].left, 6);
    EXPECT_EQ(entry_line.cursor, i);
    on_pen_down(screen_map().entries[i].right, 25);
    EXPECT_EQ(entry_line.cursor, i);
    on_pen_up(0, 0);
  }
}

TEST_F(entry_line_view, a_tap_beside_the_tokens_or_off_the_line_moves_nothing) {
  type("123");
  const int x = screen_map().entries[0].left;
  for (const TPoint at : {TPoint{x, 5}, TPoint{x, 26}, TPoint{200, 12}, TPoint{19, 12}}) {
    on_pen_down(at.x, at.y);
    EXPECT_EQ(entry_line.cursor, 3);
    on_pen_up(at.x, at.y);
  }
}

TEST_F(entry_line_view, a_tap_on_a_scrolled_line_finds_the_token_that_shows) {
  for (int i = 0; i < 60; ++i) type("1");
  const TScreenMapEntry first = screen_map().entries[0];
  on_pen_down(first.left, 12);
  EXPECT_EQ(entry_line.cursor, first.token);
  EXPECT_GT(first.token, 0);
}

TEST_F(entry_line_view, a_tap_goes_back_to_editing_after_a_result) {
  type("1+2\r");
  on_pen_down(screen_map().entries[1].left, 12);
  EXPECT_EQ(entry_line.cursor, 1);
  EXPECT_FALSE(state.fresh_flag);
  EXPECT_STREQ(state.result_text, "");
}

TEST_F(entry_line_view, screens_without_a_line_take_no_taps_on_it) {
  type("123");
  const int x = screen_map().entries[0].left;
  for (const int mode : {PROGRAM_EDIT_MODE, PERIODIC_MODE, PLOT_MODE}) {
    state.calcMode = mode;
    on_pen_down(x, 12);
    EXPECT_EQ(entry_line.cursor, 3);
  }
  state.calcMode = COMP_MODE;
  state.alpha_active = true;
  on_pen_down(x, 12);
  EXPECT_EQ(entry_line.cursor, 3);
}

TEST_F(entry_line_view, nothing_is_drawn_over_a_plot) {
  state.calcMode = PLOT_MODE;
  paint();
  const std::vector<TColour> before = picture();
  eval("1+2");
  EXPECT_EQ(picture(), before);
}

}  // namespace
}  // namespace zephyl
