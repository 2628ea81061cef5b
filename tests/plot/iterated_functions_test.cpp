// ifsFractal(: its arguments, the draw of the maps, the fit to the view.

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "engine/hooks.h"
#include "engine/records.h"
#include "engine/state.h"
#include "numerics/random.h"
#include "plot/fractals/fit_scale.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

using TMap = std::array<double, 7>;

class iterated_functions : public drawn {
 protected:
  // The rows of [A]: a, b, c, d, e, f, p.
  void store(const std::vector<TMap>& rows) {
    MatrixRecord& matrix = stores.matrices[0];
    matrix.defined = true;
    matrix.last_row = static_cast<int>(rows.size()) - 1;
    matrix.last_col = 6;
    for (std::size_t row = 0; row < rows.size(); ++row)
      for (std::size_t column = 0; column < 7; ++column) matrix.cells[row][column] = rows[row][column];
  }
  void store_fern() {
    store({{0, 0, 0, 0.16, 0, 0, 0.01},
           {0.85, 0.04, -0.04, 0.85, 0, 1.6, 0.85},
           {0.2, -0.26, 0.23, 0.22, 0, 1.6, 0.07},
           {-0.15, 0.28, 0.26, 0.24, 0, 0.44, 0.07}});
  }
};

TEST_F(iterated_functions, refuse_a_matrix_that_has_not_seven_columns) {
  stores.matrices[0].defined = true;
  stores.matrices[0].last_row = 3;
  stores.matrices[0].last_col = 5;
  EXPECT_EQ(error_of("ifsFractal([A],100,0)"), "Matrix Size Error");
  stores.matrices[0].last_col = 7;
  EXPECT_EQ(error_of("ifsFractal([A],100,0)"), "Matrix Size Error");
  EXPECT_EQ(error_of("ifsFractal([B],100,0)"), "Matrix Size Not Defined");
}

TEST_F(iterated_functions, refuse_other_numbers_of_points_and_other_fits) {
  store_fern();
  for (const char* wrong : {"ifsFractal([A],0,0)", "ifsFractal([A],1000001,0)", "ifsFractal([A],1.5,0)",
                            "ifsFractal([A],-1,1)", "ifsFractal([A],100,2)", "ifsFractal([A],100,0.5)"})
    EXPECT_EQ(error_of(wrong), "Domain Error") << wrong;
  EXPECT_EQ(ink_count(), 0);
}

TEST_F(iterated_functions, apply_the_one_map_there_is) {
  view_of_pixels();
  store({{1, 0, 0, 1, 3, 2, 1}});  // three to the right, two up
  EXPECT_EQ(eval("ifsFractal([A],20,0)"), "0");
  EXPECT_EQ(ink_count(), 20);
  EXPECT_TRUE(ink(3, 177));
  EXPECT_TRUE(ink(60, 139));
  EXPECT_FALSE(ink(0, 179)) << "the start isn't drawn";
}

TEST_F(iterated_functions, mix_the_parts_as_the_columns_say) {
  view_of_pixels();
  store({{0, 1, 1, 0, 7, 1, 1}});  // x' = y + 7, y' = x + 1
  eval("ifsFractal([A],3,0)");
  EXPECT_TRUE(ink(7, 178));
  EXPECT_TRUE(ink(8, 171));
  EXPECT_TRUE(ink(15, 170));
}

// Probabilities below 1 in sum: the last map takes the rest.
TEST_F(iterated_functions, take_the_last_map_where_no_sum_exceeds_the_number) {
  view_of_pixels();
  store({{1, 0, 0, 1, 1, 0, 0}});
  EXPECT_EQ(eval("ifsFractal([A],50,0)"), "0");
  EXPECT_EQ(ink_count(), 50);
}

// The likely map is tried first, so the same random numbers lead to the same maps in whatever order the rows
// stand.
TEST_F(iterated_functions, try_likely_maps_first) {
  view_of_pixels();
  const TMap rare = {0, 0, 0, 0, 10, 10, 0.1}, common = {1, 0, 0, 1, 1, 0, 0.9};
  store({rare, common});
  seed_random(0.25);
  eval("ifsFractal([A],300,0)");
  const std::vector<TColour> one = pixels();
  eval("clrDraw()");
  store({common, rare});
  seed_random(0.25);
  eval("ifsFractal([A],300,0)");
  EXPECT_EQ(pixels(), one);
  EXPECT_TRUE(ink(10, 169));
}

TEST_F(iterated_functions, draw_maps_as_often_as_their_probability_says) {
  view_of_pixels();
  // Each map leads to one place; the number of visits can't be seen, but that every one is visited can.
  store({{0, 0, 0, 0, 10, 10, 0.6}, {0, 0, 0, 0, 20, 10, 0.3}, {0, 0, 0, 0, 30, 10, 0.1}});
  eval("ifsFractal([A],200,0)");
  EXPECT_EQ(ink_count(), 3);
  eval("clrDraw()");
  store({{0, 0, 0, 0, 10, 10, 1}, {0, 0, 0, 0, 20, 10, 0}});
  eval("ifsFractal([A],1000,0)");
  EXPECT_EQ(ink_count(), 1) << "what has no probability isn't drawn";
}

TEST_F(iterated_functions, fit_the_picture_to_the_view) {
  store_fern();
  eval("ifsFractal([A],20000,1)");
  const TRect box = ink_box();
  EXPECT_LT(box.left, 25);
  EXPECT_GT(box.right, 200);
  EXPECT_LT(box.top, 20);
  EXPECT_GT(box.bottom, 160);
  EXPECT_GT(ink_count(), 3000);
}

TEST_F(iterated_functions, fit_fewer_points_than_the_scale_is_made_from) {
  view_of_pixels();
  store({{1, 0, 0, 1, 3, 2, 1}});
  eval("ifsFractal([A],10,1)");
  EXPECT_EQ(ink_count(), 10);
  const TRect box = ink_box();
  EXPECT_NEAR(box.left, 0.025 * 225, 1);
  EXPECT_NEAR(box.right, 0.975 * 225, 1);
  EXPECT_NEAR(box.bottom, 179 - 0.025 * 179, 1);
  EXPECT_NEAR(box.top, 179 - 0.975 * 179, 1);
}

TEST_F(iterated_functions, fit_the_points_behind_the_thousandth_by_the_thousand) {
  view_of_pixels();
  store({{1, 0, 0, 1, 1, 0, 1}});
  eval("ifsFractal([A],1020,1)");
  // 999 steps fill 0.95 of the width; 20 more go on beyond.
  EXPECT_NEAR(ink_box().right, 0.025 * 225 + 0.95 * 225 * 1019 / 999, 1);
  EXPECT_NEAR(ink_box().bottom, 179 - 0.025 * 179, 1) << "no extent in y";
}

TEST_F(iterated_functions, that_explode_are_no_error) {
  store({{1e200, 0, 0, 1e200, 1, 1, 1}});
  EXPECT_EQ(eval("ifsFractal([A],5000,0)"), "0");
  EXPECT_EQ(eval("ifsFractal([A],5000,1)"), "0");
  store({{0, 0, 0, 0, 1e308, -1e308, 1}});
  EXPECT_EQ(eval("ifsFractal([A],5000,1)"), "0");
}

int redraws = 0;

TEST_F(iterated_functions, show_every_three_thousand_points) {
  state.calcMode = PLOT_MODE;
  hooks.request_plot_redraw = [] { ++redraws; };
  store_fern();
  redraws = 0;
  eval("ifsFractal([A],10000,0)");
  EXPECT_EQ(redraws, 4) << "three on the way and one at the end";
}

TEST_F(iterated_functions, stop_at_a_tap) {
  store_fern();
  platform_.pen_downs.push_back({111, 200});
  platform_.ticks_per_look = 100;
  EXPECT_EQ(error_of("ifsFractal([A],1000000,0)"), "Operation Canceled");
  EXPECT_GT(ink_count(), 0);
  EXPECT_LT(ink_count(), 6000);
}

TEST(fit_scale, leaves_a_margin_and_keeps_an_axis_without_extent) {
  reset_plot_variables();
  TExtent extent;
  extent.take(3, 5);
  extent.take(7, 5);
  const TFitScale fit = fit_scale(extent);
  EXPECT_DOUBLE_EQ(fit.x(3), -10 + 0.5);
  EXPECT_DOUBLE_EQ(fit.x(7), 10 - 0.5);
  EXPECT_DOUBLE_EQ(fit.y(5), -10 + 0.5);
  EXPECT_DOUBLE_EQ(fit.y(6), -10 + 1.5);
}

}  // namespace
}  // namespace zephyl
