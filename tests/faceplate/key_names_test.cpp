#include "faceplate/key_names.h"

#include <set>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/expression.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/key_tables.h"
#include "faceplate/screen_text.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "stats/stats.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class key_names : public calculator {
 protected:
  // The keys without a name of the screen that shows.
  std::set<int> nameless() {
    std::set<int> keys;
    for (int key = 0; key < shown_key_table().count; ++key)
      if (key_name(key).empty()) keys.insert(key);
    return keys;
  }
  void expect_different_names() {
    std::set<std::string> names;
    for (int key = 0; key < shown_key_table().count; ++key) {
      const std::string name = key_name(key);
      if (!name.empty()) {
        EXPECT_TRUE(names.insert(name).second) << key << " " << name;
      }
    }
  }
};

TEST_F(key_names, every_key_of_the_digit_screens_has_one_of_its_own) {
  for (const int mode : {COMP_MODE, BASE_MODE, STATS_MODE}) {
    state.calcMode = mode;
    EXPECT_EQ(nameless(), std::set<int>{}) << mode;
    expect_different_names();
  }
}

TEST_F(key_names, say_what_the_legends_show) {
  EXPECT_EQ(key_name(5), "Sine");
  EXPECT_EQ(key_shift_names(5), "Blue: inverse sine.");
  EXPECT_EQ(key_name(17), "Negative");
  EXPECT_EQ(key_shift_names(17), "Blue: pi. Orange: e.");
  EXPECT_EQ(key_name(23), "7");
  EXPECT_EQ(key_shift_names(31), "");
  state.calcMode = BASE_MODE;
  EXPECT_EQ(key_name(5), "Not");
  EXPECT_EQ(key_shift_names(17), "");
  state.calcMode = STATS_MODE;
  EXPECT_EQ(key_name(13), "Sum of x squared");
}

TEST_F(key_names, keys_that_show_a_state_are_called_by_it) {
  EXPECT_EQ(key_name(16), "Angle unit: radians");
  settings.angleMode = DEGREES;
  EXPECT_EQ(key_name(16), "Angle unit: degrees");
  EXPECT_EQ(key_name(39), "Point");
  EXPECT_EQ(key_name(19), "Comma");
  settings.decimalMark = 1;
  EXPECT_EQ(key_name(39), "Comma");
  EXPECT_EQ(key_name(19), "Point");
  EXPECT_EQ(key_name(26), "Enter into the statistics");
  state.dynamic_mode = MATRIX_MODE;
  EXPECT_EQ(key_name(26), "Enter into the matrix");
  EXPECT_EQ(key_name(46), "MATRIX mode");
  EXPECT_EQ(key_name(49), "Run a program");
  state.calcMode = BASE_MODE;
  settings.baseType = U_HEX;
  settings.baseBits = BITS_8;
  EXPECT_EQ(key_name(1), "Base: hexadecimal");
  EXPECT_EQ(key_name(2), "Width: 8 bits");
  state.calcMode = STATS_MODE;
  settings.statsRegress = R_POWER;
  EXPECT_EQ(key_name(9), "Regression: power");
  EXPECT_EQ(key_name(1), "One variable");
}

TEST_F(key_names, the_program_editor_has_24) {
  state.calcMode = PROGRAM_EDIT_MODE;
  EXPECT_EQ(nameless(), std::set<int>{});
  expect_different_names();
  EXPECT_EQ(key_name(13), "Go to");
}

TEST_F(key_names, the_plot_screen_has_no_names_for_its_dead_pixels) {
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(nameless(), (std::set<int>{0, 18, 19}));
  EXPECT_EQ(key_name(23), "Calculate");
  expect_different_names();
  plot_variables.plotType = PLOT_3D;
  EXPECT_EQ(nameless(), std::set<int>{0});
  EXPECT_EQ(key_name(23), "Rotate");
}

TEST_F(key_names, cells_of_a_matrix_say_their_place_and_value) {
  state.calcMode = MATRIX_MODE;
  eval("[{1,2},{3,4}]");
  EXPECT_EQ(nameless(), std::set<int>{});
  MatrixRecord& matrix = stores.matrices[0];
  matrix.defined = true;
  matrix.last_row = matrix.last_col = 5;
  matrix.cells[1][2] = -2.5;
  matrix_view.current_matrix = 0;
  EXPECT_EQ(key_name(32 + 5 + 2), "Row 2, column 3: -2.5");
  matrix_view.top_row[0] = 1;
  matrix_view.left_col[0] = 2;
  EXPECT_EQ(key_name(32), "Row 2, column 3: -2.5");
  EXPECT_EQ(key_name(71), "Row 9, column 7");
  EXPECT_EQ(key_name(22), "Matrix B");
  EXPECT_EQ(key_name(31), "Matrix answer");
}

TEST_F(key_names, a_line_of_a_list_is_one_key) {
  state.calcMode = LIST_MODE;
  ListRecord& list = stores.lists[0];
  list.defined = true;
  list.last = 3;
  list.elements[2] = {1.5, 0.0};
  EXPECT_EQ(key_name(32 + 10), "Element 3: 1.5");
  EXPECT_EQ(key_name(32 + 11), "");
  EXPECT_EQ(key_name(11), "");
  EXPECT_EQ(key_name(13), "Page up");
  EXPECT_EQ(key_name(21), "List A");
}

TEST_F(key_names, elements_are_called_by_their_names) {
  state.calcMode = PERIODIC_MODE;
  EXPECT_EQ(key_name(2), "Hydrogen");
  EXPECT_EQ(key_name(27), "Iron");
  EXPECT_EQ(nameless(), std::set<int>{111});
  expect_different_names();
}

TEST_F(key_names, alpha_entry_calls_its_keys_by_the_characters_of_the_page) {
  start_alpha_entry(ALPHA_STRING);
  EXPECT_EQ(nameless(), std::set<int>{});
  EXPECT_EQ(key_name(10), "q");
  EXPECT_EQ(key_name(38), "Space");
  alpha_entry.shift = true;
  EXPECT_EQ(key_name(10), "Q");
  EXPECT_EQ(key_name(0), "1");
  alpha_entry.symbol_page = true;
  EXPECT_EQ(key_name(0), "open parenthesis");
  EXPECT_EQ(key_name(30), "bar");
  EXPECT_EQ(nameless(), (std::set<int>{31, 32, 33, 34, 35}));
}

TEST_F(key_names, characters_that_a_program_name_refuses_have_none) {
  start_alpha_entry(ALPHA_NEW_PROGRAM);
  alpha_entry.symbol_page = true;
  EXPECT_EQ(key_name(8), "");  // the asterisk
  EXPECT_EQ(key_name(9), "equals");
}

TEST_F(key_names, keys_outside_of_the_table_have_none) {
  EXPECT_EQ(key_name(-1), "");
  EXPECT_EQ(key_name(52), "");
  EXPECT_EQ(key_shift_names(52), "");
}

TEST_F(key_names, shifts_locks_and_cursors_are_on_or_off) {
  EXPECT_EQ(key_mark(1), KEY_OFF);
  state.blue_shift = true;
  EXPECT_EQ(key_mark(1), KEY_ON);
  EXPECT_EQ(key_mark(5), KEY_WITHOUT_MARK);
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(key_mark(5), KEY_OFF);
  zoom_locks.x = true;
  EXPECT_EQ(key_mark(5), KEY_ON);
  EXPECT_EQ(key_mark(20), KEY_ON);
  EXPECT_EQ(key_mark(21), KEY_OFF);
  EXPECT_EQ(key_mark(23), KEY_WITHOUT_MARK);
}

class screen_text : public calculator {};

TEST_F(screen_text, is_what_the_display_shows) {
  EXPECT_EQ(shown_entry(), "");
  EXPECT_EQ(shown_entry_name(), "Entry line");
  EXPECT_EQ(eval("2+sin((pi))"), "2");
  EXPECT_EQ(shown_entry(), "2+sin((pi))");
  EXPECT_EQ(shown_result(), "2");
  EXPECT_EQ(shown_mode(), "COMP, radians");
  EXPECT_FALSE(shows_error());
}

TEST_F(screen_text, an_error_stands_in_the_place_of_the_result) {
  error_of("1/0");
  EXPECT_EQ(shown_result(), "Division by Zero");
  EXPECT_TRUE(shows_error());
}

TEST_F(screen_text, the_cursor_counts_the_letters_in_front_of_it) {
  eval("2+sin(30)");
  EXPECT_EQ(shown_entry_cursor(), 9);
  entry_line.cursor = 3;
  EXPECT_EQ(shown_entry_cursor(), 6);
}

TEST_F(screen_text, the_entry_of_letters_has_the_name_of_its_kind) {
  start_alpha_entry(ALPHA_CONSTANT_NAME);
  append_alpha_character(10);
  EXPECT_EQ(shown_entry_name(), "Constant name");
  EXPECT_EQ(shown_entry(), "q");
  EXPECT_EQ(shown_entry_cursor(), 1);
}

TEST_F(screen_text, a_question_of_a_program_stands_in_the_result_line) {
  state.at_prompt = true;
  std::snprintf(state.prompt_text, sizeof state.prompt_text, "Radius?");
  EXPECT_EQ(shown_result(), "Radius?");
}

TEST_F(screen_text, modes_say_their_settings) {
  state.calcMode = BASE_MODE;
  EXPECT_EQ(shown_mode(), "BASE, decimal, 16 bits");
  state.calcMode = STATS_MODE;
  EXPECT_EQ(shown_mode(), "STATS, one variable");
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(shown_mode(), "PLOT");
}

}  // namespace
}  // namespace zephyl
