// The dialogs about stored data: statistics list and summary, and what can be cleared.

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/dialogs/clear_items.h"
#include "faceplate/dialogs/stats_summary.h"
#include "faceplate/modes.h"
#include "faceplate/selection_dialogs.h"
#include "programs/program_input.h"
#include "stats/stats.h"

namespace zephyl {
namespace {

class stats_dialogs : public selection_dialogs {
 protected:
  void SetUp() override { set_mode(STATS_MODE, false); }

  std::vector<std::string> summary() {
    std::vector<std::string> rows;
    answer([&rows](TDialog& dialog) { rows = dialog[0].rows; });
    show_stats_summary();
    return rows;
  }
  static void enter(const std::vector<double>& values) {
    for (const double value : values) add_stats_value(value);
  }
};

TEST_F(stats_dialogs, the_list_without_data_says_so) {
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog.title, "Stats List");
    EXPECT_EQ(dialog[0].rows, std::vector<std::string>{"----\tNo Stats Data"});
    press_button(dialog, find_control(dialog, "Delete"));
    EXPECT_FALSE(dialog.closed());
    accept_dialog(dialog);
  });
  tap_key(2);
  EXPECT_EQ(stats.count, 0);
}

TEST_F(stats_dialogs, the_list_of_one_variable) {
  enter({1.5, 2.0});
  answer([](TDialog& dialog) {
    ASSERT_EQ(dialog[0].columns.size(), 2u);
    EXPECT_EQ(dialog[0].columns[0].width, 30);
    EXPECT_EQ(dialog[0].columns[1].heading, "x Data");
    EXPECT_EQ(dialog[0].columns[1].width, 120);
    EXPECT_EQ(dialog[0].rows, (std::vector<std::string>{"1\t1.5", "2\t2"}));
  });
  tap_key(2);
}

TEST_F(stats_dialogs, the_list_of_two_variables_leaves_out_what_is_half_entered) {
  set_stats_variables(1);
  enter({1, 10, 2, 20, 3});
  answer([](TDialog& dialog) {
    ASSERT_EQ(dialog[0].columns.size(), 3u);
    EXPECT_EQ(dialog[0].columns[2].heading, "y Data");
    EXPECT_EQ(dialog[0].columns[2].width, 94);
    EXPECT_EQ(dialog[0].columns[1].width, 94);
    EXPECT_EQ(dialog[0].rows, (std::vector<std::string>{"1\t1\t10", "2\t2\t20"}));
  });
  tap_key(2);
}

TEST_F(stats_dialogs, delete_takes_the_focused_row) {
  enter({1, 2, 3});
  answer([](TDialog& dialog) {
    const int remove = find_control(dialog, "Delete");
    choose_row(dialog, 0, 1);
    press_button(dialog, remove);
    EXPECT_EQ(dialog[0].rows, (std::vector<std::string>{"1\t1", "2\t3"}));
    EXPECT_EQ(dialog[0].selected, 1);
    press_button(dialog, remove);
    EXPECT_EQ(dialog[0].selected, 0);
    press_button(dialog, remove);
    EXPECT_EQ(dialog[0].rows, std::vector<std::string>{"----\tNo Stats Data"});
    press_button(dialog, remove);
  });
  tap_key(2);
  EXPECT_EQ(stats.count, 0);
  EXPECT_EQ(platform_.title, "Zephyl (n=0)");
}

TEST_F(stats_dialogs, an_expression_opens_the_list) {
  set_mode(COMP_MODE, false);
  eval("dispStatsList()");
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"169 Stats List"});
}

TEST_F(stats_dialogs, the_summary_without_data_says_so) {
  EXPECT_EQ(summary(), std::vector<std::string>{"No Stats Data"});
}

TEST_F(stats_dialogs, the_summary_of_one_variable) {
  enter({1, 2, 3, 4});
  EXPECT_EQ(summary(),
            (std::vector<std::string>{"n = 4", "x mean = 2.5", "x min = 1", "x max = 4", "x sum = 10",
                                      "x sum of squares = 30", "x std dev = 1.1180339887",
                                      "x std dev(n-1) = 1.2909944487"}));
}

TEST_F(stats_dialogs, the_summary_of_two_variables) {
  set_stats_variables(1);
  enter({1, 3, 2, 5, 3, 7});
  EXPECT_EQ(summary(), (std::vector<std::string>{"n = 3",
                                                 "x mean = 2",
                                                 "x weighted mean = 2.2666666667",
                                                 "x min = 1",
                                                 "x max = 3",
                                                 "x sum = 6",
                                                 "x sum of squares = 14",
                                                 "x std dev = 0.8164965809",
                                                 "x std dev(n-1) = 1",
                                                 "y mean = 5",
                                                 "y weighted mean = 5.6666666667",
                                                 "y min = 3",
                                                 "y max = 7",
                                                 "y sum = 15",
                                                 "y sum of squares = 83",
                                                 "y std dev = 1.6329931619",
                                                 "y std dev(n-1) = 2",
                                                 "xy sum = 34",
                                                 "y=(a*x)+b",
                                                 "a = 2",
                                                 "b = 1",
                                                 "r = 1"}));
}

TEST_F(stats_dialogs, a_value_that_fails_is_an_error_in_its_line_only) {
  enter({5});
  const std::vector<std::string> rows = summary();
  EXPECT_EQ(rows.back(), "x std dev(n-1) = Error");
  EXPECT_EQ(rows[1], "x mean = 5");
  EXPECT_FALSE(errors.error_flag);
}

class items_to_clear : public selection_dialogs {
 protected:
  std::vector<bool> enabled() {
    std::vector<bool> found;
    answer([&found](TDialog& dialog) {
      for (const TControl& control : dialog.controls)
        if (control.kind == CONTROL_CHECK) found.push_back(control.enabled);
    });
    show_items_to_clear();
    return found;
  }
  void clear(const std::vector<int>& items) {
    answer([items](TDialog& dialog) {
      for (const int item : items) EXPECT_TRUE(set_checked(dialog, item - 1, true)) << item;
      accept_dialog(dialog);
    });
    show_items_to_clear();
  }
};

TEST_F(items_to_clear, have_their_labels) {
  const char* const labels[] = {"Real/Complex Variables", "Stats Data",        "List Variables",
                                "Matrix Variables",       "Plot Functions",    "Drawing Data",
                                "Expression Entries",     "Program Functions", "Program Input Buffer",
                                "String Variables",       "Clear All Items"};
  answer([&labels](TDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Items to Clear");
    for (int i = 0; i < 11; ++i) EXPECT_EQ(dialog[i].label, labels[i]);
  });
  tap_keys({0, 27});
  EXPECT_EQ(platform_.dialogs.size(), 1u);
}

TEST_F(items_to_clear, nothing_can_be_cleared_at_the_start) {
  EXPECT_EQ(enabled(), std::vector<bool>(11, false));
}

TEST_F(items_to_clear, what_holds_data_can_be_cleared) {
  const struct {
    const char* text;
    int item;
  } cases[] = {{"1->A", 1},          {"entStats(5)", 2}, {"{1,2}->{A}", 3}, {"initMatrix(2,2,1)->[B]", 4},
               {"Line(0,0,5,5)", 6}, {"\"a\"->str3", 10}};
  for (const auto& row : cases) {
    eval(row.text);
    history.count = 0;
    EXPECT_TRUE(enabled()[static_cast<std::size_t>(row.item - 1)]) << row.text;
    EXPECT_TRUE(enabled()[10]);
    clear({row.item});
    EXPECT_FALSE(enabled()[static_cast<std::size_t>(row.item - 1)]) << row.text;
  }
}

TEST_F(items_to_clear, a_drawing_without_a_coloured_pixel_is_none) {
  eval("Circle(1000,1000,1)");
  EXPECT_FALSE(enabled()[5]);
  eval("Color(1,1,1)");
  eval("Line(0,0,5,5)");
  EXPECT_FALSE(enabled()[5]);
  eval("Color(1,0,0)");
  eval("Line(0,0,5,5)");
  EXPECT_TRUE(enabled()[5]);
}

TEST_F(items_to_clear, expressions_in_slots) {
  function_slots[3].count = 1;
  EXPECT_TRUE(enabled()[4]);
  clear({5});
  EXPECT_EQ(function_slots[3].count, 0);
  function_slots[FIRST_PROGRAM_FUNCTION].count = 1;
  EXPECT_TRUE(enabled()[7]);
  clear({8});
  eval("1");
  EXPECT_TRUE(enabled()[6]);
  clear({7});
  EXPECT_EQ(history.count, 0);
}

TEST_F(items_to_clear, answers_to_prompts) {
  EXPECT_FALSE(has_last_answers());
  entry_line.expression.count = 1;
  ask_for_variable("x?", SLOT_X);
  type("5");
  keep_last_answer();
  state.at_prompt = state.program_running = false;
  EXPECT_TRUE(enabled()[8]);
  clear({9});
  EXPECT_FALSE(has_last_answers());
}

TEST_F(items_to_clear, all_goes_with_the_last_box) {
  eval("1->A");
  eval("\"a\"->str3");
  add_stats_value(1.0);
  clear({11});
  EXPECT_EQ(enabled(), std::vector<bool>(11, false));
  EXPECT_STREQ(stores.strings[2].text, "");
}

TEST_F(items_to_clear, what_is_not_checked_stays) {
  eval("1->A");
  add_stats_value(1.0);
  clear({2});
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 1.0);
  EXPECT_EQ(stats.count, 0);
}

TEST_F(items_to_clear, cancel_clears_nothing) {
  eval("1->A");
  answer([](TDialog& dialog) { set_checked(dialog, 0, true); });
  show_items_to_clear();
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A].re, 1.0);
}

}  // namespace
}  // namespace zephyl
