// The statistics columns from lists and as lists.

#include "stats/stats_lists.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/evaluator.h"
#include "engine/memory.h"
#include "stats/stats.h"
#include "support/lists.h"

namespace zephyl {
namespace {

class stats_lists : public list_calculator {
 protected:
  stats_lists() {
    reset_stats();
    set_stats_variables(1);
  }

  // "1,10 2,20"
  static std::string rows() {
    std::string text;
    for (int row = 0; row < stats.count; ++row) {
      char pair[80];
      std::snprintf(pair, sizeof pair, " %g,%g", stats.x[row], stats.y[row]);
      text += pair;
    }
    return text.empty() ? "none" : text.substr(1);
  }
};

TEST_F(stats_lists, a_list_becomes_the_x_column) {
  EXPECT_EQ(eval("listToX({1,2,3})"), "0");
  EXPECT_EQ(rows(), "1,0 2,0 3,0");
}

TEST_F(stats_lists, a_list_becomes_the_y_column) {
  EXPECT_EQ(eval("listToY({1,2,3})"), "0");
  EXPECT_EQ(rows(), "0,1 0,2 0,3");
}

TEST_F(stats_lists, rows_that_there_were_keep_their_other_number) {
  eval("listToX({1,2,3})");
  eval("listToY({10,20,30})");
  EXPECT_EQ(rows(), "1,10 2,20 3,30");
}

TEST_F(stats_lists, a_longer_list_fills_up_the_other_column_with_zeros) {
  eval("listToX({1,2})");
  eval("listToY({10,20})");
  stats.x[2] = stats.y[2] = stats.x[3] = stats.y[3] = 77;
  eval("listToX({5,6,7})");
  EXPECT_EQ(rows(), "5,10 6,20 7,0");
  eval("listToY({1,2,3,4})");
  EXPECT_EQ(rows(), "5,1 6,2 7,3 0,4");
}

TEST_F(stats_lists, a_shorter_list_leaves_fewer_rows) {
  eval("listToX({1,2,3})");
  eval("listToY({10,20})");
  EXPECT_EQ(rows(), "1,10 2,20");
  eval("listToX({,5})");
  EXPECT_EQ(rows(), "5,10");
}

TEST_F(stats_lists, only_complex_lists_are_of_the_wrong_type) {
  eval("listToX({1,2})");
  EXPECT_EQ(error_of("listToX({1,2(i)})"), "Data Type Error");
  EXPECT_EQ(error_of("listToY({1,2(i)})"), "Data Type Error");
  EXPECT_EQ(rows(), "1,0 2,0");
}

TEST_F(stats_lists, y_needs_two_variables) {
  set_stats_variables(0);
  EXPECT_EQ(error_of("listToY({1,2})"), "Not 2 Variable Stats");
  EXPECT_EQ(rows(), "none");
  EXPECT_EQ(error_of("listToX({1,2})"), "");
  EXPECT_EQ(error_of("listToY({1,2})"), "Not 2 Variable Stats");
  EXPECT_EQ(rows(), "1,0 2,0");
}

TEST_F(stats_lists, undefined_lists_change_nothing) {
  eval("listToX({1,2})");
  EXPECT_EQ(error_of("listToX({A})"), "List Size Not Defined");
  EXPECT_EQ(error_of("listToY({A})"), "List Size Not Defined");
  EXPECT_EQ(error_of("listToX(delSubList({1,2},1,2))"), "List Size Not Defined");
  EXPECT_EQ(rows(), "1,0 2,0");
}

TEST_F(stats_lists, the_next_number_belongs_to_x) {
  for (const char* text : {"listToX({1,2})", "listToY({1,2})"}) {
    add_stats_value(99);
    ASSERT_FALSE(stats.next_is_x);
    eval(text);
    EXPECT_TRUE(stats.next_is_x) << text;
    EXPECT_EQ(stats.count, 2) << text;
  }
}

TEST_F(stats_lists, a_new_column_is_announced) {
  static int announced;
  announced = 0;
  stats_changed = [] { ++announced; };
  eval("listToX({1,2})");
  EXPECT_EQ(announced, 1);
  eval("listToY({1,2})");
  EXPECT_EQ(announced, 2);
  eval("XtoList()");
  EXPECT_EQ(announced, 2);
  stats_changed = [] {};
}

TEST_F(stats_lists, the_largest_list_fits) {
  EXPECT_EQ(error_of("listToX(initList(999,3))"), "");
  EXPECT_EQ(stats.count, 999);
  EXPECT_EQ(stats.x[998], 3.0);
  EXPECT_EQ(elements("XtoList()"), TElements(999, TValue{3, 0}));
  EXPECT_EQ(elements("YtoList()"), TElements(999));
}

TEST_F(stats_lists, columns_become_lists) {
  eval("listToX({1,2,3})");
  eval("listToY({10,20,30})");
  EXPECT_EQ(list("XtoList()"), "1 2 3");
  EXPECT_EQ(list("YtoList()"), "10 20 30");
  EXPECT_EQ(list("XtoList()+YtoList()"), "11 22 33");
}

TEST_F(stats_lists, there_is_no_list_without_data) {
  EXPECT_EQ(list("XtoList()"), "No Stats Data");
  EXPECT_EQ(list("YtoList()"), "No Stats y Data");
}

TEST_F(stats_lists, one_variable_has_no_list_of_y) {
  set_stats_variables(0);
  EXPECT_EQ(list("YtoList()"), "No Stats y Data");
  eval("listToX({1,2,3})");
  EXPECT_EQ(list("YtoList()"), "No Stats y Data");
  EXPECT_EQ(list("XtoList()"), "1 2 3");
}

TEST_F(stats_lists, a_pending_x_is_no_row) {
  add_stats_value(7);
  EXPECT_EQ(list("XtoList()"), "No Stats Data");
}

TEST_F(stats_lists, a_column_goes_to_a_stored_list_and_back) {
  eval("listToX({4,5})");
  EXPECT_EQ(list("XtoList()->{A}"), "4 5");
  EXPECT_EQ(eval("listToY({A})"), "0");
  EXPECT_EQ(rows(), "4,4 5,5");
}

TEST_F(stats_lists, no_column_goes_to_register_10_or_above) {
  eval("listToX({4,5})");
  EXPECT_EQ(call_list_operation(OP_X_TO_LIST, {}, {}, 10), "Memory Limit Error");
  EXPECT_EQ(call_list_operation(OP_Y_TO_LIST, {}, {}, 10), "Memory Limit Error");
  EXPECT_EQ(call_list_operation(OP_LIST_TO_X, {REGISTER_NUMBER + 10}, {}, 0), "Memory Limit Error");
  EXPECT_EQ(rows(), "4,0 5,0");
}

}  // namespace
}  // namespace zephyl
