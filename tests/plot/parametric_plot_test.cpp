// Parametric and polar plots, their samples and the points kept for the trace.

#include <cmath>

#include "engine/state.h"
#include "engine/values.h"
#include "plot/plot_kinds.h"
#include "plot/plot_points.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

using TPixels = std::vector<int>;

class parametric_plot : public plotting {
 protected:
  parametric_plot() {
    without_grid();
    choose(PLOT_PARAMETRIC);
  }
};

TEST_F(parametric_plot, samples_go_from_min_to_max) {
  const TSamples turn = curve_samples({0.0, 6.283185307179586, 0.006283185307179587});
  EXPECT_EQ(turn.count, 1001);
  EXPECT_EQ(turn[0], 0.0);
  EXPECT_EQ(turn[1000], 6.283185307179586);
  EXPECT_EQ(curve_samples({0.0, 360.0, 0.36}).count, 1001);
  EXPECT_EQ(curve_samples({0.0, 400.0, 0.4}).count, 1001);
  EXPECT_EQ(curve_samples({-1.0, 1.0, 0.7}).count, 3);
  EXPECT_EQ(curve_samples({2.0, 2.0, 0.1}).count, 1);
  EXPECT_EQ(curve_samples({2.0, 1.0, 0.1}).count, 0);
}

TEST_F(parametric_plot, a_step_that_leads_nowhere_is_a_thousandth_of_the_range) {
  for (const double step : {0.0, -1.0, 1e-30, 1e-300}) {
    const TSamples samples = curve_samples({0.0, 10.0, step});
    EXPECT_EQ(samples.count, 1001) << step;
    EXPECT_EQ(samples.step, 0.01) << step;
  }
  EXPECT_EQ(curve_samples({3.0, 3.0, 0.0}).count, 1);
}

TEST_F(parametric_plot, ranges_beyond_all_bounds_have_no_samples) {
  EXPECT_EQ(curve_samples({-1e308, 1e308, 1.0}).count, 0);
  EXPECT_EQ(curve_samples({0.0, 1e308, 1e308}).count, 2);
}

TEST_F(parametric_plot, maps_the_middle_of_the_view_between_its_middle_pixels) {
  double column, row;
  plot_variables.connectDots = 0;
  put(PLOT_PARAMETRIC, 0, "0");
  put(PLOT_PARAMETRIC, 1, "0");
  draw();
  column = columns_of(BLUE, 89).at(0);
  row = rows_of(BLUE, 112).at(0);
  EXPECT_EQ(column, 112);
  EXPECT_EQ(row, 89);
}

TEST_F(parametric_plot, reaches_both_edges_of_the_view) {
  put(PLOT_PARAMETRIC, 0, "10cos(t)");
  put(PLOT_PARAMETRIC, 1, "10sin(t)");
  draw();
  EXPECT_FALSE(rows_of(BLUE, 0).empty());
  EXPECT_FALSE(rows_of(BLUE, 224).empty());
  EXPECT_FALSE(columns_of(BLUE, 0).empty());
  EXPECT_FALSE(columns_of(BLUE, 178).empty());
}

TEST_F(parametric_plot, needs_both_expressions_of_a_pair) {
  put(PLOT_PARAMETRIC, 0, "t");
  draw();
  EXPECT_EQ(ink(), 0);
}

TEST_F(parametric_plot, draws_each_pair_in_the_colour_of_its_index) {
  for (int pair = 0; pair < 3; ++pair) {
    put(PLOT_PARAMETRIC, 2 * pair, "t");
    put(PLOT_PARAMETRIC, 2 * pair + 1, std::to_string(2 * pair));
  }
  draw();
  EXPECT_EQ(rows_of(BLUE, 130).size(), 1u);
  EXPECT_EQ(rows_of(RED, 130).size(), 1u);
  EXPECT_EQ(rows_of(GREEN, 130).size(), 1u);
}

TEST_F(parametric_plot, has_a_gap_where_either_coordinate_is_undefined) {
  plot_variables.t = {-9.0, 9.0, 1.0};
  put(PLOT_PARAMETRIC, 0, "t+0/(t-3)");
  put(PLOT_PARAMETRIC, 1, "0/(t+3)");
  draw();
  // Columns of t = -4, -2 and 2, 4: the lines between them are left out.
  EXPECT_TRUE(rows_of(BLUE, 78).empty());
  EXPECT_TRUE(rows_of(BLUE, 146).empty());
  EXPECT_FALSE(rows_of(BLUE, 112).empty());
  EXPECT_FALSE(rows_of(BLUE, 40).empty());
  EXPECT_FALSE(rows_of(BLUE, 190).empty());
}

TEST_F(parametric_plot, keeps_the_points_of_the_traced_pair_alone) {
  plot_variables.t = {0.0, 4.0, 1.0};
  put(PLOT_PARAMETRIC, 0, "t");
  put(PLOT_PARAMETRIC, 1, "t");
  put(PLOT_PARAMETRIC, 2, "-t");
  put(PLOT_PARAMETRIC, 3, "2t");
  trace_functions.slot[PLOT_PARAMETRIC] = 2;
  draw();
  ASSERT_EQ(plot_point_count, 5);
  EXPECT_EQ(plot_points[3].x, -3.0);
  EXPECT_EQ(plot_points[3].y, 6.0);
  EXPECT_EQ(plot_points[3].parameter, 3.0);
}

TEST_F(parametric_plot, goes_on_when_no_more_points_can_be_kept) {
  plot_variables.t = {-10.0, 10.0, 0.001};
  put(PLOT_PARAMETRIC, 0, "t");
  put(PLOT_PARAMETRIC, 1, "3");
  draw();
  EXPECT_EQ(plot_point_count, PLOT_POINT_LIMIT);
  EXPECT_EQ(count_of(BLUE), 226);
}

TEST_F(parametric_plot, finds_the_nearest_point_and_of_two_the_earlier) {
  plot_point_count = 0;
  for (const double x : {1.0, 3.0, 5.0}) {
    TPlotPoint point;
    point.x = x;
    point.parameter = x;
    add_plot_point(point);
  }
  EXPECT_EQ(nearest_plot_point(4.6, 0.0)->parameter, 5.0);
  EXPECT_EQ(nearest_plot_point(2.0, 7.0)->parameter, 1.0);
  plot_points[0].x = undefined_value;
  EXPECT_EQ(nearest_plot_point(1.0, 0.0)->parameter, 3.0);
  plot_point_count = 0;
  EXPECT_EQ(nearest_plot_point(1.0, 0.0), nullptr);
}

// --- Polar

class polar_plot : public plotting {
 protected:
  polar_plot() {
    without_grid();
    choose(PLOT_POLAR);
  }
};

TEST_F(polar_plot, turns_with_the_angle_mode) {
  put(PLOT_POLAR, 0, "8");
  const double quarters[] = {1.5707963267948966, 90.0, 100.0};
  for (int mode = 0; mode < 3; ++mode) {
    settings.angleMode = mode;
    plot_variables.t = {quarters[mode], quarters[mode], 1.0};
    draw();
    EXPECT_NEAR(plot_points[0].x, 0.0, 1e-12);
    EXPECT_NEAR(plot_points[0].y, 8.0, 1e-12);
  }
}

TEST_F(polar_plot, of_a_constant_closes_its_circle) {
  put(PLOT_POLAR, 0, "8");
  draw();
  EXPECT_EQ(plot_point_count, 1001);
  EXPECT_EQ(rows_of(BLUE, 112).size(), 2u);
}

TEST_F(polar_plot, starts_a_new_line_behind_an_undefined_radius) {
  plot_variables.t = {0.0, 3.0, 0.5};
  put(PLOT_POLAR, 0, "5+0/((theta)-1.5)");
  draw();
  // A polygon whose corner at 1.5 is missing: nothing straight above the origin.
  EXPECT_TRUE(rows_of(BLUE, 116).empty());
  EXPECT_EQ(plot_points[3].x, undefined_value);
  EXPECT_FALSE(rows_of(BLUE, 150).empty());
}

TEST_F(polar_plot, of_a_huge_radius_stays_within_the_picture) {
  put(PLOT_POLAR, 0, "1e308");
  put(PLOT_POLAR, 1, "1e307(theta)");
  draw();
  set_plot_view(-1e-300, -1e-300, 1e-300, 1e-300);
  draw();
  SUCCEED();
}

}  // namespace
}  // namespace zephyl
