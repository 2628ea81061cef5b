// Functions of lists whose result is a number.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "collections/list_view.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "support/lists.h"

namespace zephyl {
namespace {

// --- Equality

TEST_F(list_calculator, equal_lists_agree_in_every_part) {
  EXPECT_EQ(eval("{1,2}={1,2}"), "1");
  EXPECT_EQ(eval("{1,2}<>{1,2}"), "0");
  EXPECT_EQ(eval("{1,2(i)}={1,2(i)}"), "1");
}

TEST_F(list_calculator, lists_that_differ_in_one_part_are_not_equal) {
  EXPECT_EQ(eval("{1,2}={1,3}"), "0");
  EXPECT_EQ(eval("{1,2}<>{1,3}"), "1");
  EXPECT_EQ(eval("{1,2(i)}={1,3(i)}"), "0");
  EXPECT_EQ(eval("{1,2}={1,2+1e-300(i)}"), "0");
}

TEST_F(list_calculator, lists_of_different_sizes_are_not_equal_without_an_error) {
  EXPECT_EQ(eval("{1,2}={1,2,3}"), "0");
  EXPECT_EQ(eval("{1,2}<>{1,2,3}"), "1");
}

TEST_F(list_calculator, a_list_and_a_number_are_compared_element_by_element) {
  EXPECT_EQ(list("{1,2,3}=2"), "0 1 0");
  EXPECT_EQ(list("2<>{1,2,3}"), "1 0 1");
}

// --- Extremes

TEST_F(list_calculator, extremes_of_real_lists) {
  EXPECT_EQ(eval("listMax({3,-7,5,2})"), "5");
  EXPECT_EQ(eval("listMin({3,-7,5,2})"), "-7");
  EXPECT_EQ(eval("listMax({,-4})"), "-4");
  EXPECT_EQ(eval("listMin({,-4})"), "-4");
}

TEST_F(list_calculator, extremes_of_complex_lists_are_whole_elements_by_modulus) {
  EXPECT_EQ(eval("listMax({4,3(i)-3,1})"), "-3+3i");
  EXPECT_EQ(eval("listMin({4,3(i)-3,-1})"), "-1");
}

TEST_F(list_calculator, the_first_of_equal_extremes_is_taken) {
  EXPECT_EQ(eval("listMax({1,-3,3(i),3})"), "-3");
  EXPECT_EQ(eval("listMin({8,3(i),-3,3})"), "3i");
}

TEST_F(list_calculator, a_modulus_out_of_range_overflows) {
  EXPECT_EQ(error_of("listMax({1,1.7e308+1.7e308(i)})"), "Overflow");
}

// --- Sums

TEST_F(list_calculator, sum_product_and_mean_are_complex) {
  EXPECT_EQ(eval("listSum({1,2(i),3-(i)})"), "4+i");
  EXPECT_EQ(eval("listProd({2,3(i),1+(i)})"), "-6+6i");
  EXPECT_EQ(eval("listMean({1,2(i),5-5(i)})"), "2-i");
  EXPECT_EQ(eval("listSum({1,2,3.5})"), "6.5");
  EXPECT_EQ(eval("listProd({1,2,3.5})"), "7");
  EXPECT_EQ(eval("listMean({1,2,4.5})"), "2.5");
}

TEST_F(list_calculator, sum_product_and_mean_of_one_element_are_that_element) {
  EXPECT_EQ(eval("listSum({,7})"), "7");
  EXPECT_EQ(eval("listProd({,7})"), "7");
  EXPECT_EQ(eval("listMean({,7})"), "7");
}

TEST_F(list_calculator, sum_and_product_out_of_range_overflow) {
  EXPECT_EQ(error_of("listSum({1.7e308,1.7e308})"), "Overflow");
  EXPECT_EQ(error_of("listProd({1e200,1e200,1e200})"), "Overflow");
  EXPECT_EQ(error_of("listMean({1.7e308,1.7e308})"), "Overflow");
}

// --- Median

TEST_F(list_calculator, median_of_an_odd_size_is_the_middle_element) {
  EXPECT_EQ(eval("listMedian({9,1,5})"), "5");
  EXPECT_EQ(eval("listMedian({,4})"), "4");
  EXPECT_EQ(eval("listMedian({5,4,3,2,1})"), "3");
}

TEST_F(list_calculator, median_of_an_even_size_is_the_mean_of_the_two_in_the_middle) {
  EXPECT_EQ(eval("listMedian({4,1,3,2})"), "2.5");
  EXPECT_EQ(eval("listMedian({7,1})"), "4");
}

TEST_F(list_calculator, median_of_a_complex_list_sorts_whole_elements_by_modulus) {
  EXPECT_EQ(eval("listMedian({-9,2(i),5})"), "5");
  EXPECT_EQ(eval("listMedian({-9,2(i),5,1})"), "2.5+i");
}

TEST_F(list_calculator, median_leaves_its_list_alone) {
  define('A', std::vector<double>{3, 1, 2});
  EXPECT_EQ(eval("listMedian({A})"), "2");
  EXPECT_EQ(list_text(stored('A')), "3 1 2");
}

// --- Variance and deviation

TEST_F(list_calculator, variance_and_deviation_of_a_real_list_divide_by_one_less_than_its_size) {
  EXPECT_EQ(eval("listVariance({2,4,4,4,5,5,7,9})"), "4.5714285714");
  EXPECT_EQ(eval("listStdDev({2,4,4,4,5,5,7,9})"), "2.1380899353");
}

TEST_F(list_calculator, variance_of_a_complex_list_squares_without_conjugation) {
  // sum 1 + i, squares 1 - 1 = 0: (0 - (2i)/2)/1
  EXPECT_EQ(eval("listVariance({1,(i)})"), "-i");
  EXPECT_EQ(eval("listStdDev({1,(i)})"), "0.7071067812-0.7071067812i");
}

TEST_F(list_calculator, deviation_of_a_complex_list_with_a_negative_variance_is_a_domain_error) {
  EXPECT_EQ(eval("listVariance({(i),-(i)})"), "-2");
  EXPECT_EQ(error_of("listStdDev({(i),-(i)})"), "Domain Error");
}

TEST_F(list_calculator, equal_elements_have_no_deviation_whatever_the_rounding) {
  EXPECT_LE(value("listVariance({0.1,0.1,0.1})"), 0.0);
  EXPECT_EQ(eval("listStdDev({0.1,0.1,0.1})"), "0");
  for (int tenth = 1; tenth < 40; ++tenth) {
    define('A', std::vector<double>(static_cast<std::size_t>(tenth + 1), tenth / 10.0 + 1e8));
    EXPECT_EQ(error_of("listStdDev({A})"), "") << tenth;
  }
}

TEST_F(list_calculator, one_element_has_no_variance) {
  EXPECT_EQ(error_of("listVariance({,5})"), "Division by Zero");
  EXPECT_EQ(error_of("listStdDev({,5})"), "Division by Zero");
  EXPECT_EQ(error_of("listVariance({,0})"), "Division by Zero");
  EXPECT_EQ(error_of("listVariance({,(i)})"), "Division by Zero");
}

TEST_F(list_calculator, a_square_out_of_range_overflows_before_anything_is_divided) {
  EXPECT_EQ(error_of("listVariance({1,1e200})"), "Overflow");
  EXPECT_EQ(error_of("listStdDev({1,1e200})"), "Overflow");
  EXPECT_EQ(error_of("listVariance({,1e200})"), "Overflow");
}

// --- Size, type, elements

TEST_F(list_calculator, size_counts_elements) {
  EXPECT_EQ(eval("listSize({,5})"), "1");
  EXPECT_EQ(eval("listSize({5,6,7})"), "3");
  EXPECT_EQ(eval("listSize(initList(999,0))"), "999");
}

TEST_F(list_calculator, type_is_1_with_an_imaginary_part_anywhere) {
  EXPECT_EQ(eval("listType({1,2})"), "0");
  EXPECT_EQ(eval("listType({1,(i)})"), "1");
  EXPECT_EQ(eval("listType({1,2+1e-300(i)})"), "1");
}

TEST_F(list_calculator, position_is_that_of_the_first_equal_element) {
  EXPECT_EQ(eval("listPos({5,6,7,6},6)"), "2");
  EXPECT_EQ(eval("listPos({5,6(i),6},6)"), "3");
  EXPECT_EQ(eval("listPos({5,6,6(i)},6(i))"), "3");
}

TEST_F(list_calculator, position_of_an_absent_value_is_0) {
  EXPECT_EQ(error_of("listPos({5,6,7},8)"), "");
  EXPECT_EQ(eval("listPos({5,6,7},8)"), "0");
  EXPECT_EQ(eval("listPos({5,6,7},6(i))"), "0");
}

TEST_F(list_calculator, reads_an_element) {
  EXPECT_EQ(eval("getListElem({5,6(i),7},1)"), "5");
  EXPECT_EQ(eval("getListElem({5,6(i),7},2)"), "6i");
  EXPECT_EQ(eval("getListElem({5,6(i),7},3)"), "7");
}

TEST_F(list_calculator, an_element_out_of_range_is_an_index_error) {
  for (const char* position : {"0", "4", "-1", "1.5", "2.0000001", "1e10", "-1e300"})
    EXPECT_EQ(error_of(std::string("getListElem({5,6,7},") + position + ")"), "List Index Range") << position;
}

TEST_F(list_calculator, a_complex_position_does_not_fit) {
  EXPECT_EQ(error_of("getListElem({5,6,7},(i))"), "Function Argument Type");
}

// --- An element of a stored list

TEST_F(list_calculator, puts_an_element_into_a_stored_list) {
  define('C', std::vector<double>{1, 2, 3});
  EXPECT_EQ(eval("putListElemDir({C},2,7-(i))"), "7-i");
  EXPECT_EQ(list_text(stored('C')), "1 7-1i 3");
}

TEST_F(list_calculator, only_a_named_list_takes_an_element) {
  EXPECT_EQ(error_of("putListElemDir({1,2,3},2,7)"), "Function Argument Type");
  eval("{1,2,3}");
  EXPECT_EQ(error_of("putListElemDir((L_Ans),2,7)"), "Function Argument Type");
  EXPECT_EQ(list_text(stores.lists[ANSWER_RECORD]), "1 2 3");
}

TEST_F(list_calculator, an_element_outside_leaves_the_store_as_it_was) {
  define('C', std::vector<double>{1, 2, 3});
  for (const char* position : {"0", "4", "1.5", "-1"})
    EXPECT_EQ(error_of(std::string("putListElemDir({C},") + position + ",7)"), "List Index Range")
        << position;
  EXPECT_EQ(list_text(stored('C')), "1 2 3");
}

TEST_F(list_calculator, an_undefined_list_takes_no_element) {
  EXPECT_EQ(error_of("putListElemDir({D},1,7)"), "List Size Not Defined");
  EXPECT_FALSE(stored('D').defined);
  EXPECT_EQ(error_of("putListElemDir(delSubList({1,2},1,2),1,7)"), "List Size Not Defined");
}

TEST_F(list_calculator, a_store_is_announced_before_an_element_changes) {
  static std::string announced;
  announced.clear();
  define('C', std::vector<double>{1, 2, 3});
  hooks.about_to_store = [](int slot) { announced += std::to_string(slot) + ": " + list_text(stored('C')); };
  eval("putListElemDir({C},2,7)");
  EXPECT_EQ(announced, "102: 1 2 3");
  announced.clear();
  eval("putListElemDir({C},4,7)");
  EXPECT_EQ(announced, "") << "nothing changes";
}

// --- The top row of the list screen

TEST_F(list_calculator, sets_the_top_row_of_a_list) {
  define('B', std::vector<double>{1, 2});
  EXPECT_EQ(eval("setListTopRow({B},5)"), "5");
  EXPECT_EQ(list_view.top_row[1], 4);
  EXPECT_EQ(eval("setListTopRow({B},1)"), "1");
  EXPECT_EQ(list_view.top_row[1], 0);
}

TEST_F(list_calculator, sets_the_top_row_of_the_answer) {
  eval("{1,2}");
  EXPECT_EQ(eval("setListTopRow((L_Ans),7)"), "7");
  EXPECT_EQ(list_view.top_row[ANSWER_RECORD], 6);
}

TEST_F(list_calculator, the_last_top_row_leaves_a_full_screen) {
  define('B', std::vector<double>{1, 2});
  EXPECT_EQ(eval("setListTopRow({B},991)"), "991");
  EXPECT_EQ(eval("setListTopRow({B},992)"), "992");
  EXPECT_EQ(eval("setListTopRow({B},993)"), "992");
  EXPECT_EQ(eval("setListTopRow({B},999)"), "992");
  EXPECT_EQ(list_view.top_row[1], 991);
}

TEST_F(list_calculator, a_top_row_out_of_range_is_an_index_error) {
  define('B', std::vector<double>{1, 2});
  eval("setListTopRow({B},5)");
  for (const char* row : {"0", "1000", "-1", "2.5"})
    EXPECT_EQ(error_of(std::string("setListTopRow({B},") + row + ")"), "List Index Range") << row;
  EXPECT_EQ(list_view.top_row[1], 4);
}

TEST_F(list_calculator, a_list_in_flight_has_no_top_row) {
  EXPECT_EQ(error_of("setListTopRow({1,2},5)"), "Function Argument Type");
}

TEST_F(list_calculator, an_undefined_list_has_no_top_row) {
  EXPECT_EQ(error_of("setListTopRow({B},5)"), "List Size Not Defined");
  EXPECT_EQ(list_view.top_row[1], 0);
}

}  // namespace
}  // namespace zephyl
