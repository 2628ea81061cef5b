// The expressions entered before.

#include <string>

#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr TToken digits[] = {38, 33, 34, 35, 28, 29, 30, 23, 24, 25};

// A line of one number in the history.
void enter_number(int number) {
  state.fresh_flag = false;
  clear_entry_line();
  insert_token(true, digits[number / 10]);
  insert_token(true, digits[number % 10]);
  add_history();
}

std::string listed(const TExpression& expression) {
  char text[400];
  expression_text(expression, text, sizeof text);
  return text;
}

TEST_F(calculator, an_evaluated_line_goes_into_the_history) {
  eval("2+3");
  ASSERT_EQ(history.count, 1);
  EXPECT_EQ(listed(history.entries[0]), "2+3");
}

TEST_F(calculator, the_history_keeps_no_line_twice_in_a_row) {
  enter_number(1);
  enter_number(1);
  EXPECT_EQ(history.count, 1);
  enter_number(2);
  enter_number(1);
  EXPECT_EQ(history.count, 3);
}

TEST_F(calculator, the_oldest_of_21_lines_is_dropped) {
  for (int i = 0; i < 21; ++i) enter_number(i);
  ASSERT_EQ(history.count, 20);
  EXPECT_EQ(listed(history.entries[0]), "01");
  EXPECT_EQ(listed(history.entries[19]), "20");
}

TEST_F(calculator, an_entry_comes_back_as_the_line) {
  enter_number(12);
  enter_number(34);
  bool drawn_without_cursor = false;
  static bool* drawn = nullptr;
  drawn = &drawn_without_cursor;
  hooks.draw_expression = [](bool with_cursor) { *drawn = !with_cursor; };
  EXPECT_TRUE(use_history(0, false));
  EXPECT_EQ(entry(), "12");
  EXPECT_EQ(entry_line.cursor, 2);
  EXPECT_TRUE(state.fresh_flag);
  EXPECT_FALSE(entry_line.cursor_shown);
  EXPECT_TRUE(drawn_without_cursor);
  hooks.draw_expression = [](bool) {};
}

TEST_F(calculator, a_token_wipes_an_entry_that_came_back) {
  enter_number(12);
  use_history(0, false);
  insert_token(true, 35);
  EXPECT_EQ(entry(), "3");
}

TEST_F(calculator, an_entry_goes_in_at_the_cursor) {
  enter_number(12);
  enter_number(34);
  cursor_left(false);
  EXPECT_TRUE(use_history(0, true));
  EXPECT_EQ(entry(), "3124");
  EXPECT_EQ(entry_line.cursor, 3);
  EXPECT_FALSE(state.fresh_flag);
}

TEST_F(calculator, an_entry_that_does_not_fit_is_refused) {
  enter_number(12);
  state.fresh_flag = false;
  clear_entry_line();
  for (int i = 0; i < 98; ++i) insert_token(true, 33);
  EXPECT_FALSE(use_history(0, true));
  EXPECT_EQ(entry_line.expression.count, 98);
  EXPECT_EQ(message(), "Limit | Reached expression size limit");
  delete_token();
  EXPECT_TRUE(use_history(0, true));
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(calculator, a_row_that_the_history_lacks_changes_nothing) {
  enter_number(12);
  EXPECT_FALSE(use_history(1, false));
  EXPECT_FALSE(use_history(-1, true));
  EXPECT_EQ(entry(), "12");
}

TEST_F(calculator, clearing_expression_entries_empties_the_history) {
  enter_number(12);
  clear_items(CLEAR_HISTORY);
  EXPECT_EQ(history.count, 0);
}

}  // namespace
}  // namespace zephyl
