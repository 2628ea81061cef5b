// State files as they are written, record by record.

#include <cstring>

#include "engine/memory.h"
#include "engine/records.h"
#include "persistence/state_fixture.h"
#include "plot/plot_slots.h"
#include "stats/stats.h"

namespace zephyl {

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

}  // namespace zephyl
