// State files as they are read, record by record.

#include <cstring>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/state_fixture.h"
#include "plot/plot_variables.h"
#include "stats/stats.h"
#include "support/states.h"
#include "tools/tvm_state.h"

namespace zephyl {

TEST_F(state_file, numbers_come_back) {
  load("R: 10:1.5|I: 10:-2.0e-3|X: 998:7.0|Y: 0:8.0|O: 0:999");
  EXPECT_EQ(memory_array[10].re, 1.5);
  EXPECT_EQ(memory_array[10].im, -0.002);
  EXPECT_EQ(stats.x[998], 7.0);
  EXPECT_EQ(stats.y[0], 8.0);
  EXPECT_EQ(stats.count, 999);
}

TEST_F(state_file, indices_behind_a_store_are_ignored) {
  const std::string before = state_text();
  load(
      "R: 90:1|I: 1000:1|X: 999:1|Y: 1000:1|E: 24:33,|K: 20:33,|P: 9:33,|M: 11:0:0:1|M: 0:30:0:1|M: 0:0:30:1|"
      "L: 11:0:1,1,|L: 0:999:1,1,|W: 11:x|O: 1:1|O: 63:1|O: 1000:1|A: 12:0");
  EXPECT_EQ(state_text(), before);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(state_file, a_record_of_a_wrong_shape_reads_as_zeros) {
  eval("5->R0");
  load("R: ");
  EXPECT_EQ(memory_array[0].re, 0.0);
  memory_array[0].re = 5.0;
  load("R=x7:3");  // the colon and the blank are not looked at
  EXPECT_EQ(memory_array[7].re, 3.0);
  load("M: 1");
  EXPECT_TRUE(stores.matrices[1].defined);
  EXPECT_EQ(stores.matrices[1].last_row + stores.matrices[1].last_col, 0);
}

TEST_F(state_file, lines_that_are_no_records_are_passed_over) {
  eval("5->R0");
  load("R:|r: 0:1|9: 0:1|Z: 0:1|B: 0:1|N: x|  |\xC3\xA9\xC3\xA9: 0:1|R: 1:2");
  EXPECT_EQ(memory_array[0].re, 5.0);
  EXPECT_EQ(memory_array[1].re, 2.0);
}

TEST_F(state_file, tokens_are_bounded) {
  load("D: 33,99999,-1,32000,x,34");
  EXPECT_EQ(codes_of(entry_line.expression), "33 0 0 32000 0 ");
  load("D: 33");
  EXPECT_EQ(entry_line.expression.count, 0);
  std::string hundred = "D: ";
  for (int i = 0; i < 130; ++i) hundred += "33,";
  load(hundred);
  EXPECT_EQ(entry_line.expression.count, 100);
  eval("1");  // a line of that length does no harm
}

TEST_F(state_file, a_conversion_does_not_survive) {
  eval("2(ft>m)");
  saved();
  load_state(path().c_str());
  EXPECT_EQ(codes_of(entry_line.expression), "34 0 ");
}

TEST_F(state_file, the_current_expression_is_cleared_first) {
  eval("1+2");
  load("R: 0:1");
  EXPECT_EQ(entry_line.expression.count, 0);
  EXPECT_EQ(entry_line.cursor, 0);
}

TEST_F(state_file, the_last_cell_gives_a_matrix_its_size) {
  load("M: 0:0:0:1.0|M: 0:0:1:2.0|M: 0:1:0:3.0|M: 0:1:1:4.0");
  EXPECT_EQ(eval("Det([A])"), "-2");
  load("M: 0:0:1:9");
  EXPECT_EQ(stores.matrices[0].last_row, 0);
  EXPECT_EQ(stores.matrices[0].last_col, 1);
}

TEST_F(state_file, a_list_element_takes_the_view_back) {
  list_view.top_row[2] = 5;
  list_view.cursor[2] = 7;
  load("L: 2:0:1.0,2.0,|L: 2:1:3.0,0.0,");
  EXPECT_EQ(stores.lists[2].last, 1);
  EXPECT_EQ(stores.lists[2].elements[0].im, 2.0);
  EXPECT_EQ(stores.lists[2].elements[1].re, 3.0);
  EXPECT_EQ(list_view.top_row[2] + list_view.cursor[2], 0);
}

TEST_F(state_file, a_string_of_a_thousand_characters_is_told) {
  load("W: 0:" + std::string(999, 'x') + "|W: 1:" + std::string(1000, 'x'));
  EXPECT_EQ(std::strlen(stores.strings[0].text), 999u);
  EXPECT_STREQ(stores.strings[1].text, "");
  EXPECT_EQ(message(), "strcpy problem | Dest length is shorter than source length (1000 <= 1000)");
}

TEST_F(state_file, options_are_bounded) {
  load(
      "O: 15:11|O: 16:4|O: 17:2|O: 18:3|O: 19:8|O: 20:3|O: 21:4|O: 24:2|O: 4:4|O: 5:9|O: 2:7|O: 3:-1|O: 43:3|"
      "O: 47:101|O: 48:3|O: 53:2|O: 46:11|O: 51:11|O: 0:1000|O: 22:2|O: 23:4|O: 30:6|O: 36:-1");
  EXPECT_EQ(settings.decimalDigits, 4);
  EXPECT_EQ(settings.numberFormat, 0);
  EXPECT_EQ(settings.decimalMark, 0);
  EXPECT_EQ(settings.angleMode, 0);
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(settings.baseBits, 1);
  EXPECT_EQ(settings.baseType, 2);
  EXPECT_EQ(settings.keyClick, 0);
  EXPECT_EQ(plot_variables.plotCursor, 0);
  EXPECT_EQ(plot_variables.plotType, 0);
  EXPECT_EQ(plot_variables.displayGrid, 1);
  EXPECT_EQ(plot_variables.connectDots, 1);
  EXPECT_EQ(plot_variables.plotType3D, 0);
  EXPECT_EQ(state.dynamic_mode, 2);
  EXPECT_EQ(settings.complexFormat, 0);
  EXPECT_EQ(plot_variables.enablePlots, 1);
  EXPECT_EQ(matrix_view.current_matrix, 0);
  EXPECT_EQ(list_view.current_list, 0);
  EXPECT_EQ(stats.count, 0);
}

TEST_F(state_file, the_number_of_entries_is_20_at_most) {
  load("O: 25:20");
  EXPECT_EQ(history.count, 20);
  load("O: 25:100");
  EXPECT_EQ(history.count, 20);
  load("O: 25:101");
  EXPECT_EQ(history.count, 0);
}

TEST_F(state_file, program_edit_comes_back_as_comp) {
  state.calcMode = PROGRAM_EDIT_MODE;
  EXPECT_NE(records('O').find("|19:3|"), std::string::npos);
  load_state(path().c_str());
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(state_file, colours_are_written_and_not_read) {
  load("O: 42:1|O: 45:2|O: 47:6|O: 15:9");
  EXPECT_EQ(settings.display_color, 10406866);
  EXPECT_EQ(settings.brightness, 128);
  EXPECT_EQ(state.dynamic_mode, MATRIX_MODE);
  EXPECT_EQ(settings.decimalDigits, 9);
}

TEST_F(state_file, the_fourth_tab_leads_to_a_screen_of_its_own) {
  load("O: 47:7");
  EXPECT_EQ(state.dynamic_mode, LIST_MODE);
  load("O: 47:0");
  EXPECT_EQ(state.dynamic_mode, BASE_MODE);
  for (const char* elsewhere : {"O: 47:1", "O: 47:5", "O: 47:57"}) {
    load(elsewhere);
    EXPECT_EQ(state.dynamic_mode, STATS_MODE);
  }
}

TEST_F(state_file, money_values_come_back_and_the_undefined_one_does_not) {
  load("O: 54:3.6e2|O: 58:9.54334561e300|O: 61:1.0");
  EXPECT_EQ(tvm_value(TVM_N), 360.0);
  EXPECT_EQ(tvm_value(TVM_FV), 0.0);
  EXPECT_TRUE(tvm_state.begin);
}

TEST_F(state_file, a_view_without_an_area_is_the_default_one) {
  load("O: 6:-1.0|O: 7:2.0|O: 8:4.0|O: 9:-3.0");
  EXPECT_EQ(plot_variables.xMin, -1.0);
  EXPECT_EQ(plot_variables.xMax, 2.0);
  EXPECT_EQ(plot_variables.yMax, 4.0);
  EXPECT_EQ(plot_variables.yMin, -3.0);
  load("O: 6:5.0");
  EXPECT_EQ(plot_variables.xMin, -10.0);
  EXPECT_EQ(plot_variables.yMax, 10.0);
  load("O: 7:1.0e101");
  EXPECT_EQ(plot_variables.xMax, 10.0);
}

TEST_F(state_file, rotation_belongs_to_surfaces) {
  load("O: 4:3|O: 5:3");
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_ROTATE);
  load("O: 5:0");
  EXPECT_EQ(plot_variables.plotCursor, CURSOR_TRACE);
}

TEST_F(state_file, the_cursor_stays_on_the_line) {
  load("D: 33,34,|O: 26:101");
  EXPECT_EQ(entry_line.cursor, 2);
}

TEST_F(state_file, a_result_shows_again) {
  eval("7/2");
  saved();
  clear_calculator(true);
  load_state(path().c_str());
  EXPECT_STREQ(state.result_text, "3.5");
  EXPECT_TRUE(state.result_shown);
  EXPECT_TRUE(platform_.paint_requested);
  EXPECT_EQ(entry(), "7/2");
}

}  // namespace zephyl
