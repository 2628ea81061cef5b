// Programs as functions of expressions.

#include "programs/custom_functions.h"

#include <cstdio>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "platform/events.h"
#include "plot/custom_function.h"
#include "plot/drawing.h"
#include "plot/plot.h"
#include "programs/function_header.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_fixture.h"
#include "programs/program_input.h"
#include "programs/programs.h"
#include "programs/run_state.h"
#include "programs/scopes.h"

namespace zephyl {

class custom_functions : public programs {
 protected:
  // The error that an entry ends in, as the result line shows it.
  std::string shown_error(const std::string& text) {
    EXPECT_NE(error_of(text), "") << text;
    return result();
  }
  static std::string list(int index) {
    std::string text;
    for (int i = 0; i <= stores.lists[index].last; ++i)
      text += (i ? " " : "") + std::to_string(static_cast<int>(stores.lists[index].elements[i].re));
    return text;
  }
};

TEST_F(custom_functions, take_an_argument_and_give_the_last_value) {
  write_program("Fun", {"func(a)", "a^(2)+1"});
  EXPECT_EQ(eval("Fun(3)"), "10");
  EXPECT_EQ(eval("2*Fun(1+1)+Fun(0)"), "11");
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(run.level, 0);
  EXPECT_EQ(frame_count(), 0);
}

TEST_F(custom_functions, without_arguments_are_called_with_empty_parentheses) {
  write_program("Seven", {"func(no arguments)", "3+4"});
  EXPECT_EQ(eval("Seven()*2"), "14");
}

TEST_F(custom_functions, take_six_arguments) {
  write_program("Six", {"func(A,B,C,D,E,F)", "A*100000+B*10000+C*1000+D*100+E*10+F"});
  EXPECT_EQ(eval("Six(1,2,3,4,5,6)"), "123456");
}

TEST_F(custom_functions, have_variables_of_their_own) {
  write_program("Fun", {"func(a)", "9->B", "a*2->a", "a"});
  eval("5->a");
  eval("6->B");
  EXPECT_EQ(eval("Fun(3)"), "6");
  EXPECT_EQ(memory("a"), 5);
  EXPECT_EQ(memory("B"), 6);
}

TEST_F(custom_functions, leave_what_out_makes_global) {
  write_program("Fun", {"func(a)", "a*2->B", "out B", "{a,a}->{B}", "outList({B})", "a"});
  EXPECT_EQ(eval("Fun(3)"), "3");
  EXPECT_EQ(memory("B"), 6);
  EXPECT_EQ(list(1), "3 3");
  EXPECT_FALSE(state.key_wait);
  EXPECT_EQ(result(), "3") << "nothing is shown";
}

TEST_F(custom_functions, take_and_give_every_kind) {
  write_program("List", {"func({B})", "{B}+1"});
  write_program("Matrix", {"func([C])", "[C]*2"});
  write_program("Text", {"func(str3)", "str3+\"!\""});
  write_program("Mixed", {"func(a,{A},[A],str1)", "a+listSum({A})+Det([A])+strLen(str1)"});
  EXPECT_EQ(eval("List({4,5})"), "Result in List Answer");
  EXPECT_EQ(list(ANSWER_RECORD), "5 6");
  EXPECT_EQ(eval("Matrix(Iden(2))"), "Result in Matrix Answer");
  EXPECT_EQ(stores.matrices[ANSWER_RECORD].cells[1][1], 2);
  EXPECT_EQ(eval("Text(\"Hi\")+\"?\""), "Hi!?");
  EXPECT_EQ(eval("Mixed(1,{2,3},Iden(3),\"four\")"), "11");
}

TEST_F(custom_functions, take_complex_numbers) {
  settings.complexFormat = ST_COMPLEX_R;
  write_program("Fun", {"func(a)", "a*(i)"});
  EXPECT_EQ(eval("Fun(2+3*(i))"), "-3+2i");
}

TEST_F(custom_functions, take_their_arguments_at_once) {
  write_program("Swap", {"func({B},{A})", "{A}*10+{B}"});
  eval("{1,2}->{A}");
  eval("{3,4}->{B}");
  EXPECT_EQ(error_of("Swap({A},{B})"), "");
  EXPECT_EQ(list(ANSWER_RECORD), "31 42");
  EXPECT_EQ(list(0), "1 2");
  EXPECT_EQ(list(1), "3 4");
}

TEST_F(custom_functions, refuse_an_undefined_argument) {
  write_program("Fun", {"func({B})", "listSum({B})"});
  EXPECT_EQ(error_of("Fun({A})"), "List Size Not Defined");
  write_program("Gun", {"func([B])", "Det([B])"});
  EXPECT_EQ(error_of("Gun([A])"), "Matrix Size Not Defined");
}

TEST_F(custom_functions, keep_the_rest_of_the_expression) {
  write_program("Fun", {"func(a)", "{7,8,9}->{C}", "fnInt(x,x,0,1)", "sortA({C})", "a*2"});
  EXPECT_EQ(eval("{1,Fun(2),3}"), "Result in List Answer");
  EXPECT_EQ(list(ANSWER_RECORD), "1 4 3");
  EXPECT_EQ(eval("({1,2}+Fun(3))*Fun(1)"), "Result in List Answer");
  EXPECT_EQ(list(ANSWER_RECORD), "14 16");
  EXPECT_EQ(eval("Max(Fun(1),Max(Fun(5),Fun(2)))"), "10");
  EXPECT_EQ(eval("\"a\"+numToString(Fun(1))+\"b\""), "a2b");
}

TEST_F(custom_functions, run_as_the_body_of_a_numeric_operator) {
  write_program("Fun", {"func(a)", "a^(2)"});
  EXPECT_EQ(eval("Summ(Fun(n),n,1,3)"), "14");
  EXPECT_EQ(eval("Round(fnInt(Fun(x),x,0,3),6)"), "9");
  write_program("Gun", {"func(a)", "Summ(k,k,1,a)"});
  EXPECT_EQ(eval("Summ(Gun(n),n,1,3)"), "10");
  EXPECT_EQ(eval("Seq(Fun(n),n,1,3)"), "Result in List Answer");
  EXPECT_EQ(list(ANSWER_RECORD), "1 4 9");
}

TEST_F(custom_functions, are_plotted_without_a_trace) {
  write_program("Fun", {"func(a)", "a*7->B", "out B", "{a,a}->{B}", "outList({B})", "Circle(0,0,a)", "a*2->xMax", "a^(2)"});
  eval("Fun(x)->f1(x)");
  eval("5->B");
  eval("20->xMax");
  const TAnswers before = answers;
  clear_drawing();
  state.calcMode = PLOT_MODE;
  EXPECT_EQ(evaluate_plot_function(PLOT_FUNCTION, 3.0, 0.0, 0), 9.0);
  plot_it();
  EXPECT_FALSE(plot_cancelled);
  EXPECT_EQ(memory("B"), 5.0);
  EXPECT_EQ(plot_variables.xMax, 20.0);
  EXPECT_EQ(answers.ans, before.ans);
  EXPECT_FALSE(drawing_present());
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(message(), "none");
}

TEST_F(custom_functions, are_plotted_until_a_tap) {
  write_program("Fun", {"func(a)", "Summ(k,k,1,1000)"});
  eval("Fun(x)->f1(x)");
  state.calcMode = PLOT_MODE;
  platform_.ticks_per_look = 5;
  platform_.pen_downs = {{20, 250}};
  plot_it();
  EXPECT_TRUE(plot_cancelled);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(state.program_running);
  platform_.pen_downs.clear();
  EXPECT_EQ(eval("Fun(1)"), "500500");
}

TEST_F(custom_functions, see_the_answer_and_leave_their_own) {
  write_program("Fun", {"func(a)", "a*2"});
  eval("100");
  EXPECT_EQ(eval("Ans+Fun(2)"), "8") << "the function's last value is the answer by then";
}

TEST_F(custom_functions, call_one_another) {
  write_program("Fun", {"func(a)", "Gun(a+1)*10->b", "b+a"});
  write_program("Gun", {"func(a)", "a*2"});
  EXPECT_EQ(eval("Fun(3)"), "83");
}

TEST_F(custom_functions, work_five_deep) {
  write_program("Sum", {"func(n)", "if (n <= 0)", "0", "stop", "end", "n+Sum(n-1)"});
  EXPECT_EQ(eval("Sum(4)"), "10");
  EXPECT_EQ(error_of("Sum(5)"), "Program Nesting Limit");
  EXPECT_EQ(frame_count(), 0);
  EXPECT_EQ(run.level, 0);
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(eval("Sum(4)"), "10");
}

TEST_F(custom_functions, work_four_deep_within_a_program) {
  write_program("Sum", {"func(n)", "if (n <= 0)", "0", "stop", "end", "n+Sum(n-1)"});
  EXPECT_EQ(run_lines({"Sum(3)->A", "out A"}), "A=6");
  EXPECT_EQ(run_lines({"1->A", "Sum(4)->A", "out A"}), "Program Nesting Limit (line 6)");
  EXPECT_STREQ(errors.error_program, "Sum");
}

TEST_F(custom_functions, skip_what_only_a_user_could_answer) {
  write_program("Fun", {"func(a)", "Program Description \"Doubles.\"", "in b", "in f1()", "text \"Hi\"",
                        "Menu \"T\"", "Menu A, \"x\"", "Menu Display", "Menu Clear", "label A", "a*2"});
  platform_.dialogs.clear();
  EXPECT_EQ(eval("Fun(4)"), "8");
  EXPECT_TRUE(platform_.dialogs.empty());
  EXPECT_FALSE(state.at_prompt);
}

TEST_F(custom_functions, show_no_boxes) {
  write_program("Fun", {"func(a)", "end"});
  EXPECT_EQ(shown_error("Fun(1)"), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "none");
  EXPECT_STREQ(errors.error_program, "Fun");
  write_file_of("Later", "N: Later\r\nV: 9.9\r\nI: 17\r\n");
  EXPECT_EQ(error_of("Later()"), "Program Version Error");
  EXPECT_EQ(message(), "none");
}

TEST_F(custom_functions, name_the_line_of_an_error) {
  write_program("Fun", {"func(a)", "0->b", "a/b"});
  EXPECT_EQ(shown_error("Fun(1)"), "Division by Zero (line 3)");
  EXPECT_EQ(errors.error_line, 2);
  EXPECT_EQ(eval("5"), "5");
}

TEST_F(custom_functions, roll_back_after_an_error) {
  write_program("Fun", {"func(a)", "5->b", "{1,1}->{A}", "1/0"});
  eval("7->a");
  eval("{3,4}->{A}");
  EXPECT_NE(error_of("Fun(1)"), "");
  EXPECT_EQ(memory("a"), 7);
  EXPECT_EQ(memory("b"), 0);
  EXPECT_EQ(list(0), "3 4");
  EXPECT_EQ(frame_count(), 0);
}

TEST_F(custom_functions, leave_their_callees_frames_with_an_error) {
  write_program("Sub", {"5->b", "1/0"});
  write_program("Fun", {"func(a)", "call Sub", "a"});
  EXPECT_EQ(shown_error("Fun(1)"), "Division by Zero (line 2)");
  EXPECT_STREQ(errors.error_program, "Sub");
  EXPECT_EQ(frame_count(), 0);
  EXPECT_EQ(run.call_top, 0);
}

TEST_F(custom_functions, may_call_programs) {
  write_program("Sub", {"5->b", "out b"});
  write_program("Fun", {"func(a)", "call Sub", "a+b"});
  EXPECT_EQ(eval("Fun(1)"), "6");
  EXPECT_EQ(memory("b"), 5);
}

TEST_F(custom_functions, return_to_a_program_that_was_called) {
  write_program("Fun", {"func(a)", "if (a > 0)", "1->b", "end", "gosub label A", "a", "stop", "label A",
                        "a*2->a", "return sub"});
  write_program("Sub", {"gosub label B", "stop", "label B", "2->n", "0->S", "loop n", "S+Fun(n)->S", "end",
                        "out S", "return sub"});
  EXPECT_EQ(run_lines({"call Sub", "S*100->C", "out C"}), "C=600");
}

TEST_F(custom_functions, compare_count_and_kinds_with_what_is_declared) {
  write_program("Fun", {"func(a,b)", "a+b"});
  EXPECT_EQ(error_of("Fun(1)"), "Function Argument Count");
  EXPECT_EQ(error_of("Fun(1,2,3)"), "Function Argument Count");
  EXPECT_EQ(error_of("Fun()"), "Function Argument Count");
  EXPECT_EQ(error_of("Fun({1,2},2)"), "Function Argument Type");
  EXPECT_EQ(error_of("Fun(1,\"a\")"), "Function Argument Type");
  write_program("Gun", {"func({A})", "1"});
  EXPECT_EQ(error_of("Gun(1)"), "Function Argument Type");
  EXPECT_EQ(error_of("Gun(Iden(2))"), "Function Argument Type");
  write_program("Hub", {"func(no arguments)", "1"});
  EXPECT_EQ(error_of("Hub(1)"), "Function Argument Count");
}

TEST_F(custom_functions, in_a_program_report_a_bad_call_with_the_line_of_the_call) {
  write_program("Fun", {"func({B})", "1"});
  EXPECT_EQ(run_lines({"1->A", "Fun({A})"}), "List Size Not Defined (line 2)");
  EXPECT_STREQ(errors.error_program, "Test");
  EXPECT_EQ(run_lines({"1->A", "Nobody(1)"}), "Program Not Found (line 2)");
}

TEST_F(custom_functions, are_functions_only_with_their_statement) {
  write_program("Prog", {"1+1"});
  EXPECT_EQ(error_of("Prog()"), "Program Not Found");
  EXPECT_EQ(error_of("Nobody()"), "Program Not Found");
}

TEST_F(custom_functions, give_the_last_answer_where_they_evaluate_nothing) {
  write_program("Fun", {"func(a)"});
  eval("42");
  EXPECT_EQ(eval("Fun(1)"), "42");
}

TEST_F(custom_functions, evaluate_their_own_function_slots) {
  write_program("Fun", {"func(a)", "x*3->f1()", "a->x", "f1()"});
  eval("x+1->f1()");
  EXPECT_EQ(eval("Fun(5)"), "15");
  EXPECT_EQ(eval("2->x"), "2");
  EXPECT_EQ(eval("f1()"), "3");
}

TEST_F(custom_functions, take_a_number_for_a_function) {
  write_file_of("Fun", std::string("N: F\r\nV: 2.7A\r\nI: 17\r\nT: ") +
                           static_cast<char>(SLOT_F1 + FUNC_SLOT_OFFSET) + "\r\nI: 16\r\n");
  eval("x+1->f1()");
  EXPECT_EQ(eval("Fun(-2.5)"), "-2.5");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(eval("Fun(1-2*(i))*2"), "2-4i");
  EXPECT_EQ(eval("2->x"), "2");
  EXPECT_EQ(eval("f1()"), "3");
}

TEST_F(custom_functions, can_be_cancelled_between_statements) {
  write_program("Fun", {"func(a)", "label A", "goto label A"});
  platform_.ticks_per_look = 300;
  platform_.pen_downs.push_back({23, 200});
  EXPECT_EQ(shown_error("Fun(1)").substr(0, 18), "Operation Canceled");
  EXPECT_TRUE(errors.error_in_program);
  EXPECT_EQ(frame_count(), 0);
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(custom_functions, work_at_a_prompt) {
  write_program("Fun", {"func(a)", "7->A", "a*2"});
  run_lines({"in A", "out A"});
  EXPECT_EQ(answer_with("Fun(4)+1"), "A=9");
  EXPECT_EQ(run_lines({"in A", "out A"}), "A?");
  write_program("Bad", {"func(a)", "1/0"});
  EXPECT_EQ(answer_with("Bad(1)"), "Division by Zero (line 2)");
  EXPECT_TRUE(state.at_prompt);
  EXPECT_TRUE(state.program_running);
  EXPECT_EQ(answer_with("3"), "A=3");
}

TEST_F(custom_functions, bring_their_caller_back_into_memory) {
  write_program("Fun", {"func(a)", "a*2"});
  run_lines({"3->n", "0->S", "loop n", "S+Fun(n)->S", "end", "out S"});
  EXPECT_EQ(memory("S"), 12);
  EXPECT_STREQ(program.name, "Test");
  EXPECT_EQ(program.statement_count, 6);
}

TEST_F(custom_functions, keep_the_description_of_their_caller) {
  write_program("Fun", {"func(a)", "Program Description \"Mine.\"", "a*2"});
  write_program("Test", {"Program Description \"Test's.\"", "Fun(1)", "in A"});
  run_program("Test");
  EXPECT_STREQ(program.description, "Test's.");
}

TEST_F(custom_functions, report_a_caller_that_has_gone) {
  write_program("Fun", {"func(a)", "a*2"});
  write_program("Test", {"in A", "Fun(1)", "out A"});
  run_program("Test");
  ::remove(program_path_of("Test").c_str());
  EXPECT_EQ(answer_with("1"), "Program Code Error (line 2)");
}

// --- Headers

TEST_F(custom_functions, headers_are_read_without_loading) {
  write_program("Fun", {"func(a,[B],{C},str2)", "Program Description \"Does~~it.\"", "1"});
  TFunctionHeader header;
  std::string description;
  EXPECT_EQ(read_function_header("Fun", header, &description), 4);
  EXPECT_EQ(header.slots[0], SLOT_SMALL_A);
  EXPECT_EQ(header.slots[1], SLOT_MATRIX_A + 1);
  EXPECT_EQ(header.slots[2], SLOT_LIST_A + 2);
  EXPECT_EQ(header.slots[3], SLOT_STR1 + 1);
  EXPECT_EQ(description, "Does~~it.");
  EXPECT_STREQ(program.name, "");
}

TEST_F(custom_functions, headers_of_the_program_in_memory_have_no_name) {
  TFunctionHeader header;
  EXPECT_EQ(read_function_header("", header), NO_FUNCTION);
  write_program("Fun", {"func(a)", "1"});
  ASSERT_EQ(load_program("Fun", false), 2);
  EXPECT_EQ(read_function_header("", header), 1);
  EXPECT_EQ(header.slots[0], SLOT_SMALL_A);
}

TEST_F(custom_functions, headers_need_the_statement_on_the_third_line) {
  TFunctionHeader header;
  const auto arguments = [&](const std::string& text) {
    write_file_of("Fun", text);
    return read_function_header("Fun", header);
  };
  EXPECT_EQ(arguments("N: F\r\nV: 2.7A\r\nI: 17\r\n"), 0);
  EXPECT_EQ(arguments("N: F\r\nI: 17\r\nT: 2\r\n"), NO_FUNCTION);
  EXPECT_EQ(arguments("N: F\r\nV: 2.7A\r\nI: 11\r\nI: 17\r\n"), NO_FUNCTION);
  EXPECT_EQ(arguments("N: F\r\nV: 2.7A\r\nI: 17\r\nI: 11\r\nT: 22\r\n"), 0);
  EXPECT_EQ(arguments("N: F\r\nV: 2.7A\r\nI: 17\r\nT: 23456789\r\n"), 6);
  EXPECT_EQ(arguments(""), NO_FUNCTION);
  EXPECT_EQ(read_function_header("Nobody", header), NO_FUNCTION);
}

TEST_F(custom_functions, tokens_of_calls_depend_on_the_header) {
  write_program("Fun", {"func(a)", "1"});
  write_program("Gun", {"func(no arguments)", "1"});
  write_program("Prog", {"1"});
  EXPECT_EQ(function_token("Fun"), TOKEN_FUNC1);
  EXPECT_EQ(function_token("Gun"), TOKEN_FUNC2);
  EXPECT_EQ(function_token("Prog"), TOKEN_FUNC2);
  EXPECT_EQ(function_token("Nobody"), TOKEN_FUNC2);
}

TEST_F(custom_functions, arguments_are_listed_in_words) {
  const auto words = [this](const std::string& listing) {
    write_program("Fun", {listing, "1"});
    TFunctionHeader header;
    read_function_header("Fun", header);
    return arguments_text(header);
  };
  EXPECT_EQ(words("func(no arguments)"), "");
  EXPECT_EQ(words("func(a)"), "value");
  EXPECT_EQ(words("func(str1)"), "string");
  EXPECT_EQ(words("func(a,b)"), "val1, val2");
  EXPECT_EQ(words("func(a,{A})"), "val, list");
  EXPECT_EQ(words("func(a,{A},b,[A],[B],str1)"), "val1, list, val2, matrix1, matrix2, str");
}

TEST_F(custom_functions, a_slot_that_is_none_is_an_error) {
  write_file_of("Fun", "N: F\r\nV: 2.7A\r\nI: 17\r\nT: \xFF\r\nI: 12\r\n");
  EXPECT_EQ(error_of("Fun(1)"), "Unexpected Error");
}

TEST_F(custom_functions, names_with_every_character_of_a_file_name_work) {
  write_program("Max of 3", {"func(a)", "a"});
  TExpression& line = entry_line.expression;
  clear_entry_line();
  state.fresh_flag = false;
  ASSERT_TRUE(insert_name_tokens("Max of 3", function_token("Max of 3")));
  on_char('8');
  on_char('=');
  EXPECT_EQ(result(), "8");
  EXPECT_GT(line.count, 0);
}

}  // namespace zephyl
