// What a program changes is local to its run, but for what it makes global.

#include "programs/scopes.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "programs/program_fixture.h"

namespace zephyl {

class scopes : public programs {
 protected:
  // "1 2 3" of list 0 to 9; "undefined".
  static std::string list(int index) {
    const ListRecord& record = stores.lists[index];
    if (!record.defined) return "undefined";
    std::string text;
    for (int i = 0; i <= record.last; ++i)
      text += (i ? " " : "") + std::to_string(static_cast<int>(record.elements[i].re));
    return text;
  }
  static double cell(int index) {
    return stores.matrices[index].defined ? stores.matrices[index].cells[0][0] : -1.0;
  }
  static std::string string(int index) { return stores.strings[index].text; }
};

TEST_F(scopes, a_variable_has_its_old_value_after_the_run) {
  eval("7->A");
  eval("1+2*(i)->B");
  run_lines({"1->A", "A+1->A", "5->B", "3->(alpha)", "4->R5"});
  EXPECT_EQ(memory("A"), 7);
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A + 1].im, 2);
  EXPECT_EQ(memory("alpha"), 0);
  EXPECT_EQ(memory("R5"), 0);
}

TEST_F(scopes, out_makes_a_variable_global) {
  eval("7->A");
  run_lines({"1->A", "out A", "2->B"});
  EXPECT_EQ(memory("A"), 1);
  EXPECT_EQ(memory("B"), 0);
}

TEST_F(scopes, out_makes_the_value_of_its_moment_global) {
  run_lines({"1->A", "out A", "2->A"});
  EXPECT_EQ(memory("A"), 1);
}

TEST_F(scopes, out_keeps_both_parts) {
  run_lines({"1+2*(i)->A", "out A"});
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].im, 2);
}

TEST_F(scopes, out_in_a_called_program_is_global_in_its_caller_too) {
  write_program("Sub", {"5->A", "out A", "6->B"});
  run_lines({"1->A", "1->B", "call Sub", "A*10+B->C", "out C"});
  EXPECT_EQ(memory("C"), 51);
  EXPECT_EQ(memory("A"), 5);
}

TEST_F(scopes, errors_and_stops_roll_back_as_well) {
  eval("7->A");
  run_lines({"1->A", "1/0"});
  EXPECT_EQ(memory("A"), 7);
  run_lines({"1->A", "stop"});
  EXPECT_EQ(memory("A"), 7);
}

TEST_F(scopes, answers_stay) {
  run_lines({"5*5"});
  EXPECT_EQ(answers.ans.re, 25);
  EXPECT_TRUE(answers.ans_valid);
  run_lines({"{4,5}"});
  EXPECT_EQ(list(ANSWER_RECORD), "4 5");
  EXPECT_TRUE(answers.l_ans_valid);
}

TEST_F(scopes, lists_matrices_and_strings_come_back) {
  eval("{1,2}->{A}");
  eval("initMatrix(1,1,5)->[A]");
  eval("\"old\"->str1");
  run_lines({"{7,8,9}->{A}", "{3,4}->{B}", "initMatrix(2,2,9)->[A]", "initMatrix(2,2,1)->[B]",
             "\"new\"->str1", "\"more\"->str2"});
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(list(0), "1 2");
  EXPECT_EQ(list(1), "undefined");
  EXPECT_EQ(cell(0), 5);
  EXPECT_EQ(cell(1), -1);
  EXPECT_EQ(string(0), "old");
  EXPECT_EQ(string(1), "");
}

TEST_F(scopes, out_functions_make_them_global) {
  eval("{1,2}->{A}");
  run_lines({"{7,8,9}->{A}", "outList({A})", "initMatrix(2,2,9)->[A]", "outMatrix([A])", "\"new\"->str1",
             "outString(str1)", "{0,0}->{A}"});
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(list(0), "7 8 9");
  EXPECT_EQ(cell(0), 9);
  EXPECT_EQ(string(0), "new");
}

TEST_F(scopes, out_functions_reach_through_all_callers) {
  write_program("Sub", {"{5,6}->{A}", "outList({A})", "{9,9}->{B}"});
  run_lines({"{1,1}->{A}", "{1,1}->{B}", "call Sub", "getListElem({A},1)*10+getListElem({B},1)->C", "out C"});
  EXPECT_EQ(memory("C"), 51);
  EXPECT_EQ(list(0), "5 6");
  EXPECT_EQ(list(1), "undefined");
}

TEST_F(scopes, a_list_changed_by_a_called_program_returns_to_its_old_value) {
  write_program("Sub", {"{5,6}->{A}"});
  run_lines({"{1,1}->{A}", "call Sub", "getListElem({A},1)->C", "out C"});
  EXPECT_EQ(memory("C"), 1);
}

TEST_F(scopes, direct_writes_into_a_store_come_back) {
  eval("{1,2}->{A}");
  eval("initMatrix(1,1,5)->[A]");
  run_lines({"putListElemDir({A},1,9)", "putElemDirect([A],1,1,9)"});
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(list(0), "1 2");
  EXPECT_EQ(cell(0), 5);
}

TEST_F(scopes, clearing_is_local_too) {
  eval("{1,2}->{A}");
  eval("initMatrix(1,1,5)->[A]");
  eval("\"old\"->str1");
  eval("7->A");
  run_lines({"clrMem(1)", "clrMem(3)", "clrMem(4)", "clrMem(10)"});
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(memory("A"), 7);
  EXPECT_EQ(list(0), "1 2");
  EXPECT_EQ(cell(0), 5);
  EXPECT_EQ(string(0), "old");
}

TEST_F(scopes, a_state_that_is_loaded_is_local_too) {
  eval("{1,2}->{A}");
  eval("3->A");
  for (bool& checked : save_items.checked) checked = true;
  save_state(folder_.file("kept.state").c_str());
  eval("{8,9}->{A}");
  eval("4->A");
  run_lines({"loadState(\"" + folder_.file("kept") + "\")", "A*10+getListElem({A},1)->B", "out B"});
  EXPECT_EQ(memory("B"), 31);
  EXPECT_EQ(memory("A"), 4);
  EXPECT_EQ(list(0), "8 9");
}

TEST_F(scopes, out_functions_of_what_is_no_variable_are_errors_in_a_program) {
  EXPECT_EQ(run_lines({"outList({1,2})"}), "Function Argument Type (line 1)");
  EXPECT_EQ(run_lines({"outString(\"a\")"}), "Function Argument Type (line 1)");
  EXPECT_EQ(run_lines({"outMatrix(Iden(2))"}), "Function Argument Type (line 1)");
  EXPECT_EQ(run_lines({"outList({A})"}), "List Size Not Defined (line 1)");
  EXPECT_EQ(run_lines({"outMatrix([A])"}), "Matrix Size Not Defined (line 1)");
}

TEST_F(scopes, out_functions_outside_a_program_hand_their_argument_on) {
  EXPECT_EQ(eval("outList({1,2})"), "Result in List Answer");
  EXPECT_EQ(eval("outString(\"ab\")"), "ab");
  EXPECT_EQ(error_of("outMatrix(Iden(2))"), "");
}

TEST_F(scopes, out_of_a_list_makes_it_global) {
  run_lines({"{7,8}->{A}", "out {A}"});
  EXPECT_EQ(result(), "{A}=2 rows");
  EXPECT_EQ(list(0), "7 8");
}

TEST_F(scopes, working_copies_of_functions_end_with_the_run) {
  eval("x^(2)->f1()");
  run_lines({"x^(3)->f1()", "2->x", "f1()", "Ans->A", "out A"});
  EXPECT_EQ(memory("A"), 8);
  EXPECT_EQ(eval("2->x"), "2");
  EXPECT_EQ(eval("f1()"), "4");
}

TEST_F(scopes, plot_functions_stay_as_the_program_left_them) {
  run_lines({"x^(3)->f1(x)"});
  EXPECT_EQ(function_slots[0].count, 2);
}

TEST_F(scopes, frames_take_a_store_down_once) {
  eval("{1,2}->{A}");
  ASSERT_TRUE(push_frame());
  keep_store(SLOT_LIST_A);
  stores.lists[0].elements[0].re = 5;
  keep_store(SLOT_LIST_A);
  stores.lists[0].elements[0].re = 6;
  pop_frame();
  EXPECT_EQ(list(0), "1 2");
}

TEST_F(scopes, frames_end_at_a_limit) {
  for (int i = 0; i < FRAME_LIMIT; ++i) ASSERT_TRUE(push_frame());
  EXPECT_FALSE(push_frame());
  EXPECT_EQ(standing_error(), "Memory Limit Error");
  pop_frames_to(0);
  EXPECT_EQ(frame_count(), 0);
}

}  // namespace zephyl
