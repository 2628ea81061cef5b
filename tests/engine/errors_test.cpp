#include "engine/errors.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

TRunningProgram running = {"Area", 4, false};

void run_program() {
  state.program_running = true;
  hooks.running_program = [](TRunningProgram& program) {
    program = running;
    return true;
  };
}

std::string text_of(int code) {
  errors.error_flag = false;
  report_error(static_cast<TError>(code));
  return errors.error_text;
}

TEST(errors, every_code_has_its_message) {
  const char* const messages[] = {"Overflow",
                                  "Overflow",
                                  "Division by Zero",
                                  "Math Error",
                                  "Domain Error",
                                  "Invalid Syntax",
                                  "No Stats Data",
                                  "No Stats y Data",
                                  "Memory Limit Error",
                                  "Unexpected Error",
                                  "Matrix Size Mismatch",
                                  "Matrix Not Square",
                                  "Matrix Size Error",
                                  "Matrix is Singular",
                                  "Matrix Size Not Defined",
                                  "Data Type Error",
                                  "Matrix Index Range",
                                  "Function Argument Count",
                                  "Function Argument Type",
                                  "Matrix Not Positive Def.",
                                  "Matrix Not Symmetric",
                                  "List Size Not Defined",
                                  "List Index Range",
                                  "List Size Error",
                                  "List Size Mismatch",
                                  "Operation Canceled",
                                  "String Size Error",
                                  "Invalid String",
                                  "Invalid Element Symbol",
                                  "Can't Nest fnInt()",
                                  "Parenthesis Level Exceeded",
                                  "Parenthesis Unbalanced",
                                  "No Root Found",
                                  "No Intersection Found",
                                  "toHMS not Last",
                                  "Function Nest Limit",
                                  "Undefined Function Var ",
                                  "Can't Nest a Function Var",
                                  "Program Code Error",
                                  "Program Version Error",
                                  "Program Not Found",
                                  "",
                                  "Program Stopped",
                                  "Program Nesting Limit",
                                  "Not 2 Variable Stats",
                                  "Stats Size Error",
                                  "Invalid Date",
                                  "No TVM Sign Change",
                                  "No IRR Sign Change",
                                  "Iterations Exceeded"};
  for (int code = 0; code < 50; ++code) EXPECT_EQ(text_of(code), messages[code]) << code;
}

TEST(errors, a_code_without_a_message_is_unexpected) {
  EXPECT_EQ(text_of(50), "Unexpected Error");
  EXPECT_EQ(text_of(-1), "Unexpected Error");
}

TEST(errors, the_first_error_stands) {
  report_error(ERR_DOMAIN, "first.cpp", 10);
  report_error(ERR_SYNTAX, "second.cpp", 20);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(errors.error_code, ERR_DOMAIN);
  EXPECT_STREQ(errors.error_text, "Domain Error");
  EXPECT_STREQ(errors.error_location, "v2.7A, first.cpp, 10");
}

TEST(errors, the_location_has_the_source_without_its_folder) {
  report_error(ERR_DOMAIN, "C:\\work\\engine\\format.cpp", 7);
  EXPECT_STREQ(errors.error_location, "v2.7A, format.cpp, 7");
  clear_error();
  report_error(ERR_DOMAIN, "/work/engine/values.cpp", 8);
  EXPECT_STREQ(errors.error_location, "v2.7A, values.cpp, 8");
}

TEST(errors, the_location_is_that_of_the_caller) {
  report_error(ERR_DOMAIN);
  const int line = __LINE__ - 1;
  EXPECT_EQ(errors.error_location, "v2.7A, errors_test.cpp, " + std::to_string(line));
}

TEST(errors, a_long_location_is_cut) {
  const std::string name(400, 'x');
  report_error(ERR_DOMAIN, name.c_str(), 1);
  EXPECT_EQ(std::strlen(errors.error_location), 199u);
}

TEST(errors, a_plot_keeps_the_location_that_it_has) {
  state.calcMode = PLOT_MODE;
  report_error(ERR_DOMAIN, "first.cpp", 1);
  EXPECT_STREQ(errors.error_location, "v2.7A, first.cpp, 1");
  clear_error();
  report_error(ERR_DOMAIN, "second.cpp", 2);
  EXPECT_STREQ(errors.error_location, "v2.7A, first.cpp, 1");
  state.calcMode = COMP_MODE;
  clear_error();
  report_error(ERR_DOMAIN, "third.cpp", 3);
  EXPECT_STREQ(errors.error_location, "v2.7A, third.cpp, 3");
}

TEST(errors, an_error_takes_the_shown_result_away_and_no_answer) {
  state.result_shown = true;
  answers.ans = {5, 6};
  answers.ans_valid = true;
  report_error(ERR_DOMAIN);
  EXPECT_FALSE(state.result_shown);
  EXPECT_EQ(answers.ans, (TValue{5, 6}));
  EXPECT_TRUE(answers.ans_valid);
}

TEST(errors, an_error_of_a_program_has_the_words_of_the_program) {
  set_program_error_text("Negative radius");
  report_error(ERR_PROGRAM_TEXT);
  EXPECT_STREQ(errors.error_text, "Negative radius");
}

TEST(errors, an_error_of_a_program_may_be_empty) {
  set_program_error_text("");
  report_error(ERR_PROGRAM_TEXT);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_STREQ(errors.error_text, "");
}

TEST(errors, without_a_program_there_is_no_line) {
  report_error(ERR_DOMAIN);
  EXPECT_FALSE(errors.error_in_program);
  EXPECT_FALSE(errors.error_line_shown);
}

TEST(errors, in_a_program_the_line_is_told) {
  run_program();
  report_error(ERR_DOMAIN);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_TRUE(errors.error_in_program);
  EXPECT_TRUE(errors.error_line_shown);
  EXPECT_EQ(errors.error_line, 4);
  EXPECT_STREQ(errors.error_program, "Area");
  EXPECT_STREQ(errors.error_text, "Domain Error");
  EXPECT_STREQ(state.result_text, "Domain Error (line 5)");
}

TEST(errors, at_a_pause_the_line_is_the_one_before) {
  run_program();
  running.paused = true;
  report_error(ERR_DOMAIN);
  EXPECT_EQ(errors.error_line, 3);
  EXPECT_STREQ(state.result_text, "Domain Error (line 4)");
}

TEST(errors, at_a_prompt_the_message_is_bare) {
  run_program();
  state.at_prompt = true;
  running.paused = true;
  errors.error_in_program = true;
  report_error(ERR_DOMAIN);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_FALSE(errors.error_in_program);
  EXPECT_STREQ(state.result_text, "");
}

TEST(errors, a_stopped_program_tells_its_line_at_a_prompt_too) {
  run_program();
  state.at_prompt = true;
  running.paused = true;
  report_error(ERR_PROGRAM_STOPPED);
  EXPECT_STREQ(state.result_text, "Program Stopped (line 4)");
  EXPECT_TRUE(errors.error_in_program);
}

TEST(errors, the_text_with_the_line_and_the_program_name_are_cut) {
  const std::string name(60, 'n');
  run_program();
  running.name = name.c_str();
  set_program_error_text(std::string(200, 'x').c_str());
  report_error(ERR_PROGRAM_TEXT);
  EXPECT_EQ(std::strlen(errors.error_text), 119u);
  EXPECT_EQ(std::strlen(state.result_text), 119u);
  EXPECT_EQ(std::strlen(errors.error_program), 39u);
}

TEST(errors, taking_an_error_back_keeps_its_text) {
  run_program();
  report_error(ERR_DOMAIN);
  clear_error();
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(errors.error_line_shown);
  EXPECT_STREQ(errors.error_text, "Domain Error");
}

TEST_F(calculator, an_error_leaves_the_answer_and_earlier_stores) {
  eval("7");
  EXPECT_EQ(eval("(5->A)+1/0"), "Division by Zero");
  EXPECT_EQ(answers.ans.re, 7.0);
  EXPECT_EQ(memory_get(SLOT_CAPITAL_A, 0), 5.0);
}

TEST_F(calculator, an_error_is_forgotten_by_the_next_evaluation) {
  eval("1/0");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(eval("2+2"), "4");
  EXPECT_FALSE(errors.error_flag);
}

}  // namespace
}  // namespace zephyl
