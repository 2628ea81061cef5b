// Function plots: columns, edges, dots, and values beyond all bounds.

#include "engine/errors.h"
#include "engine/values.h"
#include "plot/custom_function.h"
#include "plot/plot_kinds.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

using TPixels = std::vector<int>;

class function_plot : public plotting {
 protected:
  function_plot() { without_grid(); }
};

TEST_F(function_plot, of_a_constant_is_a_straight_line) {
  put(PLOT_FUNCTION, 0, "5");
  draw();
  EXPECT_EQ(columns_of(BLUE, 45).size(), 226u);
  EXPECT_EQ(count_of(BLUE), 226);
}

TEST_F(function_plot, has_its_middle_row_at_90) {
  EXPECT_EQ(function_row(0.0), 90.0);
  EXPECT_EQ(function_row(10.0), 0.0);
  EXPECT_EQ(function_row(-10.0), 180.0);
}

TEST_F(function_plot, bounds_its_rows) {
  EXPECT_EQ(function_row(1e300), -3000.0);
  EXPECT_EQ(function_row(-1e300), 3000.0);
  set_plot_view(-1e-300, -1e-300, 1e-300, 1e-300);
  EXPECT_EQ(function_row(1e308), -3000.0);
  EXPECT_EQ(function_row(-1e308), 3000.0);
}

TEST_F(function_plot, draws_each_slot_in_its_colour) {
  for (int slot = 0; slot < 6; ++slot) put(PLOT_FUNCTION, slot, std::to_string(slot));
  draw();
  for (int slot = 0; slot < 6; ++slot)
    EXPECT_EQ(rows_of(plot_colour(PLOT_FUNCTION, slot), 20), TPixels{90 - 9 * slot});
}

TEST_F(function_plot, of_a_reciprocal_runs_to_both_edges_and_keeps_its_gap) {
  put(PLOT_FUNCTION, 0, "1/x");
  draw();
  EXPECT_EQ(evaluate_plot_function(PLOT_FUNCTION, 113 * 20 * 0.004424778761061947 - 10, 0.0, 0),
            undefined_value);
  // Downwards on the left of the pole, upwards on its right, nothing across.
  EXPECT_EQ(rows_of(BLUE, 112).back(), 179);
  EXPECT_EQ(rows_of(BLUE, 114).front(), 0);
  EXPECT_GE(rows_of(BLUE, 112).front(), 90);
  EXPECT_LE(rows_of(BLUE, 114).back(), 90);
  EXPECT_LT(rows_of(BLUE, 113).size(), 180u);
}

TEST_F(function_plot, of_a_root_starts_at_the_axis) {
  put(PLOT_FUNCTION, 0, "sqRt(x)");
  draw();
  EXPECT_EQ(rows_of(BLUE, 113).back(), 90);
  EXPECT_EQ(rows_of(BLUE, 111), TPixels{});
}

TEST_F(function_plot, that_begins_between_two_columns_comes_from_its_edge) {
  // Defined from a little behind column 120 on, and hardly above 0 there.
  put(PLOT_FUNCTION, 0, "20sqRt(x-0.65)");
  draw();
  EXPECT_EQ(rows_of(BLUE, 120).back(), 89);
  EXPECT_EQ(rows_of(BLUE, 119), TPixels{});
}

TEST_F(function_plot, that_ends_between_two_columns_runs_up_to_its_edge) {
  put(PLOT_FUNCTION, 0, "20sqRt(0.65-x)");
  draw();
  EXPECT_EQ(rows_of(BLUE, 121).back(), 89);
  EXPECT_EQ(rows_of(BLUE, 122), TPixels{});
}

TEST_F(function_plot, crosses_a_hole_of_a_single_column_without_a_gap) {
  put(PLOT_FUNCTION, 0, "5sin(x)/x");
  draw();
  for (int column = 0; column < 226; ++column) EXPECT_FALSE(rows_of(BLUE, column).empty()) << column;
  EXPECT_EQ(rows_of(BLUE, 113), TPixels{45});
}

TEST_F(function_plot, joins_two_values_beside_a_pole_by_a_steep_line) {
  put(PLOT_FUNCTION, 0, "1/(x-0.04)");
  draw();
  EXPECT_EQ(rows_of(BLUE, 113).size() + rows_of(BLUE, 114).size(), 180u);
}

TEST_F(function_plot, that_is_defined_nowhere_leaves_the_picture_as_it_is) {
  put(PLOT_FUNCTION, 0, "ln(-1)");
  draw();
  EXPECT_EQ(ink(), 0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(function_plot, of_huge_values_is_cut_at_the_edges) {
  put(PLOT_FUNCTION, 0, "1e300x");
  draw();
  EXPECT_EQ(rows_of(BLUE, 113).size() + rows_of(BLUE, 112).size() + rows_of(BLUE, 114).size(), 180u);
}

TEST_F(function_plot, without_lines_is_a_dot_a_column) {
  plot_variables.connectDots = 0;
  put(PLOT_FUNCTION, 0, "9x");
  draw();
  for (int column = 110; column < 117; ++column) EXPECT_EQ(rows_of(BLUE, column).size(), 1u);
}

TEST_F(function_plot, without_lines_has_a_dot_at_the_edge_too) {
  plot_variables.connectDots = 0;
  put(PLOT_FUNCTION, 0, "20sqRt(0.65-x)");
  draw();
  EXPECT_EQ(rows_of(BLUE, 121), TPixels{89});
}

TEST_F(function_plot, of_views_of_all_sizes_comes_to_an_end) {
  put(PLOT_FUNCTION, 0, "sin(x)");
  put(PLOT_FUNCTION, 1, "1/x");
  for (const double size : {1e100, 1e-300, 5e-324, 1e-320}) {
    set_plot_view(-size, -size, size, size);
    draw();
    EXPECT_GT(ink(), 0) << size;
  }
}

TEST_F(function_plot, that_is_disabled_shows_the_layer_alone) {
  put(PLOT_FUNCTION, 0, "x");
  plot_variables.enablePlots = 0;
  draw();
  EXPECT_EQ(ink(), 0);
}

}  // namespace
}  // namespace zephyl
