// Blocks, jumps, subroutines and calls.

#include <cstdio>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "programs/program.h"
#include "programs/program_fixture.h"
#include "programs/run_state.h"

namespace zephyl {

class statements : public programs {
 protected:
  // Runs a listing; the values that it made global behind it.
  std::string run_for_error(const std::vector<std::string>& listing) {
    run_lines(listing);
    return result();
  }
};

TEST_F(statements, if_takes_the_branch_that_holds) {
  run_lines({"3->A", "if (A > 0)", "1->B", "else", "2->B", "end", "out B"});
  EXPECT_EQ(memory("B"), 1);
  run_lines({"0->A", "if (A > 0)", "1->B", "else", "2->B", "end", "out B"});
  EXPECT_EQ(memory("B"), 2);
}

TEST_F(statements, if_without_else_goes_on_behind_its_end) {
  run_lines({"0->A", "5->B", "if (A > 0)", "1->B", "end", "B+1->B", "out B"});
  EXPECT_EQ(memory("B"), 6);
}

TEST_F(statements, comparisons_are_of_real_parts) {
  const auto holds = [this](const std::string& condition) {
    run_lines({"2+5*(i)->A", "3->B", "0->C", "if (" + condition + ")", "1->C", "end", "out C"});
    return memory("C") == 1;
  };
  EXPECT_TRUE(holds("A < B"));
  EXPECT_FALSE(holds("A > B"));
  EXPECT_TRUE(holds("A <> B"));
  EXPECT_FALSE(holds("A = B"));
  EXPECT_TRUE(holds("A = A"));
  EXPECT_TRUE(holds("A <= B"));
  EXPECT_TRUE(holds("A <= A"));
  EXPECT_FALSE(holds("A >= B"));
  EXPECT_TRUE(holds("B >= B"));
  EXPECT_TRUE(holds("A > 0"));
  EXPECT_TRUE(holds("D = 0"));
}

TEST_F(statements, comparisons_know_the_answer) {
  run_lines({"0->C", "3+4", "if (Ans > C)", "1->C", "end", "out C"});
  EXPECT_EQ(memory("C"), 1);
  run_lines({"0->C", "8->A", "3+4", "if (A > Ans)", "1->C", "end", "out C"});
  EXPECT_EQ(memory("C"), 1);
}

TEST_F(statements, blocks_lie_within_one_another) {
  run_lines({"1->A", "0->S", "while (A < B)", "stop", "end", "3->B", "while (A <= B)", "if (A = B)",
             "S+10->S", "else", "S+1->S", "end", "A+1->A", "end", "out S"});
  EXPECT_EQ(memory("S"), 12);
}

TEST_F(statements, an_else_belongs_to_the_if_at_its_depth) {
  run_lines({"if (A > 0)", "if (B > 0)", "1->C", "else", "2->C", "end", "else", "3->C", "end", "out C"});
  EXPECT_EQ(memory("C"), 3);
}

TEST_F(statements, else_without_an_if_is_an_error) {
  EXPECT_EQ(run_for_error({"1->A", "else"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | No matching if statement");
  EXPECT_EQ(run_for_error({"2->A", "loop A", "else", "end"}), "Program Code Error (line 3)");
}

TEST_F(statements, a_missing_end_is_an_error) {
  EXPECT_EQ(run_for_error({"if (A = 0)", "1->A"}), "Program Code Error (line 1)");
  EXPECT_EQ(message(), "Program Error | Missing end statement");
  EXPECT_EQ(run_for_error({"if (A = 0)", "while (B = 0)", "end"}), "Program Code Error (line 1)");
}

TEST_F(statements, an_end_without_a_block_is_an_error) {
  EXPECT_EQ(run_for_error({"1->A", "end"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | No start of block for end instruction");
}

// --- Loops

TEST_F(statements, while_tests_again_at_its_end) {
  run_lines({"5->A", "0->B", "while (A > 0)", "A-1->A", "B+1->B", "end", "out A", "out B"});
  EXPECT_EQ(memory("A"), 0);
  EXPECT_EQ(memory("B"), 5);
}

TEST_F(statements, while_that_fails_at_once_leaves_its_body_out) {
  run_lines({"7->B", "while (A > 0)", "1->B", "end", "out B"});
  EXPECT_EQ(memory("B"), 7);
}

TEST_F(statements, loop_counts_its_variable_up_to_the_limit) {
  run_lines({"4->n", "0->S", "loop n", "S*10+n->S", "end", "out S", "out n"});
  EXPECT_EQ(memory("S"), 1234);
  EXPECT_EQ(memory("n"), 4);
}

TEST_F(statements, loop_below_one_leaves_its_variable_alone) {
  for (const char* limit : {"0->n", "0.99->n", "-3->n"}) {
    run_lines({limit, "7->B", "loop n", "1->B", "end", "out B", "out n"});
    EXPECT_EQ(memory("B"), 7) << limit;
  }
  EXPECT_EQ(memory("n"), -3);
}

TEST_F(statements, loop_ends_at_a_limit_that_is_not_whole) {
  run_lines({"2.5->n", "0->S", "loop n", "S+1->S", "end", "out S", "out n"});
  EXPECT_EQ(memory("S"), 2);
  EXPECT_EQ(memory("n"), 2.5);
}

TEST_F(statements, loop_makes_its_variable_real) {
  run_lines({"2+3*(i)->n", "loop n", "n->A", "end", "out n", "out A"});
  EXPECT_EQ(memory_array[SLOT_SMALL_A + 13].im, 0.0);
  EXPECT_EQ(memory("n"), 2);
}

TEST_F(statements, loop_without_a_body_is_passed_over) {
  run_lines({"5->n", "loop n", "end", "out n"});
  EXPECT_EQ(memory("n"), 5);
}

TEST_F(statements, loop_goes_by_what_its_body_makes_of_the_variable) {
  run_lines({"10->n", "0->S", "loop n", "S+1->S", "n+4->n", "end", "out S", "out n"});
  EXPECT_EQ(memory("S"), 2) << "1, then 6, then 11";
  EXPECT_EQ(memory("n"), 10);
}

TEST_F(statements, loop_over_what_is_no_number_is_an_error) {
  write_file_of("Test", "N: Test\r\nV: 2.7A\r\nI: 4\r\n0: 100\r\nI: 12\r\nI: 1\r\n");
  EXPECT_EQ(run_program("Test"), "Data Type Error (line 1)");
  write_file_of("Test", "N: Test\r\nV: 2.7A\r\nI: 4\r\n0: 300\r\nI: 12\r\nI: 1\r\n");
  EXPECT_EQ(run_program("Test"), "Unexpected Error (line 1)");
}

TEST_F(statements, break_leaves_the_innermost_loop) {
  run_lines({"9->n", "0->S", "2->A", "loop n", "S+1->S", "if (S >= A)", "if (S > 0)", "break", "end", "end",
             "end", "out n", "out S"});
  EXPECT_EQ(memory("n"), 9) << "the variable ends at the limit";
  EXPECT_EQ(memory("S"), 2);
  run_lines({"0->S", "while (S >= 0)", "S+1->S", "if (S >= S)", "break", "end", "end", "S+10->S", "out S"});
  EXPECT_EQ(memory("S"), 11);
}

TEST_F(statements, break_without_a_loop_is_an_error) {
  EXPECT_EQ(run_for_error({"if (A = 0)", "break", "end"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | No loop to break from");
}

TEST_F(statements, a_hundred_blocks_may_be_open) {
  // A jump out of two blocks closes one: each round leaves another open.
  EXPECT_EQ(run_for_error({"label A", "if (S = 0)", "if (S = 0)", "goto label A", "end", "end"}),
            "Memory Limit Error (line 3)");
  EXPECT_EQ(message(), "Limit | Reached maximum number of program blocks");
}

// --- Jumps

TEST_F(statements, goto_searches_from_the_first_statement) {
  run_lines({"goto label B", "label A", "1->A", "goto label C", "label B", "2->B", "goto label A", "label C",
             "out A", "out B"});
  EXPECT_EQ(memory("A"), 1);
  EXPECT_EQ(memory("B"), 2);
  run_lines({"goto label A", "stop", "label A", "5->A", "out A", "stop", "label A", "6->A", "out A"});
  EXPECT_EQ(memory("A"), 5);
}

TEST_F(statements, goto_without_its_label_is_an_error) {
  EXPECT_EQ(run_for_error({"goto label Z"}), "Program Code Error (line 1)");
  EXPECT_EQ(message(), "Program Error | Label not found");
}

TEST_F(statements, goto_out_of_two_blocks_leaves_the_outer_one_open) {
  const std::string end = run_for_error(
      {"3->n", "loop n", "if (n > 0)", "goto label A", "end", "end", "label A", "S+1->S", "out S", "end"});
  // The `end` behind the label closes rounds of the loop. Behind its own end, one more round finds no block.
  EXPECT_EQ(end, "Program Code Error (line 10)");
  EXPECT_EQ(memory("S"), 4);
}

TEST_F(statements, goto_within_a_block_keeps_it_open) {
  run_lines({"2->n", "0->S", "loop n", "goto label A", "S+100->S", "label A", "S+1->S", "end", "out S"});
  EXPECT_EQ(memory("S"), 2);
}

TEST_F(statements, labels_beyond_the_letters_run) {
  write_file_of("Test",
                "N: Test\r\nV: 2.7A\r\nI: 8\r\nL: 77\r\nI: 12\r\nI: 7\r\nL: 77\r\nI: 11\r\nE: 33,910,\r\nI: "
                "10\r\n0: 11\r\n");
  EXPECT_EQ(run_program("Test"), "A=1");
}

TEST_F(statements, gosub_returns_behind_itself) {
  run_lines({"0->S", "gosub label A", "gosub label A", "out S", "stop", "label A", "S+1->S", "return sub"});
  EXPECT_EQ(memory("S"), 2);
}

TEST_F(statements, gosubs_lie_within_one_another) {
  run_lines({"gosub label A", "out S", "stop", "label A", "gosub label B", "S*10->S", "return sub", "label B",
             "7->S", "return sub"});
  EXPECT_EQ(memory("S"), 70);
}

TEST_F(statements, a_return_without_a_gosub_is_an_error) {
  EXPECT_EQ(run_for_error({"1->A", "return sub"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | No subroutine called");
}

TEST_F(statements, a_gosub_without_its_label_is_an_error) {
  EXPECT_EQ(run_for_error({"gosub label A"}), "Program Code Error (line 1)");
  EXPECT_EQ(message(), "Program Error | Label not found");
}

TEST_F(statements, gosub_out_of_a_loop_closes_it_for_good) {
  EXPECT_EQ(run_for_error({"3->n", "loop n", "gosub label A", "end", "stop", "label A", "return sub"}),
            "Program Code Error (line 4)");
  EXPECT_EQ(message(), "Program Error | No start of block for end instruction");
}

TEST_F(statements, a_hundred_gosubs_may_be_open) {
  EXPECT_EQ(run_for_error({"label A", "gosub label A"}), "Memory Limit Error (line 2)");
  EXPECT_EQ(message(), "Limit | Reached maximum number of gosub/subroutine calls");
}

// --- Calls

TEST_F(statements, call_runs_another_program_and_comes_back) {
  write_program("Sub", {"5->A", "A*2->B", "out B"});
  run_lines({"call Sub", "B+1->C", "out C"});
  EXPECT_EQ(memory("B"), 10);
  EXPECT_EQ(memory("C"), 11);
}

TEST_F(statements, a_called_program_has_variables_of_its_own) {
  write_program("Sub", {"A+1->A", "A->B", "out B"});
  run_lines({"7->A", "call Sub", "out A"});
  EXPECT_EQ(memory("A"), 7);
  EXPECT_EQ(memory("B"), 8);
}

TEST_F(statements, return_call_ends_a_called_program) {
  write_program("Sub", {"1->B", "out B", "return call", "2->B", "out B"});
  run_lines({"call Sub", "3->C", "out C"});
  EXPECT_EQ(memory("B"), 1);
  EXPECT_EQ(memory("C"), 3);
}

TEST_F(statements, stop_in_a_called_program_returns_too) {
  write_program("Sub", {"1->B", "out B", "stop", "2->B", "out B"});
  run_lines({"call Sub", "3->C", "out C"});
  EXPECT_EQ(memory("B"), 1);
  EXPECT_EQ(memory("C"), 3);
}

TEST_F(statements, return_call_at_the_top_ends_the_run_quietly) {
  run_lines({"1->B", "return call", "2->B", "out B"});
  EXPECT_EQ(memory("B"), 0);
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(result(), "");
}

TEST_F(statements, a_call_as_the_last_statement_of_a_called_program_returns_twice) {
  write_program("One", {"call Two"});
  write_program("Two", {"1->B", "out B"});
  run_lines({"call One", "2->C", "out C"});
  EXPECT_EQ(memory("B"), 1);
  EXPECT_EQ(memory("C"), 2);
}

TEST_F(statements, a_call_leaves_the_blocks_of_its_caller_open) {
  write_program("Sub", {"if (A = A)", "loop B", "end"});
  run_lines({"3->n", "0->S", "loop n", "call Sub", "S+n->S", "end", "out S"});
  EXPECT_EQ(standing_error(), "Program Code Error") << "the block of the called program has no end";
  write_program("Sub", {"2->B", "loop B", "if (A = A)", "return call", "end", "end"});
  run_lines({"3->n", "0->S", "loop n", "call Sub", "S+n->S", "end", "out S"});
  EXPECT_EQ(memory("S"), 6);
}

TEST_F(statements, a_called_program_cannot_close_a_block_or_return_from_a_gosub_of_its_caller) {
  write_program("Sub", {"end"});
  EXPECT_EQ(run_for_error({"3->n", "loop n", "call Sub", "end"}), "Program Code Error (line 1)");
  EXPECT_STREQ(errors.error_program, "Sub");
  write_program("Sub", {"1->A", "return sub"});
  EXPECT_EQ(run_for_error({"gosub label A", "stop", "label A", "call Sub", "return sub"}),
            "Program Code Error (line 2)");
  EXPECT_STREQ(errors.error_program, "Sub");
}

TEST_F(statements, a_gosub_goes_on_behind_a_call) {
  write_program("Sub", {"gosub label A", "return call", "label A", "return call"});
  run_lines({"gosub label A", "out S", "stop", "label A", "call Sub", "4->S", "return sub"});
  EXPECT_EQ(memory("S"), 4);
}

TEST_F(statements, a_call_that_finds_no_program_is_an_error_of_the_caller) {
  EXPECT_EQ(run_for_error({"1->A", "call Nobody"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | Could not call program");
  EXPECT_STREQ(errors.error_program, "Test");
  EXPECT_EQ(errors.error_line, 1);
}

TEST_F(statements, a_call_of_a_broken_or_later_program_is_an_error) {
  write_file_of("Broken", "N: Broken\r\nX: 1\r\n");
  EXPECT_EQ(run_for_error({"call Broken"}), "Program Code Error (line 1)");
  EXPECT_EQ(message(), "Program Error | Could not call program");
  write_file_of("Later", "N: Later\r\nV: 3.1\r\nI: 12\r\n");
  EXPECT_EQ(run_for_error({"call Later"}), "Program Version Error (line 1)");
}

TEST_F(statements, a_custom_function_cannot_be_called) {
  write_program("F", {"func(a)", "a+1"});
  EXPECT_EQ(run_for_error({"2->B", "call F"}), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | Can't call a custom function");
  EXPECT_STREQ(errors.error_program, "Test");
}

TEST_F(statements, a_hundred_calls_may_be_open) {
  write_program("Deep", {"call Deep"});
  start("Deep");
  go_on();
  EXPECT_EQ(result(), "Memory Limit Error (line 1)");
  EXPECT_EQ(message(), "Limit | Reached maximum number of subroutine calls");
  EXPECT_EQ(run.level, 0);
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(statements, an_error_names_the_line_of_the_called_program) {
  write_program("Sub", {"1->A", "2->A", "1/0"});
  EXPECT_EQ(run_for_error({"call Sub"}), "Division by Zero (line 3)");
  EXPECT_STREQ(errors.error_program, "Sub");
  EXPECT_EQ(errors.error_line, 2);
}

TEST_F(statements, a_caller_that_has_gone_is_an_error) {
  write_program("Sub", {"in A"});
  write_program("Test", {"1->B", "call Sub", "out B"});
  start("Test");
  go_on();
  ASSERT_TRUE(state.at_prompt);
  ::remove(program_path_of("Test").c_str());
  EXPECT_EQ(answer_with("1"), "Program Code Error (line 2)");
  EXPECT_EQ(message(), "Program Error | Could no return to calling program");
}

TEST_F(statements, a_built_in_program_can_be_called) {
  run_lines({"call Cycle of Pendulum", "out A"});
  EXPECT_TRUE(state.at_prompt);
  EXPECT_EQ(platform_.dialogs.back(), "184 Program Description");
}

TEST_F(statements, a_program_of_the_user_comes_before_a_built_in_one) {
  write_program("Cycle of Pendulum", {"3->B", "out B"});
  run_lines({"call Cycle of Pendulum", "out A"});
  EXPECT_EQ(memory("B"), 3);
  EXPECT_FALSE(state.program_running);
}

// --- Rounds

TEST_F(statements, one_statement_runs_a_round) {
  write_program("Test", {"1->A", "2->A", "3->A"});
  start("Test");
  EXPECT_EQ(memory("A"), 0);
  go_on(1);
  EXPECT_EQ(memory("A"), 1);
  go_on(1);
  EXPECT_EQ(memory("A"), 2);
}

TEST_F(statements, numbers_without_a_meaning_run_as_nothing) {
  write_file_of("Test",
                "N: Test\r\nV: 2.7A\r\nI: 66\r\nI: 19\r\nI: -7\r\nI: 11\r\nE: 33,910,\r\nI: 10\r\n0: 11\r\n");
  EXPECT_EQ(run_program("Test"), "A=1");
}

TEST_F(statements, operands_out_of_range_are_errors) {
  const auto error_with = [this](const std::string& lines) {
    write_file_of("Test", "N: Test\r\nV: 2.7A\r\n" + lines);
    return run_program("Test");
  };
  EXPECT_EQ(error_with("I: 0\r\nC: 6\r\nI: 1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 0\r\n0: 500\r\nI: 1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 0\r\n0: -1\r\nI: 1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 0\r\n1: -40\r\nI: 1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 0\r\n0: 91\r\nI: 1\r\n"), "Data Type Error (line 1)");
  EXPECT_EQ(error_with("I: 10\r\n0: 5000\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 9\r\n0: 130\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 9\r\n0: -1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 14\r\n0: -30000\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 15\r\nF: 9\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 16\r\nF: -1\r\n"), "Unexpected Error (line 1)");
  EXPECT_EQ(error_with("I: 8\r\nL: -400\r\n"), "Program Code Error (line 1)");
}

}  // namespace zephyl
