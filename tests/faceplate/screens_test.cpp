// The screens as a whole, their indicators, and the look of a pressed key.

#include "faceplate/screens.h"

#include <algorithm>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/display.h"
#include "faceplate/face.h"
#include "faceplate/indicators.h"
#include "faceplate/key_feedback.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"
#include "programs/run_state.h"

namespace zephyl {
namespace {

class screens : public face {};

TEST_F(screens, every_mode_paints_in_every_skin) {
  for (int mode = BASE_MODE; mode <= LIST_MODE; ++mode)
    for (int skin = 0; skin <= 3; ++skin)
      for (int type = PLOT_FUNCTION; type <= PLOT_3D; type += PLOT_3D) {
        state.calcMode = mode;
        settings.skin = skin;
        plot_variables.plotType = type;
        paint();
      }
  EXPECT_EQ(message(), "none");
}

TEST_F(screens, each_mode_looks_different) {
  std::vector<std::vector<TColour>> looks;
  for (int mode = BASE_MODE; mode <= LIST_MODE; ++mode) {
    state.calcMode = mode;
    paint();
    for (const std::vector<TColour>& other : looks) EXPECT_NE(picture(), other) << "mode " << mode;
    looks.push_back(picture());
  }
}

TEST_F(screens, a_mode_out_of_range_paints_nothing) {
  const std::vector<TColour> before = picture();
  state.calcMode = 8;
  paint();
  EXPECT_EQ(picture(), before);
  EXPECT_EQ(message(), "Bitmap error | bitmap not found");
}

TEST_F(screens, a_setting_out_of_range_shows_its_first_picture_and_is_reported) {
  settings.angleMode = 0;
  paint();
  const std::vector<TColour> first = picture();
  settings.angleMode = 5;
  paint();
  EXPECT_EQ(picture(), first);
  EXPECT_EQ(message(), "Bitmap error | bitmap not found");
}

TEST_F(screens, a_skin_out_of_range_is_the_first) {
  const std::vector<TColour> first = picture();
  settings.skin = 7;
  paint();
  EXPECT_EQ(picture(), first);
  settings.skin = 1;
  paint();
  EXPECT_NE(picture(), first);
}

TEST_F(screens, the_display_has_its_colour_with_red_in_the_low_byte) {
  EXPECT_EQ(screen().pixel(7, 6), rgb(210, 203, 158));
  EXPECT_EQ(screen().pixel(232, 46), rgb(210, 203, 158));
  settings.display_color = 0x030201;
  paint();
  EXPECT_EQ(screen().pixel(120, 45), rgb(1, 2, 3));
}

TEST_F(screens, brightness_leaves_the_display_alone) {
  const TColour background = screen().pixel(0, 100);
  settings.brightness = 200;
  paint();
  EXPECT_NE(screen().pixel(0, 100), background);
  EXPECT_EQ(screen().pixel(120, 45), rgb(210, 203, 158));
}

TEST_F(screens, a_plot_lies_in_the_display) {
  state.calcMode = PLOT_MODE;
  paint();
  const TSurface& plot = shown_plot();
  for (int y = 0; y < PLOT_HEIGHT; ++y)
    for (int x = 0; x < PLOT_WIDTH; ++x) ASSERT_EQ(screen().pixel(PLOT_LEFT + x, PLOT_TOP + y), plot.pixel(x, y));
}

TEST_F(screens, the_fourth_tab_and_the_dynamic_key_follow_the_dynamic_mode) {
  constexpr TRect fourth_tab = {121, 54, 157, 66}, dynamic_key = {147, 192, 189, 213};
  const std::vector<TColour> stats_tab = pixels(fourth_tab), stats_key = pixels(dynamic_key);
  for (const int mode : {MATRIX_MODE, LIST_MODE}) {
    state.dynamic_mode = mode;
    paint();
    EXPECT_NE(pixels(fourth_tab), stats_tab);
    EXPECT_NE(pixels(dynamic_key), stats_key);
  }
  state.dynamic_mode = BASE_MODE;
  paint();
  EXPECT_NE(pixels(fourth_tab), stats_tab);
  EXPECT_EQ(pixels(dynamic_key), stats_key);
}

TEST_F(screens, a_decimal_comma_changes_two_keys_and_no_others) {
  const std::vector<TColour> before = picture();
  settings.decimalMark = 1;
  paint();
  const std::vector<TColour> after = picture();
  bool comma_key = false, point_key = false;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] == after[i]) continue;
    const int x = static_cast<int>(i) % SCREEN_WIDTH, y = static_cast<int>(i) / SCREEN_WIDTH;
    const bool at_comma = TRect{83, 162, 118, 180}.contains(x, y);
    const bool at_point = TRect{51, 270, 93, 291}.contains(x, y);
    EXPECT_TRUE(at_comma || at_point) << x << ", " << y;
    comma_key |= at_comma;
    point_key |= at_point;
  }
  EXPECT_TRUE(comma_key);
  EXPECT_TRUE(point_key);
}

TEST_F(screens, base_keeps_its_point_key) {
  state.calcMode = BASE_MODE;
  paint();
  const std::vector<TColour> before = picture();
  settings.decimalMark = 1;
  paint();
  EXPECT_EQ(picture(), before);
}

class indicators : public face {
 protected:
  // Repaints one indicator after a change; the picture must be what a whole repaint makes of it.
  template <typename TChange>
  static void expect_redraw(TScreenPart part, const TChange& change) {
    paint();
    const std::vector<TColour> before = picture();
    change();
    redraw_part(part);
    const std::vector<TColour> redrawn = picture();
    EXPECT_NE(redrawn, before) << "part " << part;
    paint();
    EXPECT_EQ(picture(), redrawn) << "part " << part;
  }
};

TEST_F(indicators, each_repaints_by_itself_as_the_whole_screen_would) {
  for (int skin = 0; skin < 3; ++skin) {
    settings.skin = skin;
    state.calcMode = COMP_MODE;
    expect_redraw(PART_AC_AND_ARROWS, [] { errors.error_flag = !errors.error_flag; });
    expect_redraw(PART_AC_AND_ARROWS, [] { errors.error_flag = !errors.error_flag; });
    expect_redraw(PART_ORANGE, [] { state.orange_shift = !state.orange_shift; });
    expect_redraw(PART_BLUE, [] { state.blue_shift = !state.blue_shift; });
    expect_redraw(PART_HYP, [] { state.hyp_shift = !state.hyp_shift; });
    expect_redraw(PART_SHIFTS, [] { state.orange_shift = !state.orange_shift; });
    expect_redraw(PART_ANGLE, [] { settings.angleMode = (settings.angleMode + 1) % 3; });
    expect_redraw(PART_RUN, [] { state.program_running = run.key_run = !state.program_running; });
    state.calcMode = STATS_MODE;
    expect_redraw(PART_STATS_VAR, [] { settings.statsVar = 1 - settings.statsVar; });
    expect_redraw(PART_REGRESSION, [] { settings.statsRegress = (settings.statsRegress + 1) % 4; });
    expect_redraw(PART_BLUE, [] { state.blue_shift = !state.blue_shift; });
    state.calcMode = BASE_MODE;
    expect_redraw(PART_BASE_TYPE, [] { settings.baseType = (settings.baseType + 1) % 4; });
    expect_redraw(PART_BASE_BITS, [] { settings.baseBits = (settings.baseBits + 1) % 3; });
    state.calcMode = PROGRAM_EDIT_MODE;
    expect_redraw(PART_BLUE, [] { state.blue_shift = !state.blue_shift; });
    state.calcMode = PLOT_MODE;
    expect_redraw(PART_TRACE_LEDS, [] { plot_variables.plotCursor = (plot_variables.plotCursor + 1) % 3; });
  }
}

// Which indicators each mode's screen holds.
struct THeldParts {
  int mode;
  std::vector<TScreenPart> parts;
};

TEST_F(indicators, each_acts_only_on_a_screen_that_holds_it) {
  const THeldParts rows[] = {
      {BASE_MODE, {PART_AC_AND_ARROWS, PART_SHIFTS, PART_BLUE, PART_BASE_TYPE, PART_BASE_BITS, PART_RUN}},
      {COMP_MODE, {PART_AC_AND_ARROWS, PART_SHIFTS, PART_ORANGE, PART_BLUE, PART_HYP, PART_ANGLE, PART_RUN}},
      {STATS_MODE, {PART_AC_AND_ARROWS, PART_SHIFTS, PART_BLUE, PART_STATS_VAR, PART_REGRESSION, PART_RUN}},
      {PROGRAM_EDIT_MODE, {PART_SHIFTS, PART_BLUE}},
      {PERIODIC_MODE, {}},
      {PLOT_MODE, {PART_PLOT_LEDS, PART_TRACE_LEDS}},
      {MATRIX_MODE, {}},
      {LIST_MODE, {}},
      {8, {}}};
  for (const THeldParts& row : rows)
    for (int part = PART_AC_AND_ARROWS; part <= PART_TRACE_LEDS; ++part) {
      state.calcMode = row.mode;
      screen_surface().fill({0, 0, 239, 293}, rgb(1, 2, 3));
      const std::vector<TColour> blank = picture();
      redraw_part(static_cast<TScreenPart>(part));
      const bool held = std::find(row.parts.begin(), row.parts.end(), part) != row.parts.end();
      EXPECT_EQ(picture() != blank, held) << "mode " << row.mode << " part " << part;
    }
}

TEST_F(indicators, shifts_show_at_once) {
  const std::vector<TColour> before = picture();
  tap_key(1);
  const std::vector<TColour> shifted = picture();
  EXPECT_NE(shifted, before);
  paint();
  EXPECT_EQ(picture(), shifted);
  tap_key(1);
  EXPECT_EQ(picture(), before);
}

TEST_F(indicators, an_error_turns_three_keys_red_until_it_is_cleared) {
  constexpr TRect ac_key = {194, 192, 236, 213}, left_key = {161, 162, 196, 179},
                  right_key = {200, 162, 235, 179};
  const auto ac = pixels(ac_key), left = pixels(left_key), right = pixels(right_key);
  type("1/0\r");
  EXPECT_NE(pixels(ac_key), ac);
  EXPECT_NE(pixels(left_key), left);
  EXPECT_NE(pixels(right_key), right);
  tap_key(21);
  EXPECT_EQ(pixels(ac_key), ac);
  EXPECT_EQ(pixels(left_key), left);
  EXPECT_EQ(pixels(right_key), right);
}

class key_feedback : public face {
 protected:
  // What the picture becomes while a key is pressed.
  static std::vector<TColour> pressed(const TRect& key, int inner_height) {
    TSurface expected(SCREEN_WIDTH, SCREEN_HEIGHT);
    expected.blit(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT, screen(), 0, 0);
    expected.blit(key.left + 2, key.top + 2, key.right - key.left - 4, inner_height, screen(), key.left + 3,
                  key.top + 3);
    return {expected.pixels(), expected.pixels() + SCREEN_WIDTH * SCREEN_HEIGHT};
  }
};

TEST_F(key_feedback, the_inside_moves_up_and_left) {
  const TRect key = {5, 102, 40, 119};
  const std::vector<TColour> expected = pressed(key, 14);
  press_key_feedback(key);
  EXPECT_EQ(picture(), expected);
}

TEST_F(key_feedback, keys_of_20_and_21_rows_move_as_many_rows) {
  std::vector<TColour> expected = pressed({5, 102, 40, 121}, 16);
  press_key_feedback({5, 102, 40, 121});
  EXPECT_EQ(picture(), expected);
  release_key_feedback();
  expected = pressed({5, 102, 40, 122}, 16);
  press_key_feedback({5, 102, 40, 122});
  EXPECT_EQ(picture(), expected);
}

TEST_F(key_feedback, a_release_puts_everything_back) {
  const std::vector<TColour> before = picture();
  for (int key = 0; key < calculator_keys.count; ++key) {
    press_key_feedback(rect_of(calculator_keys, key));
    release_key_feedback();
    EXPECT_EQ(picture(), before) << "key " << key;
  }
}

TEST_F(key_feedback, a_rectangle_without_an_inside_is_left_alone) {
  const std::vector<TColour> before = picture();
  press_key_feedback({7, 7, 7, 7});
  EXPECT_EQ(picture(), before);
  release_key_feedback();
  EXPECT_EQ(picture(), before);
}

TEST_F(key_feedback, a_tap_shows_and_its_end_takes_it_back) {
  tap_key(33);
  const std::vector<TColour> key = pixels({3, 244, 45, 265});
  press_key_down(33);
  EXPECT_NE(pixels({3, 244, 45, 265}), key);
  on_pen_up(0, 0);
  EXPECT_EQ(pixels({3, 244, 45, 265}), key);
}

TEST_F(key_feedback, a_repaint_releases_the_key) {
  const std::vector<TColour> key = pixels({3, 244, 45, 265});
  press_key_down(33);
  paint();
  EXPECT_EQ(pixels({3, 244, 45, 265}), key);
}

TEST_F(key_feedback, an_indicator_that_changes_under_the_pen_stays_changed) {
  type("1/0\r");
  press_key_down(27);
  on_pen_up(0, 0);
  const std::vector<TColour> after = picture();
  paint();
  EXPECT_EQ(picture(), after);
}

TEST_F(key_feedback, an_indicator_repainted_under_the_pen_looks_pressed) {
  press_key_down(1);
  const std::vector<TColour> down = pixels({83, 72, 118, 89});
  on_pen_up(0, 0);
  EXPECT_NE(pixels({83, 72, 118, 89}), down);
}

TEST_F(key_feedback, typed_keys_do_not_show) {
  type("1");
  const std::vector<TColour> before = pixels({0, 60, 239, 293});
  type("2");
  EXPECT_EQ(pixels({0, 60, 239, 293}), before);
}

}  // namespace
}  // namespace zephyl
