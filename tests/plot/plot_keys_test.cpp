// The keys of the plot screen that change the view, and the key that enters a function.

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "plot/plotting.h"
#include "plot/zoom_locks.h"

namespace zephyl {
namespace {

class plot_keys : public plotting {
 protected:
  static void expect_view(double xMin, double yMin, double xMax, double yMax) {
    EXPECT_EQ(plot_variables.xMin, xMin);
    EXPECT_EQ(plot_variables.yMin, yMin);
    EXPECT_EQ(plot_variables.xMax, xMax);
    EXPECT_EQ(plot_variables.yMax, yMax);
  }
};

TEST_F(plot_keys, zoom_about_the_middle) {
  set_plot_view(0, 10, 8, 30);
  zoom_in();
  expect_view(2, 15, 6, 25);
  zoom_out();
  zoom_out();
  expect_view(-4, 0, 12, 40);
}

TEST_F(plot_keys, zoom_leaves_a_locked_axis_alone) {
  zoom_locks.x = true;
  zoom_in();
  expect_view(-10, -5, 10, 5);
  zoom_locks = {false, true};
  zoom_in();
  expect_view(-5, -5, 5, 5);
  zoom_locks = {true, true};
  zoom_in();
  expect_view(-5, -5, 5, 5);
}

TEST_F(plot_keys, zoom_stops_at_the_limits_of_a_view) {
  set_plot_view(-1e100, -1e100, 1e100, 1e100);
  zoom_out();
  expect_view(-1e100, -1e100, 1e100, 1e100);
  set_plot_view(1, 1, 2, 2);
  for (int i = 0; i < 200; ++i) zoom_in();
  EXPECT_LT(plot_variables.xMin, plot_variables.xMax);
}

TEST_F(plot_keys, pan_by_a_quarter) {
  set_plot_view(0, 0, 8, 16);
  pan_right();
  pan_up();
  expect_view(2, 4, 10, 20);
  pan_left();
  pan_left();
  pan_down();
  pan_down();
  expect_view(-2, -4, 6, 12);
}

TEST_F(plot_keys, home_puts_the_origin_into_the_middle) {
  set_plot_view(5, 6, 9, 16);
  cursor_home();
  expect_view(-2, -5, 2, 5);
}

TEST_F(plot_keys, ask_for_a_new_plot) {
  draw();
  platform_.paint_requested = false;
  zoom_in();
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(plot_keys, a_new_cursor_takes_the_marks_of_the_last_one_away) {
  put(PLOT_FUNCTION, 0, "x");
  const TSurface plot = draw();
  pen_drag({20, 20}, {30, 30});
  set_plot_cursor(CURSOR_PAN);
  EXPECT_TRUE(same_picture(plot, shown_plot()));
  EXPECT_EQ(platform_.title, "Function (pan)");
}

TEST_F(plot_keys, leaving_3d_turns_the_rotate_cursor_into_trace) {
  set_plot_type(PLOT_3D);
  plot_variables.plotCursor = CURSOR_ROTATE;
  eval("2->plotType");
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
  set_plot_type(PLOT_3D);
  plot_variables.plotCursor = CURSOR_PAN;
  set_plot_type(PLOT_FUNCTION);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_PAN);
}

// --- The Plot key of COMP_MODE

class plot_function_key : public plotting {
 protected:
  plot_function_key() { state.calcMode = COMP_MODE; }
  static void enter(const std::string& text) {
    char error[200];
    ASSERT_TRUE(enter_text(text.c_str(), error, sizeof error));
    enter_plot_function();
  }
};

TEST_F(plot_function_key, puts_the_line_into_the_first_free_slot) {
  put(PLOT_FUNCTION, 0, "1");
  enter("x^(2)");
  EXPECT_EQ(plot_slot(PLOT_FUNCTION, 1), entry_line.expression);
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"186 Plot Functions"});
}

TEST_F(plot_function_key, takes_slots_of_the_type_that_is_set) {
  choose(PLOT_3D);
  enter("u+v");
  EXPECT_TRUE(slot_in_use(PLOT_3D, 0));
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 0));
}

TEST_F(plot_function_key, does_not_evaluate) {
  eval("7");
  enter("1/0+A");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(platform_.dialogs.size(), 1u);
  EXPECT_TRUE(slot_in_use(PLOT_FUNCTION, 0));
}

TEST_F(plot_function_key, stops_at_an_error_of_the_line) {
  enter("1+");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_FALSE(slot_in_use(PLOT_FUNCTION, 0));
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(plot_function_key, opens_the_dialog_when_all_slots_are_taken_or_the_line_is_empty) {
  entry_line = {};
  enter_plot_function();
  EXPECT_EQ(slots_in_use(), 0);
  for (int slot = 0; slot < 6; ++slot) put(PLOT_FUNCTION, slot, "1");
  enter("2");
  EXPECT_EQ(platform_.dialogs.size(), 2u);
}

}  // namespace
}  // namespace zephyl
