// Prompts.

#include "programs/program_input.h"

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "platform/events.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"

namespace zephyl {

class input : public programs {};

TEST_F(input, asks_by_the_name_of_the_variable) {
  EXPECT_EQ(run_lines({"in r", "r*2->A", "out A"}), "r?");
  EXPECT_TRUE(state.at_prompt);
  EXPECT_STREQ(state.prompt_text, "r?");
  EXPECT_FALSE(on_idle());
  EXPECT_EQ(answer_with("21"), "A=42");
  EXPECT_FALSE(state.at_prompt);
}

TEST_F(input, asks_by_its_text) {
  EXPECT_EQ(run_lines({"in r, \"radius\""}), "radius?");
  run_key_pressed();
  EXPECT_EQ(run_lines({"in alpha"}), "alpha?");
  run_key_pressed();
  EXPECT_EQ(run_lines({"in {B}"}), "{B}?");
  run_key_pressed();
  EXPECT_EQ(run_lines({"in str2"}), "str2?");
}

TEST_F(input, shows_that_it_goes_on) {
  write_program("Test", {"in r", "1", "2"});
  start("Test");
  go_on(1);
  char error[80];
  enter_text("3+4", error, sizeof error);
  evaluate_expression(false);
  EXPECT_EQ(result(), "Running...");
  EXPECT_FALSE(state.at_prompt);
  EXPECT_EQ(memory("r"), 7);
  EXPECT_EQ(entry(), "3+4");
}

TEST_F(input, keeps_the_expression_for_the_next_time) {
  run_lines({"in r", "in s", "r*s->A", "out A"});
  EXPECT_EQ(entry(), "");
  answer_with("2+3");
  EXPECT_EQ(entry(), "") << "another variable has answers of its own";
  EXPECT_EQ(answer_with("10"), "A=50");
  run_lines({"in r", "r->A", "out A"});
  EXPECT_EQ(entry(), "2+3");
  evaluate_expression(false);
  go_on();
  EXPECT_EQ(result(), "A=5");
}

TEST_F(input, an_expression_that_is_there_gives_way_to_a_new_one) {
  run_lines({"in r", "r->A"});
  answer_with("2+3");
  run_lines({"in r", "r->A", "out A"});
  on_char('9');
  EXPECT_EQ(entry(), "9");
  on_char('=');
  go_on();
  EXPECT_EQ(result(), "A=9");
}

TEST_F(input, an_expression_that_is_there_can_be_edited) {
  run_lines({"in r", "r->A"});
  answer_with("2+3");
  run_lines({"in r", "r->A", "out A"});
  on_arrow(ARROW_LEFT);
  on_char('7');
  EXPECT_EQ(entry(), "2+37");
}

TEST_F(input, answers_are_cleared_by_their_number) {
  run_lines({"in r"});
  EXPECT_FALSE(has_last_answers());
  answer_with("2+3");
  EXPECT_TRUE(has_last_answers());
  EXPECT_EQ(last_answer(SLOT_SMALL_A + 17).count, 3);
  eval("clrMem(9)");
  EXPECT_FALSE(has_last_answers());
}

TEST_F(input, answers_do_not_enter_the_history) {
  run_lines({"in r"});
  answer_with("2+3");
  EXPECT_EQ(history.count, 0);
}

TEST_F(input, the_entry_line_comes_back) {
  char error[80];
  enter_text("8*8", error, sizeof error);
  run_lines({"in r"});
  answer_with("2+3");
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(entry(), "8*8");
  on_char('1');
  EXPECT_EQ(entry(), "8*81") << "where it was being edited";
}

TEST_F(input, each_variable_wants_its_type) {
  run_lines({"in [A]", "in {A}", "in str1", "in B", "out B"});
  EXPECT_EQ(answer_with("5"), "Data Type Error");
  EXPECT_TRUE(state.at_prompt);
  EXPECT_EQ(answer_with("{1,2}"), "Data Type Error");
  EXPECT_EQ(answer_with("Iden(2)"), "{A}?");
  EXPECT_EQ(answer_with("Iden(2)"), "Data Type Error");
  EXPECT_EQ(answer_with("{1,2}"), "str1?");
  EXPECT_EQ(answer_with("1"), "Data Type Error");
  EXPECT_EQ(answer_with("\"Hi\""), "B?");
  EXPECT_EQ(answer_with("\"Hi\""), "Data Type Error");
  EXPECT_EQ(answer_with("{1,2}"), "Data Type Error");
  EXPECT_EQ(answer_with("Iden(2)"), "Data Type Error");
  EXPECT_EQ(answer_with("6"), "B=6");
}

TEST_F(input, answers_are_local_as_all_values) {
  eval("3->A");
  eval("{1,2}->{A}");
  run_lines({"in A", "in {A}"});
  answer_with("7");
  answer_with("{8,9}");
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(memory("A"), 3);
  EXPECT_EQ(stores.lists[0].elements[0].re, 1);
}

TEST_F(input, an_error_shows_without_a_line_and_the_prompt_stays) {
  run_lines({"in A", "out A"});
  EXPECT_EQ(answer_with("1/0"), "Division by Zero");
  EXPECT_TRUE(state.at_prompt);
  EXPECT_FALSE(errors.error_in_program);
  EXPECT_EQ(answer_with("2+"), "Invalid Syntax");
  on_arrow(ARROW_LEFT);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(result(), "");
  EXPECT_EQ(answer_with("5"), "A=5");
}

TEST_F(input, ac_at_a_prompt_leaves_the_prompt) {
  run_lines({"in A", "out A"});
  answer_with("1/0");
  on_char(27);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(result(), "A?");
  EXPECT_EQ(entry(), "");
  EXPECT_TRUE(state.at_prompt);
}

TEST_F(input, an_empty_line_is_no_answer) {
  run_lines({"in A", "out A"});
  on_char('=');
  EXPECT_TRUE(state.at_prompt);
}

TEST_F(input, leaves_the_plot_screen) {
  run_lines({"2->calcMode", "in A", "out A"});
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_TRUE(state.at_prompt);
}

TEST_F(input, a_slot_that_holds_nothing_stays_unanswered) {
  write_file_of("Test", "N: Test\r\nV: 2.7A\r\nI: 9\r\n0: 110\r\n");
  EXPECT_EQ(run_program("Test"), "f1()?");
  EXPECT_EQ(answer_with("5"), "Unexpected Error");
  EXPECT_TRUE(state.at_prompt);
}

TEST_F(input, the_run_key_at_a_prompt_stops) {
  run_lines({"1->A", "in A", "out A"});
  run_key_pressed();
  EXPECT_EQ(result(), "Program Stopped (line 2)");
  EXPECT_FALSE(state.at_prompt);
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(entry(), "");
  EXPECT_EQ(memory("A"), 0);
}

TEST_F(input, the_run_key_at_a_prompt_with_an_error_stops_with_its_own_message) {
  run_lines({"1->A", "in A", "out A"});
  answer_with("1/0");
  run_key_pressed();
  EXPECT_EQ(result(), "Program Stopped (line 2)");
}

// --- Functions

TEST_F(input, of_a_function_takes_the_line_itself) {
  EXPECT_EQ(run_lines({"in f1()", "3->x", "f1()", "Ans->A", "out A"}), "f1()?");
  EXPECT_TRUE(state.at_function_prompt);
  EXPECT_EQ(answer_with("x^(2)+1"), "A=10");
  EXPECT_FALSE(state.at_function_prompt);
}

TEST_F(input, of_a_function_asks_by_its_text_as_it_stands) {
  EXPECT_EQ(run_lines({"in f3(), \"f(x)=\""}), "f(x)=");
}

TEST_F(input, of_a_function_begins_with_the_stored_one_and_changes_the_copy_alone) {
  eval("x^(2)->f2()");
  run_lines({"in f2()", "3->x", "f2()", "Ans->A", "out A"});
  EXPECT_EQ(entry(), "x^(2)");
  EXPECT_EQ(answer_with("x^(3)"), "A=27");
  EXPECT_EQ(eval("3->x"), "3");
  EXPECT_EQ(eval("f2()"), "9");
}

TEST_F(input, of_a_function_needs_an_expression) {
  run_lines({"in f1()"});
  on_char('=');
  EXPECT_TRUE(state.at_function_prompt);
  EXPECT_TRUE(state.at_prompt);
}

TEST_F(input, of_a_function_evaluates_nothing) {
  eval("5");
  run_lines({"in f1()"});
  answer_with("x+");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(answers.ans.re, 5);
  EXPECT_EQ(history.count, 1);
}

TEST_F(input, an_empty_function_is_undefined) {
  EXPECT_EQ(run_lines({"1->A", "f1()"}), "Undefined Function Var  (line 2)");
}

}  // namespace zephyl
