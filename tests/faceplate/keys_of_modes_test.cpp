// The keys of the modes beside COMP_MODE, each in each of its meanings.

#include <cmath>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "stats/stats.h"

namespace zephyl {
namespace {

constexpr int BLUE_KEY = 0;
constexpr int AC_KEY = 27;
constexpr int DELETE_KEY = 20;
constexpr int ENTER_KEY = 26;
constexpr int EVALUATE_KEY = 42;

struct TKeyTokens {
  int key;
  const char* plain;
  const char* blue;
};

class keys_of_modes : public face {
 protected:
  std::string tokens_of(int mode, bool blue, int key) {
    state.calcMode = mode;
    tap_key(AC_KEY);
    if (blue) tap_key(BLUE_KEY);
    tap_key(key);
    const std::string found = codes();
    EXPECT_EQ(shifts(), "") << "key " << key;
    return found;
  }
};

class keys_base : public keys_of_modes {
 protected:
  void SetUp() override { set_mode(BASE_MODE, false); }
};

constexpr TKeyTokens base_tokens[] = {
    {3, "3", "203"},    {4, "4", "204"},    {5, "505", "605"},  {6, "506", "606"},  {7, "507", "607"},
    {8, "508", "508"},  {9, "509", "509"},  {10, "", ""},       {11, "511", "511"}, {12, "512", "512"},
    {13, "513", "513"}, {14, "514", "514"}, {15, "515", "515"}, {16, "516", "516"}, {17, "517", "517"},
    {18, "518", "518"}, {19, "519", "619"}, {20, "", ""},       {21, "", ""},       {22, "", ""},
    {23, "23", "23"},   {24, "24", "24"},   {25, "25", "25"},   {26, "", ""},       {27, "", ""},
    {28, "28", "28"},   {29, "29", "29"},   {30, "30", "30"},   {31, "31", "31"},   {32, "32", "32"},
    {33, "33", "33"},   {34, "34", "34"},   {35, "35", "35"},   {36, "36", "36"},   {37, "37", "37"},
    {38, "38", "38"},   {39, "39", "39"},   {40, "40", "40"},   {41, "41", "41"},   {42, "", ""},
};

TEST_F(keys_base, each_key_enters_its_token) {
  for (const TKeyTokens& row : base_tokens) {
    EXPECT_EQ(tokens_of(BASE_MODE, false, row.key), row.plain) << "key " << row.key;
    EXPECT_EQ(tokens_of(BASE_MODE, true, row.key), row.blue) << "blue key " << row.key;
  }
}

TEST_F(keys_base, the_base_goes_from_hexadecimal_down_to_binary_by_way_of_octal) {
  settings.baseType = U_BIN;
  for (const int base : {U_DEC, U_HEX, U_OCT, U_BIN}) {
    tap_key(1);
    EXPECT_EQ(settings.baseType, base);
  }
}

TEST_F(keys_base, the_base_key_writes_the_result_again) {
  type("255\r");
  tap_key(1);
  EXPECT_EQ(std::string(state.result_text).substr(0, 4), "00FF");
}

TEST_F(keys_base, the_bits_go_round) {
  for (const int bits : {BITS_32, BITS_8, BITS_16}) {
    tap_key(2);
    EXPECT_EQ(settings.baseBits, bits);
  }
}

TEST_F(keys_base, the_bits_key_writes_the_result_again) {
  type("255\r");
  settings.baseBits = BITS_32;
  tap_key(2);
  EXPECT_STREQ(state.result_text, "-1d");
}

TEST_F(keys_base, blue_delete_deletes_nothing) {
  type("12");
  tap_keys({BLUE_KEY, DELETE_KEY});
  EXPECT_EQ(codes(), "33 34");
  EXPECT_EQ(shifts(), "");
  tap_key(DELETE_KEY);
  EXPECT_EQ(codes(), "33");
}

TEST_F(keys_base, the_blue_cursor_takes_big_steps) {
  type("1111111111");
  tap_keys({BLUE_KEY, 21});
  EXPECT_EQ(entry_line.cursor, 8);
  tap_keys({21, BLUE_KEY, 22});
  EXPECT_EQ(entry_line.cursor, 9);
}

TEST_F(keys_base, a_result_is_entered_into_the_statistics_and_taken_back) {
  type("12");
  tap_key(ENTER_KEY);
  EXPECT_EQ(stats.count, 1);
  EXPECT_EQ(stats.x[0], 12.0);
  tap_keys({BLUE_KEY, ENTER_KEY});
  EXPECT_EQ(stats.count, 0);
}

TEST_F(keys_base, there_is_no_orange_shift) {
  state.orange_shift = true;
  tap_key(24);
  EXPECT_EQ(codes(), "24");
  EXPECT_FALSE(state.alpha_active);
}

TEST_F(keys_base, a_running_program_is_left_alone) {
  state.program_running = true;
  tap_keys({1, 2, DELETE_KEY, 21, 22, ENTER_KEY, AC_KEY, 10});
  EXPECT_EQ(settings.baseType, U_DEC);
  EXPECT_EQ(settings.baseBits, BITS_16);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(keys_base, ac_and_the_clear_dialog) {
  type("12");
  tap_key(AC_KEY);
  EXPECT_EQ(codes(), "");
  tap_keys({BLUE_KEY, AC_KEY});
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"218 Select Items to Clear"});
}

TEST_F(keys_base, evaluates) {
  tap_keys({11, 13, EVALUATE_KEY});
  EXPECT_STREQ(errors.error_text, "Invalid Syntax");
  tap_key(AC_KEY);
  tap_keys({11, 18, EVALUATE_KEY});
  EXPECT_STREQ(state.result_text, "10d");
}

class keys_stats : public keys_of_modes {
 protected:
  void SetUp() override { set_mode(STATS_MODE, false); }
};

constexpr TKeyTokens stats_tokens[] = {
    {3, "3", "203"},      {4, "4", "204"},      {5, "1005", "1005"},  {6, "1006", "1106"},
    {7, "1007", "1107"},  {8, "1008", "1108"},  {9, "", "1109"},      {10, "", ""},
    {11, "1011", "1111"}, {12, "1012", "1112"}, {13, "1013", "1113"}, {14, "1014", "1114"},
    {15, "1015", "1115"}, {16, "1016", "1116"}, {17, "17", "1117"},   {18, "", "1118"},
    {19, "", "1119"},     {20, "", ""},         {21, "", ""},         {22, "", ""},
    {23, "23", ""},       {24, "24", ""},       {25, "25", "25"},     {26, "", ""},
    {27, "", ""},         {28, "28", "28"},     {29, "29", "29"},     {30, "30", "30"},
    {31, "31", "31"},     {32, "32", "32"},     {33, "33", "33"},     {34, "34", "34"},
    {35, "35", "35"},     {36, "36", "36"},     {37, "37", "37"},     {38, "38", "38"},
    {39, "39", "39"},     {40, "40", "40"},     {41, "41", "41"},     {42, "", ""},
};

TEST_F(keys_stats, each_key_enters_its_token) {
  for (const TKeyTokens& row : stats_tokens) {
    EXPECT_EQ(tokens_of(STATS_MODE, false, row.key), row.plain) << "key " << row.key;
    EXPECT_EQ(tokens_of(STATS_MODE, true, row.key), row.blue) << "blue key " << row.key;
  }
}

TEST_F(keys_stats, one_or_two_variables) {
  EXPECT_EQ(platform_.title, "Zephyl (n=0)");
  tap_key(1);
  EXPECT_EQ(platform_.title, "Zephyl (n=0, x)");
  EXPECT_EQ(settings.statsVar, 1);
  tap_key(1);
  EXPECT_EQ(platform_.title, "Zephyl (n=0)");
}

TEST_F(keys_stats, the_title_follows_the_data) {
  tap_key(1);
  type("5");
  tap_key(ENTER_KEY);
  EXPECT_EQ(platform_.title, "Zephyl (n=0, y)");
  type("6");
  tap_key(ENTER_KEY);
  EXPECT_EQ(platform_.title, "Zephyl (n=1, x)");
}

TEST_F(keys_stats, regressions_go_round) {
  for (const int model : {R_LOGARITHMIC, R_EXPON, R_POWER, R_LINEAR}) {
    tap_key(9);
    EXPECT_EQ(settings.statsRegress, model);
  }
}

TEST_F(keys_stats, the_last_entry_and_all_entries_are_cleared) {
  for (const char* const text : {"1", "2", "3"}) {
    type(text);
    tap_key(ENTER_KEY);
  }
  EXPECT_EQ(stats.count, 3);
  tap_key(18);
  EXPECT_EQ(stats.count, 2);
  tap_key(19);
  EXPECT_EQ(stats.count, 0);
}

TEST_F(keys_stats, an_error_keeps_the_data) {
  type("1");
  tap_key(ENTER_KEY);
  type("1/0\r");
  tap_keys({18, 19, 2, BLUE_KEY, 23, ENTER_KEY});
  EXPECT_EQ(stats.count, 1);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(keys_stats, a_running_program_is_left_alone) {
  state.program_running = true;
  tap_keys({1, 2, 9, DELETE_KEY, 21, 22, ENTER_KEY, AC_KEY});
  EXPECT_EQ(settings.statsVar, 0);
  EXPECT_EQ(settings.statsRegress, R_LINEAR);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(keys_stats, list_summary_and_clearing_have_their_dialogs) {
  tap_keys({2, BLUE_KEY, 23, BLUE_KEY, AC_KEY});
  EXPECT_EQ(platform_.dialogs,
            (std::vector<std::string>{"169 Stats List", "188 Stats Summary", "218 Select Items to Clear"}));
}

TEST_F(keys_stats, plots_have_their_dialog) {
  tap_keys({BLUE_KEY, 24});
  EXPECT_TRUE(platform_.dialogs.empty() || platform_.dialogs[0] == "193 Select Plot");
  add_stats_value(1.0);
  platform_.dialogs.clear();
  tap_keys({BLUE_KEY, 24});
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"193 Select Plot"});
}

TEST_F(keys_stats, blue_delete_deletes_nothing) {
  type("12");
  tap_keys({BLUE_KEY, DELETE_KEY});
  EXPECT_EQ(codes(), "33 34");
}

class keys_plot : public face {
 protected:
  void SetUp() override {
    set_mode(PLOT_MODE, false);
    paint();
  }
};

TEST_F(keys_plot, two_keys_lock_the_axes_and_their_lamps_tell) {
  for (const int type : {PLOT_FUNCTION, PLOT_3D}) {
    plot_variables.plotType = type;
    zoom_locks = {};
    paint();
    const std::vector<TColour> red = picture();
    tap_key(5);
    EXPECT_TRUE(zoom_locks.x);
    EXPECT_FALSE(zoom_locks.y);
    EXPECT_NE(picture(), red);
    tap_key(6);
    EXPECT_TRUE(zoom_locks.y);
    tap_keys({5, 6});
    EXPECT_FALSE(zoom_locks.x || zoom_locks.y);
    EXPECT_EQ(picture(), red);
  }
}

TEST_F(keys_plot, typed_x_and_y_lock_too) {
  type("xy");
  EXPECT_TRUE(zoom_locks.x && zoom_locks.y);
}

TEST_F(keys_plot, three_keys_select_a_cursor) {
  for (const int cursor : {CURSOR_BOX_ZOOM, CURSOR_PAN, CURSOR_TRACE}) {
    tap_key(20 + cursor);
    EXPECT_EQ(plot_variables.plotCursor, cursor);
  }
}

TEST_F(keys_plot, the_fourth_rotates_a_surface_only) {
  tap_key(23);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
  plot_variables.plotType = PLOT_3D;
  tap_key(23);
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_ROTATE);
}

TEST_F(keys_plot, leaving_the_surfaces_with_the_rotation_traces) {
  eval("4->plotType");
  tap_key(23);
  eval("1->plotType");
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
  EXPECT_EQ(platform_.title, "Function (trace)");
}

TEST_F(keys_plot, on_a_plane_a_rotation_shows_as_trace) {
  const std::vector<TColour> trace = picture();
  plot_variables.plotCursor = CURSOR_ROTATE;
  paint();
  EXPECT_EQ(picture(), trace);
  EXPECT_EQ(platform_.title, "Function (trace)");
}

TEST_F(keys_plot, the_height_of_a_surface_is_doubled_and_halved) {
  plot_variables.plotType = PLOT_3D;
  tap_keys({18, 18, 19});
  EXPECT_EQ(plot_variables.zScale, 2.0);
  plot_variables.zScale = 1.1e100;
  tap_key(18);
  EXPECT_EQ(plot_variables.zScale, 1.1e100);
  plot_variables.zScale = 1e100;
  on_pen_down(110, 278);
  EXPECT_EQ(plot_variables.zScale, 2e100);
  on_pen_up(110, 278);
  paint();
  EXPECT_EQ(plot_variables.zScale, 1e100);  // as far as a plot goes
}

TEST_F(keys_plot, the_dead_pixel_is_reported_and_does_nothing) {
  settings.keyClick = 1;
  bool needs_repaint = false;
  EXPECT_EQ(key_pressed_decoder(needs_repaint, 0), KEY_CONSUMED);
  EXPECT_FALSE(needs_repaint);
  EXPECT_EQ(platform_.clicks, 0);
}

TEST_F(keys_plot, on_a_plane_those_two_keys_are_never_reached) {
  on_pen_down(7, 7);
  on_pen_up(7, 7);
  EXPECT_EQ(plot_variables.zScale, 1.0);
}

class keys_of_tables : public face {
 protected:
  static int cursor() { return list_view.cursor[list_view.current_list]; }
  static int top() { return list_view.top_row[list_view.current_list]; }
  static int row() { return matrix_view.cursor_row[matrix_view.current_matrix]; }
  static int column() { return matrix_view.cursor_col[matrix_view.current_matrix]; }
};

TEST_F(keys_of_tables, the_strip_chooses_a_list) {
  set_mode(LIST_MODE, false);
  for (int key = 21; key <= 31; ++key) {
    tap_key(key);
    EXPECT_EQ(list_view.current_list, key - 21);
  }
}

TEST_F(keys_of_tables, the_strip_chooses_a_matrix) {
  set_mode(MATRIX_MODE, false);
  for (int key = 21; key <= 31; ++key) {
    tap_key(key);
    EXPECT_EQ(matrix_view.current_matrix, key - 21);
  }
}

TEST_F(keys_of_tables, a_tap_on_a_row_chooses_an_element) {
  eval("{1,2,3,4}->{A}");
  set_mode(LIST_MODE, false);
  tap_key(32 + 3 * 5 + 2);
  EXPECT_EQ(cursor(), 3);
  tap_key(32 + 4 * 5);
  EXPECT_EQ(cursor(), 3);
}

TEST_F(keys_of_tables, a_tap_on_a_cell_chooses_it) {
  eval("initMatrix(4,3,0)->[A]");
  set_mode(MATRIX_MODE, false);
  tap_key(32 + 3 * 5 + 2);
  EXPECT_EQ(row(), 3);
  EXPECT_EQ(column(), 2);
  tap_key(32 + 3 * 5 + 3);
  tap_key(32 + 4 * 5);
  EXPECT_EQ(row(), 3);
  EXPECT_EQ(column(), 2);
}

TEST_F(keys_of_tables, scroll_keys_of_a_list) {
  set_mode(LIST_MODE, false);
  tap_keys({18, 18, 17});
  EXPECT_EQ(top(), 1);
  tap_keys({14, 14});
  EXPECT_EQ(top(), 17);
  tap_keys({13, 13, 13});
  EXPECT_EQ(top(), 0);
  tap_key(17);
  EXPECT_EQ(top(), 0);
  tap_keys({11, 12, 15, 16});
  EXPECT_EQ(top(), 0);
  EXPECT_EQ(matrix_view.left_col[0], 0);
}

TEST_F(keys_of_tables, scroll_keys_of_a_matrix) {
  set_mode(MATRIX_MODE, false);
  tap_keys({18, 14, 16, 12});
  EXPECT_EQ(matrix_view.top_row[0], 9);
  EXPECT_EQ(matrix_view.left_col[0], 6);
  tap_keys({17, 13, 15, 11});
  EXPECT_EQ(matrix_view.top_row[0], 0);
  EXPECT_EQ(matrix_view.left_col[0], 0);
}

TEST_F(keys_of_tables, evaluate_and_enter_into_a_list) {
  eval("{1,2,3}->{A}");
  set_mode(LIST_MODE, false);
  eval("5+6");
  tap_key(10);
  EXPECT_EQ(stores.lists[0].elements[0].re, 11.0);
  EXPECT_EQ(cursor(), 1);
  EXPECT_EQ(codes(), "");
}

TEST_F(keys_of_tables, evaluate_alone_enters_nothing) {
  eval("{1,2,3}->{A}");
  set_mode(LIST_MODE, false);
  type("");
  eval("5+6");
  tap_key(7);
  EXPECT_EQ(stores.lists[0].elements[0].re, 1.0);
  EXPECT_NE(codes(), "");
}

TEST_F(keys_of_tables, an_error_stops_both) {
  eval("{1,2,3}->{A}");
  set_mode(LIST_MODE, false);
  eval("1/0");
  tap_keys({7, 10, 8, 9});
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(stores.lists[0].elements[0].re, 1.0);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(keys_of_tables, comp_enters_into_the_table_of_the_fourth_tab) {
  eval("initMatrix(2,2,0)->[A]");
  eval("{1,2}->{A}");
  set_mode(MATRIX_MODE, false);
  set_mode(COMP_MODE, false);
  type("7");
  tap_key(26);
  EXPECT_EQ(stores.matrices[0].cells[0][0], 7.0);
  set_mode(LIST_MODE, false);
  set_mode(COMP_MODE, false);
  type("8");
  tap_key(26);
  EXPECT_EQ(stores.lists[0].elements[0].re, 8.0);
  EXPECT_EQ(stats.count, 0);
}

TEST_F(keys_of_tables, the_result_scrolls) {
  set_mode(LIST_MODE, false);
  settings.complexFormat = ST_COMPLEX_R;
  eval("sqRt(2)*1.23456789(10^(20))+sqRt(3)*(i)");
  paint();
  tap_key(20);
  EXPECT_EQ(state.result_offset, 1);
  tap_key(19);
  EXPECT_EQ(state.result_offset, 0);
}

TEST_F(keys_of_tables, tabs_work_through_a_pause) {
  set_mode(LIST_MODE, false);
  state.program_running = state.key_wait = true;
  tap_key(0);
  EXPECT_TRUE(state.key_wait);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

class keys_of_all_modes : public face {};

TEST_F(keys_of_all_modes, each_map_names_the_rows_of_its_table) {
  const struct {
    const TKeyMap& map;
    const TKeyTable& table;
  } rows[] = {{base_key_map, calculator_keys},    {comp_key_map, calculator_keys},
              {stats_key_map, calculator_keys},   {program_key_map, program_keys},
              {periodic_key_map, periodic_keys},  {plot_key_map, plot_keys},
              {table_key_map, list_matrix_keys}};
  for (const auto& row : rows) EXPECT_EQ(row.map.rows[row.map.count - 1].last + 1, row.table.count);
}

TEST_F(keys_of_all_modes, shifts_stay_until_they_are_used) {
  tap_key(1);
  set_mode(BASE_MODE, false);
  EXPECT_EQ(shifts(), "blue ");
  tap_key(5);
  EXPECT_EQ(codes(), "605");
  EXPECT_EQ(shifts(), "");
}

TEST_F(keys_of_all_modes, the_blue_shift_of_program_edit_is_on_key_1) {
  state.calcMode = PROGRAM_EDIT_MODE;
  tap_key(1);
  EXPECT_EQ(shifts(), "blue ");
  tap_key(1);
  EXPECT_EQ(shifts(), "");
}

TEST_F(keys_of_all_modes, the_cells_of_the_periodic_screen_tell_their_elements) {
  show_periodic_screen();
  tap_keys({1, 2, 110});
  EXPECT_EQ(platform_.dialogs, (std::vector<std::string>{"203 Element Data Table", "177 Element Information",
                                                         "177 Element Information"}));
  EXPECT_EQ(state.calcMode, PERIODIC_MODE);
}

TEST_F(keys_of_all_modes, a_fact_of_an_element_goes_into_the_expression) {
  show_periodic_screen();
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_TRUE(choose_row(dialog, 0, 2));
    press_button(dialog, find_control(dialog, "Select Constant"));
  });
  tap_key(2 + 25);
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(entry(), "(26)");
}

TEST_F(keys_of_all_modes, the_last_row_of_the_periodic_screen_is_dead) {
  state.calcMode = PERIODIC_MODE;
  tap_key(111);
  EXPECT_EQ(state.calcMode, PERIODIC_MODE);
  EXPECT_TRUE(platform_.dialogs.empty());
  tap_key(0);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

}  // namespace
}  // namespace zephyl
