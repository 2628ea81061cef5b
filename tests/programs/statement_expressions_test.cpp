// Compiled forms that are kept must mean what the tokens mean now.

#include "programs/statement_expressions.h"

#include <cstdio>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_fixture.h"
#include "programs/run_state.h"

namespace zephyl {

class kept_forms : public programs {};

TEST_F(kept_forms, follow_a_plot_function_that_changes) {
  run_lines({"0->S", "2->n", "5->x", "x+1->f1(x)", "loop n", "S*100+f1(x)->S", "x*2->f1(x)", "end", "out S"});
  EXPECT_EQ(memory("S"), 610);
}

TEST_F(kept_forms, follow_functions_that_functions_read) {
  run_lines({"0->S", "2->n", "5->x", "x+1->f2(x)", "f2(x)*10->f1(x)", "loop n", "S*1000+f1(x)->S",
             "x*2->f2(x)", "end", "out S"});
  EXPECT_EQ(memory("S"), 60100);
}

TEST_F(kept_forms, store_a_function_each_time) {
  run_lines({"0->S", "3->n", "5->x", "loop n", "x+1->f1(x)", "x*3->f1(x)", "S*100+f1(x)->S", "end", "out S"});
  EXPECT_EQ(memory("S"), 151515);
}

TEST_F(kept_forms, follow_the_working_copy_of_a_function) {
  run_lines(
      {"0->S", "2->n", "5->x", "x+1->f1()", "loop n", "f1()", "S*100+Ans->S", "x*2->f1()", "end", "out S"});
  EXPECT_EQ(memory("S"), 610);
}

TEST_F(kept_forms, tell_swapped_operands_apart) {
  run_lines({"0->S", "2->n", "5->x", "x-3->f1(x)", "loop n", "S*100+f1(x)->S", "3-x->f1(x)", "end", "out S"});
  EXPECT_EQ(memory("S"), 198);
}

TEST_F(kept_forms, functions_that_read_one_another_in_a_circle_are_an_error) {
  eval("f2(x)->f1(x)");
  eval("5->f2(x)");
  EXPECT_EQ(run_lines({"f2(x)+1->f1(x)", "f1(x)+1->f2(x)", "f1(x)"}), "Memory Limit Error (line 3)");
}

TEST_F(kept_forms, read_digits_by_the_mode_they_run_in) {
  // 4->baseType (hexadecimal), 5->calcMode (BASE): in the second round "10" is sixteen.
  write_file_of("Test",
                "N: Test\r\nV: 2.7A\r\nI: 11\r\nE: 34,910,\r\nI: 4\r\n0: 10\r\nI: 11\r\nE: 33,38,911,\r\n"
                "I: 10\r\n0: 12\r\nI: 11\r\nE: 28,1502,\r\nI: 11\r\nE: 29,1503,\r\nI: 1\r\n");
  run_program("Test");
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(memory("B"), 16);
}

TEST_F(kept_forms, are_many) {
  std::vector<std::string> listing = {"0->S", "3->n", "loop n"};
  for (int i = 0; i < 90; ++i) listing.push_back("S+" + std::to_string(i) + "->S");
  listing.push_back("end");
  listing.push_back("out S");
  run_lines(listing);
  EXPECT_EQ(memory("S"), 3 * 4005);
  // More expressions than places, of two programs in turn.
  std::vector<std::string> sub = {"0->T"};
  for (int i = 0; i < 90; ++i) sub.push_back("T+" + std::to_string(i) + "->T");
  sub.push_back("out T");
  write_program("Sub", sub);
  listing.insert(listing.begin() + 3, "call Sub");
  run_lines(listing);
  EXPECT_EQ(memory("S"), 3 * 4005);
  EXPECT_EQ(memory("T"), 4005);
}

TEST_F(kept_forms, belong_to_their_program) {
  write_program("Sub", {"7->A", "out A"});
  run_lines({"5->A", "out A", "call Sub", "A+1->B", "out B"});
  EXPECT_EQ(memory("B"), 8);
}

TEST_F(kept_forms, are_void_when_the_file_has_changed) {
  run_lines({"5->A", "out A"});
  EXPECT_EQ(run_lines({"6->A", "out A"}), "A=6");
  write_program("Fun", {"func(a)", "a+1"});
  EXPECT_EQ(eval("Fun(1)"), "2");
  write_program("Fun", {"func(a)", "a+2"});
  EXPECT_EQ(eval("Fun(1)"), "3");
}

TEST_F(kept_forms, of_an_empty_expression_do_nothing) {
  write_file_of("Test", "N: Test\r\nV: 2.7A\r\nI: 11\r\nI: 11\r\nE: 33,910,\r\nI: 10\r\n0: 11\r\n");
  EXPECT_EQ(run_program("Test"), "A=1");
}

TEST_F(kept_forms, of_an_expression_that_cannot_be_compiled_report_each_time) {
  EXPECT_EQ(run_lines({"1->A", "2+"}), "Invalid Syntax (line 2)");
  EXPECT_EQ(run_program("Test"), "Invalid Syntax (line 2)");
}

TEST_F(kept_forms, stay_while_a_function_within_them_runs) {
  // The function's own expressions would take the place of the one that waits, were it not in use.
  std::vector<std::string> body = {"func(a)"};
  for (int i = 0; i < 97; ++i) body.push_back("a+" + std::to_string(i));
  write_program("Many", body);
  EXPECT_EQ(run_lines({"Many(1)+Many(2)+Many(3)->A", "out A"}), "A=294");
}

// --- The kept texts of programs

class kept_programs : public programs {};

TEST_F(kept_programs, are_read_once) {
  write_program("Sub", {"5->A", "out A"});
  write_program("Test", {"200->n", "loop n", "call Sub", "end"});
  start("Test");
  go_on(20);
  const int calls = [&] {
    const TFileFaults counting(NO_FAULT, 0);
    go_on();
    return TFileFaults::calls();
  }();
  EXPECT_EQ(calls, 0) << "not even the folder is looked at";
  EXPECT_FALSE(state.program_running);
}

TEST_F(kept_programs, survive_the_file_within_a_run) {
  write_program("Sub", {"5->A", "out A"});
  write_program("Test", {"call Sub", "in B", "call Sub", "A+B->C", "out C"});
  run_program("Test");
  ASSERT_TRUE(state.at_prompt);
  EXPECT_EQ(answer_with("1"), "C=6");
  // An answer at a prompt is an evaluation from the keyboard: files may have changed.
  run_program("Test");
  ::remove(program_path_of("Sub").c_str());
  EXPECT_EQ(answer_with("1"), "Program Code Error (line 3)");
}

TEST_F(kept_programs, too_long_for_their_place_still_load) {
  std::vector<std::string> long_one;
  for (int i = 0; i < 60; ++i)
    long_one.push_back("text \"" + std::to_string(i) + std::string(20, 'x') + "\"");
  for (int i = 0; i < 30; ++i) long_one.push_back("1+2+3+4+5+6+7+8+9+1+2+3+4+5+6+7+8+9");
  long_one.push_back("A+1->A");
  long_one.push_back("out A");
  write_program("Long", long_one);
  ASSERT_GT(file_content(program_path_of("Long")).size(), 4000u);
  EXPECT_EQ(run_lines({"3->n", "loop n", "call Long", "end"}), "A=3");
  load_program("Long", false);
  EXPECT_EQ(loaded_place(), -1);
}

TEST_F(kept_programs, of_more_lines_than_their_place_still_load) {
  std::string text = "N: Lines\r\nV: 2.7A\r\nI: 11\r\nE: 33,910,\r\n";
  for (int i = 0; i < 310; ++i) text += "C: 0\r\n";
  write_file_of("Lines", text + "I: 10\r\n0: 11\r\n");
  ASSERT_LT(text.size(), 4000u);
  EXPECT_EQ(run_lines({"call Lines", "call Lines"}), "A=1");
  load_program("Lines", false);
  EXPECT_EQ(loaded_place(), -1);
}

TEST_F(kept_programs, take_one_anothers_place_when_there_are_many) {
  std::vector<std::string> listing = {"2->n", "loop n"};
  for (int i = 0; i < 14; ++i) {
    const std::string name = "Sub" + std::to_string(i);
    write_program(name, {"S+" + std::to_string(i) + "->S", "out S"});
    listing.push_back("call " + name);
  }
  listing.push_back("end");
  run_lines(listing);
  EXPECT_EQ(memory("S"), 2 * 91);
}

TEST_F(kept_programs, of_a_name_twice_are_two_programs) {
  write_program("Heron's Formula", {"5->A", "out A"});
  EXPECT_EQ(load_program("Heron's Formula", true), 7);
  EXPECT_EQ(load_program("Heron's Formula", false), 2);
  EXPECT_EQ(load_program("Heron's Formula", true), 7);
  EXPECT_TRUE(program.built_in);
  EXPECT_EQ(load_any_program("Heron's Formula"), 2);
  EXPECT_FALSE(program.built_in);
}

TEST_F(kept_programs, in_memory_are_read_anew_after_an_edit) {
  write_program("One", {"1", "2"});
  load_program("One", false);
  program.statements[0].number = STATEMENT_STOP;
  program_edited();
  load_program("One", false);
  EXPECT_EQ(program.statements[0].number, STATEMENT_EXPRESS);
}

}  // namespace zephyl
