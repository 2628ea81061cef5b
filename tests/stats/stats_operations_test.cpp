// entStats(, getStatsX( and its siblings, rx, ry, dispStatsList().
#include <gtest/gtest.h>

#include "engine/errors.h"
#include "stats/stats.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class stats_operations : public calculator {
 protected:
  stats_operations() { clear_stats(); }
  void enter_pairs() {
    set_stats_variables(1);
    for (const double v : {1.0, 10.0, 2.0, 20.0, 3.0, 40.0}) add_stats_value(v);
  }
};

TEST_F(stats_operations, entering_gives_the_value) {
  EXPECT_EQ(value("entStats(2+3)+1"), 6.0);
  EXPECT_EQ(stats.count, 1);
  EXPECT_EQ(stats.x[0], 5.0);
}

TEST_F(stats_operations, entering_a_list_enters_its_elements) {
  eval("entStats({4,5,6})");
  EXPECT_EQ(stats.count, 3);
  EXPECT_EQ(stats.x[2], 6.0);
}

TEST_F(stats_operations, entering_takes_real_numbers) {
  EXPECT_EQ(error_of("entStats((i))"), "Function Argument Type");
  EXPECT_EQ(stats.count, 0);
}

TEST_F(stats_operations, reading) {
  enter_pairs();
  EXPECT_EQ(value("getStatsX(1)"), 1.0);
  EXPECT_EQ(value("getStatsX(3)"), 3.0);
  EXPECT_EQ(value("getStatsY(3)"), 40.0);
}

TEST_F(stats_operations, writing_gives_the_value) {
  enter_pairs();
  EXPECT_EQ(value("putStatsX(2,7)+1"), 8.0);
  EXPECT_EQ(value("putStatsY(2,70)"), 70.0);
  EXPECT_EQ(stats.x[1], 7.0);
  EXPECT_EQ(stats.y[1], 70.0);
  EXPECT_EQ(stats.count, 3);
}

TEST_F(stats_operations, an_index_is_an_integer_from_1_to_n) {
  enter_pairs();
  for (const char* index : {"0", "4", "1.5", "-1", "1e10"})
    for (const char* call : {"getStatsX(", "getStatsY(", "putStatsX(", "putStatsY("}) {
      const bool puts = call[0] == 'p';
      const std::string text = call + std::string(index) + (puts ? ",5)" : ")");
      EXPECT_EQ(error_of(text), "Domain Error") << text;
    }
}

TEST_F(stats_operations, an_empty_store_has_no_data) {
  for (const char* text : {"getStatsX(1)", "getStatsY(1)", "putStatsX(1,5)", "putStatsY(1,5)"})
    EXPECT_EQ(error_of(text), "No Stats Data") << text;
}

TEST_F(stats_operations, one_variable_has_no_y) {
  add_stats_value(1);
  EXPECT_EQ(error_of("getStatsY(1)"), "No Stats y Data");
  EXPECT_EQ(error_of("putStatsY(1,5)"), "Not 2 Variable Stats");
  EXPECT_EQ(stats.y[0], 0.0);
}

TEST_F(stats_operations, predictions_want_data_with_y) {
  for (const char* text : {"3rx", "3ry"}) {
    clear_stats();
    set_stats_variables(0);
    EXPECT_EQ(error_of(text), "No Stats Data") << text;
    clear_error();
    add_stats_value(1);
    EXPECT_EQ(error_of(text), "No Stats y Data") << text;
    set_stats_variables(1);
    clear_stats();
    EXPECT_EQ(error_of(text), "No Stats Data") << text;
  }
}

TEST_F(stats_operations, predictions_take_real_numbers) {
  enter_pairs();
  EXPECT_EQ(error_of("(1+(i))rx"), "Data Type Error");
  EXPECT_EQ(error_of("(1+(i))ry"), "Data Type Error");
}

TEST_F(stats_operations, predictions_map_over_lists) {
  enter_pairs();
  EXPECT_NEAR(value("listSum({1,2,3}ry)"), 70.0, 1e-12);
}

TEST_F(stats_operations, showing_the_list_gives_zero) {
  static int shown;
  shown = 0;
  show_stats_list = [] { ++shown; };
  EXPECT_EQ(value("dispStatsList()"), 0.0);
  EXPECT_EQ(shown, 1);
  show_stats_list = [] {};
}

}  // namespace
}  // namespace zephyl
