// State files as they are written and read, record by record.

#include "persistence/state_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/save_items.h"
#include "persistence/state_numbers.h"
#include "plot/drawing.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "stats/stats.h"
#include "support/calculator.h"
#include "support/file_faults.h"
#include "support/states.h"
#include "tools/tvm_state.h"

namespace zephyl {

TEST(state_numbers, are_as_short_as_their_digits) {
  EXPECT_STREQ(format_state_number(0.0), "0.0");
  EXPECT_STREQ(format_state_number(-0.0), "0.0");
  EXPECT_STREQ(format_state_number(1.5), "1.5");
  EXPECT_STREQ(format_state_number(100.0), "1.0e2");
  EXPECT_STREQ(format_state_number(0.001), "1.0e-3");
  EXPECT_STREQ(format_state_number(1e100), "1.0e100");
  EXPECT_STREQ(format_state_number(1e-100), "1.0e-100");
  EXPECT_STREQ(format_state_number(-2.5e-8), "-2.5e-8");
  EXPECT_STREQ(format_state_number(3.14159265358979312), "3.1415926535898");
  EXPECT_STREQ(format_state_number(undefined_value), "9.54334561e300");
}

TEST(state_numbers, indices_are_bounded) {
  const auto index = [](const char* text) { return TFieldReader(text).read_index(); };
  EXPECT_EQ(index("12:x"), 12);
  EXPECT_EQ(index("1000:x"), 1000);
  EXPECT_EQ(index("1001:x"), 0);
  EXPECT_EQ(index("-1:x"), 0);
  EXPECT_EQ(index("x:1"), 0);
  EXPECT_EQ(index("12345:x"), 0);  // four characters count: 1234
  EXPECT_EQ(index("00071:x"), 7);
  EXPECT_EQ(index("5"), 5);
  EXPECT_EQ(index(""), 0);
}

TEST(state_numbers, the_next_field_stands_behind_the_colon) {
  TFieldReader fields("1:22:333:4.5");
  EXPECT_EQ(fields.read_index(), 1);
  EXPECT_EQ(fields.read_index(), 22);
  EXPECT_EQ(fields.read_index(), 333);
  EXPECT_EQ(fields.read_real(), 4.5);
  TFieldReader without_colon("17");
  without_colon.read_index();
  EXPECT_STREQ(without_colon.rest(), "");
}

TEST(state_numbers, only_finite_numbers_are_read) {
  for (const char* text : {"nan", "inf", "-infinity", "1e999", "none", ""})
    EXPECT_EQ(TFieldReader(text).read_real(), 0.0) << text;
  EXPECT_EQ(TFieldReader("-1.5e-3").read_real(), -0.0015);
}

TEST(state_numbers, what_is_out_of_bounds_becomes_the_default) {
  EXPECT_EQ(TFieldReader("3").read_bounded(0, 3, 1), 3);
  EXPECT_EQ(TFieldReader("4").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("-1").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("99999999999999999999").read_bounded(0, 3, 1), 1);
  EXPECT_EQ(TFieldReader("x").read_bounded(0, 3, 1), 0);
}

class state_file : public calculator {
 protected:
  state_file() {
    EXPECT_EQ(::chdir(folder_.path().c_str()), 0);
    save_items = {};
  }

  std::string path() const { return folder_.file("a.state"); }
  // What a save with these items checked writes.
  std::string saved(std::initializer_list<int> items = {}) {
    save_items = {};
    for (const int item : items) save_items.checked[item] = true;
    save_state(path().c_str());
    return file_content(path());
  }
  // Its records of one letter, without the letter, with "|" behind each.
  std::string records(char letter, std::initializer_list<int> items = {}) {
    const std::string content = saved(items);
    std::string found;
    for (std::size_t at = 0; at < content.size();) {
      const std::size_t end = content.find("\r\n", at);
      const std::string line = content.substr(at, end - at);
      if (line.compare(0, 3, std::string(1, letter) + ": ") == 0) found += line.substr(3) + "|";
      at = end + 2;
    }
    return found;
  }
  // Loads a file of these lines, separated by "|".
  void load(const std::string& lines) {
    std::string content;
    for (const char c : lines) content += c == '|' ? "\r\n" : std::string(1, c);
    load_bytes(content + "\r\n");
  }
  void load_bytes(const std::string& content) {
    make_file(path(), content);
    load_state(path().c_str());
  }
  static std::string codes_of(const TExpression& expression) {
    std::string codes;
    for (int i = 0; i < expression.count; ++i) codes += std::to_string(expression.tokens[i]) + " ";
    return codes;
  }

  TTestFolder folder_;
};

// --- Writing

TEST_F(state_file, an_empty_calculator_saves_its_options) {
  EXPECT_EQ(saved(),
            "V: 2.7A\r\nS: \r\nO: 15:4\r\nO: 16:0\r\nO: 17:0\r\nO: 18:0\r\nO: 19:1\r\nO: 20:1\r\nO: 21:2\r\n"
            "O: 24:0\r\nO: 26:0\r\nO: 27:1\r\nO: 28:1\r\nO: 29:1\r\nO: 33:0.0\r\nO: 34:1\r\nO: 35:0\r\n"
            "O: 42:10406866\r\nO: 45:128\r\nO: 47:2\r\nO: 48:0\r\nO: 49:0.0\r\nO: 50:0\r\nO: 52:0\r\n"
            "O: 54:0.0\r\nO: 55:0.0\r\nO: 56:0.0\r\nO: 57:0.0\r\nO: 58:0.0\r\nO: 59:1.2e1\r\nO: 60:1.2e1\r\n"
            "O: 61:0.0\r\nO: 62:0\r\nZ: \r\n");
}

TEST_F(state_file, options_of_items_stand_in_their_places) {
  EXPECT_EQ(
      records('O', {1, 2, 3, 4, 5, 6, 7, 8, 9}),
      "0:0|22:0|23:0|15:4|16:0|17:0|18:0|19:1|20:1|21:2|24:0|25:0|26:0|27:1|28:1|29:1|33:0.0|34:1|35:0|"
      "2:1|3:1|4:0|5:0|6:-1.0e1|7:1.0e1|8:1.0e1|9:-1.0e1|10:6.2831853071796|11:0.0|12:6.2831853071796e-3|"
      "13:0|14:0|30:0|31:0|32:0|36:0|37:6.2831853071796|38:0.0|39:6.2831853071796e-3|40:0.0|41:0.0|43:0|"
      "44:1.0|53:1|42:10406866|45:128|46:0|47:2|48:0|49:0.0|50:0|51:0|52:0|54:0.0|55:0.0|56:0.0|57:0.0|"
      "58:0.0|59:1.2e1|60:1.2e1|61:0.0|62:0|");
}

TEST_F(state_file, each_item_has_its_clear_action) {
  EXPECT_EQ(records('A', {1, 2, 3, 4, 5, 6, 7, 8, 9}), "1:0|2:0|3:0|4:0|5:0|6:0|7:0|8:0|9:0|");
  EXPECT_EQ(records('A', {4, 9}), "4:0|9:0|");
}

TEST_F(state_file, memories_that_are_not_zero_are_written) {
  eval("1.5->A");
  memory_array[89] = {-0.0, 100.0};
  memory_array[90] = {7.0, 7.0};
  EXPECT_EQ(records('R', {1}), "10:1.5|");
  EXPECT_EQ(records('I', {1}), "89:1.0e2|");
  EXPECT_EQ(records('R'), "");
}

TEST_F(state_file, statistics_that_are_not_zero_are_written) {
  stats.x[0] = 1.0, stats.y[998] = 2.0, stats.x[999] = 3.0;
  stats.count = 2;
  EXPECT_EQ(records('X', {2}), "0:1.0|");
  EXPECT_EQ(records('Y', {2}), "998:2.0|");
}

TEST_F(state_file, functions_and_expressions_are_token_lists) {
  eval("x^(2)->f1(x)");
  eval("1+2");
  eval("x->f9()");
  plot_slot(3, 5).tokens[0] = 40000;
  plot_slot(3, 5).count = 1;
  EXPECT_EQ(
      records('E', {5}), "0:" + [] {
        std::string tokens;
        for (int i = 0; i < plot_slot(0, 0).count; ++i)
          tokens += std::to_string(plot_slot(0, 0).tokens[i]) + ",";
        return tokens;
      }() + "|23:40000,|");
  EXPECT_EQ(records('P', {8}).substr(0, 2), "8:");
  EXPECT_EQ(records('K', {7}).substr(records('K', {7}).find("|1:") + 1, 10), "1:33,36,34");
  EXPECT_NE(records('D'), "");
  EXPECT_EQ(records('K'), "");
}

TEST_F(state_file, matrices_are_written_cell_by_cell) {
  MatrixRecord& matrix = stores.matrices[1];
  matrix.defined = true;
  matrix.last_row = 1;
  matrix.last_col = 2;
  matrix.cells[0][0] = 1.0, matrix.cells[0][2] = 2.5, matrix.cells[1][1] = -4.0;
  EXPECT_EQ(records('M', {4}), "1:0:0:1.0|1:0:1:0.0|1:0:2:2.5|1:1:0:0.0|1:1:1:-4.0|1:1:2:0.0|");
}

TEST_F(state_file, lists_are_written_element_by_element) {
  stores.lists[3].defined = true;
  stores.lists[3].last = 1;
  stores.lists[3].elements[0] = {1.5, -2.0};
  EXPECT_EQ(records('L', {3}), "3:0:1.5,-2.0,|3:1:0.0,0.0,|");
}

TEST_F(state_file, strings_are_written_if_they_hold_anything) {
  eval("\"a,b: c\"->str2");
  EXPECT_EQ(records('W', {9}), "1:a,b: c|10:a,b: c|");
}

TEST_F(state_file, line_ends_inside_of_a_string_are_left_out) {
  std::strcpy(stores.strings[0].text, "a\rb\nc");
  EXPECT_EQ(records('W', {9}), "0:abc|");
}

TEST_F(state_file, a_long_string_loses_its_tail_and_its_line_end) {
  const std::string fits(192, 'x'), long_one(300, 'y');
  std::strcpy(stores.strings[0].text, fits.c_str());
  std::strcpy(stores.strings[1].text, long_one.c_str());
  std::strcpy(stores.strings[2].text, "short");
  const std::string content = saved({9});
  EXPECT_NE(content.find("W: 0:" + fits + "\r\n"), std::string::npos);
  EXPECT_NE(content.find("W: 1:" + std::string(194, 'y') + "W: 2:short\r\n"), std::string::npos);
  load_state(path().c_str());
  EXPECT_EQ(std::string(stores.strings[0].text), fits);
  EXPECT_EQ(std::string(stores.strings[1].text), std::string(194, 'y') + "W: 2:short");
}

TEST_F(state_file, the_result_line_and_the_error_location_are_written) {
  eval("2+2");
  EXPECT_EQ(records('S'), "4|");
  eval("1/0");
  EXPECT_EQ(records('Z').substr(0, 6), "v2.7A,");
}

TEST_F(state_file, a_folder_that_is_not_there_is_passed_over) {
  save_state(folder_.file("none/a.state").c_str());
  load_state(folder_.file("none/a.state").c_str());
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(folder_.names(), "");
}

// --- Reading

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

// --- Merging and clearing

TEST_F(state_file, without_clear_actions_it_merges) {
  eval("1->A");
  eval("2->B");
  load("R: 11:5.0");
  EXPECT_EQ(memory_array[10].re, 1.0);
  EXPECT_EQ(memory_array[11].re, 5.0);
}

TEST_F(state_file, clear_actions_make_room) {
  eval("1->A");
  stats.x[5] = 9.0;
  load("A: 1:0|A: 2:0|R: 11:5.0|O: 0:7");
  EXPECT_EQ(memory_array[10].re, 0.0);
  EXPECT_EQ(memory_array[11].re, 5.0);
  EXPECT_EQ(stats.x[5], 0.0);
  EXPECT_EQ(stats.count, 7);
}

TEST_F(state_file, saved_strings_do_not_clear_the_strings) {
  eval("\"one\"->str1");
  saved({9});
  eval("\"two\"->str2");
  load_state(path().c_str());
  EXPECT_STREQ(stores.strings[0].text, "one");
  EXPECT_STREQ(stores.strings[1].text, "two");
}

TEST_F(state_file, a_wrong_clear_action_is_no_error) {
  load("A: 0:0|A: 99:0|A: x");
  EXPECT_FALSE(errors.error_flag);
}

// --- Versions and ends

TEST_F(state_file, a_newer_file_is_told_and_not_read) {
  load("R: 0:1.0|V: 2.8|R: 1:1.0");
  EXPECT_EQ(message(), "Error | The state file requires a more recent revision of Zephyl in order to load.");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, letters_of_a_version_do_not_count) {
  load("V: 2.7B|R: 1:1.0");
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(memory_array[1].re, 1.0);
  load("V: 1.0|R: 2:1.0");
  EXPECT_EQ(memory_array[2].re, 1.0);
}

TEST_F(state_file, an_empty_line_is_the_end) {
  load("R: 0:1.0||R: 1:1.0");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, a_line_that_is_too_long_is_the_end) {
  load("R: 0:1.0|W: 0:" + std::string(1000000, 'x') + "|R: 1:1.0");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, lines_that_end_in_a_line_feed_alone_are_one_line) {
  load_bytes("R: 0:1.0\nR: 1:1.0\n");
  EXPECT_EQ(memory_array[0].re, 1.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(state_file, accents_come_back) {
  load("W: 0:r\xC3\xA9sum\xC3\xA9");
  saved({9});
  stores.strings[0].text[0] = 0;
  load_state(path().c_str());
  EXPECT_STREQ(stores.strings[0].text, "r\xC3\xA9sum\xC3\xA9");
}

// --- The drawing

TEST_F(state_file, a_drawing_is_saved_if_anything_shows) {
  EXPECT_EQ(saved({6}).find("G: "), std::string::npos);
  EXPECT_EQ(folder_.names(), "a.state");
  drawing.drawing_used = true;
  EXPECT_EQ(saved({6}).find("G: "), std::string::npos);  // all white
  EXPECT_EQ(folder_.names(), "a.state drawing.dat");
  drawing_bitmap().set_pixel(3, 4, rgb(8, 16, 24));
  const std::string content = saved({6});
  const std::size_t at = content.find("\r\nG: \r\nGIF87a");
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(content.substr(at + 7), file_content("drawing.dat"));
  EXPECT_EQ(content.back(), ';');
  EXPECT_EQ(saved().find("G: "), std::string::npos);
}

TEST_F(state_file, a_drawing_comes_back) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(0, 0, rgb(8, 16, 24));
  drawing_bitmap().set_pixel(225, 179, BLACK);
  saved({6});
  clear_drawing();
  EXPECT_FALSE(drawing.drawing_used);
  load_state(path().c_str());
  EXPECT_TRUE(drawing.drawing_used);
  EXPECT_EQ(drawing_bitmap().pixel(0, 0), rgb(8, 16, 24));
  EXPECT_EQ(drawing_bitmap().pixel(225, 179), BLACK);
  EXPECT_EQ(drawing_bitmap().pixel(1, 0), rgb(248, 252, 248));  // white, in sixteen bits
}

TEST_F(state_file, a_damaged_drawing_is_told) {
  load("R: 0:1.0|G: |GIF99");
  EXPECT_EQ(message(), "Gif | Gif load error");
  EXPECT_EQ(memory_array[0].re, 1.0);
}

TEST_F(state_file, nothing_is_read_behind_a_drawing) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(0, 0, BLACK);
  load_bytes(saved({6}) + "\r\nR: 0:1.0\r\n" + std::string(1200000, 'x') + "\r\nR: 1:1.0\r\n");
  EXPECT_EQ(memory_array[0].re, 0.0);
  EXPECT_EQ(memory_array[1].re, 0.0);
}

TEST_F(state_file, a_drawing_is_saved_where_its_work_file_can_not_be) {
  drawing.drawing_used = true;
  drawing_bitmap().set_pixel(3, 4, BLACK);
  TTestFolder elsewhere;
  ASSERT_EQ(::chdir("/proc"), 0);
  save_items = {};
  save_items.checked[SAVE_DRAWING] = true;
  save_state(elsewhere.file("a.state").c_str());
  EXPECT_NE(file_content(elsewhere.file("a.state")).find("G: \r\nGIF87a"), std::string::npos);
}

// --- A whole state

TEST_F(state_file, everything_comes_back_as_it_was) {
  fill_state();
  const std::string before = state_text();
  check_filled_items();
  save_state(path().c_str());
  empty_state();
  EXPECT_NE(state_text(), before);
  load_state(path().c_str());
  const std::string after = state_text();
  const auto difference = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  EXPECT_TRUE(after == before) << std::string(difference.second,
                                              std::min(difference.second + 80, after.end()));
}

// --- Dialogs and the function

TEST_F(state_file, the_dialog_checks_what_holds_data) {
  eval("1->A");
  eval("\"x\"->str1");
  std::string shown;
  platform_.dialog_answers.push_back([&](TDialog& dialog) {
    for (int i = 0; i < 9; ++i) shown += dialog[i].label + (dialog[i].checked ? "+ " : "- ");
    EXPECT_GE(find_control(dialog, "Note: checked items will write over or clear current data when loaded."),
              0);
    set_checked(dialog, find_control(dialog, "String Variables"), false);
    accept_dialog(dialog);
  });
  EXPECT_TRUE(select_items_to_save());
  EXPECT_EQ(platform_.dialogs.back(), "217 Select Items to Save");
  EXPECT_EQ(
      shown,
      "Real/Complex Variables+ Stats Data- List Variables- Matrix Variables- Plot Data (setup/functions)- "
      "Drawing Data- Expression Entries+ Program Functions- String Variables+ ");
  EXPECT_TRUE(save_items.checked[SAVE_VARIABLES]);
  EXPECT_FALSE(save_items.checked[SAVE_STRINGS]);
}

TEST_F(state_file, each_item_is_seen) {
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) EXPECT_FALSE(holds_data(item)) << item;
  fill_state();
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) EXPECT_TRUE(holds_data(item)) << item;
}

TEST_F(state_file, the_buttons_ask_for_a_file) {
  eval("1.5->A");
  platform_.dialog_answers.push_back([](TDialog& dialog) { accept_dialog(dialog); });
  platform_.file_answers.push_back(folder_.file("mine"));
  EXPECT_TRUE(save_state_pressed());
  EXPECT_EQ(folder_.names(), "mine.state");
  eval("0->A");
  platform_.file_answers.push_back(folder_.file("mine.state"));
  EXPECT_TRUE(load_state_pressed());
  EXPECT_EQ(memory_array[10].re, 1.5);
}

TEST_F(state_file, a_name_that_holds_the_extension_is_left_alone) {
  for (const char* name : {"a.state", "a.state.bak"}) {
    platform_.file_answers.push_back(folder_.file(name));
    EXPECT_TRUE(choose_state_file(false));
  }
  EXPECT_EQ(folder_.names(), "a.state a.state.bak");
}

TEST_F(state_file, cancel_leaves_all_as_it_was) {
  EXPECT_FALSE(save_state_pressed());
  platform_.dialog_answers.push_back([](TDialog& dialog) { accept_dialog(dialog); });
  EXPECT_FALSE(save_state_pressed());
  EXPECT_FALSE(load_state_pressed());
  EXPECT_EQ(folder_.names(), "");
}

TEST_F(state_file, an_expression_loads_a_state) {
  eval("1.5->A");
  save_items.checked[SAVE_VARIABLES] = true;
  save_state("mine.state");
  eval("7->A");
  EXPECT_EQ(eval("loadState(\"mine\")"), "0");
  EXPECT_EQ(memory_array[10].re, 1.5);
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(state_file, an_expression_loads_nothing_for_nothing) {
  eval("7->A");
  EXPECT_EQ(eval("loadState(str1)"), "0");
  EXPECT_EQ(eval("loadState(\"none\")"), "0");
  EXPECT_EQ(memory_array[10].re, 7.0);
  EXPECT_EQ(error_of("loadState(5)"), "Function Argument Type");
}

TEST_F(state_file, numbers_that_overflow_are_no_error_of_the_expression) {
  make_file("big.state", "R: 0:1.0e999\r\nR: 1:1.0e-999\r\n");
  EXPECT_EQ(error_of("loadState(\"big\")"), "");
  EXPECT_EQ(eval("R0"), "0");
}

}  // namespace zephyl
