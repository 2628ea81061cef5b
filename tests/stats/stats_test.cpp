// The rows of the statistics data: entering, deleting, clearing, limits.
#include "stats/stats.h"

#include <gtest/gtest.h>

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class stats_store : public calculator {
 protected:
  stats_store() { clear_stats(); }

  static void enter(std::initializer_list<double> values) {
    for (const double value : values) add_stats_value(value);
  }
  static std::string rows() {
    std::string text;
    for (int i = 0; i < stats.count; ++i) {
      char row[80];
      std::snprintf(row, sizeof row, "%s%g/%g", i ? " " : "", stats.x[i], stats.y[i]);
      text += row;
    }
    return text;
  }
  static std::string title() {
    char text[80];
    stats_title(text, sizeof text, "Zephyl");
    return text;
  }
};

TEST_F(stats_store, with_one_variable_each_number_is_a_row) {
  enter({1, 2, 3});
  EXPECT_EQ(rows(), "1/0 2/0 3/0");
  EXPECT_TRUE(stats.next_is_x);
}

TEST_F(stats_store, with_two_variables_a_row_is_complete_with_its_y) {
  set_stats_variables(1);
  enter({1});
  EXPECT_EQ(stats.count, 0);
  EXPECT_FALSE(stats.next_is_x);
  enter({10, 2, 20, 3});
  EXPECT_EQ(rows(), "1/10 2/20");
  EXPECT_FALSE(stats.next_is_x);
}

TEST_F(stats_store, clearing_empties_every_slot) {
  enter({1, 2, 3});
  clear_stats();
  EXPECT_EQ(stats.count, 0);
  EXPECT_TRUE(stats.next_is_x);
  for (const double x : stats.x) EXPECT_EQ(x, 0.0);
  for (const double y : stats.y) EXPECT_EQ(y, 0.0);
}

TEST_F(stats_store, clrmem_clears_the_data) {
  enter({1, 2, 3});
  eval("clrMem(3)");
  EXPECT_EQ(stats.count, 3);
  eval("clrMem(2)");
  EXPECT_EQ(stats.count, 0);
  enter({1, 2, 3});
  eval("clrMem(11)");
  EXPECT_EQ(stats.count, 0);
}

TEST_F(stats_store, a_row_is_deleted) {
  set_stats_variables(1);
  enter({1, 10, 2, 20, 3, 30, 4});
  delete_stats_row(1);
  EXPECT_EQ(rows(), "1/10 3/30");
  EXPECT_TRUE(stats.next_is_x);
}

TEST_F(stats_store, a_row_that_is_not_there_deletes_none) {
  enter({1, 2});
  delete_stats_row(2);
  delete_stats_row(-1);
  EXPECT_EQ(rows(), "1/0 2/0");
}

TEST_F(stats_store, the_last_row_is_deleted) {
  enter({1, 2});
  delete_last_stats_row();
  EXPECT_EQ(rows(), "1/0");
}

TEST_F(stats_store, deleting_from_an_empty_store_only_expects_x) {
  set_stats_variables(1);
  enter({1});
  delete_last_stats_row();
  EXPECT_EQ(stats.count, 0);
  EXPECT_TRUE(stats.next_is_x);
  enter({1});
  delete_stats_row(0);
  EXPECT_EQ(stats.count, 0);
  EXPECT_TRUE(stats.next_is_x);
}

TEST_F(stats_store, a_pending_x_is_overwritten_after_a_deletion) {
  set_stats_variables(1);
  enter({1, 10, 2});
  delete_last_stats_row();
  enter({5, 50});
  EXPECT_EQ(rows(), "5/50");
}

TEST_F(stats_store, switching_the_number_of_variables_expects_x) {
  set_stats_variables(1);
  enter({1});
  set_stats_variables(0);
  EXPECT_TRUE(stats.next_is_x);
  EXPECT_EQ(settings.statsVar, 0);
  enter({7});
  EXPECT_EQ(rows(), "7/0");
}

TEST_F(stats_store, the_system_variable_switches_too) {
  eval("2->statsVar");
  enter({1});
  EXPECT_FALSE(stats.next_is_x);
  eval("2->statsVar");
  EXPECT_FALSE(stats.next_is_x) << "nothing was switched";
  eval("1->statsVar");
  EXPECT_TRUE(stats.next_is_x);
}

TEST_F(stats_store, the_last_row_has_number_999) {
  for (int i = 0; i < 998; ++i) enter({1.0 * i});
  EXPECT_EQ(error_of("entStats(5)"), "");
  EXPECT_EQ(stats.count, 999);
  EXPECT_EQ(error_of("entStats(6)"), "Stats Size Error");
  EXPECT_EQ(stats.count, 999);
  EXPECT_EQ(stats.x[998], 5.0);
}

TEST_F(stats_store, with_two_variables_too) {
  set_stats_variables(1);
  for (int i = 0; i < 999; ++i) enter({1, 2});
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(stats.count, 999);
  enter({1});
  EXPECT_EQ(errors.error_code, ERR_STATS_SIZE);
}

TEST_F(stats_store, nothing_is_added_while_an_error_stands) {
  report_error(ERR_DOMAIN);
  enter({1});
  EXPECT_FALSE(enter_answer_into_stats());
  EXPECT_EQ(stats.count, 0);
  EXPECT_EQ(message(), "none");
}

TEST_F(stats_store, the_keyboard_enters_the_answer) {
  eval("2+3");
  EXPECT_TRUE(enter_answer_into_stats());
  EXPECT_EQ(rows(), "5/0");
}

TEST_F(stats_store, the_keyboard_says_that_the_data_is_full) {
  for (int i = 0; i < 999; ++i) enter({1});
  eval("2+3");
  EXPECT_FALSE(enter_answer_into_stats());
  EXPECT_EQ(message(), "Limit | Reached statistics data limit");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(stats.count, 999);
}

TEST_F(stats_store, the_keyboard_enters_real_numbers_alone) {
  for (const char* text : {"1+2*(i)", "{1,2}", "\"abc\""}) {
    eval(text);
    EXPECT_FALSE(enter_answer_into_stats()) << text;
    EXPECT_EQ(message(), "Stats | Data type can't be inserted into a stats list.") << text;
  }
  EXPECT_EQ(stats.count, 0);
}

TEST_F(stats_store, the_title_counts_rows_and_names_what_is_expected) {
  EXPECT_EQ(title(), "Zephyl (n=0)");
  enter({1, 2});
  EXPECT_EQ(title(), "Zephyl (n=2)");
  set_stats_variables(1);
  EXPECT_EQ(title(), "Zephyl (n=2, x)");
  enter({1});
  EXPECT_EQ(title(), "Zephyl (n=2, y)");
}

TEST_F(stats_store, each_change_is_told) {
  static int changes;
  changes = 0;
  stats_changed = [] { ++changes; };
  enter({1, 2, 3});
  delete_stats_row(0);
  delete_last_stats_row();
  set_stats_variables(1);
  clear_stats();
  EXPECT_EQ(changes, 7);
  stats_changed = [] {};
}

}  // namespace
}  // namespace zephyl
