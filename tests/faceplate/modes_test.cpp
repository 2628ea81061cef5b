// Changes of mode by tabs, expressions and the menu, and the titles that tell of them.

#include "faceplate/modes.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

class modes : public face {};

TEST_F(modes, an_expression_changes_the_mode) {
  EXPECT_EQ(eval("3->calcMode"), "3");
  EXPECT_EQ(state.calcMode, STATS_MODE);
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(modes, four_modes_take_the_fourth_tab) {
  for (const int mode : {BASE_MODE, STATS_MODE, MATRIX_MODE, LIST_MODE}) {
    set_mode(mode, false);
    EXPECT_EQ(state.calcMode, mode);
    EXPECT_EQ(state.dynamic_mode, mode);
  }
  for (const int mode : {COMP_MODE, PLOT_MODE}) {
    set_mode(mode, false);
    EXPECT_EQ(state.calcMode, mode);
    EXPECT_EQ(state.dynamic_mode, LIST_MODE);
  }
}

TEST_F(modes, the_mode_that_is_set_asks_for_no_paint) {
  platform_.paint_requested = false;
  set_mode(COMP_MODE, true);
  EXPECT_FALSE(platform_.paint_requested);
}

TEST_F(modes, numbers_that_are_no_mode_change_nothing) {
  for (const int mode : {-1, 8, 100}) set_mode(mode, false);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(modes, the_first_tab_of_each_screen_leads_back) {
  const struct {
    int mode;
    int key;
  } ways[] = {{BASE_MODE, 43}, {STATS_MODE, 43}, {PROGRAM_EDIT_MODE, 18}, {PERIODIC_MODE, 0},
              {PLOT_MODE, 12}, {MATRIX_MODE, 0}, {LIST_MODE, 0}};
  for (const auto& way : ways) {
    state.calcMode = way.mode;
    tap_key(way.key);
    EXPECT_EQ(state.calcMode, COMP_MODE) << "mode " << way.mode;
  }
}

TEST_F(modes, the_title_of_statistics_counts_the_data) {
  set_mode(STATS_MODE, false);
  EXPECT_EQ(platform_.title, "Zephyl (n=0)");
  eval("2->statsVar");
  EXPECT_EQ(platform_.title, "Zephyl (n=0, x)");
  set_mode(COMP_MODE, false);
  EXPECT_EQ(platform_.title, "Zephyl");
}

TEST_F(modes, the_line_and_the_memories_stay) {
  type("12");
  set_mode(STATS_MODE, false);
  EXPECT_EQ(codes(), "33 34");
}

TEST_F(modes, a_result_is_written_in_the_way_of_the_new_mode) {
  type("255\r");
  settings.baseType = U_HEX;
  set_mode(BASE_MODE, false);
  EXPECT_STREQ(state.result_text, "00FFh");
}

// Key of the first of the six tabs.
int first_tab(int mode) {
  if (mode == PROGRAM_EDIT_MODE) return 18;
  if (mode == PLOT_MODE) return 12;
  return mode == MATRIX_MODE || mode == LIST_MODE ? 0 : 43;
}

class tabs : public face {
 protected:
  void tap_tab(int tab) { tap_key(first_tab(state.calcMode) + tab); }
};

TEST_F(tabs, each_leads_to_its_mode_from_every_screen) {
  for (const int mode :
       {BASE_MODE, COMP_MODE, STATS_MODE, PROGRAM_EDIT_MODE, PLOT_MODE, MATRIX_MODE, LIST_MODE}) {
    state.calcMode = mode;
    tap_tab(TAB_PLOT);
    EXPECT_EQ(state.calcMode, PLOT_MODE) << "from " << mode;
    state.calcMode = mode;
    state.dynamic_mode = BASE_MODE;
    tap_tab(TAB_DYNAMIC);
    EXPECT_EQ(state.calcMode, BASE_MODE) << "from " << mode;
    state.calcMode = mode;
    tap_tab(TAB_COMP);
    EXPECT_EQ(state.calcMode, COMP_MODE) << "from " << mode;
    state.calcMode = mode;
    platform_.dialogs.clear();
    tap_tab(TAB_MENU);
    EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"200 Menu"}) << "from " << mode;
  }
}

TEST_F(tabs, the_fourth_leads_where_the_last_of_its_modes_was) {
  set_mode(LIST_MODE, false);
  tap_tab(TAB_COMP);
  tap_tab(TAB_DYNAMIC);
  EXPECT_EQ(state.calcMode, LIST_MODE);
}

TEST_F(tabs, an_error_keeps_programs_plots_and_tables_shut) {
  errors.error_flag = true;
  tap_tab(TAB_PROGRAMS);
  tap_tab(TAB_PLOT);
  tap_tab(TAB_SETUP);
  for (const int mode : {MATRIX_MODE, LIST_MODE}) {
    state.dynamic_mode = mode;
    tap_tab(TAB_DYNAMIC);
  }
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(tabs, an_error_leaves_the_other_screens_and_the_menu_open) {
  errors.error_flag = true;
  for (const int mode : {STATS_MODE, BASE_MODE}) {
    state.dynamic_mode = mode;
    tap_tab(TAB_DYNAMIC);
    EXPECT_EQ(state.calcMode, mode);
    tap_tab(TAB_COMP);
    EXPECT_EQ(state.calcMode, COMP_MODE);
  }
  tap_tab(TAB_MENU);
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"200 Menu"});
}

class plot_note : public face {
 protected:
  void SetUp() override { platform_.dialogs.clear(); }
};

TEST_F(plot_note, comes_where_there_is_nothing_to_plot) {
  std::string text;
  platform_.dialog_answers.push_back([&text](TDialog& dialog) { text = dialog[0].text; });
  tap_key(45);
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"187 Note"});
  EXPECT_EQ(text,
            "While in COMP mode an expression can be entered for plotting. Use the <orange shift> "
            "'x,t,(theta)...' key to enter the dependent variable. Use the <blue shift> 'Plot' key to enter "
            "the expression into the function list for plotting.");
  EXPECT_EQ(state.calcMode, PLOT_MODE);
}

TEST_F(plot_note, stays_away_with_a_function_of_the_type) {
  function_slots[2].count = 1;
  tap_key(45);
  EXPECT_TRUE(platform_.dialogs.empty());
  set_mode(COMP_MODE, false);
  plot_variables.plotType = PLOT_POLAR;
  tap_key(45);
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"187 Note"});
}

TEST_F(plot_note, stays_away_where_something_is_drawn) {
  eval("Line(0,0,5,5)");
  tap_key(45);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(plot_note, stays_away_where_plots_are_disabled) {
  plot_variables.enablePlots = 0;
  tap_key(45);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(plot_note, stays_away_where_nobody_asked) {
  eval("2->calcMode");
  EXPECT_EQ(state.calcMode, PLOT_MODE);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(plot_note, the_plot_is_to_be_drawn) {
  static int changes;
  changes = 0;
  hooks.plot_changed = [] { ++changes; };
  set_mode(PLOT_MODE, false);
  EXPECT_EQ(changes, 1);
}

class titles : public face {};

TEST_F(titles, tell_the_matrix_and_its_size) {
  set_mode(MATRIX_MODE, false);
  EXPECT_EQ(platform_.title, "Zephyl (A[Undefined])");
  eval("initMatrix(2,3,1)->[C]");
  tap_key(23);
  EXPECT_EQ(platform_.title, "Zephyl (C[2,3])");
  tap_key(31);
  EXPECT_EQ(platform_.title, "Zephyl (M Ans[2,3])");
  tap_key(30);
  EXPECT_EQ(platform_.title, "Zephyl (J[Undefined])");
}

TEST_F(titles, tell_an_answer_that_is_undefined) {
  set_mode(MATRIX_MODE, false);
  tap_key(31);
  EXPECT_EQ(platform_.title, "Zephyl (M Ans[Undefined])");
  set_mode(LIST_MODE, false);
  tap_key(31);
  EXPECT_EQ(platform_.title, "Zephyl (L Ans{Undefined})");
}

TEST_F(titles, tell_the_list_and_its_size) {
  set_mode(LIST_MODE, false);
  EXPECT_EQ(platform_.title, "Zephyl (A{Undefined})");
  eval("{1,2,3}->{B}");
  tap_key(22);
  EXPECT_EQ(platform_.title, "Zephyl (B{3})");
  tap_key(31);
  EXPECT_EQ(platform_.title, "Zephyl (L Ans{3})");
}

TEST_F(titles, follow_a_list_that_an_expression_changes) {
  set_mode(LIST_MODE, false);
  state.fresh_flag = false;
  eval("{1,2}->{A}");
  tap_key(7);
  EXPECT_EQ(platform_.title, "Zephyl (A{2})");
}

TEST_F(titles, tell_the_plot_and_its_cursor) {
  set_mode(PLOT_MODE, false);
  EXPECT_EQ(platform_.title, "Function (trace)");
  tap_key(21);
  EXPECT_EQ(platform_.title, "Function (box zoom)");
  tap_key(22);
  EXPECT_EQ(platform_.title, "Function (pan)");
  eval("2->plotType");
  EXPECT_EQ(platform_.title, "Polar (pan)");
  eval("3->plotType");
  EXPECT_EQ(platform_.title, "Parametric (pan)");
  eval("4->plotType");
  tap_key(23);
  EXPECT_EQ(platform_.title, "3D Cartesian (rotate)");
  eval("2->plotType3D");
  EXPECT_EQ(platform_.title, "3D Cylindrical (rotate)");
  eval("3->plotType3D");
  EXPECT_EQ(platform_.title, "3D Spherical (rotate)");
}

TEST_F(titles, an_unknown_plot_is_an_alarm) {
  plot_variables.plotType = 7;
  set_mode(PLOT_MODE, false);
  EXPECT_EQ(message(), "Bug (Set_WindowText_with_Plot_Data) | Undefined Plot Type");
  plot_variables.plotType = 0;
  plot_variables.plotCursor = 9;
  platform_.messages.clear();
  eval("2->plotType");
  EXPECT_EQ(message(), "Bug (Set_WindowText_with_Plot_Data) | Undefined Cursor Type");
}

}  // namespace
}  // namespace zephyl
