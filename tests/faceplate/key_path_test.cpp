// The road of an input through the key path: feedback, pauses, clicks, shifts, modes, the pen.

#include "faceplate/key_path.h"

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/poll.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

class key_path : public face {};

constexpr TRect RESULT_RECT = {7, 27, 232, 44};

TEST_F(key_path, two_plus_sine_of_thirty_by_taps) {
  tap_key(16);
  tap_key(16);
  const std::vector<TColour> empty = pixels(RESULT_RECT);
  tap_keys({34, 36, 5, 35, 38, 4});
  EXPECT_EQ(entry(), "2+sin(30)");
  EXPECT_EQ(pixels(RESULT_RECT), empty);
  tap_key(42);
  EXPECT_STREQ(state.result_text, "2.5");
  EXPECT_NE(pixels(RESULT_RECT), empty);
}

TEST_F(key_path, two_plus_sine_of_thirty_typed) {
  settings.angleMode = DEGREES;
  type("2+");
  tap_key(5);
  type("30)\r");
  EXPECT_STREQ(state.result_text, "2.5");
}

TEST_F(key_path, what_is_painted_bit_by_bit_is_what_is_painted_at_once) {
  tap_keys({34, 36, 5, 35, 38, 4, 42});
  const std::vector<TColour> shown = picture();
  paint();
  EXPECT_EQ(picture(), shown);
}

TEST_F(key_path, a_typed_brace_enters_the_second_bracket) {
  type("{1,2}");
  EXPECT_EQ(codes(), "203 33 20 34 204");
  EXPECT_EQ(shifts(), "");
}

TEST_F(key_path, a_typed_brace_goes_before_the_orange_shift) {
  tap_key(0);
  type("{");
  EXPECT_EQ(codes(), "203");
  EXPECT_EQ(shifts(), "");
}

TEST_F(key_path, a_typed_comma_never_clears_the_statistics) {
  settings.keyClick = 1;
  state.calcMode = STATS_MODE;
  type(",");
  EXPECT_EQ(platform_.clicks, 0);
  tap_key(19);
  EXPECT_EQ(platform_.clicks, 1);
}

TEST_F(key_path, arrows_edit) {
  type("12");
  arrow(ARROW_LEFT);
  EXPECT_EQ(entry_line.cursor, 1);
  arrow(ARROW_DELETE);
  EXPECT_EQ(codes(), "33");
  arrow(ARROW_RIGHT);
  arrow(ARROW_HOME);
  EXPECT_EQ(entry_line.cursor, 1);
}

TEST_F(key_path, escape_clears) {
  type("12\x1b");
  EXPECT_EQ(codes(), "");
}

TEST_F(key_path, a_tap_outside_of_every_key_changes_nothing) {
  settings.keyClick = 1;
  tap_key(1);
  const std::vector<TColour> before = picture();
  const int clicks = platform_.clicks;
  on_pen_down(120, 36);
  EXPECT_EQ(picture(), before);
  on_pen_up(120, 36);
  EXPECT_EQ(picture(), before);
  EXPECT_EQ(platform_.clicks, clicks);
  EXPECT_EQ(shifts(), "blue ");
}

TEST_F(key_path, keys_click_only_where_the_setting_says_so) {
  tap_key(33);
  EXPECT_EQ(platform_.clicks, 0);
  settings.keyClick = 1;
  tap_key(33);
  EXPECT_EQ(platform_.clicks, 1);
}

TEST_F(key_path, before_the_start_is_done_no_token_goes_in) {
  state.init_done = false;
  tap_key(33);
  EXPECT_EQ(codes(), "");
}

TEST_F(key_path, a_key_ends_a_pause_and_does_nothing_else) {
  settings.keyClick = 1;
  state.key_wait = true;
  tap_key(33);
  EXPECT_FALSE(state.key_wait);
  EXPECT_EQ(codes(), "");
  EXPECT_EQ(platform_.clicks, 1);
}

TEST_F(key_path, a_typed_brace_leaves_no_shift_behind) {
  state.key_wait = true;
  type("{");
  EXPECT_FALSE(state.key_wait);
  EXPECT_FALSE(state.blue_shift);
  state.program_running = true;
  type("}");
  EXPECT_FALSE(state.blue_shift);
  state.program_running = false;
  tap_key(33);
  EXPECT_EQ(codes(), "33");
}

TEST_F(key_path, a_tap_on_the_line_moves_no_cursor_while_a_program_works) {
  tap_keys({33, 36, 33});
  state.program_running = true;
  on_pen_down(22, 15);
  EXPECT_EQ(entry_line.cursor, 3);
  state.program_running = false;
  on_pen_down(22, 15);
  EXPECT_EQ(entry_line.cursor, 0);
}

TEST_F(key_path, tabs_and_scrolling_leave_a_pause_standing) {
  state.key_wait = true;
  tap_keys({43, 44, 50, 51});
  EXPECT_TRUE(state.key_wait);
}

TEST_F(key_path, a_program_that_watches_gets_the_view_keys) {
  state.calcMode = PLOT_MODE;
  state.program_running = true;
  state.plot_button = 0;
  for (int key = 7; key <= 11; ++key) {
    press_key_down(key);
    EXPECT_EQ(state.plot_button, key - 6);
    on_pen_up(0, 0);
    EXPECT_EQ(state.plot_button, 0);
  }
}

TEST_F(key_path, a_program_that_does_not_watch_gets_none) {
  state.calcMode = PLOT_MODE;
  state.program_running = true;
  press_key_down(9);
  EXPECT_EQ(state.plot_button, -1);
  on_pen_up(0, 0);
  EXPECT_EQ(state.plot_button, -1);
}

TEST_F(key_path, an_unknown_mode_is_reported) {
  state.calcMode = 8;
  bool needs_repaint = false;
  EXPECT_EQ(key_pressed_decoder(needs_repaint, 3), -1);
  EXPECT_TRUE(needs_repaint);
  EXPECT_EQ(message(), "key_pressed_decoder | Invalid calculator mode");
}

TEST_F(key_path, no_key_of_any_mode_breaks_the_calculator) {
  for (int mode = BASE_MODE; mode <= LIST_MODE; ++mode) {
    state.calcMode = mode;
    for (int key = 0; key < shown_key_table().count; ++key) {
      tap_key(key);
      state.calcMode = mode;
    }
  }
  EXPECT_EQ(message(), "none");
  state.calcMode = COMP_MODE;
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(key_path, any_event_anywhere_leaves_a_calculator_that_answers) {
  unsigned random = 1;
  const auto next = [&random](unsigned below) {
    return (random = random * 1664525u + 1013904223u) / 65536u % below;
  };
  for (int i = 0; i < 20000; ++i) {
    const int x = static_cast<int>(next(260)) - 10, y = static_cast<int>(next(310)) - 8;
    switch (next(5)) {
      case 0:
        on_char(static_cast<std::uint16_t>(next(300)));
        break;
      case 1:
        on_arrow(static_cast<TArrow>(1 + next(6)));
        break;
      case 2:
        on_pen_move(x, y);
        break;
      default:
        on_pen_down(x, y);
        if (next(8)) on_pen_up(x, y);
        break;
    }
    if (platform_.take_paint_request()) on_paint();
  }
  for (const std::string& shown : platform_.messages)
    EXPECT_EQ(shown, "Limit | Reached expression size limit");
  settings = {};
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(key_path, a_pen_down_that_the_poll_took_swallows_its_pen_up) {
  press_key_down(34);
  const std::vector<TColour> pressed = picture();
  platform_.pen_downs.push_back({120, 36});
  EXPECT_FALSE(pump_messages());
  EXPECT_TRUE(platform_.pen_downs.empty());
  EXPECT_TRUE(state.swallow_up);
  state.drag_in_progress = true;
  on_pen_up(120, 36);
  EXPECT_FALSE(state.swallow_up);
  EXPECT_FALSE(state.drag_in_progress);
  EXPECT_EQ(picture(), pressed);
  on_pen_up(120, 36);
  EXPECT_NE(picture(), pressed);
}

TEST_F(key_path, a_new_pen_down_ends_the_swallowing) {
  state.swallow_up = true;
  press_key_down(34);
  EXPECT_FALSE(state.swallow_up);
}

TEST_F(key_path, a_tap_on_a_key_during_an_evaluation_cancels_it) {
  platform_.pen_downs.push_back({20, 200});
  EXPECT_TRUE(pump_messages());
  EXPECT_STREQ(errors.error_text, "Operation Canceled");
  EXPECT_EQ(platform_.pen_downs.size(), 1u);
}

TEST_F(key_path, what_waits_to_be_painted_is_painted_by_the_poll) {
  settings.display_color = 0;
  platform_.paint_requested = true;
  pump_messages();
  EXPECT_EQ(screen().pixel(120, 45), BLACK);
}

TEST_F(key_path, the_pen_never_leaves_a_drag_behind) {
  state.drag_in_progress = true;
  on_pen_down(120, 36);
  EXPECT_FALSE(state.drag_in_progress);
  state.drag_in_progress = true;
  on_pen_up(120, 36);
  EXPECT_FALSE(state.drag_in_progress);
}

TEST_F(key_path, an_idle_calculator_sleeps) { EXPECT_FALSE(on_idle()); }

TEST_F(key_path, a_start_is_quiet_and_complete) {
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(platform_.title, "Zephyl");
  EXPECT_TRUE(state.init_done);
  EXPECT_TRUE(state.fresh_flag);
  EXPECT_TRUE(state.nothing_evaluated);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(key_path, a_second_start_is_as_good_as_the_first) {
  tap_keys({1, 34, 42, 2});
  settings.skin = 2;
  plot_variables.xMax = 3.0;
  on_start();
  paint();
  EXPECT_EQ(settings.skin, 0);
  EXPECT_EQ(plot_variables.xMax, 10.0);
  EXPECT_EQ(codes(), "");
  EXPECT_EQ(shifts(), "");
}

}  // namespace
}  // namespace zephyl
