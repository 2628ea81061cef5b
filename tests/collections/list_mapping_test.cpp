// Which way an operation with lists goes: to the functions of lists, element by element, or to an error; and
// what becomes of a list as the result.

#include <gtest/gtest.h>

#include <string>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "support/lists.h"

namespace zephyl {
namespace {

// --- Element by element

TEST_F(list_calculator, maps_infix_prefix_postfix_and_functions) {
  EXPECT_EQ(list("{1,2,3}+{10,20,30}"), "11 22 33");
  EXPECT_EQ(list("{1,2,3}+1"), "2 3 4");
  EXPECT_EQ(list("2^{1,2,3}"), "2 4 8");
  EXPECT_EQ(list("-{1,2}"), "-1 -2");
  EXPECT_EQ(list("{3,4}!"), "6 24");
  EXPECT_EQ(list("sqRt {4,9}"), "2 3");
  EXPECT_EQ(list("abs({-1,3+4(i)})"), "1 5");
  EXPECT_EQ(list("logb({8,16},2)"), "3 4");
}

TEST_F(list_calculator, maps_three_arguments_with_lists_in_several_places) {
  EXPECT_EQ(list("normalPdf({0,0},{0,0},1)=normalPdf(0,0,1)"), "1 1");
  EXPECT_EQ(list("normalPdf({0,0},{0,0,0},1)"), "List Size Mismatch");
}

TEST_F(list_calculator, numbers_are_used_for_each_element) { EXPECT_EQ(list("Max({1,5,2},3)"), "3 5 3"); }

TEST_F(list_calculator, mapped_lists_are_of_one_size) {
  EXPECT_EQ(list("{1,2,3}+{1,2}"), "List Size Mismatch");
  EXPECT_EQ(list("Max({1,2},{1,2,3})"), "List Size Mismatch");
}

TEST_F(list_calculator, each_element_goes_its_own_way_real_or_complex) {
  EXPECT_EQ(list("ln({1,(i)})/(i)"), "0 1.5708");
  EXPECT_EQ(list("{2,(i)}^(2)"), "4 -1");
  EXPECT_EQ(list("{2,(i)}*{2,(i)}"), "4 -1");
}

TEST_F(list_calculator, an_error_in_any_element_ends_the_mapping) {
  EXPECT_EQ(list("1/{1,0}"), "Division by Zero");
  EXPECT_EQ(list("{1,-1}!"), "Domain Error");
  EXPECT_EQ(list("e^{1,1000,2}"), "Overflow");
  EXPECT_EQ(list("1/{1,0,-1}!"), "Domain Error");
  EXPECT_EQ(list("{3,-3}!+1/{1,0}"), "Domain Error") << "the first one stands";
}

TEST_F(list_calculator, an_undefined_list_is_not_mapped) {
  EXPECT_EQ(list("{A}+1"), "List Size Not Defined");
  EXPECT_EQ(list("{1,2}*{A}"), "List Size Not Defined");
  EXPECT_EQ(list("sin({A})"), "List Size Not Defined");
}

TEST_F(list_calculator, mapping_reads_stored_lists_and_leaves_them_alone) {
  define('A', std::vector<double>{1, 2});
  EXPECT_EQ(list("{A}*{A}+{A}"), "2 6");
  EXPECT_EQ(list_text(stored('A')), "1 2");
}

TEST_F(list_calculator, maps_the_largest_list) {
  eval("initList(999,2)->{A}");
  const TElements squares = elements("{A}*{A}");
  ASSERT_EQ(squares.size(), 999u);
  EXPECT_EQ(squares.back().re, 4.0);
}

// --- Ways that are closed

TEST_F(list_calculator, a_function_of_lists_takes_nothing_else) {
  for (const char* text : {"listMax(3)", "sortA(3)", "reverse(\"ab\")", "listSize(3(i))", "augList({1,2},3)",
                           "sortKey(1,{1,2})", "DFT(2)", "listToX(3)"})
    EXPECT_EQ(error_of(text), "Function Argument Type") << text;
}

TEST_F(list_calculator, counts_the_arguments_of_functions_of_lists) {
  for (const char* text : {"listMax({1,2},{1,2})", "subList({1,2},1)", "initList(3)", "augList({1,2})",
                           "putListElem({1,2},1)", "swapListElem({1,2},1,2,3)"})
    EXPECT_EQ(error_of(text), "Function Argument Count") << text;
}

TEST_F(list_calculator, stores_keep_to_their_types) {
  EXPECT_EQ(error_of("3->{A}"), "Data Type Error");
  EXPECT_EQ(error_of("\"ab\"->{A}"), "Data Type Error");
  EXPECT_EQ(error_of("{1,2}->A"), "Data Type Error");
  EXPECT_EQ(error_of("{1,2}->[A]"), "Data Type Error");
  EXPECT_EQ(error_of("{1,2}->str1"), "Data Type Error");
  EXPECT_EQ(error_of("{1,2}->xMin"), "Data Type Error");
  EXPECT_FALSE(stored('A').defined);
}

// --- Answers

TEST_F(list_calculator, a_list_result_is_the_answer_and_leaves_the_last_number) {
  eval("42");
  EXPECT_EQ(eval("{1,2}+1"), "Result in List Answer");
  EXPECT_TRUE(answers.l_ans_valid);
  EXPECT_FALSE(answers.ans_valid && !answers.l_ans_valid);
  EXPECT_EQ(answers.ans.re, 42.0);
  EXPECT_EQ(list("(L_Ans)*2"), "4 6");
}

TEST_F(list_calculator, a_number_result_leaves_the_list_answer) {
  eval("{1,2}");
  EXPECT_EQ(eval("listSum((L_Ans))"), "3");
  EXPECT_FALSE(answers.l_ans_valid);
  EXPECT_EQ(list("(L_Ans)"), "1 2");
}

TEST_F(list_calculator, an_error_leaves_the_list_answer) {
  eval("{1,2}");
  eval("deltaList({,1})");
  EXPECT_EQ(list_text(stores.lists[ANSWER_RECORD]), "1 2");
}

TEST_F(list_calculator, base_mode_cuts_each_element) {
  settings.baseBits = BITS_8;
  state.calcMode = BASE_MODE;
  define('A', std::vector<double>{100, 127});
  EXPECT_EQ(list("{A}+1"), "101 -128");
}

}  // namespace
}  // namespace zephyl
