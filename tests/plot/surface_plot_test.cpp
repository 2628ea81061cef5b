// Wireframes: sampling, the turn of the eye, axes with their letters, drags.

#include "plot/surface_plot.h"

#include <cmath>

#include "engine/errors.h"
#include "engine/state.h"
#include "engine/values.h"
#include "plot/axis_letters.h"
#include "plot/plot_points.h"
#include "plot/plotting.h"
#include "plot/rotation.h"
#include "plot/surface_mesh.h"

namespace zephyl {
namespace {

class surface_plot : public plotting {
 protected:
  surface_plot() {
    choose(PLOT_3D);
    plot_variables.t = plot_variables.v = {-5.0, 5.0, 0.2};
  }
  static const TMeshPoint& point(int row, int column) { return surface_mesh(0).points[row][column]; }
};

// --- Samples

TEST_F(surface_plot, has_at_most_51_by_51_samples) {
  put_surface(0, "u", "v", "0");
  draw();
  EXPECT_EQ(surface_mesh(0).rows, 51);
  EXPECT_EQ(surface_mesh(0).columns, 51);
  EXPECT_EQ(plot_point_count, 2601);
}

TEST_F(surface_plot, writes_a_step_back_that_it_had_to_change) {
  put_surface(0, "u", "v", "0");
  for (const double step : {0.0, -1.0, 0.1, 11.0, 1e-300}) {
    plot_variables.t.step = step;
    draw();
    EXPECT_EQ(plot_variables.t.step, 0.02 * 10.0) << step;
  }
  plot_variables.t.step = 5.0;
  draw();
  EXPECT_EQ(plot_variables.t.step, 5.0);
  EXPECT_EQ(surface_mesh(0).rows, 3);
}

TEST_F(surface_plot, of_a_range_without_width_has_one_sample_across) {
  put_surface(0, "u", "v", "0");
  plot_variables.t = {2.0, 2.0, 0.1};
  draw();
  EXPECT_EQ(surface_mesh(0).rows, 1);
  EXPECT_EQ(point(0, 50).x, 2.0);
}

TEST_F(surface_plot, of_a_min_above_the_max_is_the_axes_alone) {
  put_surface(0, "u", "v", "0");
  plot_variables.t = {5.0, -5.0, 0.2};
  draw();
  EXPECT_EQ(count_of(BLUE), 0);
  EXPECT_GT(count_of(BLACK), 100);
}

TEST_F(surface_plot, runs_u_over_rows_and_v_over_columns) {
  put_surface(0, "u", "v", "u+10v");
  draw();
  EXPECT_EQ(point(0, 0).x, -5.0);
  EXPECT_EQ(point(50, 0).x, 5.0);
  EXPECT_EQ(point(0, 50).y, 5.0);
  EXPECT_DOUBLE_EQ(point(25, 50).z, 50.0);
}

TEST_F(surface_plot, cartesian_takes_x_y_and_a_scaled_z) {
  plot_variables.zScale = 3.0;
  put_surface(0, "1", "2", "4");
  draw();
  EXPECT_EQ(point(3, 3).x, 1.0);
  EXPECT_EQ(point(3, 3).y, 2.0);
  EXPECT_EQ(point(3, 3).z, 12.0);
}

TEST_F(surface_plot, cylindrical_takes_angle_radius_and_a_scaled_height) {
  choose(PLOT_3D, PLOT_CYLINDRICAL);
  settings.angleMode = DEGREES;
  plot_variables.zScale = 3.0;
  put_surface(0, "90", "2", "4");
  draw();
  EXPECT_NEAR(point(3, 3).x, 0.0, 1e-12);
  EXPECT_NEAR(point(3, 3).y, 2.0, 1e-12);
  EXPECT_EQ(point(3, 3).z, 12.0);
}

TEST_F(surface_plot, spherical_takes_angle_polar_angle_and_radius) {
  choose(PLOT_3D, PLOT_SPHERICAL);
  settings.angleMode = GRADS;
  plot_variables.zScale = 3.0;
  put_surface(0, "100", "50", "2");
  draw();
  EXPECT_NEAR(point(3, 3).x, 0.0, 1e-12);
  EXPECT_NEAR(point(3, 3).y, 2.0 * std::sqrt(0.5), 1e-12);
  EXPECT_NEAR(point(3, 3).z, 3.0 * 2.0 * std::sqrt(0.5), 1e-12);
}

TEST_F(surface_plot, limits_the_z_scale_when_it_starts) {
  plot_variables.zScale = 1e200;
  draw();
  EXPECT_EQ(plot_variables.zScale, 1e100);
  plot_variables.zScale = -1e200;
  draw();
  EXPECT_EQ(plot_variables.zScale, -1e100);
}

TEST_F(surface_plot, a_sample_with_an_undefined_slot_is_no_point) {
  for (int k = 0; k < 3; ++k) {
    const char* slots[3] = {"u", "v", "u"};
    slots[k] = "0/(u v)";
    for (const int type : {PLOT_CARTESIAN, PLOT_CYLINDRICAL, PLOT_SPHERICAL}) {
      choose(PLOT_3D, type);
      put_surface(0, slots[0], slots[1], slots[2]);
      draw();
      EXPECT_EQ(plot_points[25 * 51 + 3].x, undefined_value);
      EXPECT_NE(plot_points[24 * 51 + 3].x, undefined_value);
    }
  }
}

TEST_F(surface_plot, an_undefined_sample_breaks_its_row_and_its_column) {
  without_grid();
  plot_variables.t = plot_variables.v = {-5.0, 5.0, 2.5};
  put_surface(0, "u", "v", "0");
  draw();
  const int whole = count_of(BLUE);
  const TPlotPoint middle = plot_points[12];
  put_surface(0, "u", "v", "0/(abs(u)+abs(v))");
  draw();
  EXPECT_LT(count_of(BLUE), whole);
  EXPECT_GT(count_of(BLUE), whole * 3 / 4);
  EXPECT_NE(shown_plot().pixel(static_cast<int>(middle.column), static_cast<int>(middle.row)), BLUE);
}

TEST_F(surface_plot, an_overflow_in_the_coordinates_leaves_the_sample_as_it_stands) {
  plot_variables.zScale = 1e100;
  put_surface(0, "u", "v", "1e300");
  draw();
  EXPECT_EQ(point(3, 3).z, 0.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(surface_plot, draws_the_traced_surface_last_and_keeps_its_values) {
  without_grid();
  put_surface(0, "u", "v", "0");
  put_surface(1, "u", "v", "0");
  draw();
  EXPECT_EQ(count_of(PURPLE), 0);
  EXPECT_GT(count_of(BLUE), 0);
  trace_functions.slot[PLOT_3D] = 3;
  put_surface(1, "u", "v", "7");
  draw();
  EXPECT_GT(count_of(PURPLE), 0);
  EXPECT_EQ(plot_points[0].values[0], -5.0);
  EXPECT_EQ(plot_points[0].values[2], 7.0);
}

TEST_F(surface_plot, needs_all_three_expressions) {
  without_grid();
  put_surface(0, "u", "v", "");
  draw();
  EXPECT_EQ(ink(), 0);
}

TEST_F(surface_plot, is_left_out_while_plots_are_disabled_but_its_axes_are_not) {
  put_surface(0, "u", "v", "0");
  plot_variables.enablePlots = 0;
  draw();
  EXPECT_EQ(count_of(BLUE), 0);
  EXPECT_GT(count_of(BLACK), 100);
}

TEST_F(surface_plot, without_a_grid_has_no_axes) {
  without_grid();
  draw();
  EXPECT_EQ(ink(), 0);
}

TEST_F(surface_plot, without_lines_is_made_of_dots) {
  without_grid();
  put_surface(0, "u", "v", "0");
  draw();
  const int lines = count_of(BLUE);
  plot_variables.connectDots = 0;
  draw();
  EXPECT_GT(count_of(BLUE), 0);
  EXPECT_LT(count_of(BLUE), lines);
}

// --- The eye

TEST_F(surface_plot, turns_a_point_about_two_axes_and_tilts_it) {
  double x = 1.0, y = 2.0;
  rotate_point(x, y, 3.0, 0.6, 0.8, 0.28, 0.8, 0.6, 0.96);
  const double p = 3 * 0.6 + 2 * 0.8, q = 3 * 0.8 - 2 * 0.6, r = q * 0.8 + 1 * 0.6;
  EXPECT_DOUBLE_EQ(x, p * 0.28 + r * 0.96);
  EXPECT_DOUBLE_EQ(y, p * 0.96 - r * 0.28);
}

TEST_F(surface_plot, does_not_turn_what_is_undefined_or_overflows) {
  double x = undefined_value, y = 1.0;
  rotate_point(x, y, 1.0, 0.6, 0.8, 0.28, 0.8, 0.6, 0.96);
  EXPECT_EQ(x, undefined_value);
  EXPECT_EQ(y, undefined_value);
  x = y = 1.7e308;
  rotate_point(x, y, 1.7e308, 0.7, 0.7, 0.7, 0.7, 0.7, 0.7);
  EXPECT_EQ(x, undefined_value);
}

TEST_F(surface_plot, a_drag_of_80_pixels_is_a_radian) {
  double x = 1.0, y = 0.0, x_turned = 1.0, y_turned = 0.0;
  TRotation(0.0, 0.0).turn(x, y, 0.0);
  plot_variables.rotation_x = 80.0;
  TRotation(0.0, 0.0).turn(x_turned, y_turned, 0.0);
  const double b = 3.6568 + 1.0, c = -0.618106781;
  EXPECT_DOUBLE_EQ(x_turned, std::cos(b) * std::cos(c));
  EXPECT_DOUBLE_EQ(y_turned, -std::cos(b) * std::sin(c));
}

TEST_F(surface_plot, two_drags_of_40_pixels_are_one_of_80) {
  put_surface(0, "u", "v", "u v");
  plot_variables.plotCursor = CURSOR_ROTATE;
  draw();
  pen_drag({20, 20}, {100, 60});
  const TSurface once = draw();
  EXPECT_EQ(plot_variables.rotation_x, 80.0);
  EXPECT_EQ(plot_variables.rotation_y, 40.0);
  plot_variables.rotation_x = plot_variables.rotation_y = 0.0;
  draw();
  pen_drag({20, 20}, {60, 40});
  draw();
  pen_drag({120, 50}, {160, 70});
  EXPECT_TRUE(same_picture(draw(), once));
}

TEST_F(surface_plot, z_points_upwards_and_x_and_y_to_the_lower_corners) {
  const TRotation rest(0.0, 0.0);
  double x = 1.0, y = 0.0;
  rest.turn(x, y, 0.0);
  EXPECT_LT(x, 0.0);
  EXPECT_LT(y, 0.0);
  x = 0.0, y = 1.0;
  rest.turn(x, y, 0.0);
  EXPECT_GT(x, 0.0);
  EXPECT_LT(y, 0.0);
  x = y = 0.0;
  rest.turn(x, y, 1.0);
  EXPECT_NEAR(x, 0.0, 0.02);
  EXPECT_GT(y, 0.5);
}

TEST_F(surface_plot, a_frame_of_a_drag_has_every_second_wire) {
  without_grid();
  put_surface(0, "u", "v", "0");
  const int full = (draw(), count_of(BLUE));
  show_rotated(0.0, 0.0);
  EXPECT_LT(count_of(BLUE), full * 2 / 3);
  EXPECT_GT(count_of(BLUE), full / 3);
}

TEST_F(surface_plot, a_frame_of_a_drag_takes_the_samples_of_the_plot) {
  put_surface(0, "u", "v", "0");
  draw();
  put_surface(0, "u", "v", "5");
  show_rotated(0.0, 0.0);
  EXPECT_EQ(point(0, 0).z, 0.0);
}

TEST_F(surface_plot, zooms_and_pans_what_the_eye_sees) {
  without_grid();
  put_surface(0, "u", "v", "0");
  draw();
  const double column = plot_points[0].column, x = plot_points[0].x;
  set_plot_view(-20, -20, 20, 20);
  draw();
  EXPECT_EQ(plot_points[0].x, x);
  EXPECT_NEAR(plot_points[0].column - 112.5, (column - 112.5) / 2.0, 1e-9);
}

// --- Axis letters

TEST_F(surface_plot, letters_stand_right_below_the_end_of_their_axis) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  surface.fill(PLOT_AREA, GRID_GREY);
  draw_axis_letter(surface, 0, {50, 60}, RED);
  EXPECT_EQ(surface.pixel(55, 65), RED);          // (0, 0) of the letter
  EXPECT_EQ(surface.pixel(56, 67), RED);          // (1, 2)
  EXPECT_EQ(surface.pixel(55 + 5, 65 + 3), RED);  // of the plus sign
  EXPECT_EQ(surface.pixel(56, 65), WHITE);        // the ground
  EXPECT_EQ(surface.pixel(54, 64), WHITE);
  EXPECT_EQ(surface.pixel(53, 64), GRID_GREY);
}

TEST_F(surface_plot, letters_move_to_the_other_side_near_an_edge) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  draw_axis_letter(surface, 2, {212, 167}, RED);
  EXPECT_EQ(surface.pixel(202, 172), RED);
  draw_axis_letter(surface, 2, {211, 168}, RED);
  EXPECT_EQ(surface.pixel(216, 158), RED);
}

TEST_F(surface_plot, of_all_sizes_comes_to_an_end) {
  put_surface(0, "1e308u", "v", "1e308");
  put_surface(1, "u", "1e-308v", "1/u");
  for (const double size : {1e100, 1e-300, 5e-324}) {
    set_plot_view(-size, -size, size, size);
    plot_variables.t = {-1e308, 1e308, 1.0};
    draw();
    EXPECT_EQ(plot_variables.t.step, 1.0) << "a range wider than any number";
    plot_variables.t = {-1e100, 1e100, 1.0};
    draw();
    show_rotated(1e5, -1e5);
  }
  EXPECT_FALSE(errors.error_flag);
}

}  // namespace
}  // namespace zephyl
