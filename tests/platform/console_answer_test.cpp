#include <gtest/gtest.h>

#include <cstring>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "platform/console/answer_text.h"

namespace zephyl {
namespace {

void answer_with_list(int size) {
  ListRecord& list = stores.lists[ANSWER_RECORD];
  list.defined = true;
  list.last = size - 1;
  for (int i = 0; i < size; ++i) list.elements[i] = {i + 1.0, 0.0};
  answers.l_ans_valid = true;
}

void answer_with_matrix(int rows, int cols) {
  MatrixRecord& matrix = stores.matrices[ANSWER_RECORD];
  matrix.defined = true;
  matrix.last_row = rows - 1;
  matrix.last_col = cols - 1;
  answers.m_ans_valid = true;
}

TEST(console_answer, a_number_is_the_result_line) {
  std::strcpy(state.result_text,
              "1\x1B"
              "11");
  EXPECT_EQ(answer_text(), "1e11");
}

TEST(console_answer, an_error_comes_before_every_answer) {
  answer_with_list(3);
  report_error(ERR_ZERO_DIVIDE);
  EXPECT_EQ(answer_text(), "Division by Zero");
}

TEST(console_answer, a_list_stands_between_braces) {
  answer_with_list(3);
  EXPECT_EQ(answer_text(), "{1, 2, 3}");
}

TEST(console_answer, elements_with_a_decimal_comma_are_parted_by_semicolons) {
  answer_with_list(2);
  stores.lists[ANSWER_RECORD].elements[0].re = 1.5;
  settings.decimalMark = 1;
  EXPECT_EQ(answer_text(), "{1,5; 2}");
}

TEST(console_answer, a_long_list_goes_over_lines_that_fit) {
  answer_with_list(999);
  const std::string text = answer_text();
  EXPECT_NE(text.find('\n'), std::string::npos);
  std::size_t start = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
    EXPECT_LE(end - start, 80u);
    start = end + 1;
  }
  EXPECT_EQ(text.substr(text.size() - 5), " 999}");
}

TEST(console_answer, a_matrix_has_a_row_a_line_and_aligned_columns) {
  answer_with_matrix(2, 2);
  MatrixRecord& matrix = stores.matrices[ANSWER_RECORD];
  matrix.cells[0][0] = 1;
  matrix.cells[0][1] = -2.5;
  matrix.cells[1][0] = 100;
  matrix.cells[1][1] = 4;
  EXPECT_EQ(answer_text(), "[  1  -2.5]\n[100     4]");
}

TEST(console_answer, a_matrix_of_one_cell_is_one_line) {
  answer_with_matrix(1, 1);
  EXPECT_EQ(answer_text(), "[0]");
}

TEST(console_answer, a_string_is_whole_however_long) {
  std::memset(stores.strings[ANSWER_RECORD].text, 'x', STRING_LIMIT);
  answers.str_ans_valid = true;
  EXPECT_EQ(answer_text(), '"' + std::string(STRING_LIMIT, 'x') + '"');
}

}  // namespace
}  // namespace zephyl
