#include "plot/plot_variables.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class plot_variable : public ::testing::Test {
 protected:
  plot_variable() {
    set_platform(&platform_);
    register_plot_variables();
    told().clear();
    hooks.redraw_part = [](TScreenPart part) { told().push_back("part " + std::to_string(part)); };
    hooks.redraw_title = [] { told().push_back("title"); };
    hooks.plot_changed = [] { told().push_back("plot"); };
  }
  ~plot_variable() override { set_platform(nullptr); }

  static std::vector<std::string>& told() {
    static std::vector<std::string> lines;
    return lines;
  }

  static double read(int number) { return read_system_variable(number).re; }

  static std::string write(int number, double re, double im = 0.0) {
    clear_error();
    write_system_variable(number, {re, im});
    return errors.error_flag ? errors.error_text : "";
  }

  static void expect_choices(int number, int high) {
    for (int choice = 1; choice <= high; ++choice) {
      EXPECT_EQ(write(number, choice), "");
      EXPECT_EQ(read(number), choice);
    }
    for (const double wrong : {0.0, high + 1.0, 1.5}) EXPECT_EQ(write(number, wrong), "Domain Error");
    EXPECT_EQ(write(number, 1, 1), "Data Type Error");
    EXPECT_EQ(read(number), high);
  }

  TTestPlatform platform_;
};

using TLines = std::vector<std::string>;

TEST_F(plot_variable, all_start_at_their_defaults) {
  const struct {
    int number;
    double value;
  } defaults[] = {{VAR_ENABLE_PLOTS, 2},
                  {VAR_CONNECT_DOTS, 2},
                  {VAR_DISPLAY_GRID, 2},
                  {VAR_PLOT_CURSOR, 1},
                  {VAR_PLOT_TYPE, 1},
                  {VAR_PLOT_TYPE_3D, 1},
                  {VAR_T_MAX, 6.283185307179586},
                  {VAR_T_MIN, 0},
                  {VAR_T_STEP, 0.006283185307179587},
                  {VAR_THETA_MAX, 6.283185307179586},
                  {VAR_THETA_MIN, 0},
                  {VAR_THETA_STEP, 0.006283185307179587},
                  {VAR_X_MAX, 10},
                  {VAR_X_MIN, -10},
                  {VAR_Y_MAX, 10},
                  {VAR_Y_MIN, -10},
                  {VAR_Z_SCALE, 1}};
  for (const auto& row : defaults) EXPECT_EQ(read(row.number), row.value) << row.number;
}

TEST_F(plot_variable, switches_are_1_or_2) {
  expect_choices(VAR_ENABLE_PLOTS, 2);
  expect_choices(VAR_CONNECT_DOTS, 2);
  expect_choices(VAR_DISPLAY_GRID, 2);
}

TEST_F(plot_variable, types_and_cursor_have_their_ranges) {
  expect_choices(VAR_PLOT_TYPE, 4);
  EXPECT_EQ(plot_variables.plotType, PLOT_3D);
  expect_choices(VAR_PLOT_CURSOR, 4);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_ROTATE);
  expect_choices(VAR_PLOT_TYPE_3D, 3);
  EXPECT_EQ(plot_variables.plotType3D, PLOT_SPHERICAL);
}

TEST_F(plot_variable, t_and_theta_are_one_range) {
  write(VAR_T_MAX, 5);
  write(VAR_THETA_MIN, -5);
  write(VAR_T_STEP, 0.5);
  EXPECT_EQ(read(VAR_THETA_MAX), 5.0);
  EXPECT_EQ(read(VAR_T_MIN), -5.0);
  EXPECT_EQ(read(VAR_THETA_STEP), 0.5);
}

TEST_F(plot_variable, ranges_and_the_scale_take_any_value) {
  EXPECT_EQ(write(VAR_T_MAX, -1e200), "");
  EXPECT_EQ(write(VAR_T_STEP, -3), "");
  EXPECT_EQ(write(VAR_Z_SCALE, 1e200), "");
  EXPECT_EQ(read(VAR_T_MAX), -1e200);
  EXPECT_EQ(read(VAR_Z_SCALE), 1e200);
}

TEST_F(plot_variable, the_v_range_is_not_that_of_t) {
  write(VAR_T_MAX, 5);
  EXPECT_EQ(plot_variables.v.max, 6.283185307179586);
}

TEST_F(plot_variable, no_number_is_complex) {
  for (int number = VAR_T_MAX; number <= VAR_Z_SCALE; ++number)
    EXPECT_EQ(write(number, 1, 1), "Data Type Error");
}

TEST_F(plot_variable, a_bound_that_fits_the_view_is_taken) {
  EXPECT_EQ(write(VAR_X_MAX, 20), "");
  EXPECT_EQ(write(VAR_X_MIN, 15), "");
  EXPECT_EQ(write(VAR_Y_MIN, -1e100), "");
  EXPECT_EQ(write(VAR_Y_MAX, 1e100), "");
  EXPECT_EQ(read(VAR_X_MAX), 20.0);
  EXPECT_EQ(read(VAR_X_MIN), 15.0);
  EXPECT_EQ(read(VAR_Y_MIN), -1e100);
  EXPECT_EQ(read(VAR_Y_MAX), 1e100);
}

TEST_F(plot_variable, a_bound_that_does_not_fit_is_dropped_in_silence) {
  for (const int number : {VAR_X_MAX, VAR_Y_MAX})
    for (const double wrong : {-10.0, -11.0, 1e101}) {
      EXPECT_EQ(write(number, wrong), "");
      EXPECT_EQ(read(number), 10.0);
    }
  for (const int number : {VAR_X_MIN, VAR_Y_MIN})
    for (const double wrong : {10.0, 11.0, -1e101}) {
      EXPECT_EQ(write(number, wrong), "");
      EXPECT_EQ(read(number), -10.0);
    }
  EXPECT_EQ(told(), TLines{});
}

TEST_F(plot_variable, a_view_is_taken_as_a_whole) {
  EXPECT_TRUE(set_plot_view(1, 2, 3, 4));
  EXPECT_EQ(plot_variables.xMin, 1.0);
  EXPECT_EQ(plot_variables.yMin, 2.0);
  EXPECT_EQ(plot_variables.xMax, 3.0);
  EXPECT_EQ(plot_variables.yMax, 4.0);
}

TEST_F(plot_variable, a_view_that_does_not_fit_changes_nothing) {
  EXPECT_FALSE(set_plot_view(5, 0, 5, 1));
  EXPECT_FALSE(set_plot_view(0, 5, 1, 5));
  EXPECT_FALSE(set_plot_view(0, 0, 1e101, 1));
  EXPECT_FALSE(set_plot_view(0, -1e101, 1, 1));
  EXPECT_FALSE(set_plot_view(0, 0, 1, std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_EQ(plot_variables.yMax, 10.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(plot_variable, every_change_asks_for_a_new_plot) {
  for (int number = VAR_ENABLE_PLOTS; number <= VAR_PLOT_TYPE_3D; ++number) {
    if (number == VAR_TICK_COUNT) continue;
    told().clear();
    const bool is_choice = number < VAR_T_MAX || number == VAR_PLOT_TYPE_3D;
    const double value = is_choice ? 3.0 - read(number) : read(number) + 0.5;
    EXPECT_EQ(write(number, value), "");
    ASSERT_FALSE(told().empty()) << number;
    EXPECT_EQ(told()[0], "plot") << number;
    told().clear();
    write(number, value);
    EXPECT_EQ(told(), TLines{}) << number;
  }
}

TEST_F(plot_variable, the_cursor_shows_in_its_lamps_and_the_title) {
  write(VAR_PLOT_CURSOR, 3);
  EXPECT_EQ(told(), (TLines{"plot", "part " + std::to_string(PART_TRACE_LEDS), "title"}));
}

TEST_F(plot_variable, the_type_shows_in_the_title_and_the_front) {
  write(VAR_PLOT_TYPE, 4);
  EXPECT_EQ(told(), (TLines{"plot", "title"}));
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(plot_variable, defaults_take_the_keys_of_3d_from_the_screen) {
  platform_.paint_requested = false;
  set_plot_defaults();
  EXPECT_FALSE(platform_.paint_requested);
  set_plot_type(PLOT_3D);
  set_plot_defaults();
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(plot_variable, defaults_bring_all_back_but_the_kind_of_3d) {
  plot_variables = {PLOT_3D, PLOT_SPHERICAL, CURSOR_ROTATE, 0, 0, 0, 1, 2, 3,
                    4,       {1, 2, 3},      {4, 5, 6},     7, 8, 9};
  set_plot_defaults();
  EXPECT_EQ(plot_variables.plotType, PLOT_FUNCTION);
  EXPECT_EQ(plot_variables.plotType3D, PLOT_SPHERICAL);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
  EXPECT_EQ(plot_variables.connectDots, 1);
  EXPECT_EQ(plot_variables.displayGrid, 1);
  EXPECT_EQ(plot_variables.enablePlots, 1);
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_EQ(plot_variables.xMax, 10.0);
  EXPECT_EQ(plot_variables.yMin, -10.0);
  EXPECT_EQ(plot_variables.yMax, 10.0);
  EXPECT_EQ(plot_variables.v.max, 6.283185307179586);
  EXPECT_EQ(plot_variables.zScale, 1.0);
  EXPECT_EQ(plot_variables.rotation_x, 0.0);
  EXPECT_EQ(plot_variables.rotation_y, 0.0);
  EXPECT_EQ(told()[0], "part " + std::to_string(PART_TRACE_LEDS));
}

TEST_F(plot_variable, default_ranges_are_a_turn_in_the_angle_mode_of_that_moment) {
  settings.angleMode = DEGREES;
  set_plot_defaults();
  EXPECT_EQ(plot_variables.t.min, 0.0);
  EXPECT_EQ(plot_variables.t.max, 360.0);
  EXPECT_EQ(plot_variables.t.step, 0.36);
  EXPECT_EQ(plot_variables.v.max, 360.0);
  settings.angleMode = GRADS;
  EXPECT_EQ(read(VAR_T_MAX), 360.0);
  set_plot_defaults();
  EXPECT_EQ(plot_variables.t.max, 400.0);
  EXPECT_EQ(plot_variables.t.step, 0.4);
  EXPECT_EQ(plot_variables.v.step, 0.4);
}

TEST_F(calculator, view_variables_are_read_and_written_by_expressions) {
  EXPECT_EQ(eval("20->xMax"), "20");
  EXPECT_EQ(eval("(xMax)-(xMin)"), "30");
  EXPECT_EQ(eval("-50->xMax"), "-50");
  EXPECT_EQ(eval("(xMax)"), "20");
}

}  // namespace
}  // namespace zephyl
