// The dialogs of single keys: variables, tests, earlier expressions, sizes of tables.

#include "faceplate/selection_dialogs.h"
#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/dialogs/select_expression.h"
#include "faceplate/dialogs/select_test.h"
#include "faceplate/dialogs/select_variable.h"
#include "faceplate/dialogs/table_size.h"
#include "faceplate/dialogs/table_variable.h"
#include "faceplate/modes.h"
#include "plot/plot_variables.h"

namespace zephyl {
namespace {

constexpr int BLUE_KEY = 1;
constexpr int MEMORY_KEY = 10;

class select_variable : public selection_dialogs {
 protected:
  std::string row_text(int group, int row) {
    std::string text;
    answer([&text, group, row](TDialog& dialog) {
      choose_row(dialog, 0, group);
      text = dialog[1].rows.at(static_cast<std::size_t>(row));
    });
    bool by_value = false;
    EXPECT_EQ(choose_recall_variable(by_value), NO_VARIABLE);
    return text;
  }
};

TEST_F(select_variable, has_two_dialogs_of_one_name) {
  tap_keys({MEMORY_KEY, BLUE_KEY, MEMORY_KEY});
  EXPECT_EQ(platform_.dialogs, (std::vector<std::string>{"170 Select Variable", "157 Select Variable"}));
  EXPECT_EQ(codes(), "");
}

TEST_F(select_variable, offers_seven_groups_of_so_many_variables) {
  const struct {
    const char* text;
    std::size_t count;
  } groups[] = {{"R0-R9", 10}, {"Upper Case", 26}, {"Lower Case", 26}, {"Greek", 28},
                {"List", 10},  {"Matrix", 10},     {"String", 9}};
  answer([&groups](TDialog& dialog) {
    EXPECT_EQ(dialog[0].label, "Variable Group:");
    EXPECT_EQ(dialog[1].label, "Memory Variable:");
    ASSERT_EQ(dialog[0].rows.size(), 7u);
    for (int i = 0; i < 7; ++i) {
      choose_row(dialog, 0, i);
      EXPECT_EQ(dialog[0].rows[static_cast<std::size_t>(i)], groups[i].text);
      EXPECT_EQ(dialog[1].rows.size(), groups[i].count) << groups[i].text;
      EXPECT_EQ(dialog[1].selected, 0);
    }
  });
  EXPECT_EQ(choose_store_variable(), NO_VARIABLE);
}

TEST_F(select_variable, recall_enters_the_token_of_each_slot) {
  const struct {
    std::vector<int> rows;
    const char* tokens;
  } cases[] = {{{0, 0}, "2000"},  {{0, 9}, "2009"},  {{1, 25}, "2035"}, {{2, 0}, "2036"},
               {{3, 27}, "2089"}, {{4, 0}, "2100"},  {{5, 9}, "2099"},  {{6, 8}, "2128"},
               {{4, 10}, "1300"}, {{5, 10}, "1299"}, {{6, 9}, "1301"}};
  for (const auto& row : cases) {
    tap_key(27);
    answer_rows(row.rows);
    tap_key(MEMORY_KEY);
    EXPECT_EQ(codes(), row.tokens);
  }
}

TEST_F(select_variable, store_enters_the_token_of_each_slot) {
  const struct {
    std::vector<int> rows;
    const char* tokens;
  } cases[] = {{{0, 0}, "3000"}, {{3, 0}, "3062"}, {{4, 9}, "3109"}, {{5, 0}, "3090"}, {{6, 0}, "3120"}};
  for (const auto& row : cases) {
    tap_key(27);
    answer_rows(row.rows);
    tap_keys({BLUE_KEY, MEMORY_KEY});
    EXPECT_EQ(codes(), row.tokens);
    EXPECT_EQ(shifts(), "");
  }
}

TEST_F(select_variable, rows_tell_the_values) {
  eval("2.5->R3");
  eval("1/3->A");
  eval("7->alpha");
  eval("-1->(alpha)");
  eval("{1,2,3}->{B}");
  eval("initMatrix(2,3,0)->[C]");
  eval("\"abc\"->str2");
  EXPECT_EQ(row_text(0, 3), "R3: 2.5");
  EXPECT_EQ(row_text(1, 0), "A: 0.3333333333");
  EXPECT_EQ(row_text(3, 0), "(alpha): -1");
  EXPECT_EQ(row_text(3, 14), "(sigma 0): 0");
  EXPECT_EQ(row_text(4, 0), "{A}: Undefined");
  EXPECT_EQ(row_text(4, 1), "{B}: 3 rows");
  EXPECT_EQ(row_text(5, 2), "[C]: 2 by 3");
  EXPECT_EQ(row_text(6, 1), "str2: abc");
  EXPECT_EQ(row_text(4, 10), "{List Ans}: 3 rows");
  EXPECT_EQ(row_text(5, 10), "[Matrix Ans]: 2 by 3");
  EXPECT_EQ(row_text(6, 9), "String Ans: abc");
}

TEST_F(select_variable, values_follow_the_number_format) {
  eval("1/3->A");
  settings.numberFormat = FORMAT_FIXED;
  settings.decimalDigits = 2;
  EXPECT_EQ(row_text(1, 0), "A: 0.33");
  settings.decimalMark = 1;
  EXPECT_EQ(row_text(1, 0), "A: 0,33");
}

TEST_F(select_variable, opens_where_it_was_left) {
  answer_rows({4, 10});
  tap_key(MEMORY_KEY);
  answer_rows({2, 23});
  tap_keys({BLUE_KEY, MEMORY_KEY});
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 4);
    EXPECT_EQ(dialog[1].selected, 10);
    choose_row(dialog, 0, 1);
  });
  tap_key(MEMORY_KEY);
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 4);
    EXPECT_EQ(dialog[1].selected, 10);
  });
  tap_key(MEMORY_KEY);
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 2);
    EXPECT_EQ(dialog[1].selected, 23);
  });
  tap_keys({BLUE_KEY, MEMORY_KEY});
}

TEST_F(select_variable, by_value_enters_digits) {
  eval("-2.5->R1");
  tap_key(27);
  answer([](TDialog& dialog) {
    choose_row(dialog, 1, 1);
    EXPECT_TRUE(set_checked(dialog, find_control(dialog, "By Value?"), true));
    accept_dialog(dialog);
  });
  tap_key(MEMORY_KEY);
  EXPECT_EQ(entry(), "(-2.5)");
}

TEST_F(select_variable, by_value_is_remembered_until_the_next_start) {
  bool by_value = false;
  const auto ticked_at_opening = [&] {
    bool ticked = false;
    answer([&ticked](TDialog& dialog) { ticked = dialog[find_control(dialog, "By Value?")].checked; });
    EXPECT_EQ(choose_recall_variable(by_value), NO_VARIABLE);
    return ticked;
  };
  EXPECT_FALSE(ticked_at_opening());
  answer([](TDialog& dialog) { set_checked(dialog, find_control(dialog, "By Value?"), true); });
  EXPECT_EQ(choose_recall_variable(by_value), NO_VARIABLE);
  EXPECT_FALSE(ticked_at_opening());  // it was cancelled
  answer([](TDialog& dialog) {
    set_checked(dialog, find_control(dialog, "By Value?"), true);
    accept_dialog(dialog);
  });
  choose_recall_variable(by_value);
  EXPECT_TRUE(by_value);
  EXPECT_TRUE(ticked_at_opening());
  restart(platform_.folder);
  EXPECT_FALSE(ticked_at_opening());
}

TEST_F(select_variable, a_table_has_no_digits_and_goes_by_name) {
  answer([](TDialog& dialog) {
    choose_row(dialog, 0, 5);
    set_checked(dialog, find_control(dialog, "By Value?"), true);
    accept_dialog(dialog);
  });
  tap_key(MEMORY_KEY);
  EXPECT_EQ(codes(), "2090");
}

TEST_F(select_variable, base_and_statistics_have_the_same_key) {
  for (const int mode : {BASE_MODE, STATS_MODE}) {
    set_mode(mode, false);
    tap_key(27);
    answer_rows({1, 0});
    tap_key(MEMORY_KEY);
    EXPECT_EQ(codes(), "2010");
    answer_rows({1, 0});
    tap_keys({0, MEMORY_KEY});
    EXPECT_EQ(codes(), "2010 3010");
  }
}

TEST_F(select_variable, stays_shut_on_an_error) {
  eval("1/0");
  tap_keys({MEMORY_KEY, BLUE_KEY, MEMORY_KEY});
  EXPECT_TRUE(platform_.dialogs.empty());
}

class select_test : public selection_dialogs {};

TEST_F(select_test, each_row_enters_its_token) {
  const char* const texts[] = {
      "value1 = value2",  "value1 <> value2",  "value1 < value2",  "value1 <= value2",  "value1 > value2",
      "value1 >= value2", "value1 AND value2", "value1 OR value2", "value1 XOR value2", "NOT(value)"};
  const char* const tokens[] = {"393", "392", "389", "388", "391", "390", "395", "397", "396", "394"};
  for (int row = 0; row < 10; ++row) {
    tap_key(27);
    answer([&texts, row](TDialog& dialog) {
      EXPECT_EQ(dialog.title, "Select Test");
      EXPECT_EQ(dialog[0].rows.size(), 10u);
      EXPECT_EQ(dialog[0].rows[static_cast<std::size_t>(row)], texts[row]);
      choose_row(dialog, 0, row);
      accept_dialog(dialog);
    });
    tap_keys({BLUE_KEY, 14});
    EXPECT_EQ(codes(), tokens[row]);
  }
}

// The last line of a help text reads "Example: 2+2=4 returns 1".
TEST_F(select_test, each_help_text_has_an_example_that_holds) {
  for (int row = 0; row < 10; ++row) {
    std::string help;
    answer([&help, row](TDialog& dialog) {
      choose_row(dialog, 0, row);
      help = dialog[find_control(dialog, "Test Description")].text;
    });
    EXPECT_EQ(choose_test(), -1);
    const std::string example = help.substr(help.find("Example: ") + 9);
    const std::size_t returns = example.find(" returns ");
    ASSERT_NE(returns, std::string::npos) << help;
    EXPECT_EQ(eval(example.substr(0, returns)), example.substr(returns + 9));
    const bool order = row >= 2 && row <= 5, logic = row >= 6;
    EXPECT_EQ(help.find("by magnitude") != std::string::npos, order);
    EXPECT_EQ(help.find("be a matrix") != std::string::npos, logic);
  }
}

TEST_F(select_test, opens_where_it_was_left) {
  answer_rows({4});
  choose_test();
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 4);
    EXPECT_NE(dialog[find_control(dialog, "Test Description")].text.find("greater"), std::string::npos);
  });
  choose_test();
}

class select_expression : public selection_dialogs {
 protected:
  void SetUp() override {
    eval("1+2");
    eval("3*4");
  }
};

TEST_F(select_expression, lists_earlier_entries) {
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Expression");
    EXPECT_EQ(dialog[0].rows, (std::vector<std::string>{"1+2", "3*4"}));
  });
  tap_keys({BLUE_KEY, 20});
  EXPECT_EQ(entry(), "3*4");
}

TEST_F(select_expression, replaces_the_line) {
  answer([](TDialog& dialog) {
    choose_row(dialog, 0, 0);
    press_button(dialog, find_control(dialog, "Replace Current Expression"));
  });
  tap_keys({BLUE_KEY, 20});
  EXPECT_EQ(entry(), "1+2");
  EXPECT_TRUE(state.fresh_flag);
}

TEST_F(select_expression, inserts_at_the_cursor) {
  tap_key(27);
  type("99");
  arrow(ARROW_LEFT);
  answer([](TDialog& dialog) {
    choose_row(dialog, 0, 1);
    EXPECT_TRUE(press_button(dialog, find_control(dialog, "Insert Expression at Cursor")));
  });
  tap_keys({BLUE_KEY, 20});
  EXPECT_EQ(entry(), "93*49");
}

TEST_F(select_expression, inserts_nothing_without_a_cursor_or_a_line) {
  const auto expect_disabled = [](TDialog& dialog) {
    EXPECT_FALSE(press_button(dialog, find_control(dialog, "Insert Expression at Cursor")));
    EXPECT_FALSE(dialog.closed());
  };
  answer(expect_disabled);
  tap_keys({BLUE_KEY, 20});
  tap_key(27);
  answer(expect_disabled);
  tap_keys({BLUE_KEY, 20});
  EXPECT_EQ(platform_.dialogs.size(), 2u);
}

TEST_F(select_expression, opens_where_it_was_left) {
  answer_rows({1});
  show_expressions();
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 1);
    choose_row(dialog, 0, 0);
  });
  show_expressions();
  answer([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 1); });
  show_expressions();
}

TEST_F(select_expression, needs_an_earlier_entry) {
  history.count = 0;
  tap_keys({BLUE_KEY, 20});
  EXPECT_TRUE(platform_.dialogs.empty());
}

class table_dialogs : public selection_dialogs {};

TEST_F(table_dialogs, a_list_gets_a_size) {
  set_mode(LIST_MODE, false);
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select List Size");
    EXPECT_EQ(dialog[0].label, "Rows:");
    EXPECT_EQ(dialog[0].rows.size(), 999u);
    EXPECT_EQ(dialog[0].selected, 0);
    choose_row(dialog, 0, 2);
    accept_dialog(dialog);
  });
  tap_key(8);
  EXPECT_TRUE(stores.lists[0].defined);
  EXPECT_EQ(stores.lists[0].last, 2);
  EXPECT_EQ(platform_.title, "Zephyl (A{3})");
}

TEST_F(table_dialogs, the_size_of_a_list_opens_on_what_it_is) {
  eval("{1,2,3,4}->{A}");
  set_mode(LIST_MODE, false);
  answer([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 3); });
  tap_key(8);
  EXPECT_EQ(stores.lists[0].last, 3);
}

TEST_F(table_dialogs, a_matrix_gets_sizes) {
  set_mode(MATRIX_MODE, false);
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Matrix Size");
    EXPECT_EQ(dialog[0].rows.size(), 30u);
    EXPECT_EQ(dialog[1].rows.size(), 30u);
    choose_row(dialog, 0, 1);
    choose_row(dialog, 1, 4);
    accept_dialog(dialog);
  });
  tap_key(8);
  EXPECT_EQ(platform_.title, "Zephyl (A[2,5])");
  answer([](TDialog& dialog) {
    EXPECT_EQ(dialog[0].selected, 1);
    EXPECT_EQ(dialog[1].selected, 4);
  });
  tap_key(8);
}

TEST_F(table_dialogs, whole_tables_are_recalled_and_stored) {
  const struct {
    int mode;
    int row;
    const char* text;
    const char* tokens;
  } cases[] = {
      {LIST_MODE, 0, "RCL {List Ans}", "1300"}, {LIST_MODE, 1, "RCL {A}", "2100"},
      {LIST_MODE, 10, "RCL {J}", "2109"},       {LIST_MODE, 11, "STO {A}", "3100"},
      {LIST_MODE, 20, "STO {J}", "3109"},       {MATRIX_MODE, 0, "RCL [Matrix Ans]", "1299"},
      {MATRIX_MODE, 1, "RCL [A]", "2090"},      {MATRIX_MODE, 10, "RCL [J]", "2099"},
      {MATRIX_MODE, 11, "STO [A]", "3090"},     {MATRIX_MODE, 20, "STO [J]", "3099"},
  };
  for (const auto& row : cases) {
    clear_entry_line();
    set_mode(row.mode, false);
    answer([&row](TDialog& dialog) {
      EXPECT_EQ(dialog.title, row.mode == LIST_MODE ? "Select List Variable" : "Select Matrix Variable");
      EXPECT_EQ(dialog[0].rows.size(), 21u);
      EXPECT_EQ(dialog[0].rows[static_cast<std::size_t>(row.row)], row.text);
      choose_row(dialog, 0, row.row);
      accept_dialog(dialog);
    });
    tap_key(9);
    EXPECT_EQ(codes(), row.tokens);
  }
}

TEST_F(table_dialogs, lists_and_matrices_remember_apart) {
  set_mode(LIST_MODE, false);
  answer_rows({5});
  tap_key(9);
  answer([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 5); });
  tap_key(9);
  set_mode(MATRIX_MODE, false);
  answer([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 0); });
  tap_key(9);
}

TEST_F(table_dialogs, u_and_v_of_a_surface) {
  plot_variables.plotType = PLOT_3D;
  const char* const tokens[] = {"2056", "2057"};
  for (int i = 0; i < 2; ++i) {
    tap_key(27);
    answer([i](TDialog& dialog) {
      EXPECT_EQ(dialog.title, "Select Variable");
      press_button(dialog, find_control(dialog, i == 0 ? "u" : "v"));
    });
    tap_keys({0, 26});
    EXPECT_EQ(codes(), tokens[i]);
  }
  tap_key(27);
  tap_keys({0, 26});
  EXPECT_EQ(codes(), "");
  EXPECT_EQ(platform_.dialogs.back(), "192 Select Variable");
}

}  // namespace
}  // namespace zephyl
