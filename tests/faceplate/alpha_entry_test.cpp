// Alpha entry: its pages, its limits, what Enter does with each kind, and its picture.

#include "faceplate/alpha_entry.h"

#include <cctype>
#include <set>

#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/alpha_view.h"
#include "faceplate/face.h"
#include "faceplate/indicators.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "faceplate/typed_keys.h"
#include "support/golden.h"

namespace zephyl {
namespace {

constexpr int SHIFT = 36, BACKSPACE = 37, BLANK = 38, SYMBOLS = 39, ENTER = 40, CANCEL = 41;
constexpr int Q = 10, W = 11, E = 12;

struct THandedOver {
  int kind;
  std::string text;
};
std::vector<THandedOver> handed_over;

bool take(int kind, const char* text) {
  handed_over.push_back({kind, text});
  return true;
}

class alpha : public face {
 protected:
  void SetUp() override { handed_over.clear(); }

  void start(int kind) {
    start_alpha_entry(kind);
    paint();
  }
  static std::string text() { return alpha_entry.text; }
};

TEST_F(alpha, the_blue_key_8_writes_a_string) {
  tap_keys({1, 24});
  EXPECT_TRUE(state.alpha_active);
  EXPECT_EQ(alpha_entry.kind, ALPHA_STRING);
  EXPECT_EQ(shifts(), "");
  tap_keys({Q, W, E, ENTER});
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(entry(), "\"qwe\"");
}

TEST_F(alpha, a_string_goes_in_at_the_cursor) {
  type("12");
  arrow(ARROW_LEFT);
  tap_keys({1, 24});
  type("a\r");
  EXPECT_EQ(entry(), "1\"a\"2");
}

TEST_F(alpha, neither_starts_on_an_error_nor_while_a_program_runs) {
  eval("1/0");
  tap_keys({1, 24});
  EXPECT_FALSE(state.alpha_active);
  tap_key(27);
  state.program_running = true;
  tap_keys({1, 24});
  EXPECT_FALSE(state.alpha_active);
}

TEST_F(alpha, each_letter_key_has_its_character_and_its_capital) {
  const std::string letters = "1234567890qwertyuiopasdfghjklzxcvbnm";
  for (int key = 0; key < 36; ++key) {
    start(ALPHA_STRING);
    tap_keys({key, SHIFT, key, key});
    const char plain = letters[static_cast<std::size_t>(key)];
    const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(plain)));
    EXPECT_EQ(text(), std::string{plain} + capital + plain);
  }
}

TEST_F(alpha, each_symbol_key_has_its_character) {
  const std::string symbols = "()[]{}<>*=:;,.'\"+-!#/\\_?$&~^%@|";
  for (int key = 0; key < 36; ++key) {
    start(ALPHA_STRING);
    tap_keys({SYMBOLS, key});
    const auto i = static_cast<std::size_t>(key);
    EXPECT_EQ(text(), i < symbols.size() ? std::string{symbols[i]} : "") << "key " << key;
  }
}

TEST_F(alpha, the_symbol_page_ends_after_one_key_and_drops_a_shift) {
  start(ALPHA_STRING);
  tap_keys({SHIFT, SYMBOLS});
  EXPECT_TRUE(alpha_entry.shift && alpha_entry.symbol_page);
  tap_key(0);
  EXPECT_FALSE(alpha_entry.shift || alpha_entry.symbol_page);
  tap_key(Q);
  EXPECT_EQ(text(), "(q");
}

TEST_F(alpha, a_symbol_key_without_a_symbol_ends_the_page_too) {
  start(ALPHA_STRING);
  tap_keys({SYMBOLS, 33});
  EXPECT_FALSE(alpha_entry.symbol_page);
  EXPECT_EQ(text(), "");
}

TEST_F(alpha, the_page_key_goes_to_and_fro) {
  start(ALPHA_STRING);
  tap_key(SYMBOLS);
  EXPECT_TRUE(alpha_entry.symbol_page);
  tap_key(SYMBOLS);
  EXPECT_FALSE(alpha_entry.symbol_page);
}

TEST_F(alpha, a_shifted_digit_is_the_digit_and_uses_the_shift_up) {
  start(ALPHA_STRING);
  tap_keys({SHIFT, 0, Q});
  EXPECT_EQ(text(), "1q");
}

TEST_F(alpha, backspace_takes_the_last_character) {
  start(ALPHA_STRING);
  tap_keys({Q, W, BACKSPACE});
  EXPECT_EQ(text(), "q");
  tap_keys({BACKSPACE, BACKSPACE});
  EXPECT_EQ(text(), "");
}

TEST_F(alpha, all_characters_can_be_typed) {
  for (const int kind : {ALPHA_STRING, ALPHA_OUTPUT_TEXT})
    for (int i = 0; i < ALPHA_CHARACTER_COUNT; ++i) {
      start(kind);
      type("x");
      type(std::string{alpha_characters[i]});
      EXPECT_EQ(text(), std::string("x") + alpha_characters[i]) << "index " << i;
    }
}

TEST_F(alpha, what_is_no_character_of_it_is_not_typed) {
  start(ALPHA_STRING);
  for (int character = 0; character < 300; ++character)
    if (character != 13 && character != 27 && !(character >= 32 && character < 127))
      on_char(static_cast<std::uint16_t>(character));
  type("`");
  arrow(ARROW_LEFT);
  arrow(ARROW_UP);
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(state.alpha_active);
}

TEST_F(alpha, a_letter_typed_on_the_symbol_page_ends_it_and_means_itself) {
  start(ALPHA_STRING);
  tap_key(SYMBOLS);
  type("a");
  EXPECT_EQ(text(), "a");
  EXPECT_FALSE(alpha_entry.symbol_page);
  tap_key(SYMBOLS);
  type("B");
  EXPECT_EQ(text(), "aB");
  EXPECT_FALSE(alpha_entry.symbol_page);
  tap_key(SYMBOLS);
  type("%");
  EXPECT_EQ(text(), "aB%");
  EXPECT_FALSE(alpha_entry.symbol_page);
}

TEST_F(alpha, a_letter_typed_with_the_shift_on_is_a_capital) {
  start(ALPHA_STRING);
  tap_key(SHIFT);
  type("ab");
  EXPECT_EQ(text(), "Ab");
}

TEST_F(alpha, the_keyboard_has_the_other_keys_too) {
  start(ALPHA_STRING);
  type("ab\bc d");
  arrow(ARROW_DELETE);
  EXPECT_EQ(text(), "ac ");
  type("\x1b");
  EXPECT_FALSE(state.alpha_active);
  EXPECT_EQ(codes(), "");
  start(ALPHA_STRING);
  type("x\r");
  EXPECT_EQ(entry(), "\"x\"");
}

TEST_F(alpha, a_typed_p_is_a_letter_in_statistics_too) {
  set_mode(STATS_MODE, false);
  start(ALPHA_STRING);
  type("p");
  EXPECT_EQ(text(), "p");
}

TEST_F(alpha, each_kind_has_its_limit) {
  const int limits[] = {22, 22, 15, 15, 15, 15, 22, 22, 22, 15, 15, 22};
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    start(kind);
    type(std::string(40, 'W'));
    EXPECT_EQ(text().size(), static_cast<std::size_t>(limits[kind])) << "kind " << kind;
  }
}

TEST_F(alpha, only_a_string_begins_or_ends_with_a_blank) {
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    start(kind);
    tap_key(BLANK);
    EXPECT_EQ(text(), kind == ALPHA_STRING ? " " : "") << "kind " << kind;
  }
  set_alpha_taker(ALPHA_OUTPUT_TEXT, take);
  start(ALPHA_OUTPUT_TEXT);
  type(" a b  \r");
  ASSERT_EQ(handed_over.size(), 1u);
  EXPECT_EQ(handed_over[0].text, "a b");
  start(ALPHA_STRING);
  type(" a \r");
  EXPECT_EQ(entry(), "\" a \"");
}

TEST_F(alpha, a_program_has_a_name_that_a_file_can_have) {
  for (const int kind : {ALPHA_NEW_PROGRAM, ALPHA_COPY_PROGRAM}) {
    start(kind);
    type("a*:./\\?|b");
    for (const int key : {8, 10, 13, 20, 21, 23, 30}) tap_keys({SYMBOLS, key});
    EXPECT_EQ(text(), "ab");
    EXPECT_FALSE(alpha_entry.symbol_page);
    type("()[]{}<>=;,'\"+");
    EXPECT_EQ(text(), "ab()[]{}<>=;,'\"+");
  }
}

TEST_F(alpha, enter_on_an_empty_text_does_nothing) {
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    if (kind == ALPHA_CONSTANT_UNIT) continue;
    set_alpha_taker(ALPHA_NEW_PROGRAM, take);
    start(kind);
    tap_key(ENTER);
    EXPECT_TRUE(state.alpha_active) << "kind " << kind;
  }
  EXPECT_TRUE(handed_over.empty());
  EXPECT_EQ(message(), "none");
}

TEST_F(alpha, a_unit_may_be_empty) {
  set_alpha_taker(ALPHA_CONSTANT_UNIT, take);
  start(ALPHA_CONSTANT_UNIT);
  tap_key(ENTER);
  EXPECT_FALSE(state.alpha_active);
  ASSERT_EQ(handed_over.size(), 1u);
  EXPECT_EQ(handed_over[0].text, "");
}

TEST_F(alpha, the_name_of_a_constant_is_kept_while_its_unit_is_asked) {
  set_alpha_taker(ALPHA_CONSTANT_UNIT, take);
  start(ALPHA_CONSTANT_NAME);
  type("speed\r");
  EXPECT_TRUE(state.alpha_active);
  EXPECT_EQ(alpha_entry.kind, ALPHA_CONSTANT_UNIT);
  EXPECT_EQ(text(), "");
  type("m/s\r");
  EXPECT_FALSE(state.alpha_active);
  ASSERT_EQ(handed_over.size(), 1u);
  EXPECT_EQ(handed_over[0].text, "m/s");
  EXPECT_STREQ(alpha_entry.constant_name, "speed");
}

TEST_F(alpha, the_owner_of_a_kind_gets_its_text) {
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    if (kind == ALPHA_CONSTANT_NAME || kind == ALPHA_STRING) continue;
    handed_over.clear();
    set_alpha_taker(kind, take);
    start(kind);
    type("Text\r");
    EXPECT_FALSE(state.alpha_active);
    ASSERT_EQ(handed_over.size(), 1u) << "kind " << kind;
    EXPECT_EQ(handed_over[0].kind, kind);
    EXPECT_EQ(handed_over[0].text, "Text");
  }
}

TEST_F(alpha, statements_go_with_their_codes) {
  const int codes[] = {-1, -1, 10, 11, 110, 15, 317, 217, -1, -1, 108, -1};
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) EXPECT_EQ(alpha_statement_code(kind), codes[kind]);
  EXPECT_EQ(alpha_statement_code(12), -1);
}

TEST_F(alpha, a_text_that_is_refused_stays_where_it_was_written) {
  set_alpha_taker(ALPHA_NEW_PROGRAM, [](int, const char*) { return false; });
  start(ALPHA_NEW_PROGRAM);
  type("Taken\r");
  EXPECT_TRUE(state.alpha_active);
  EXPECT_EQ(text(), "Taken");
  type("2");
  EXPECT_EQ(text(), "Taken2");
}

TEST_F(alpha, a_text_that_nobody_takes_is_not_lost) {
  set_alpha_taker(ALPHA_MENU_ITEM, nullptr);
  start(ALPHA_MENU_ITEM);
  type("item\r");
  EXPECT_EQ(message(), "Note | The text can't be used here: 'item'");
  EXPECT_TRUE(state.alpha_active);
  EXPECT_EQ(text(), "item");
}

TEST_F(alpha, a_string_that_does_not_fit_stays_up) {
  type(std::string(95, '1'));
  tap_keys({1, 24});
  type("abcdef\r");
  EXPECT_EQ(message(), "Limit | Reached expression size limit");
  EXPECT_TRUE(state.alpha_active);
  EXPECT_EQ(entry_line.expression.count, 95);
}

TEST_F(alpha, an_entry_begins_clean) {
  start(ALPHA_STRING);
  type("abc");
  tap_keys({SHIFT, SYMBOLS, CANCEL});
  EXPECT_FALSE(state.alpha_active);
  start(ALPHA_OUTPUT_TEXT);
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(alpha_entry.shift || alpha_entry.symbol_page);
}

TEST_F(alpha, the_screens_without_a_line_are_left) {
  for (const int mode : {PLOT_MODE, PERIODIC_MODE}) {
    state.calcMode = mode;
    start(ALPHA_CONSTANT_NAME);
    EXPECT_EQ(state.calcMode, COMP_MODE);
  }
  state.calcMode = PROGRAM_EDIT_MODE;
  start(ALPHA_OUTPUT_TEXT);
  EXPECT_EQ(state.calcMode, PROGRAM_EDIT_MODE);
}

TEST_F(alpha, the_keys_under_the_overlay_are_asleep) {
  start(ALPHA_STRING);
  on_pen_down(20, 280);  // the key 0
  on_pen_up(20, 280);
  on_pen_down(60, 60);  // a tab, under the overlay
  on_pen_up(60, 60);
  EXPECT_EQ(codes(), "");
  EXPECT_EQ(text(), "");
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(alpha, a_tap_on_the_line_moves_no_cursor) {
  type("12");
  start(ALPHA_STRING);
  on_pen_down(25, 15);
  EXPECT_EQ(entry_line.cursor, 2);
}

TEST_F(alpha, the_first_key_lies_where_the_overlay_does) {
  start(ALPHA_STRING);
  on_pen_down(12, 84);
  EXPECT_EQ(text(), "1");
  on_pen_up(12, 84);
  on_pen_down(11, 84);
  EXPECT_EQ(text(), "1");
}

TEST_F(alpha, keys_click) {
  settings.keyClick = 1;
  start(ALPHA_STRING);
  tap_keys({Q, SHIFT, SYMBOLS, 35, ENTER});
  EXPECT_EQ(platform_.clicks, 5);
}

TEST_F(alpha, what_is_painted_bit_by_bit_is_what_is_painted_at_once) {
  start(ALPHA_STRING);
  for (const int key : {Q, SHIFT, SYMBOLS, 3, W, BLANK, BACKSPACE, SHIFT, SYMBOLS}) {
    tap_key(key);
    const std::vector<TColour> shown = picture();
    paint();
    EXPECT_EQ(picture(), shown) << "key " << key;
  }
}

TEST_F(alpha, indicators_under_the_overlay_wait) {
  start(ALPHA_STRING);
  const std::vector<TColour> before = picture();
  state.blue_shift = state.hyp_shift = true;
  for (int part = PART_AC_AND_ARROWS; part <= PART_TRACE_LEDS; ++part)
    redraw_part(static_cast<TScreenPart>(part));
  EXPECT_EQ(picture(), before);
  alpha_entry.shift = true;
  redraw_part(PART_ALPHA_SHIFT);
  EXPECT_NE(picture(), before);
}

TEST_F(alpha, each_kind_has_its_label) {
  std::set<std::vector<TColour>> looks;
  for (int kind = 0; kind < ALPHA_PROMPT_COUNT; ++kind) {
    start(kind);
    looks.insert(pixels({13, 65, 120, 78}));
  }
  EXPECT_EQ(looks.size(), 10u);  // two kinds ask for a program's name, two for a prompt
  EXPECT_EQ(message(), "none");
}

TEST_F(alpha, an_unknown_kind_is_an_alarm) {
  start(12);
  EXPECT_EQ(message(), "Bitmap error | No prompt defined for alpha entry");
  tap_key(Q);
  EXPECT_EQ(text(), "");
  tap_key(CANCEL);
  EXPECT_FALSE(state.alpha_active);
}

TEST_F(alpha, the_symbols_of_a_program_name_are_fewer) {
  start(ALPHA_NEW_PROGRAM);
  tap_key(SYMBOLS);
  const std::vector<TColour> few = picture();
  start(ALPHA_STRING);
  tap_key(SYMBOLS);
  EXPECT_NE(picture(), few);
}

TEST_F(alpha, looks_as_it_should) {
  start(ALPHA_STRING);
  type("Zephyl is a calculator");
  expect_picture("alpha_letters", screen());
  tap_keys({SHIFT, SYMBOLS});
  expect_picture("alpha_symbols", screen());
  state.calcMode = PROGRAM_EDIT_MODE;
  start(ALPHA_NEW_PROGRAM);
  tap_key(SYMBOLS);
  paint();
  expect_picture("alpha_program_symbols", screen());
}

TEST_F(alpha, the_end_of_a_long_text_is_in_view) {
  start(ALPHA_STRING);
  type(std::string(21, 'W'));
  const std::vector<TColour> before = pixels({20, 8, 232, 25});
  type("i");
  EXPECT_NE(pixels({20, 8, 232, 25}), before);
}

}  // namespace
}  // namespace zephyl
