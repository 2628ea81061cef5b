#include "platform/script/answers.h"

#include <gtest/gtest.h>

#include <cstring>

#include "engine/records.h"
#include "engine/state.h"

namespace zephyl {
namespace {

TEST(script_answers, numbers_read_back_as_the_same_double) {
  EXPECT_EQ(exact_text(0.1), "0.10000000000000001");
  EXPECT_EQ(exact_text(4.0), "4");
  EXPECT_EQ(exact_text(1e-300), "1e-300");
  EXPECT_EQ(exact_text(TValue{1.5, -2}), "1.5 -2");
}

TEST(script_answers, lists_tell_their_size_and_both_parts) {
  static ListRecord list;
  EXPECT_EQ(exact_text(list), "undefined");
  list.defined = true;
  list.last = 1;
  list.elements[0] = {1, 0};
  list.elements[1] = {2.5, -3};
  EXPECT_EQ(exact_text(list), "2: 1,0 2.5,-3");
}

TEST(script_answers, matrices_go_row_by_row) {
  static MatrixRecord matrix;
  EXPECT_EQ(exact_text(matrix), "undefined");
  matrix.defined = true;
  matrix.last_row = 1;
  matrix.last_col = 2;
  for (int i = 0; i < 6; ++i) matrix.cells[i / 3][i % 3] = i + 0.5;
  EXPECT_EQ(exact_text(matrix), "2x3: 0.5 1.5 2.5 3.5 4.5 5.5");
}

TEST(script_answers, strings_are_marked_as_the_text_form_reads_them) {
  EXPECT_EQ(quoted(""), "\"\"");
  EXPECT_EQ(quoted("a\"b\\c"), "\"a\\\"b\\\\c\"");
  EXPECT_EQ(quoted("one\ntwo"), "\"one\\ntwo\"");
}

TEST(script_answers, result_line_is_plain_text) {
  std::strcpy(state.result_text, "2\x1B-5");  // the exponent mark of small text
  EXPECT_EQ(result_line_text(), "2e-5");
}

TEST(script_answers, prompt_shows_while_the_result_is_empty) {
  std::strcpy(state.prompt_text, "Radius?");
  EXPECT_EQ(result_line_text(), "");
  state.at_prompt = true;
  EXPECT_EQ(result_line_text(), "Radius?");
  std::strcpy(state.result_text, "12");
  EXPECT_EQ(result_line_text(), "12");
}

}  // namespace
}  // namespace zephyl
