// The pen on the plot, by cursor, and a program that takes it for itself.

#include <cmath>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/values.h"
#include "plot/custom_function.h"
#include "plot/pen_position.h"
#include "plot/plot_labels.h"
#include "plot/plot_marks.h"
#include "plot/plot_points.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

class plot_pen : public plotting {
 protected:
  plot_pen() { without_grid(); }

  static void choose_cursor(int cursor) { plot_variables.plotCursor = cursor; }

  // What the marks of a trace must look like on the plot as it is.
  struct TNumber {
    const char* name;
    double value;
    int left, row;
  };
  static void expect_trace(TSurface plot, double column, double row, TColour colour,
                           const std::vector<TNumber>& numbers) {
    draw_cross(plot, column, row, colour, MARKER_DOTS);
    for (const TNumber& number : numbers)
      draw_small_line(plot, number.name, number.value, number.left, number.row);
    EXPECT_TRUE(same_picture(plot, shown_plot()));
  }
};

TEST_F(plot_pen, is_taken_on_the_plot_only) {
  EXPECT_FALSE(plot_pen_down(6, 50));
  EXPECT_FALSE(plot_pen_down(233, 50));
  EXPECT_FALSE(plot_pen_down(50, 5));
  EXPECT_FALSE(plot_pen_down(50, 186));
  EXPECT_TRUE(plot_pen_down(7, 6));
  EXPECT_TRUE(state.drag_in_progress);
  plot_pen_up(7, 6);
  EXPECT_FALSE(state.drag_in_progress);
  EXPECT_TRUE(plot_pen_down(232, 185));
  state.calcMode = COMP_MODE;
  EXPECT_FALSE(plot_pen_down(50, 50));
}

// --- Trace

TEST_F(plot_pen, traces_a_function) {
  put(PLOT_FUNCTION, 1, "x/2");
  trace_functions.slot[PLOT_FUNCTION] = 1;
  const TSurface plot = draw();
  pen_down(158, 30);
  const double x = 158 * 20 * 0.004424778761061947 - 10;
  expect_trace(plot, 158, std::floor(90 - x / 2 * 9), RED,
               {{"SMALL_XTRACE", x, 2, 160}, {"SMALL_YTRACE", x / 2, 2, 170}});
}

TEST_F(plot_pen, leaves_the_plot_itself_as_it_is) {
  put(PLOT_FUNCTION, 0, "x");
  const TSurface plot = draw();
  pen_drag({20, 20}, {60, 60});
  EXPECT_FALSE(same_picture(plot, shown_plot()));
  show_plot();
  EXPECT_TRUE(same_picture(plot, shown_plot()));
}

TEST_F(plot_pen, shows_the_word_of_an_undefined_value_and_no_horizontal_line) {
  put(PLOT_FUNCTION, 0, "1/x");
  const TSurface plot = draw();
  pen_down(113, 30);
  EXPECT_EQ(plot_error_code, ERR_ZERO_DIVIDE);
  expect_trace(plot, 113, undefined_value, BLUE,
               {{"SMALL_XTRACE", 0.0, 2, 160}, {"SMALL_YTRACE", undefined_value, 2, 170}});
}

TEST_F(plot_pen, shows_data_type_for_a_complex_value) {
  put(PLOT_FUNCTION, 0, "x+(i)");
  draw();
  pen_down(50, 30);
  EXPECT_EQ(plot_error_code, ERR_DATA_TYPE);
  EXPECT_EQ(message(), "none");
}

TEST_F(plot_pen, traces_nothing_where_the_followed_slot_is_empty) {
  put(PLOT_FUNCTION, 1, "x");
  const TSurface plot = draw();
  pen_down(50, 30);
  EXPECT_TRUE(same_picture(plot, shown_plot()));
}

TEST_F(plot_pen, traces_nothing_while_plots_are_disabled) {
  put(PLOT_FUNCTION, 0, "x");
  plot_variables.enablePlots = 0;
  draw();
  pen_down(50, 30);
  EXPECT_EQ(ink(), 0);
}

TEST_F(plot_pen, traces_the_nearest_point_of_a_polar_curve) {
  choose(PLOT_POLAR);
  put(PLOT_POLAR, 0, "6");
  plot_variables.t = {0.0, 6.25, 0.25};
  const TSurface plot = draw();
  pen_down(112, 5);
  const TPlotPoint& point = plot_points[6];
  expect_trace(plot, point.column, point.row, BLUE,
               {{"SMALL_THETA", 1.5, 2, 160}, {"SMALL_RTRACE", 6.0, 2, 170}});
}

TEST_F(plot_pen, traces_the_nearest_point_of_a_parametric_curve) {
  choose(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 2, "t");
  put(PLOT_PARAMETRIC, 3, "-t");
  trace_functions.slot[PLOT_PARAMETRIC] = 2;
  plot_variables.t = {-8.0, 8.0, 1.0};
  const TSurface plot = draw();
  pen_down(146, 115);
  const TPlotPoint& point = plot_points[11];
  TSurface measure(300, 20);
  const int end = draw_small_line(measure, "SMALL_XTTRACE", 3.0, 2, 2);
  expect_trace(
      plot, point.column, point.row, RED,
      {{"SMALL_T", 3.0, 2, 160}, {"SMALL_XTTRACE", 3.0, 2, 170}, {"SMALL_YTTRACE", -3.0, end + 4, 170}});
}

TEST_F(plot_pen, traces_the_slot_values_of_a_surface) {
  choose(PLOT_3D, PLOT_SPHERICAL);
  put_surface(0, "u", "v", "5");
  draw();
  const TPlotPoint point = plot_points[30];
  const TSurface plot = shown_plot();
  pen_down(static_cast<int>(point.column), static_cast<int>(point.row));
  const TPlotPoint& nearest = *nearest_plot_point(pen_x({static_cast<int>(point.column), 0}),
                                                  pen_y({0, static_cast<int>(point.row)}));
  TSurface measure(300, 20);
  const int end = draw_small_line(measure, "SMALL_THETA_B_3D", nearest.values[1], 2, 2);
  expect_trace(plot, nearest.column, nearest.row, BLUE,
               {{"SMALL_THETA_A_3D", nearest.values[0], 2, 160},
                {"SMALL_THETA_B_3D", nearest.values[1], 2, 170},
                {"SMALL_R_3D", 5.0, end + 4, 170}});
}

TEST_F(plot_pen, follows_the_drag_and_stays_where_it_was_lifted) {
  put(PLOT_FUNCTION, 0, "x");
  const TSurface plot = draw();
  pen_down(20, 20);
  pen_move(60, 50);
  pen_up(60, 50);
  const double x = 60 * 20 * 0.004424778761061947 - 10;
  expect_trace(plot, 60, std::floor(90 - x * 9), BLUE,
               {{"SMALL_XTRACE", x, 2, 160}, {"SMALL_YTRACE", x, 2, 170}});
}

TEST_F(plot_pen, leaves_variables_and_answers_alone) {
  state.calcMode = COMP_MODE;
  eval("42->x");
  state.calcMode = PLOT_MODE;
  put(PLOT_FUNCTION, 0, "x^(2)");
  draw();
  pen_down(20, 20);
  EXPECT_EQ(memory_array[SLOT_X].re, 42.0);
  EXPECT_EQ(answers.ans.re, 42.0);
}

// --- Marks

TEST_F(plot_pen, a_cross_has_dots_at_the_corners_of_its_point) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  draw_cross(surface, 50, 60, RED, MARKER_DOTS);
  for (const int dx : {-1, 1})
    for (const int dy : {-1, 1}) EXPECT_EQ(surface.pixel(50 + dx, 60 + dy), RED);
  EXPECT_EQ(surface.pixel(52, 62), WHITE);
  EXPECT_EQ(surface.pixel(50, 0), RED);
  EXPECT_EQ(surface.pixel(225, 60), RED);
}

TEST_F(plot_pen, a_calculated_point_has_a_hollow_box_of_two_frames) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  draw_cross(surface, 50, 60, RED, MARKER_BOX);
  EXPECT_EQ(surface.pixel(45, 55), RED);
  EXPECT_EQ(surface.pixel(54, 64), RED);
  EXPECT_EQ(surface.pixel(53, 63), WHITE);
  EXPECT_EQ(surface.pixel(56, 66), WHITE);
}

TEST_F(plot_pen, a_cross_leaves_out_the_line_that_lies_outside) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  draw_cross(surface, 50, -3000, RED, MARKER_BOX);
  EXPECT_EQ(surface.pixel(50, 179), RED);
  EXPECT_EQ(surface.pixel(49, 1), WHITE);
  draw_cross(surface, 226, 60, GREEN, MARKER_BOX);
  EXPECT_EQ(surface.pixel(0, 60), GREEN);
  EXPECT_EQ(surface.pixel(225, 59), WHITE);
}

// --- Box zoom

TEST_F(plot_pen, zooms_into_a_box) {
  choose_cursor(CURSOR_BOX_ZOOM);
  draw();
  pen_drag({113, 45}, {169, 90});
  EXPECT_NEAR(plot_variables.xMin, 0.0, 1e-12);
  EXPECT_NEAR(plot_variables.xMax, 56 * 20 / 226.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMin, 0.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMax, 5.0, 1e-12);
}

TEST_F(plot_pen, zooms_into_a_box_drawn_from_any_corner) {
  choose_cursor(CURSOR_BOX_ZOOM);
  draw();
  pen_drag({169, 90}, {113, 45});
  EXPECT_NEAR(plot_variables.xMin, 0.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMax, 5.0, 1e-12);
}

TEST_F(plot_pen, zooms_only_into_a_box_of_more_than_10_pixels_either_way) {
  choose_cursor(CURSOR_BOX_ZOOM);
  const TSurface plot = draw();
  pen_drag({20, 20}, {30, 70});
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_TRUE(same_picture(plot, shown_plot()));
  pen_drag({20, 20}, {70, 30});
  EXPECT_EQ(plot_variables.xMin, -10.0);
  pen_drag({20, 20}, {31, 31});
  EXPECT_GT(plot_variables.xMin, -10.0);
}

TEST_F(plot_pen, reaches_the_far_bounds_of_the_view_from_outside) {
  choose_cursor(CURSOR_BOX_ZOOM);
  draw();
  pen_drag({113, 90}, {400, 500});
  EXPECT_NEAR(plot_variables.xMax, 10.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMin, -10.0, 1e-12);
  set_plot_view(-10, -10, 10, 10);
  pen_drag({113, 90}, {-400, -500});
  EXPECT_NEAR(plot_variables.xMin, -10.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMax, 10.0, 1e-12);
}

TEST_F(plot_pen, shows_the_box_while_it_is_drawn) {
  choose_cursor(CURSOR_BOX_ZOOM);
  draw();
  pen_down(20, 30);
  EXPECT_EQ(ink(), 0);
  pen_move(60, 80);
  EXPECT_EQ(shown_plot().pixel(20, 30), BLACK);
  EXPECT_EQ(shown_plot().pixel(21, 30), WHITE);
  EXPECT_EQ(shown_plot().pixel(22, 80), BLACK);
  EXPECT_EQ(shown_plot().pixel(60, 32), BLACK);
  EXPECT_EQ(shown_plot().pixel(40, 50), WHITE);
}

// --- Pan

TEST_F(plot_pen, pans_the_view_with_the_drag) {
  choose_cursor(CURSOR_PAN);
  draw();
  pen_drag({50, 50}, {163, 95});
  EXPECT_NEAR(plot_variables.xMin, -20.0, 1e-12);
  EXPECT_NEAR(plot_variables.xMax, 0.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMin, -5.0, 1e-12);
  EXPECT_NEAR(plot_variables.yMax, 15.0, 1e-12);
}

TEST_F(plot_pen, pans_nothing_by_less_than_2_pixels) {
  choose_cursor(CURSOR_PAN);
  const TSurface plot = draw();
  pen_drag({50, 50}, {51, 49});
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_TRUE(same_picture(plot, shown_plot()));
  pen_drag({50, 50}, {52, 50});
  EXPECT_LT(plot_variables.xMin, -10.0);
}

TEST_F(plot_pen, shows_the_plot_displaced_with_a_pattern_beside_it) {
  choose_cursor(CURSOR_PAN);
  put(PLOT_FUNCTION, 0, "0");
  draw();
  pen_down(50, 50);
  pen_move(80, 70);
  EXPECT_EQ(shown_plot().pixel(30, 110), BLUE);
  EXPECT_EQ(shown_plot().pixel(30, 90), WHITE);
  EXPECT_EQ(shown_plot().pixel(29, 110), shown_plot().pixel(27, 110));
  EXPECT_NE(shown_plot().pixel(29, 110), shown_plot().pixel(28, 110));
}

// --- Rotate

TEST_F(plot_pen, turns_a_surface) {
  choose(PLOT_3D);
  choose_cursor(CURSOR_ROTATE);
  put_surface(0, "u", "v", "u");
  const TSurface plot = draw();
  pen_down(50, 50);
  pen_move(70, 40);
  EXPECT_FALSE(same_picture(plot, shown_plot()));
  pen_up(70, 40);
  EXPECT_EQ(plot_variables.rotation_x, 20.0);
  EXPECT_EQ(plot_variables.rotation_y, -10.0);
}

TEST_F(plot_pen, turns_nothing_without_a_surface) {
  choose(PLOT_3D);
  choose_cursor(CURSOR_ROTATE);
  draw();
  pen_drag({50, 50}, {90, 90});
  EXPECT_EQ(plot_variables.rotation_x, 0.0);
}

TEST_F(plot_pen, traces_with_the_rotate_cursor_on_a_plane) {
  choose_cursor(CURSOR_ROTATE);
  put(PLOT_FUNCTION, 0, "x");
  const TSurface plot = draw();
  pen_down(50, 50);
  EXPECT_FALSE(same_picture(plot, shown_plot()));
  EXPECT_EQ(plot_variables.rotation_x, 0.0);
}

// --- Programs

TEST_F(plot_pen, is_a_position_in_plot_units_for_a_program_that_watches_it) {
  choose_cursor(CURSOR_PAN);
  draw();
  state.program_running = true;
  state.plot_stylus_x = state.plot_stylus_y = 0.0;
  pen_down(113, 45);
  EXPECT_NEAR(state.plot_stylus_x, 0.0, 1e-12);
  EXPECT_EQ(state.plot_stylus_y, 5.0);
  EXPECT_FALSE(state.drag_in_progress);
  pen_move(226, 180);
  EXPECT_NEAR(state.plot_stylus_x, 10.0, 1e-12);
  EXPECT_EQ(state.plot_stylus_y, -10.0);
  pen_up(0, 0);
  EXPECT_EQ(state.plot_stylus_x, -10.0);
  EXPECT_EQ(plot_variables.xMin, -10.0);
}

TEST_F(plot_pen, works_the_plot_while_no_program_watches_it) {
  choose_cursor(CURSOR_PAN);
  draw();
  state.program_running = true;
  state.plot_stylus_x = undefined_value;
  pen_down(113, 45);
  EXPECT_TRUE(state.drag_in_progress);
  pen_move(60, 45);
  pen_up(60, 45);
  EXPECT_GT(plot_variables.xMin, -10.0);
  EXPECT_EQ(state.plot_stylus_x, undefined_value);
}

TEST_F(plot_pen, leaves_the_plot_alone_while_a_program_watches_the_keys) {
  choose_cursor(CURSOR_PAN);
  draw();
  state.program_running = true;
  state.plot_stylus_x = undefined_value;
  state.plot_button = 0;
  pen_drag({50, 50}, {90, 90});
  EXPECT_EQ(plot_variables.xMin, -10.0);
}

TEST_F(plot_pen, has_no_effect_when_the_poll_has_used_it_up) {
  choose_cursor(CURSOR_PAN);
  draw();
  pen_down(50, 50);
  state.swallow_up = true;
  pen_up(90, 90);
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_FALSE(state.drag_in_progress);
  EXPECT_FALSE(state.swallow_up);
}

}  // namespace
}  // namespace zephyl
