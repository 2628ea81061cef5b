// Grid, axes and the labels of the view.

#include "plot/plot_grid.h"

#include "engine/hooks.h"
#include "plot/custom_function.h"
#include "plot/plot_labels.h"
#include "plot/plotting.h"

namespace zephyl {
namespace {

using plot_grid = plotting;
using TPixels = std::vector<int>;

TEST_F(plot_grid, has_5_2_or_1_lines_to_a_unit) {
  EXPECT_DOUBLE_EQ(nice_step(1.0), 5.0);
  EXPECT_DOUBLE_EQ(nice_step(2.5), 5.0);
  EXPECT_DOUBLE_EQ(nice_step(2.6), 2.0);
  EXPECT_DOUBLE_EQ(nice_step(5.0), 2.0);
  EXPECT_DOUBLE_EQ(nice_step(5.1), 1.0);
  EXPECT_DOUBLE_EQ(nice_step(10.0), 1.0);
  EXPECT_DOUBLE_EQ(nice_step(20.0), 0.5);
  EXPECT_DOUBLE_EQ(nice_step(2000.0), 0.005);
  EXPECT_DOUBLE_EQ(nice_step(0.003), 2000.0);
  EXPECT_DOUBLE_EQ(grid_spacing(20.0), 2.0);
}

TEST_F(plot_grid, gives_up_on_ranges_without_such_a_number) {
  EXPECT_EQ(nice_step(5e-324), 0.0);
  EXPECT_EQ(grid_spacing(5e-324), 0.0);
  EXPECT_GT(nice_step(2e100), 0.0);
  EXPECT_GT(nice_step(1e-300), 0.0);
}

TEST_F(plot_grid, lies_at_multiples_of_its_spacing) {
  draw();
  EXPECT_EQ(columns_of(GRID_GREY, 175), (TPixels{0, 22, 45, 67, 90, 135, 158, 180, 203}));
  EXPECT_EQ(rows_of(GRID_GREY, 200), (TPixels{18, 36, 54, 72, 108, 126, 144, 162}));
}

TEST_F(plot_grid, has_its_axes_at_zero) {
  draw();
  EXPECT_EQ(columns_of(BLACK, 175), TPixels{113});
  EXPECT_EQ(rows_of(BLACK, 200), TPixels{90});
}

TEST_F(plot_grid, has_only_the_axes_that_the_view_holds) {
  set_plot_view(1, -10, 11, 0);
  draw();
  EXPECT_EQ(columns_of(BLACK, 175), TPixels{});
  EXPECT_EQ(rows_of(BLACK, 200), TPixels{});
  set_plot_view(-4, 1, 4, 11);
  draw();
  EXPECT_EQ(columns_of(BLACK, 175), TPixels{113});
  EXPECT_EQ(rows_of(BLACK, 200), TPixels{});
}

TEST_F(plot_grid, is_gone_with_its_axes_and_labels_when_switched_off) {
  without_grid();
  draw();
  EXPECT_EQ(ink(), 0);
}

TEST_F(plot_grid, of_a_plot_in_3d_is_left_out) {
  choose(PLOT_3D);
  draw();
  EXPECT_EQ(count_of(GRID_GREY), 0);
}

TEST_F(plot_grid, of_the_widest_and_narrowest_views_stays_within_the_picture) {
  for (const double size : {1e100, 1e-300, 1e-320}) {
    set_plot_view(-size, -size, size, size);
    draw();
    EXPECT_GT(ink(), 0) << size;
  }
}

TEST_F(plot_grid, labels_stand_in_six_lines) {
  draw();
  for (int line = 0; line < 6; ++line) {
    int ink_of_line = 0;
    for (int y = 2 + 9 * line; y < 11 + 9 * line; ++y)
      for (int x = 2; x < 40; ++x) ink_of_line += shown_plot().pixel(x, y) == BLACK;
    EXPECT_GT(ink_of_line, 30) << line;
  }
}

TEST_F(plot_grid, labels_are_a_word_and_its_number) {
  TSurface expected(100, 20), surface(100, 20);
  const int end = draw_small_line(surface, "SMALL_XMIN", -1.5e20, 2, 2);
  const int word = hooks.bitmap("SMALL_XMIN")->width;
  draw_small_word(expected, "SMALL_XMIN", 2, 2);
  int pen = 2 + word;
  for (const char* name : {"SMALL_MINUS", "SMALL_1", "SMALL_DP", "SMALL_5", "SMALL_E", "SMALL_2", "SMALL_0"})
    pen = draw_small_word(expected, name, pen, 2);
  EXPECT_EQ(end, pen);
  EXPECT_TRUE(same_picture(surface, expected));
}

TEST_F(plot_grid, labels_name_the_error_of_an_undefined_value) {
  const struct {
    int code;
    const char* word;
  } rows[] = {{0, "SMALL_OVERFLOW"},      {1, "SMALL_OVERFLOW"},       {2, "SMALL_DIV_BY_ZERO"},
              {3, "SMALL_DOMAIN"},        {4, "SMALL_DOMAIN"},         {5, "SMALL_SYNTAX_ERROR"},
              {17, "SMALL_SYNTAX_ERROR"}, {31, "SMALL_SYNTAX_ERROR"},  {34, "SMALL_SYNTAX_ERROR"},
              {6, "SMALL_NO_DATA"},       {7, "SMALL_NO_DATA"},        {15, "SMALL_DATA_TYPE"},
              {18, "SMALL_DATA_TYPE"},    {32, "SMALL_NO_ROOT_FOUND"}, {33, "SMALL_NO_INTERSECT_FOUND"},
              {50, "SMALL_UNDEFINED"},    {8, "SMALL_ERROR"},          {49, "SMALL_ERROR"}};
  for (const auto& row : rows) {
    EXPECT_STREQ(small_error_word(row.code), row.word) << row.code;
    TSurface expected(150, 20), surface(150, 20);
    plot_error_code = row.code;
    draw_small_line(surface, "SMALL_YTRACE", undefined_value, 2, 2);
    draw_small_word(expected, row.word, draw_small_word(expected, "SMALL_YTRACE", 2, 2), 2);
    EXPECT_TRUE(same_picture(surface, expected)) << row.code;
  }
  EXPECT_EQ(message(), "none");
}

}  // namespace
}  // namespace zephyl
