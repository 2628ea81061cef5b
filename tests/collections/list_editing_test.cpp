// Functions of lists whose result is a list, and the store.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "support/lists.h"

namespace zephyl {
namespace {

// --- Running sums and differences

TEST_F(list_calculator, cumulative_sum_runs_over_complex_elements) {
  EXPECT_EQ(list("cumSum({1,2,3.5})"), "1 3 6.5");
  EXPECT_EQ(list("cumSum({1,2(i),3-(i)})"), "1 1+2i 4+1i");
  EXPECT_EQ(list("cumSum({,4})"), "4");
  EXPECT_EQ(list("cumSum({1.7e308,1.7e308})"), "Overflow");
}

TEST_F(list_calculator, differences_are_one_fewer) {
  EXPECT_EQ(list("deltaList({1,4,9,16})"), "3 5 7");
  EXPECT_EQ(list("deltaList({1,(i)})"), "-1+1i");
}

TEST_F(list_calculator, one_element_has_no_differences) {
  EXPECT_EQ(list("deltaList({,4})"), "List Size Error");
}

// --- Joining

TEST_F(list_calculator, joins_the_first_list_and_the_second) {
  EXPECT_EQ(list("augList({1,2},{3(i),4})"), "1 2 0+3i 4");
  EXPECT_EQ(list("augList({,1},{,2})"), "1 2");
}

TEST_F(list_calculator, joined_lists_have_at_most_999_elements) {
  EXPECT_EQ(eval("listSize(augList(initList(499,1),initList(500,2)))"), "999");
  EXPECT_EQ(list("augList(initList(500,1),initList(500,2))"), "List Size Error");
  EXPECT_EQ(list("augList(initList(999,1),{,2})"), "List Size Error");
  EXPECT_EQ(eval("listSize(augList(initList(998,1),{,2}))"), "999");
}

TEST_F(list_calculator, the_largest_joined_list_holds_all_elements) {
  eval("augList(initList(499,1),initList(500,2))");
  const ListRecord& joined = stores.lists[ANSWER_RECORD];
  EXPECT_EQ(joined.elements[0].re, 1.0);
  EXPECT_EQ(joined.elements[498].re, 1.0);
  EXPECT_EQ(joined.elements[499].re, 2.0);
  EXPECT_EQ(joined.elements[998].re, 2.0);
}

TEST_F(list_calculator, joins_a_list_with_itself) {
  define('A', std::vector<double>{1, 2});
  EXPECT_EQ(list("augList({A},{A})->{A}"), "1 2 1 2");
  EXPECT_EQ(list_text(stored('A')), "1 2 1 2");
}

// --- Sizes

TEST_F(list_calculator, makes_a_list_of_one_value) {
  EXPECT_EQ(list("initList(3,2-(i))"), "2-1i 2-1i 2-1i");
  EXPECT_EQ(list("initList(1,5)"), "5");
}

TEST_F(list_calculator, a_new_list_has_1_to_999_elements) {
  EXPECT_EQ(elements("initList(999,0)"), TElements(999));
  for (const char* size : {"1000", "0", "-1", "2.5", "1e10", "0.9999999999"})
    EXPECT_EQ(list(std::string("initList(") + size + ",0)"), "List Size Error") << size;
}

TEST_F(list_calculator, a_new_list_has_a_real_size_and_a_number_in_it) {
  EXPECT_EQ(list("initList(2(i),0)"), "Function Argument Type");
  EXPECT_EQ(list("initList(2,{1,2})"), "Function Argument Type");
}

TEST_F(list_calculator, resizing_cuts_or_fills_up_with_zeros) {
  EXPECT_EQ(list("listResize({1,2,3},2)"), "1 2");
  EXPECT_EQ(list("listResize({1,2(i),3},3)"), "1 0+2i 3");
  EXPECT_EQ(list("listResize({1,2,3},5)"), "1 2 3 0 0");
  EXPECT_EQ(list("listResize({1,2,3},1)"), "1");
}

TEST_F(list_calculator, a_list_is_resized_to_1_to_999_elements) {
  EXPECT_EQ(eval("listSize(listResize({1,2},999))"), "999");
  for (const char* size : {"1000", "0", "-1", "2.5"})
    EXPECT_EQ(list(std::string("listResize({1,2},") + size + ")"), "List Size Error") << size;
}

TEST_F(list_calculator, resizing_does_not_bring_back_what_was_cut) {
  define('A', std::vector<double>{1, 2, 3, 4});
  eval("listResize({A},2)->{A}");
  EXPECT_EQ(list("listResize({A},4)"), "1 2 0 0");
}

// --- Order

TEST_F(list_calculator, reverses) {
  EXPECT_EQ(list("reverse({1,2(i),3})"), "3 0+2i 1");
  EXPECT_EQ(list("reverse({,1})"), "1");
  EXPECT_EQ(list("reverse(reverse({1,2,3,4}))"), "1 2 3 4");
}

TEST_F(list_calculator, exchanges_two_elements) {
  EXPECT_EQ(list("swapListElem({1,2,3,4},2,4)"), "1 4 3 2");
  EXPECT_EQ(list("swapListElem({1,2,3,4},4,2)"), "1 4 3 2");
  EXPECT_EQ(list("swapListElem({1,2,3,4},3,3)"), "1 2 3 4");
}

// --- Parts

TEST_F(list_calculator, takes_a_part_in_either_order_of_its_ends) {
  EXPECT_EQ(list("subList({1,2,3,4,5},2,4)"), "2 3 4");
  EXPECT_EQ(list("subList({1,2,3,4,5},4,2)"), "2 3 4");
  EXPECT_EQ(list("subList({1,2,3,4,5},3,3)"), "3");
  EXPECT_EQ(list("subList({1,2,3,4,5},1,5)"), "1 2 3 4 5");
}

TEST_F(list_calculator, removes_a_part_in_either_order_of_its_ends) {
  EXPECT_EQ(list("delSubList({1,2,3,4,5},2,4)"), "1 5");
  EXPECT_EQ(list("delSubList({1,2,3,4,5},4,2)"), "1 5");
  EXPECT_EQ(list("delSubList({1,2,3,4,5},3,3)"), "1 2 4 5");
  EXPECT_EQ(list("delSubList({1,2,3,4,5},1,4)"), "5");
  EXPECT_EQ(list("delSubList({1,2,3,4,5},2,5)"), "1");
}

TEST_F(list_calculator, replaces_an_element_of_a_copy) {
  define('A', std::vector<double>{1, 2, 3});
  EXPECT_EQ(list("putListElem({A},2,5(i))"), "1 0+5i 3");
  EXPECT_EQ(list_text(stored('A')), "1 2 3");
}

TEST_F(list_calculator, positions_outside_a_list_are_index_errors) {
  define('A', std::vector<double>{1, 2, 3});
  for (const std::string position : {"0", "4", "-1", "1.5", "1e10"}) {
    EXPECT_EQ(list("subList({A}," + position + ",2)"), "List Index Range") << position;
    EXPECT_EQ(list("subList({A},2," + position + ")"), "List Index Range") << position;
    EXPECT_EQ(list("delSubList({A}," + position + ",2)"), "List Index Range") << position;
    EXPECT_EQ(list("delSubList({A},2," + position + ")"), "List Index Range") << position;
    EXPECT_EQ(list("swapListElem({A}," + position + ",2)"), "List Index Range") << position;
    EXPECT_EQ(list("swapListElem({A},2," + position + ")"), "List Index Range") << position;
    EXPECT_EQ(list("putListElem({A}," + position + ",9)"), "List Index Range") << position;
  }
  EXPECT_EQ(list_text(stored('A')), "1 2 3");
}

// --- Lists without elements

TEST_F(list_calculator, a_list_with_everything_removed_has_no_size_wherever_it_is_read) {
  EXPECT_EQ(list("delSubList({1,2,3},1,3)"), "List Size Not Defined");
  EXPECT_EQ(list("delSubList({1,2,3},1,3)->{B}"), "List Size Not Defined");
  EXPECT_EQ(eval("listSize(delSubList({1,2,3},1,3))"), "List Size Not Defined");
  EXPECT_EQ(list("delSubList({1,2,3},3,1)+1"), "List Size Not Defined");
  EXPECT_EQ(list("augList({1,2},delSubList({,1},1,1))"), "List Size Not Defined");
}

TEST_F(list_calculator, a_result_without_a_size_leaves_the_answers_as_they_were) {
  eval("42");
  EXPECT_EQ(list("delSubList({1,2,3},1,3)"), "List Size Not Defined");
  EXPECT_FALSE(answers.l_ans_valid);
  EXPECT_EQ(answers.ans.re, 42.0);
  eval("{7,8}");
  EXPECT_EQ(list("delSubList({1,2,3},1,3)"), "List Size Not Defined");
  EXPECT_EQ(list_text(stores.lists[ANSWER_RECORD]), "7 8");
}

TEST_F(list_calculator, a_store_of_a_list_without_a_size_leaves_the_target_as_it_was) {
  define('B', std::vector<double>{1, 2});
  EXPECT_EQ(list("delSubList({1,2,3},1,3)->{B}"), "List Size Not Defined");
  EXPECT_EQ(list_text(stored('B')), "1 2");
  EXPECT_EQ(list("{C}->{B}"), "List Size Not Defined");
  EXPECT_EQ(list_text(stored('B')), "1 2");
}

// --- The store

TEST_F(list_calculator, stores_a_list_in_each_of_the_ten) {
  for (char name = 'A'; name <= 'J'; ++name) {
    const std::string text = std::string("{1,2,") + std::to_string(name) + "}->{" + name + "}";
    EXPECT_EQ(list(text), "1 2 " + std::to_string(name));
    EXPECT_EQ(list_text(stored(name)), "1 2 " + std::to_string(name));
  }
}

TEST_F(list_calculator, a_stored_list_goes_on_through_the_expression) {
  EXPECT_EQ(list("({1,2(i)}->{A})+1"), "2 1+2i");
  EXPECT_EQ(list_text(stored('A')), "1 0+2i");
  EXPECT_EQ(list("{3,4}->{A}->{B}"), "3 4");
  EXPECT_EQ(list_text(stored('B')), "3 4");
}

TEST_F(list_calculator, a_list_is_stored_from_a_list_and_from_the_answer) {
  define('A', std::vector<double>{5, 6});
  EXPECT_EQ(list("{A}->{B}"), "5 6");
  EXPECT_EQ(list("{A}->{A}"), "5 6");
  EXPECT_EQ(list("(L_Ans)->{C}"), "5 6");
  EXPECT_EQ(list_text(stored('A')) + " " + list_text(stored('B')) + " " + list_text(stored('C')),
            "5 6 5 6 5 6");
}

TEST_F(list_calculator, a_shorter_list_replaces_a_longer_one) {
  define('A', std::vector<double>{1, 2, 3, 4});
  eval("{9,8}->{A}");
  EXPECT_EQ(list_text(stored('A')), "9 8");
}

TEST_F(list_calculator, a_store_is_announced_before_the_list_changes) {
  static std::string announced;
  announced.clear();
  define('C', std::vector<double>{1, 2, 3});
  hooks.about_to_store = [](int slot) { announced += std::to_string(slot) + ": " + list_text(stored('C')); };
  eval("{7,8}->{C}");
  EXPECT_EQ(announced, "102: 1 2 3");
  EXPECT_EQ(list_text(stored('C')), "7 8");
}

TEST_F(list_calculator, only_the_store_and_its_element_function_change_stored_lists) {
  static int announced;
  announced = 0;
  hooks.about_to_store = [](int) { ++announced; };
  define('A', std::vector<double>{3, 1, 2});
  for (const char* text :
       {"sortA({A})", "reverse({A})", "putListElem({A},1,9)", "listResize({A},1)", "{A}+1", "cumSum({A})",
        "swapListElem({A},1,2)", "outList({A})", "DFT({A})", "augList({A},{A})"})
    EXPECT_EQ(error_of(text), "") << text;
  EXPECT_EQ(announced, 0);
  EXPECT_EQ(list_text(stored('A')), "3 1 2");
}

TEST_F(list_calculator, gives_a_list_out) {
  define('A', std::vector<double>{3, 1});
  EXPECT_EQ(list("outList({A})"), "3 1");
  EXPECT_EQ(list("outList({1,2(i)})"), "1 0+2i");
}

TEST_F(list_calculator, a_stored_list_that_is_given_out_becomes_global) {
  static std::string made_global;
  made_global.clear();
  hooks.make_global = [](int slot) { made_global += std::to_string(slot) + " "; };
  define('A', std::vector<double>{3, 1});
  define('J', std::vector<double>{3, 1});
  eval("outList({A})");
  eval("outList({J})");
  EXPECT_EQ(made_global, "100 109 ");
  eval("outList({1,2})");
  eval("outList((L_Ans))");
  const std::string none = std::to_string(NO_SLOT) + " ";
  EXPECT_EQ(made_global, "100 109 " + none + none) << "lists in flight and the answer have no name";
}

}  // namespace
}  // namespace zephyl
