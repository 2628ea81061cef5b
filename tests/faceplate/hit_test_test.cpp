// Taps, characters and cursor keys find their key, or none.

#include "faceplate/hit_test.h"

#include <string>

#include "engine/state.h"
#include "faceplate/face.h"
#include "faceplate/typed_keys.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

class hit_test : public face {
 protected:
  static int tap(int x, int y) {
    KeyRect rect;
    return key_hit_test(x, y, -1, -1, rect);
  }
  static int typed(int character) {
    KeyRect rect;
    return key_hit_test(0, 0, character, -1, rect);
  }
  static int cursor(int cursor_key) {
    KeyRect rect;
    return key_hit_test(0, 0, -1, cursor_key, rect);
  }
  // "7": 23 and so on; every other character of the keyboard has no key.
  static void expect_characters(const std::vector<std::pair<int, int>>& keys) {
    for (int character = 0; character < 256; ++character) {
      int expected = NO_KEY;
      for (const auto& key : keys)
        if (key.first == character) expected = key.second;
      EXPECT_EQ(typed(character), expected) << "character " << character;
      state.blue_shift = false;
    }
  }
};

using TKeys = std::vector<std::pair<int, int>>;

TKeys joined(TKeys a, const TKeys& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const TKeys shared_keys = {{8, 20},   {13, 42},  {'=', 42}, {27, 27},  {'(', 3},  {')', 4},  {'*', 31},
                           {'+', 36}, {'-', 37}, {'.', 39}, {'/', 32}, {'0', 38}, {'1', 33}, {'2', 34},
                           {'3', 35}, {'4', 28}, {'5', 29}, {'6', 30}, {'7', 23}, {'8', 24}, {'9', 25}};

TEST_F(hit_test, each_corner_of_a_key_is_inside) {
  for (int key = 0; key < calculator_keys.count; ++key) {
    const TRect rect = rect_of(calculator_keys, key);
    for (const int x : {rect.left, rect.right})
      for (const int y : {rect.top, rect.bottom}) EXPECT_EQ(tap(x, y), key) << x << ", " << y;
  }
}

TEST_F(hit_test, one_pixel_outside_of_a_key_is_no_key) {
  const TRect rect = rect_of(calculator_keys, 23);
  EXPECT_EQ(tap(rect.left - 1, rect.top), NO_KEY);
  EXPECT_EQ(tap(rect.right + 1, rect.top), NO_KEY);
  EXPECT_EQ(tap(rect.left, rect.top - 1), NO_KEY);
  EXPECT_EQ(tap(rect.left, rect.bottom + 1), NO_KEY);
  EXPECT_EQ(tap(-5, -5), NO_KEY);
  EXPECT_EQ(tap(1000, 1000), NO_KEY);
}

TEST_F(hit_test, the_key_comes_with_its_rectangle) {
  KeyRect rect;
  ASSERT_EQ(key_hit_test(20, 200, -1, -1, rect), 23);
  EXPECT_EQ(rect.left, 3);
  EXPECT_EQ(rect.bottom, 213);
}

TEST_F(hit_test, the_dead_pixel_of_plots_is_key_0) {
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(tap(7, 7), 0);
  EXPECT_EQ(tap(8, 7), NO_KEY);
  for (int y = 0; y < SCREEN_HEIGHT; ++y)
    for (int x = 0; x < SCREEN_WIDTH; ++x) {
      EXPECT_NE(tap(x, y), 18);
      EXPECT_NE(tap(x, y), 19);
    }
}

TEST_F(hit_test, surfaces_have_their_keys_18_and_19) {
  state.calcMode = PLOT_MODE;
  plot_variables.plotType = PLOT_3D;
  EXPECT_EQ(tap(97, 271), 18);
  EXPECT_EQ(tap(151, 286), 19);
}

TEST_F(hit_test, the_overlay_of_alpha_entry_moves_its_keys) {
  state.alpha_active = true;
  EXPECT_EQ(tap(12, 84), 0);
  EXPECT_EQ(tap(12, 83), NO_KEY);
  EXPECT_EQ(tap(11, 84), NO_KEY);
}

TEST_F(hit_test, list_and_matrix_rows_lie_one_pixel_lower) {
  state.calcMode = MATRIX_MODE;
  EXPECT_EQ(tap(100, 268), NO_KEY);
  EXPECT_EQ(tap(100, 269), 6);
  EXPECT_EQ(tap(100, 290), 6);
}

TEST_F(hit_test, the_first_of_two_cells_that_touch_wins) {
  state.calcMode = LIST_MODE;
  EXPECT_EQ(tap(30, 119), 32);
  EXPECT_EQ(tap(30, 120), 37);
}

TEST_F(hit_test, comp_maps_its_characters) {
  expect_characters(
      joined(shared_keys, {{'!', 18}, {',', 19}, {'E', 40}, {'e', 40}, {'^', 13}, {'{', 3}, {'}', 4}}));
}

TEST_F(hit_test, stats_maps_its_characters) {
  state.calcMode = STATS_MODE;
  expect_characters(joined(shared_keys, {{',', 19}, {'E', 40}, {'e', 40}}));
}

TEST_F(hit_test, base_maps_hexadecimal_digits_in_either_case) {
  state.calcMode = BASE_MODE;
  TKeys keys = shared_keys;
  for (int i = 0; i < 6; ++i) keys = joined(keys, {{'A' + i, 11 + i}, {'a' + i, 11 + i}});
  expect_characters(keys);
}

TEST_F(hit_test, plots_map_their_characters) {
  state.calcMode = PLOT_MODE;
  expect_characters(
      {{'+', 3}, {'-', 4}, {'C', 23}, {'c', 23}, {'F', 2}, {'f', 2}, {'P', 1}, {'p', 1}, {'x', 5}, {'y', 6}});
}

TEST_F(hit_test, screens_without_digit_keys_take_no_characters) {
  for (const int mode : {PROGRAM_EDIT_MODE, PERIODIC_MODE, MATRIX_MODE, LIST_MODE}) {
    state.calcMode = mode;
    expect_characters({});
  }
}

TEST_F(hit_test, alpha_entry_finds_every_character) {
  state.alpha_active = true;
  const std::string plain = "1234567890qwertyuiopasdfghjklzxcvbnm", capitals = "QWERTYUIOPASDFGHJKLZXCVBNM",
                    symbols = "()[]{}<>*=:;,.'\"+-!#/\\_?$&~^%@|";
  TKeys keys = {{' ', 38}, {8, 37}, {27, 41}, {13, 40}};
  for (int i = 0; i < static_cast<int>(plain.size()); ++i)
    keys.push_back({plain[static_cast<std::size_t>(i)], i});
  for (int i = 0; i < static_cast<int>(capitals.size()); ++i)
    keys.push_back({capitals[static_cast<std::size_t>(i)], i + 10 + 100});
  for (int i = 0; i < static_cast<int>(symbols.size()); ++i)
    keys.push_back({symbols[static_cast<std::size_t>(i)], i + 200});
  expect_characters(keys);
}

TEST_F(hit_test, a_typed_capital_hands_out_the_rectangle_of_its_letter) {
  state.alpha_active = true;
  KeyRect rect;
  ASSERT_EQ(key_hit_test(0, 0, 'Q', -1, rect), 110);
  EXPECT_EQ(rect.left, 12);
  EXPECT_EQ(rect.top, 107);
}

struct TCursorKeys {
  int mode;
  bool alpha;
  int keys[7];  // by TArrow
};

TEST_F(hit_test, cursor_keys_by_mode) {
  constexpr TCursorKeys rows[] = {
      {COMP_MODE, false, {-1, 22, 21, 20, -1, -1, -1}},  {BASE_MODE, false, {-1, 22, 21, 20, -1, -1, -1}},
      {STATS_MODE, false, {-1, 22, 21, 20, -1, -1, -1}}, {PLOT_MODE, false, {-1, 9, 8, -1, 10, 11, 7}},
      {COMP_MODE, true, {-1, -1, -1, 37, -1, -1, -1}},   {LIST_MODE, false, {-1, -1, -1, -1, -1, -1, -1}}};
  for (const TCursorKeys& row : rows) {
    state.calcMode = row.mode;
    state.alpha_active = row.alpha;
    for (int arrow = 1; arrow <= 6; ++arrow)
      EXPECT_EQ(cursor(arrow), row.keys[arrow]) << row.mode << ' ' << arrow;
  }
}

TEST_F(hit_test, a_cursor_key_goes_before_a_character) {
  KeyRect rect;
  EXPECT_EQ(key_hit_test(0, 0, '7', ARROW_LEFT, rect), 21);
}

TEST_F(hit_test, a_brace_sets_the_blue_shift_in_comp_alone) {
  typed('{');
  EXPECT_TRUE(state.blue_shift);
  state.blue_shift = false;
  state.calcMode = STATS_MODE;
  typed('}');
  EXPECT_FALSE(state.blue_shift);
}

TEST_F(hit_test, the_poll_learns_what_a_tap_would_be) {
  EXPECT_EQ(tap_kind(20, 200), TAP_KEY);
  EXPECT_EQ(tap_kind(120, 36), TAP_NO_KEY);
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(tap_kind(195, 250), TAP_CANCEL_PROOF_KEY);
  EXPECT_EQ(tap_kind(20, 250), TAP_KEY);
}

}  // namespace
}  // namespace zephyl
