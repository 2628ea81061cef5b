// Plot coordinates to pixels, and lines cut to the plot.

#include "plot/plot_mapping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "engine/faults.h"
#include "engine/values.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

constexpr double huge = std::numeric_limits<double>::max();
constexpr double tiny = std::numeric_limits<double>::denorm_min();

int ink_count(const TSurface& surface) {
  int count = 0;
  for (int i = 0; i < surface.width() * surface.height(); ++i) count += surface.pixels()[i] != WHITE;
  return count;
}

TEST(plot_mapping, puts_the_middle_of_the_view_into_the_middle_of_the_picture) {
  const TPlotMapping mapping(-10, 10, -5, 15);
  EXPECT_EQ(mapping.column(0), 112.5);
  EXPECT_EQ(mapping.row(5), 89.5);
  EXPECT_EQ(mapping.column(-10), 0);
  EXPECT_EQ(mapping.column(10), 225);
  EXPECT_EQ(mapping.row(15), 0);
  EXPECT_EQ(mapping.row(-5), 179);
}

TEST(plot_mapping, follows_the_view) {
  reset_plot_variables();
  EXPECT_EQ(plot_mapping().column(10), 225);
  ASSERT_TRUE(set_plot_view(-20, -10, 20, 10));
  EXPECT_EQ(plot_mapping().column(20), 225);
  EXPECT_EQ(plot_mapping().row(10), 0);
}

TEST(plot_mapping, sends_what_overflows_to_its_own_side) {
  const TPlotMapping mapping(-1e-3, 1e-3, -1e-3, 1e-3);
  clear_faults();
  EXPECT_EQ(clamp_pixel(mapping.column(huge)), 3000);
  EXPECT_EQ(clamp_pixel(mapping.column(-huge)), -3000);
  EXPECT_EQ(clamp_pixel(mapping.row(huge)), -3000) << "up";
  EXPECT_EQ(clamp_pixel(mapping.row(-huge)), 3000);
  EXPECT_FALSE(fault_raised());
}

TEST(plot_mapping, takes_the_narrowest_view) {
  clear_faults();
  const TPlotMapping mapping(0, tiny, 0, tiny);
  EXPECT_FALSE(fault_raised());
  EXPECT_EQ(clamp_pixel(mapping.column(1)), 1);
  EXPECT_FALSE(fault_raised());
}

TEST(plot_mapping, clamps_pixels_at_three_thousand) {
  EXPECT_EQ(clamp_pixel(2999.5), 2999.5);
  EXPECT_EQ(clamp_pixel(3000), 3000);
  EXPECT_EQ(clamp_pixel(-3000.5), -3000);
  EXPECT_EQ(clamp_pixel(1e300), 3000);
  EXPECT_EQ(clamp_pixel(-1e300), -3000);
  EXPECT_EQ(clamp_pixel(std::numeric_limits<double>::quiet_NaN()), 3000);
}

TEST(clipped_line, is_drawn_from_whole_pixel_to_whole_pixel) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  EXPECT_TRUE(clipped_line(surface, 3.9, 5.9, 8.2, 5.1, BLACK));
  EXPECT_EQ(ink_count(surface), 6);
  EXPECT_EQ(surface.pixel(3, 5), BLACK);
  EXPECT_EQ(surface.pixel(8, 5), BLACK);
}

TEST(clipped_line, keeps_edges_that_rounding_pushes_out_by_less_than_a_pixel) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  EXPECT_TRUE(clipped_line(surface, 225.0000001, -0.0000001, 225.0000001, 179.0000001, BLACK));
  EXPECT_EQ(ink_count(surface), 180);
}

TEST(clipped_line, is_nothing_where_an_end_is_undefined_or_no_number) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  for (const double wrong :
       {undefined_value, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(clipped_line(surface, wrong, 5, 8, 5, BLACK));
    EXPECT_FALSE(clipped_line(surface, 5, wrong, 8, 5, BLACK));
    EXPECT_FALSE(clipped_line(surface, 5, 5, wrong, 5, BLACK));
    EXPECT_FALSE(clipped_line(surface, 5, 5, 8, wrong, BLACK));
  }
  EXPECT_EQ(ink_count(surface), 0);
}

TEST(clipped_line, tells_whether_it_touches_the_plot) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  EXPECT_FALSE(clipped_line(surface, -5, 0, -1, 179, BLACK));
  EXPECT_FALSE(clipped_line(surface, 0, 180, 225, 200, BLACK));
  EXPECT_FALSE(clipped_line(surface, -50, 150, 100, 300, BLACK)) << "past a corner";
  EXPECT_EQ(ink_count(surface), 0);
  EXPECT_TRUE(clipped_line(surface, -50, 90, 300, 90, BLACK));
  EXPECT_EQ(ink_count(surface), PLOT_WIDTH);
}

// What is cut off must not bend what remains.
TEST(clipped_line, has_the_direction_of_its_far_ends) {
  for (const double far : {1e4, 1e7, 1e10, 1e100, 1e140}) {
    TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
    EXPECT_TRUE(clipped_line(surface, 0, 0, far, far / 2, BLACK));
    EXPECT_EQ(surface.pixel(0, 0), BLACK);
    EXPECT_NEAR(
        [&] {
          int row = 0;
          while (row < PLOT_HEIGHT && surface.pixel(200, row) != BLACK) ++row;
          return row;
        }(),
        100, 1)
        << far;
  }
}

TEST(clipped_line, takes_the_largest_numbers) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  EXPECT_TRUE(clipped_line(surface, -huge, 20, huge, 20, BLACK));
  EXPECT_EQ(ink_count(surface), PLOT_WIDTH);
  clipped_line(surface, -huge, -huge, huge, huge, BLACK);
  clipped_line(surface, huge, 0, 0, -huge, BLACK);
}

TEST(clipped_line, tells_of_any_ends_whether_it_painted) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> exponent(-3, 308), sign(-1, 1);
  const TSurface paper(PLOT_WIDTH, PLOT_HEIGHT);
  int painted = 0;
  for (int i = 0; i < 20000; ++i) {
    double ends[4];
    for (double& end : ends) end = sign(random) * std::pow(10.0, exponent(random));
    TSurface surface = paper;
    const bool drawn = clipped_line(surface, ends[0], ends[1], ends[2], ends[3], BLACK);
    if (drawn || i % 20 == 0) {
      ASSERT_EQ(drawn, ink_count(surface) > 0) << i;
    }
    painted += drawn;
  }
  EXPECT_GT(painted, 0);
}

TEST(draw_dot, paints_one_pixel_of_the_plot) {
  TSurface surface(PLOT_WIDTH, PLOT_HEIGHT);
  draw_dot(surface, 225.9, 179.9, BLACK);
  EXPECT_EQ(surface.pixel(225, 179), BLACK);
  for (const double outside : {-1.0, 226.0, 1e300, undefined_value}) draw_dot(surface, outside, 5, BLACK);
  for (const double outside : {-1.0, 180.0, -1e300}) draw_dot(surface, 5, outside, BLACK);
  EXPECT_EQ(ink_count(surface), 1);
}

}  // namespace
}  // namespace zephyl
