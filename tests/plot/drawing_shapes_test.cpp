// Points, lines, rectangles, ellipses and arcs of the drawing layer.

#include <gtest/gtest.h>

#include <cmath>

#include "engine/state.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

class drawing_shape : public drawn {
 protected:
  drawing_shape() { view_of_pixels(); }
};

TEST_F(drawing_shape, a_line_joins_its_ends) {
  eval("Line(10,20,30,20)");
  EXPECT_EQ(ink_count(), 21);
  EXPECT_TRUE(ink(10, 159));
  EXPECT_TRUE(ink(30, 159));
}

TEST_F(drawing_shape, a_line_has_the_colour_that_is_set) {
  eval("Color(1,0,0)");
  eval("Line(0,0,225,179)");
  EXPECT_EQ(at(0, 179), rgb(255, 0, 0));
  EXPECT_EQ(at(225, 0), rgb(255, 0, 0));
}

TEST_F(drawing_shape, a_line_over_the_whole_view_fills_its_first_and_last_column) {
  eval("-10->xMin");
  eval("Line((xMin),5,(xMax),5)");
  EXPECT_EQ(ink_count(), PLOT_WIDTH);
}

TEST_F(drawing_shape, conversions_cut_the_fraction_off) {
  eval("Point(10.9,20.9)");
  EXPECT_TRUE(ink(10, 158)) << "row 158.1";
  EXPECT_EQ(ink_count(), 1);
}

TEST_F(drawing_shape, a_point_outside_is_none) {
  for (const char* outside : {"Point(-1,5)", "Point(226,5)", "Point(5,-1)", "Point(5,181)"}) eval(outside);
  EXPECT_EQ(ink_count(), 0);
  eval("Point(225,0)");
  EXPECT_TRUE(ink(225, 179));
}

TEST_F(drawing_shape, a_rectangle_is_four_lines) {
  eval("Rect(10,10,20,15)");
  EXPECT_EQ(ink_count(), 2 * 11 + 2 * 4);
  const TRect box = ink_box();
  EXPECT_EQ(box.left, 10);
  EXPECT_EQ(box.right, 20);
  EXPECT_EQ(box.top, 164);
  EXPECT_EQ(box.bottom, 169);
  EXPECT_FALSE(ink(15, 166));
}

TEST_F(drawing_shape, a_filled_rectangle_holds_both_corners_whatever_their_order) {
  for (const char* command : {"fillRect(10,10,20,15)", "fillRect(20,15,10,10)", "fillRect(10,15,20,10)"}) {
    eval("clrDraw()");
    eval(command);
    EXPECT_EQ(ink_count(), 11 * 6) << command;
    EXPECT_TRUE(ink(10, 169));
    EXPECT_TRUE(ink(20, 164));
  }
}

TEST_F(drawing_shape, a_filled_rectangle_of_one_point_is_a_pixel) {
  eval("fillRect(10,10,10,10)");
  EXPECT_EQ(ink_count(), 1);
}

TEST_F(drawing_shape, a_filled_rectangle_larger_than_the_view_fills_it) {
  eval("fillRect(-1e9,-1e9,1e9,1e9)");
  EXPECT_EQ(ink_count(), PLOT_WIDTH * PLOT_HEIGHT);
}

TEST_F(drawing_shape, a_circle_begins_a_row_below_the_top_of_its_box) {
  eval("Circle(50,50,10)");
  const TRect box = ink_box();
  EXPECT_EQ(box.left, 40);
  EXPECT_EQ(box.right, 60);
  EXPECT_EQ(box.top, 179 - 60 + 1);
  EXPECT_EQ(box.bottom, 179 - 40);
  EXPECT_FALSE(ink(50, 129));
}

TEST_F(drawing_shape, a_negative_radius_draws_the_same_circle) {
  eval("Circle(50,50,10)");
  const std::vector<TColour> positive = pixels();
  eval("clrDraw()");
  eval("Circle(50,50,-10)");
  EXPECT_EQ(pixels(), positive);
}

TEST_F(drawing_shape, a_filled_circle_covers_the_outline) {
  eval("fillCirc(50,50,10)");
  const int filled = ink_count();
  eval("Circle(50,50,10)");
  EXPECT_EQ(ink_count(), filled);
  EXPECT_TRUE(ink(50, 129));
}

TEST_F(drawing_shape, an_ellipse_has_two_radii) {
  eval("Ellipse(100,100,30,10)");
  const TRect box = ink_box();
  EXPECT_EQ(box.width(), 61);
  EXPECT_EQ(box.height(), 20);
  EXPECT_FALSE(ink(100, 79));
  eval("clrDraw()");
  eval("fillEllip(100,100,-10,30)");
  EXPECT_EQ(ink_box().width(), 21);
  EXPECT_EQ(ink_box().height(), 60);
  EXPECT_TRUE(ink(100, 79));
}

TEST_F(drawing_shape, an_ellipse_without_height_is_none) {
  eval("Ellipse(100,100,30,0)");
  eval("fillCirc(100,100,0)");
  EXPECT_EQ(ink_count(), 0);
}

TEST_F(drawing_shape, an_arc_goes_counter_clockwise_from_its_start_to_its_end) {
  settings.angleMode = DEGREES;
  eval("Arc(100,100,50,0,90)");
  const TRect box = ink_box();
  EXPECT_EQ(box.left, 100);
  EXPECT_EQ(box.right, 150);
  EXPECT_EQ(box.top, 29);
  EXPECT_EQ(box.bottom, 79);
}

TEST_F(drawing_shape, the_angles_of_an_arc_may_be_swapped) {
  eval("Arc(100,100,50,1,2)");
  const std::vector<TColour> forward = pixels();
  eval("clrDraw()");
  eval("Arc(100,100,50,2,1)");
  EXPECT_EQ(pixels(), forward);
}

TEST_F(drawing_shape, an_arc_of_a_turn_or_more_is_a_circle) {
  settings.angleMode = DEGREES;
  eval("Arc(100,100,50,0,360)");
  const std::vector<TColour> circle = pixels();
  for (const char* command :
       {"Arc(100,100,50,90,450)", "Arc(100,100,50,-1000,1000)", "Arc(100,100,50,400,0)"}) {
    eval("clrDraw()");
    eval(command);
    EXPECT_EQ(pixels(), circle) << command;
  }
  EXPECT_EQ(ink_box().left, 50);
  EXPECT_NEAR(ink_box().bottom, 129, 1);
}

TEST_F(drawing_shape, an_arc_between_equal_angles_is_its_point) {
  settings.angleMode = DEGREES;
  eval("Arc(100,100,50,90,90)");
  EXPECT_EQ(ink_count(), 1);
  EXPECT_TRUE(ink(100, 29));
}

TEST_F(drawing_shape, an_arc_follows_the_angle_mode) {
  settings.angleMode = GRADS;
  eval("Arc(100,100,50,100,200)");
  const TRect box = ink_box();
  EXPECT_EQ(box.left, 50);
  EXPECT_NEAR(box.right, 100, 1);
  EXPECT_EQ(box.top, 29);
}

TEST_F(drawing_shape, a_negative_radius_turns_an_arc_over) {
  settings.angleMode = DEGREES;
  eval("Arc(100,100,-50,0,90)");
  EXPECT_EQ(ink_box().left, 50);
  EXPECT_EQ(ink_box().bottom, 129);
}

// 50 segments for a small circle, 300 for one that fills the view.
TEST_F(drawing_shape, large_arcs_have_more_corners) {
  eval("Arc(112,90,3,0,7)");
  const int small = ink_count();
  EXPECT_GT(small, 10);
  eval("clrDraw()");
  eval("Arc(112,90,80,0,7)");
  int off = 0;
  for (int row = 0; row < PLOT_HEIGHT; ++row)
    for (int column = 0; column < PLOT_WIDTH; ++column)
      if (ink(column, row)) {
        const double radius = std::hypot(column - 112.0, 89.0 - row);
        if (std::abs(radius - 80.0) > 1.5) ++off;
      }
  EXPECT_EQ(off, 0);
}

}  // namespace
}  // namespace zephyl
