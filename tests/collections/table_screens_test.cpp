// What the list and matrix screens do to the tables: entering, moving, sizes.

#include <gtest/gtest.h>

#include "collections/list_screen.h"
#include "collections/list_view.h"
#include "collections/matrix_screen.h"
#include "collections/matrix_view.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

int stored_slot = -1;

class table_screens : public calculator {
 protected:
  static ListRecord& list() { return stores.lists[list_view.current_list]; }
  static MatrixRecord& matrix() { return stores.matrices[matrix_view.current_matrix]; }
  static int& list_cursor() { return list_view.cursor[list_view.current_list]; }
  static int& list_top() { return list_view.top_row[list_view.current_list]; }
};

class list_screen : public table_screens {};

TEST_F(list_screen, entering_moves_down) {
  set_list_size(3);
  for (const char* const text : {"5", "6"}) {
    eval(text);
    EXPECT_TRUE(enter_answer_into_list());
  }
  EXPECT_EQ(list().elements[0].re, 5.0);
  EXPECT_EQ(list().elements[1].re, 6.0);
  EXPECT_EQ(list_cursor(), 2);
}

TEST_F(list_screen, the_last_element_keeps_the_cursor) {
  set_list_size(2);
  list_cursor() = 1;
  eval("7");
  enter_answer_into_list();
  EXPECT_EQ(list_cursor(), 1);
  EXPECT_EQ(list().elements[1].re, 7.0);
}

TEST_F(list_screen, the_view_follows_the_cursor) {
  set_list_size(20);
  eval("1");
  for (int i = 0; i < 8; ++i) enter_answer_into_list();
  EXPECT_EQ(list_cursor(), 8);
  EXPECT_EQ(list_top(), 1);
  list_top() = 15;
  enter_answer_into_list();
  EXPECT_EQ(list_cursor(), 9);
  EXPECT_EQ(list_top(), 9);
}

TEST_F(list_screen, a_complex_value_goes_in_whole) {
  set_list_size(1);
  eval("2->complexFormat");
  eval("3+4(i)");
  EXPECT_TRUE(enter_answer_into_list());
  EXPECT_EQ(list().elements[0].re, 3.0);
  EXPECT_EQ(list().elements[0].im, 4.0);
}

TEST_F(list_screen, tables_and_texts_do_not_go_in) {
  set_list_size(1);
  for (const char* const text : {"{1,2}", "initMatrix(2,2,1)", "\"a\""}) {
    eval(text);
    EXPECT_FALSE(enter_answer_into_list()) << text;
    EXPECT_EQ(message(), "List | Data type can't be inserted into a list.");
  }
  EXPECT_EQ(list().elements[0].re, 0.0);
}

TEST_F(list_screen, an_error_enters_nothing) {
  set_list_size(1);
  eval("1/0");
  EXPECT_FALSE(enter_answer_into_list());
  EXPECT_EQ(message(), "none");
}

TEST_F(list_screen, an_undefined_list_takes_nothing) {
  eval("5");
  EXPECT_FALSE(enter_answer_into_list());
  EXPECT_FALSE(list().defined);
  EXPECT_EQ(message(), "none");
}

TEST_F(list_screen, a_cursor_past_the_end_begins_again) {
  set_list_size(5);
  list_cursor() = 4;
  set_list_size(2);
  eval("9");
  enter_answer_into_list();
  EXPECT_EQ(list().elements[0].re, 9.0);
  EXPECT_EQ(list_cursor(), 1);
}

TEST_F(list_screen, each_list_has_its_own_place) {
  choose_list(2);
  set_list_size(5);
  choose_list_line(3);
  scroll_list(2);
  choose_list(3);
  EXPECT_EQ(list_cursor(), 0);
  EXPECT_EQ(list_top(), 0);
  choose_list(2);
  EXPECT_EQ(list_cursor(), 3);
  EXPECT_EQ(list_top(), 2);
}

TEST_F(list_screen, scrolling_ends_at_both_ends) {
  scroll_list(-8);
  EXPECT_EQ(list_top(), 0);
  scroll_list(990);
  scroll_list(1);
  EXPECT_EQ(list_top(), 991);
  scroll_list(8);
  EXPECT_EQ(list_top(), 991);
  scroll_list(-1);
  EXPECT_EQ(list_top(), 990);
}

TEST_F(list_screen, a_line_below_the_last_element_is_not_chosen) {
  set_list_size(10);
  list_top() = 5;
  choose_list_line(4);
  EXPECT_EQ(list_cursor(), 9);
  choose_list_line(5);
  EXPECT_EQ(list_cursor(), 9);
}

TEST_F(list_screen, growing_keeps_what_is_there_and_adds_zeros) {
  set_list_size(5);
  for (int i = 0; i < 5; ++i) list().elements[i] = {1.0 + i, 2.0};
  set_list_size(2);
  set_list_size(4);
  EXPECT_EQ(list().elements[1].re, 2.0);
  EXPECT_EQ(list().elements[2].re, 0.0);
  EXPECT_EQ(list().elements[3].im, 0.0);
  EXPECT_EQ(list().last, 3);
}

TEST_F(list_screen, a_program_is_told_before_a_list_changes) {
  hooks.about_to_store = [](int slot) { stored_slot = slot; };
  choose_list(4);
  set_list_size(1);
  EXPECT_EQ(stored_slot, SLOT_LIST_A + 4);
  stored_slot = -1;
  eval("1");
  enter_answer_into_list();
  EXPECT_EQ(stored_slot, SLOT_LIST_A + 4);
  stored_slot = -1;
  choose_list(ANSWER_RECORD);
  set_list_size(1);
  EXPECT_EQ(stored_slot, -1);
}

class matrix_screen : public table_screens {
 protected:
  static int row() { return matrix_view.cursor_row[matrix_view.current_matrix]; }
  static int column() { return matrix_view.cursor_col[matrix_view.current_matrix]; }
  static int top() { return matrix_view.top_row[matrix_view.current_matrix]; }
  static int left() { return matrix_view.left_col[matrix_view.current_matrix]; }
};

TEST_F(matrix_screen, entering_goes_along_the_rows) {
  set_matrix_size(2, 2);
  for (const char* const text : {"1", "2", "3", "4", "5"}) {
    eval(text);
    EXPECT_TRUE(enter_answer_into_matrix());
  }
  EXPECT_EQ(matrix().cells[0][0], 1.0);
  EXPECT_EQ(matrix().cells[0][1], 2.0);
  EXPECT_EQ(matrix().cells[1][0], 3.0);
  EXPECT_EQ(matrix().cells[1][1], 5.0);
  EXPECT_EQ(row(), 1);
  EXPECT_EQ(column(), 1);
}

TEST_F(matrix_screen, the_view_follows_to_the_right_and_back) {
  set_matrix_size(2, 7);
  eval("1");
  for (int i = 0; i < 5; ++i) enter_answer_into_matrix();
  EXPECT_EQ(column(), 5);
  EXPECT_EQ(left(), 1);
  for (int i = 0; i < 2; ++i) enter_answer_into_matrix();
  EXPECT_EQ(column(), 0);
  EXPECT_EQ(row(), 1);
  EXPECT_EQ(left(), 0);
}

TEST_F(matrix_screen, the_view_follows_down) {
  set_matrix_size(10, 1);
  eval("1");
  for (int i = 0; i < 8; ++i) enter_answer_into_matrix();
  EXPECT_EQ(row(), 8);
  EXPECT_EQ(top(), 1);
}

TEST_F(matrix_screen, only_real_numbers_go_in) {
  set_matrix_size(1, 1);
  eval("2->complexFormat");
  for (const char* const text : {"1+(i)", "{1,2}", "initMatrix(2,2,1)", "\"a\""}) {
    eval(text);
    EXPECT_FALSE(enter_answer_into_matrix()) << text;
    EXPECT_EQ(message(), "Matrix | Data type can't be inserted into a matrix.");
  }
  EXPECT_EQ(matrix().cells[0][0], 0.0);
}

TEST_F(matrix_screen, an_undefined_matrix_takes_nothing) {
  eval("5");
  EXPECT_FALSE(enter_answer_into_matrix());
  EXPECT_FALSE(matrix().defined);
}

TEST_F(matrix_screen, an_error_enters_nothing) {
  set_matrix_size(1, 1);
  eval("1/0");
  EXPECT_FALSE(enter_answer_into_matrix());
  EXPECT_EQ(message(), "none");
}

TEST_F(matrix_screen, scrolling_ends_at_the_largest_matrix) {
  scroll_matrix_rows(-1);
  scroll_matrix_columns(-5);
  EXPECT_EQ(top(), 0);
  EXPECT_EQ(left(), 0);
  for (int i = 0; i < 10; ++i) {
    scroll_matrix_rows(8);
    scroll_matrix_columns(5);
  }
  EXPECT_EQ(top(), 22);
  EXPECT_EQ(left(), 25);
}

TEST_F(matrix_screen, a_cell_outside_is_not_chosen) {
  set_matrix_size(3, 3);
  choose_matrix_cell(2, 2);
  choose_matrix_cell(3, 0);
  choose_matrix_cell(0, 3);
  EXPECT_EQ(row(), 2);
  EXPECT_EQ(column(), 2);
}

TEST_F(matrix_screen, another_size_keeps_what_fits) {
  set_matrix_size(3, 3);
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) matrix().cells[i][j] = 10.0 * i + j + 1.0;
  set_matrix_size(2, 4);
  EXPECT_EQ(matrix().cells[1][2], 13.0);
  EXPECT_EQ(matrix().cells[1][3], 0.0);
  set_matrix_size(3, 3);
  EXPECT_EQ(matrix().cells[2][0], 0.0);
  EXPECT_EQ(matrix().cells[0][0], 1.0);
}

TEST_F(matrix_screen, a_cursor_past_the_end_begins_again) {
  set_matrix_size(3, 3);
  choose_matrix_cell(2, 2);
  set_matrix_size(2, 2);
  eval("9");
  enter_answer_into_matrix();
  EXPECT_EQ(matrix().cells[0][0], 9.0);
}

}  // namespace
}  // namespace zephyl
