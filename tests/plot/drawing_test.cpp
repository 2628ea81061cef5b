// The drawing layer: its colours and pen, when it shows, when it is cleared.

#include "plot/drawing.h"

#include <gtest/gtest.h>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/state.h"
#include "plot/plot_variables.h"
#include "support/drawing.h"

namespace zephyl {
namespace {

int redraws = 0;
int changes = 0;

class drawing_layer : public drawn {
 protected:
  drawing_layer() {
    redraws = changes = 0;
    hooks.request_plot_redraw = [] { ++redraws; };
    hooks.plot_changed = [] { ++changes; };
  }

  // As a statement of a program.
  void run(TOp_Code op) {
    TScalarCall call{};
    call.op = op;
    operations[op].scalar(call);
  }
};

TEST_F(drawing_layer, begins_white_with_black_on_white) {
  EXPECT_EQ(ink_count(), 0);
  EXPECT_EQ(drawing.draw_colour, BLACK);
  EXPECT_EQ(drawing.back_colour, WHITE);
  EXPECT_FALSE(drawing.drawing_used);
  EXPECT_FALSE(drawing_present());
}

TEST_F(drawing_layer, every_command_is_zero) {
  for (const char* command : {"Line(0,0,1,1)",
                              "Rect(0,0,1,1)",
                              "fillRect(0,0,1,1)",
                              "Point(0,0)",
                              "moveTo(0,0)",
                              "lineTo(1,1)",
                              "Circle(0,0,1)",
                              "fillCirc(0,0,1)",
                              "Ellipse(0,0,1,2)",
                              "fillEllip(0,0,1,2)",
                              "Arc(0,0,1,0,1)",
                              "Color(0,0,0)",
                              "Color(0,0,0,1)",
                              "clrDraw()",
                              "updateDraw()",
                              "drawString(\"a\",0,0)",
                              "drawString(\"a\",0,0,1)",
                              "drawListY({1,2})",
                              "drawListXY({1,2},{1,2})",
                              "initDraw(0,0,0,0)"})
    EXPECT_EQ(eval(command), "0") << command;
}

TEST_F(drawing_layer, colours_are_parts_of_one_cut_to_whole_numbers) {
  eval("Color(2,-1,0.5)");
  EXPECT_EQ(drawing.draw_colour, rgb(255, 0, 127));
  EXPECT_EQ(drawing.back_colour, WHITE);
  eval("Color(1e300,-1e300,0.999,1)");
  EXPECT_EQ(drawing.back_colour, rgb(255, 0, 254));
  EXPECT_EQ(drawing.draw_colour, rgb(255, 0, 127));
  eval("Color(0,1/255,1,0)");
  EXPECT_EQ(drawing.draw_colour, rgb(0, 1, 255));
}

TEST_F(drawing_layer, a_colour_is_in_front_or_behind) {
  for (const char* wrong : {"Color(1,0,0,2)", "Color(1,0,0,-1)", "Color(1,0,0,0.5)", "Color(1,0,0,1e300)"})
    EXPECT_EQ(error_of(wrong), "Domain Error");
  EXPECT_EQ(drawing.draw_colour, BLACK);
  EXPECT_EQ(drawing.back_colour, WHITE);
}

TEST_F(drawing_layer, the_pen_has_no_place_before_its_first_use) {
  view_of_pixels();
  eval("lineTo(10,10)");
  EXPECT_EQ(ink_count(), 0);
  eval("lineTo(20,10)");
  EXPECT_EQ(ink_count(), 11);
  eval("moveTo(50,50)");
  EXPECT_EQ(ink_count(), 11);
  eval("lineTo(50,59)");
  EXPECT_EQ(ink_count(), 21);
  EXPECT_EQ(drawing.pen_x, 50);
  EXPECT_EQ(drawing.pen_y, 59);
}

TEST_F(drawing_layer, the_pen_stays_in_plot_units) {
  eval("moveTo(0,0)");
  view_of_pixels();
  eval("lineTo(9,0)");
  EXPECT_EQ(ink_box().left, 0);
  EXPECT_EQ(ink_box().right, 9);
}

TEST_F(drawing_layer, clearing_makes_it_white_and_resets_colours_but_not_the_pen) {
  eval("Color(1,0,0)");
  eval("Color(0,1,0,1)");
  eval("moveTo(3,4)");
  eval("fillCirc(0,0,5)");
  EXPECT_TRUE(drawing.drawing_used);
  eval("clrDraw()");
  EXPECT_EQ(ink_count(), 0);
  EXPECT_EQ(drawing.draw_colour, BLACK);
  EXPECT_EQ(drawing.back_colour, WHITE);
  EXPECT_EQ(drawing.pen_x, 3);
  EXPECT_FALSE(drawing.drawing_used);
}

TEST_F(drawing_layer, is_an_item_of_clrMem) {
  eval("fillCirc(0,0,5)");
  eval("clrMem(5)");
  EXPECT_TRUE(drawing_present());
  eval("clrMem(6)");
  EXPECT_FALSE(drawing_present());
  EXPECT_EQ(ink_count(), 0);
  eval("fillCirc(0,0,5)");
  clear_items(CLEAR_ALL_ITEMS);
  EXPECT_EQ(ink_count(), 0);
}

TEST_F(drawing_layer, is_present_where_a_pixel_is_not_white_in_sixteen_bits) {
  eval("Line(-10,0,10,0)");
  EXPECT_TRUE(drawing_present());
  eval("Color(1,1,1)");
  eval("Line(-10,0,10,0)");
  EXPECT_TRUE(drawing.drawing_used);
  EXPECT_FALSE(drawing_present());
  eval("Color(0.98,0.995,0.98)");
  eval("Line(-10,0,10,0)");
  EXPECT_GT(ink_count(), 0);
  EXPECT_FALSE(drawing_present());
}

TEST_F(drawing_layer, a_change_of_view_moves_nothing) {
  eval("fillCirc(2,3,4)");
  const std::vector<TColour> before = pixels();
  eval("-1->xMin");
  EXPECT_EQ(pixels(), before);
}

TEST_F(drawing_layer, shows_at_once_in_plot_mode_only) {
  eval("Line(0,0,1,1)");
  EXPECT_EQ(redraws, 0);
  EXPECT_EQ(changes, 1);
  state.calcMode = PLOT_MODE;
  eval("Line(0,0,1,1)");
  eval("Point(0,0)");
  EXPECT_EQ(redraws, 2);
  EXPECT_EQ(changes, 3);
  eval("moveTo(0,0)");
  eval("Color(0,0,0)");
  EXPECT_EQ(redraws, 2);
}

TEST_F(drawing_layer, a_program_may_show_it_by_itself) {
  state.calcMode = PLOT_MODE;
  state.program_running = true;
  run(OP_LINE);
  EXPECT_EQ(redraws, 1);
  run(OP_UPDATE_DRAW);
  EXPECT_EQ(redraws, 2);
  run(OP_LINE);
  run(OP_CIRCLE);
  EXPECT_EQ(redraws, 2);
  EXPECT_EQ(changes, 2);
  run(OP_UPDATE_DRAW);
  EXPECT_EQ(redraws, 3);
  run(OP_POINT);
  resume_drawing_updates();
  EXPECT_EQ(redraws, 4) << "what the program left behind shows at its end";
  run(OP_POINT);
  EXPECT_EQ(redraws, 5) << "the next program shows each command again";
}

TEST_F(drawing_layer, showing_by_itself_ends_with_the_program) {
  state.calcMode = PLOT_MODE;
  run(OP_UPDATE_DRAW);
  EXPECT_EQ(redraws, 1);
  run(OP_POINT);
  EXPECT_EQ(redraws, 2) << "no program ran";
  state.program_running = true;
  run(OP_UPDATE_DRAW);
  state.program_running = false;
  run(OP_POINT);
  EXPECT_EQ(redraws, 4);
}

TEST_F(drawing_layer, initialising_sets_the_plot_screen_up) {
  eval("fillCirc(0,0,5)");
  eval("3->plotType");
  eval("0->xMin");
  EXPECT_EQ(eval("initDraw(0,0,0,0)"), "0");
  EXPECT_EQ(state.calcMode, PLOT_MODE);
  EXPECT_TRUE(drawing_present());
  EXPECT_EQ(plot_variables.plotType, PLOT_PARAMETRIC);
  EXPECT_EQ(plot_variables.xMin, 0);
  EXPECT_EQ(plot_variables.displayGrid, 0);
  EXPECT_EQ(plot_variables.enablePlots, 0);
  eval("initDraw(1,0,1,0)");
  EXPECT_FALSE(drawing_present());
  EXPECT_EQ(plot_variables.enablePlots, 1);
  EXPECT_EQ(plot_variables.displayGrid, 0);
  EXPECT_EQ(plot_variables.xMin, 0);
  eval("initDraw(0,1,0,1)");
  EXPECT_EQ(plot_variables.plotType, PLOT_FUNCTION);
  EXPECT_EQ(plot_variables.xMin, -10);
  EXPECT_EQ(plot_variables.enablePlots, 0) << "after the defaults, which turn plots on";
  EXPECT_EQ(plot_variables.displayGrid, 1);
}

TEST_F(drawing_layer, initialising_shows_at_once_where_the_plot_shows_already) {
  state.program_running = true;
  run(OP_INIT_DRAW);
  EXPECT_EQ(redraws, 0) << "the mode's own paint shows it";
  run(OP_INIT_DRAW);
  EXPECT_EQ(redraws, 1);
  run(OP_UPDATE_DRAW);
  EXPECT_EQ(redraws, 2);
  run(OP_INIT_DRAW);
  EXPECT_EQ(redraws, 2) << "a program that shows its drawing itself";
  run(OP_UPDATE_DRAW);
  EXPECT_EQ(redraws, 3);
}

TEST_F(drawing_layer, initialising_changes_nothing_where_a_switch_is_neither_0_nor_1) {
  eval("fillCirc(0,0,5)");
  for (const char* wrong :
       {"initDraw(2,1,0,0)", "initDraw(1,-1,0,0)", "initDraw(1,1,0.5,0)", "initDraw(1,1,0,2)"})
    EXPECT_EQ(error_of(wrong), "Domain Error");
  EXPECT_TRUE(drawing_present());
  EXPECT_EQ(plot_variables.displayGrid, 1);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(drawing_layer, the_defaults_of_plots_leave_the_drawing_and_the_mode) {
  eval("fillCirc(0,0,5)");
  eval("3->plotType");
  eval("0->xMin");
  eval("2->angleMode");
  EXPECT_EQ(eval("initPlot()"), "0");
  EXPECT_EQ(plot_variables.plotType, PLOT_FUNCTION);
  EXPECT_EQ(plot_variables.xMin, -10);
  EXPECT_EQ(plot_variables.t.max, 360);
  EXPECT_TRUE(drawing_present());
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(drawing_layer, counts_and_types_of_arguments_are_those_of_any_function) {
  EXPECT_EQ(error_of("Line(1,2,3)"), "Function Argument Count");
  EXPECT_EQ(error_of("Color(1,2)"), "Function Argument Count");
  EXPECT_EQ(error_of("Line(1,2,3,(i))"), "Function Argument Type");
  EXPECT_EQ(error_of("Point(\"a\",1)"), "Function Argument Type");
  EXPECT_FALSE(drawing.drawing_used);
}

TEST_F(drawing_layer, a_list_draws_for_each_of_its_elements) {
  view_of_pixels();
  eval("Point({10,20,30},{5,6,7})");
  EXPECT_EQ(ink_count(), 3);
  EXPECT_TRUE(ink(30, 172));
}

TEST_F(drawing_layer, huge_coordinates_are_no_error) {
  for (const char* command :
       {"Line(-1e308,-1e308,1e308,1e308)", "Rect(-1e308,1e308,1e308,-1e308)",
        "fillRect(1e308,1e308,-1e308,-1e308)", "Point(1e308,-1e308)", "moveTo(1e308,1e308)",
        "lineTo(-1e308,1e300)", "Circle(1e308,1e308,1e308)", "fillCirc(0,0,1e308)",
        "Ellipse(0,0,-1e308,1e-308)", "fillEllip(1e308,0,1e308,1e308)", "Arc(0,0,1e308,-1e308,1e308)",
        "Arc(1e308,0,1e308,1e300,1e300)", "drawListY({1e308,-1e308},1)",
        "drawListXY({1e308,-1e308},{-1e308,1e308},3)", "drawString(\"a\",1e308,-1e308,1)"})
    EXPECT_EQ(eval(command), "0") << command;
  eval("1e-300->xMax");
  eval("0->xMin");
  EXPECT_EQ(eval("Line(-1e308,0,1e308,5)"), "0");
  EXPECT_EQ(eval("Arc(0,0,1e308,0,6)"), "0");
}

}  // namespace
}  // namespace zephyl
