// Lists drawn as lines, and strings.

#include <gtest/gtest.h>

#include "faceplate/resources.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

class drawing_list : public drawn {
 protected:
  drawing_list() { view_of_pixels(); }
  // The first row with ink in a column; -1 without.
  int top(int column) {
    for (int row = 0; row < PLOT_HEIGHT; ++row)
      if (ink(column, row)) return row;
    return -1;
  }
};

TEST_F(drawing_list, spreads_the_values_over_the_whole_width) {
  eval("drawListY({10,100,10})");
  EXPECT_EQ(top(0), 169);
  EXPECT_EQ(top(112), 79);
  EXPECT_EQ(top(225), 169);
}

TEST_F(drawing_list, fits_values_to_the_height) {
  eval("drawListY({-3,7,2},1)");
  EXPECT_EQ(top(0), 179);
  EXPECT_EQ(top(112), 0);
  EXPECT_EQ(top(225), 89);
}

TEST_F(drawing_list, equal_values_go_to_the_middle) {
  eval("drawListY({5,5,5},1)");
  EXPECT_EQ(top(0), 89);
  EXPECT_EQ(ink_count(), PLOT_WIDTH);
  eval("clrDraw()");
  eval("drawListXY({7,7},{0,1},3)");
  EXPECT_EQ(ink_box().left, 112);
  EXPECT_EQ(ink_box().right, 112);
  EXPECT_EQ(ink_count(), PLOT_HEIGHT);
}

TEST_F(drawing_list, one_value_draws_nothing) {
  EXPECT_EQ(eval("drawListY({,5})"), "0");
  EXPECT_EQ(eval("drawListY({,5},1)"), "0");
  EXPECT_EQ(eval("drawListXY({,5},{,5},3)"), "0");
  EXPECT_EQ(ink_count(), 0);
}

TEST_F(drawing_list, takes_x_from_another_list) {
  eval("drawListXY({20,40},{30,30})");
  EXPECT_EQ(ink_count(), 21);
  EXPECT_TRUE(ink(20, 149));
  EXPECT_TRUE(ink(40, 149));
}

TEST_F(drawing_list, fits_one_axis_or_both) {
  const struct {
    const char* command;
    TRect box;
  } rows[] = {{"drawListXY({20,40},{30,40},0)", {20, 139, 40, 149}},
              {"drawListXY({20,40},{30,40},1)", {0, 139, 225, 149}},
              {"drawListXY({20,40},{30,40},2)", {20, 0, 40, 179}},
              {"drawListXY({20,40},{30,40},3)", {0, 0, 225, 179}}};
  for (const auto& row : rows) {
    eval("clrDraw()");
    eval(row.command);
    const TRect box = ink_box();
    EXPECT_EQ(box.left, row.box.left) << row.command;
    EXPECT_EQ(box.top, row.box.top) << row.command;
    EXPECT_EQ(box.right, row.box.right) << row.command;
    EXPECT_EQ(box.bottom, row.box.bottom) << row.command;
  }
}

TEST_F(drawing_list, refuses_complex_lists_lists_of_two_sizes_and_other_fits) {
  EXPECT_EQ(error_of("drawListY({1,(i)})"), "Data Type Error");
  EXPECT_EQ(error_of("drawListXY({1,2},{1,(i)})"), "Data Type Error");
  EXPECT_EQ(error_of("drawListXY({1,2},{1,2,3})"), "List Size Mismatch");
  EXPECT_EQ(error_of("drawListY({1,2},2)"), "Domain Error");
  EXPECT_EQ(error_of("drawListY({1,2},-1)"), "Domain Error");
  EXPECT_EQ(error_of("drawListXY({1,2},{1,2},4)"), "Domain Error");
  EXPECT_EQ(error_of("drawListXY({1,2},{1,2},0.5)"), "Domain Error");
  EXPECT_EQ(ink_count(), 0);
  EXPECT_FALSE(drawing.drawing_used);
}

TEST_F(drawing_list, draws_the_largest_list) {
  eval("Seq(x,x,1,999)->{A}");
  EXPECT_EQ(eval("drawListY({A},1)"), "0");
  EXPECT_TRUE(ink(0, 179));
  EXPECT_TRUE(ink(225, 0));
}

class drawing_string : public drawing_list {};

TEST_F(drawing_string, has_its_top_left_at_the_point) {
  eval("drawString(\"HH\",50,100)");
  const TRect box = ink_box();
  EXPECT_GE(box.left, 50);
  EXPECT_LE(box.right, 50 + 2 * character_glyph('H').width);
  EXPECT_GE(box.top, 79);
  EXPECT_LT(box.bottom, 79 + 17);
  EXPECT_GT(ink_count(), 20);
}

TEST_F(drawing_string, has_no_background_unless_asked_for) {
  eval("Color(1,1,0,1)");
  eval("Color(0,0,1)");
  eval("drawString(\"H\",50,100)");
  EXPECT_EQ(at(50 + character_glyph('H').width - 1, 79), WHITE);
  eval("drawString(\"H\",50,100,1)");
  int front = 0, behind = 0;
  for (const TColour colour : pixels()) {
    front += colour == rgb(0, 0, 255);
    behind += colour == rgb(255, 255, 0);
  }
  EXPECT_EQ(front + behind, 17 * character_glyph('H').width);
  EXPECT_GT(front, 10);
}

TEST_F(drawing_string, is_cut_off_at_the_edges) {
  eval("Color(0,1,0,1)");
  eval("drawString(\"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\",200,5,1)");
  EXPECT_TRUE(ink_box().right == 225 && ink_box().bottom == 179);
  EXPECT_EQ(eval("drawString(\"W\",-5,185,1)"), "0");
  EXPECT_EQ(eval("drawString(\"W\",-1000,1000,1)"), "0");
}

TEST_F(drawing_string, may_be_empty) {
  EXPECT_EQ(eval("drawString(str1,50,100)"), "0");
  EXPECT_FALSE(drawing.drawing_used);
}

TEST_F(drawing_string, has_a_background_or_none) {
  EXPECT_EQ(error_of("drawString(\"a\",5,5,2)"), "Domain Error");
  EXPECT_EQ(error_of("drawString(str1,5,5,2)"), "Domain Error");
  EXPECT_EQ(error_of("drawString(5,5,5)"), "Function Argument Type");
  EXPECT_EQ(ink_count(), 0);
}

TEST_F(drawing_string, draws_a_stored_string) {
  eval("\"ab\"->str2");
  EXPECT_EQ(eval("drawString(str2,5,100)"), "0");
  EXPECT_GT(ink_count(), 10);
}

}  // namespace
}  // namespace zephyl
