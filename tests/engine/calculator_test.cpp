// The evaluate key and AC.

#include "engine/calculator.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

TEST_F(calculator, evaluates_the_road_of_a_first_sum) {
  settings.angleMode = DEGREES;
  EXPECT_EQ(eval("2+sin(30)"), "2.5");
}

TEST_F(calculator, an_empty_line_evaluates_to_nothing) {
  EXPECT_FALSE(evaluate_expression(false));
  EXPECT_TRUE(state.nothing_evaluated);
  EXPECT_STREQ(state.result_text, "");
}

TEST_F(calculator, a_result_makes_the_next_token_start_afresh) {
  eval("1+1");
  EXPECT_TRUE(state.fresh_flag);
  EXPECT_FALSE(state.nothing_evaluated);
  insert_token(true, 34);
  EXPECT_EQ(entry(), "2");
}

TEST_F(calculator, evaluating_clears_a_standing_error) {
  eval("1/0");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(eval("1+1"), "2");
  EXPECT_FALSE(errors.error_flag);
}

// The group farther to the right is evaluated first.
TEST_F(calculator, the_first_error_of_a_run_stands) { EXPECT_EQ(eval("asin(2)+(1/0)"), "Division by Zero"); }

TEST_F(calculator, an_evaluated_expression_enters_the_history_once) {
  eval("1+1");
  eval("1+1");
  eval("2+1");
  EXPECT_EQ(history.count, 2);
}

TEST_F(calculator, a_compile_error_enters_the_history_too) {
  eval("1+*2");
  EXPECT_EQ(history.count, 1);
}

TEST_F(calculator, compiling_alone_neither_runs_nor_shows) {
  eval("5");
  state.fresh_flag = false;
  clear_entry_line();
  insert_token(true, TOKEN_PI);
  EXPECT_FALSE(evaluate_expression(true));
  EXPECT_EQ(answers.ans.re, 5.0);
  EXPECT_FALSE(state.fresh_flag);
}

TEST_F(calculator, a_compile_error_shows_even_when_compiling_alone) {
  state.fresh_flag = false;
  clear_entry_line();
  insert_token(true, TOKEN_CLOSE);
  evaluate_expression(true);
  EXPECT_STREQ(state.result_text, "Parenthesis Unbalanced");
}

TEST_F(calculator, the_cursor_stands_at_the_end_after_an_evaluation) {
  eval("1+22");
  EXPECT_EQ(entry_line.cursor, 4);
}

TEST_F(calculator, a_running_program_refuses_the_evaluate_key) {
  state.program_running = true;
  insert_token(true, 33);
  EXPECT_FALSE(evaluate_expression(false));
  EXPECT_TRUE(state.nothing_evaluated);
}

TEST_F(calculator, clearing_empties_line_result_and_answers) {
  eval("{1,2}");
  eval("7");
  clear_calculator(true);
  EXPECT_EQ(entry_line.expression.count, 0);
  EXPECT_STREQ(state.result_text, "");
  EXPECT_EQ(answers.ans, TValue{});
  EXPECT_FALSE(answers.ans_valid);
  EXPECT_FALSE(stores.lists[ANSWER_RECORD].defined);
  EXPECT_TRUE(state.nothing_evaluated);
  EXPECT_TRUE(state.fresh_flag);
}

TEST_F(calculator, clearing_takes_a_standing_error_back) {
  eval("1/0");
  clear_calculator(true);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(calculator, clearing_keeps_the_memories) {
  eval("3->A");
  clear_calculator(true);
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 3.0);
}

TEST_F(calculator, after_clearing_an_operator_starts_without_an_answer) {
  eval("5");
  clear_calculator(true);
  insert_token(true, TOKEN_PLUS);
  EXPECT_EQ(entry(), "+");
}

TEST_F(calculator, a_result_is_made_anew_after_a_change_of_format) {
  eval("1/3");
  settings.numberFormat = FORMAT_FIXED;
  settings.decimalDigits = 2;
  refresh_result();
  EXPECT_STREQ(state.result_text, "0.33");
}

TEST_F(calculator, an_aggregate_answer_alone_is_marked_valid) {
  eval("{1,2}");
  EXPECT_TRUE(answers.l_ans_valid);
  EXPECT_FALSE(answers.m_ans_valid);
  EXPECT_FALSE(answers.str_ans_valid);
  eval("3");
  EXPECT_FALSE(answers.l_ans_valid);
}

TEST_F(calculator, a_number_keeps_its_value_when_a_list_arrives) {
  eval("9");
  eval("{1,2}");
  EXPECT_EQ(answers.ans.re, 9.0);
}

}  // namespace
}  // namespace zephyl
