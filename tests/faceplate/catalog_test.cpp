#include "faceplate/catalog/catalog_text.h"

#include <sys/stat.h>

#include <cstdio>

#include "engine/expression.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/catalog/function_catalog.h"
#include "faceplate/catalog/variable_catalog.h"
#include "faceplate/key_path.h"
#include "support/calculator.h"
#include "support/file_faults.h"
#include "support/program_listing.h"

namespace zephyl {

namespace {

class catalog : public calculator {
 protected:
  void in_dialog(std::function<void(TDialog&)> act) { platform_.dialog_answers.push_back(std::move(act)); }

  // Chooses a function by group and listed text, and OK.
  int choose(int group, const std::string& text) {
    in_dialog([=](TDialog& dialog) {
      ASSERT_TRUE(choose_row(dialog, 0, group));
      for (std::size_t i = 0; i < dialog[1].rows.size(); ++i)
        if (dialog[1].rows[i] == text) choose_row(dialog, 1, static_cast<int>(i));
      EXPECT_EQ(dialog[1].rows[static_cast<std::size_t>(dialog[1].selected)], text);
      accept_dialog(dialog);
    });
    return select_function();
  }
};

TEST_F(catalog, has_228_functions_in_14_groups) {
  const int counts[] = {23, 8, 8, 20, 9, 13, 29, 26, 25, 23, 19, 8, 7, 10};
  ASSERT_EQ(catalog_functions().groups.size(), 14u);
  for (int group = 0; group < 14; ++group)
    EXPECT_EQ(catalog_group(catalog_functions(), group).size(), static_cast<std::size_t>(counts[group]))
        << group;
  EXPECT_EQ(catalog_functions().rows.size(), 228u);
}

TEST_F(catalog, has_66_variables_in_8_groups) {
  const int counts[] = {11, 17, 6, 6, 6, 9, 8, 3};
  ASSERT_EQ(catalog_variables().groups.size(), 8u);
  for (int group = 0; group < 8; ++group)
    EXPECT_EQ(catalog_group(catalog_variables(), group).size(), static_cast<std::size_t>(counts[group]))
        << group;
  EXPECT_EQ(variable_rows(ALL_VARIABLES_GROUP).size(), 66u);
}

TEST_F(catalog, every_token_means_something_and_every_row_has_help) {
  for (const TCatalog* table : {&catalog_functions(), &catalog_variables()})
    for (const TCatalogRow& row : table->rows) {
      EXPECT_FALSE(row.help.empty()) << row.text;
      if (row.token == HEADING_TOKEN) continue;
      TExpression expression;
      expression.tokens[0] = static_cast<TToken>(row.token);
      expression.count = 1;
      EXPECT_FALSE(std::string(token_text(expression, 0)).empty()) << row.text;
    }
}

TEST_F(catalog, groups_are_sorted_without_regard_to_case_but_for_those_with_headings) {
  const std::vector<std::string> math = function_rows(0);
  EXPECT_EQ(math[0], "atan2(y, x)");
  EXPECT_EQ(math[1], "Bessel Jn(order, x)");
  const std::vector<std::string> drawing = function_rows(9);
  EXPECT_EQ(drawing[18], "<Fractal Drawing Function>");
  EXPECT_EQ(drawing[19], "   ifsFractal(martix, points, fit?)");
  EXPECT_EQ(function_rows(10)[0], "<Time Value of Money Function>");
}

TEST_F(catalog, a_function_gives_its_token_and_opens_there_again) {
  EXPECT_EQ(choose(0, "gcd(n1, n2)"), 406);
  in_dialog([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 196);
    EXPECT_EQ(dialog.title, "Select Function");
    EXPECT_EQ(dialog[1].rows[static_cast<std::size_t>(dialog[1].selected)], "gcd(n1, n2)");
    EXPECT_EQ(dialog[2].text.substr(0, 36), "Returns the greatest common divisor ");
    cancel_dialog(dialog);
  });
  EXPECT_EQ(select_function(), NO_FUNCTION_TOKEN);
}

TEST_F(catalog, cancel_leaves_the_last_function_as_it_was) {
  choose(0, "gcd(n1, n2)");
  in_dialog([](TDialog& dialog) {
    choose_row(dialog, 0, 3);
    cancel_dialog(dialog);
  });
  select_function();
  in_dialog([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 0); });
  select_function();
}

TEST_F(catalog, a_heading_inserts_nothing) {
  EXPECT_EQ(choose(10, "<Cash Flow Function>"), NO_FUNCTION_TOKEN);
  EXPECT_EQ(entry(), "");
}

TEST_F(catalog, entries_of_two_groups_are_one_function) {
  EXPECT_EQ(choose(5, "Seq(expression, variable, begin, end)"), 481);
  in_dialog([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 4); });
  select_function();
}

TEST_F(catalog, a_money_function_comes_with_the_variables_of_the_solver) {
  EXPECT_EQ(choose(10, "   tvmN(I%YR,PV,PMT,FV,P/Y,C/Y)"), NO_FUNCTION_TOKEN);
  EXPECT_EQ(entry(), "tvmN((tvmI%YR),(tvmPV),(tvmPMT),(tvmFV),(tvmP/Y),(tvmC/Y))");
}

TEST_F(catalog, without_custom_functions_a_note_says_how_to_get_some) {
  in_dialog([](TDialog& dialog) {
    choose_row(dialog, 0, CUSTOM_FUNCTION_GROUP);
    EXPECT_EQ(dialog[1].rows, std::vector<std::string>{"(Found no Custom Functions)"});
    EXPECT_EQ(dialog[2].text,
              "Note: Your custom function will appear here after creating it by means of a program.");
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_function(), NO_FUNCTION_TOKEN);
  EXPECT_EQ(entry(), "");
}

// Custom functions are files of the data folder.
class catalog_of_custom_functions : public catalog {
 protected:
  catalog_of_custom_functions() {
    platform_.folder = folder_.path();
    ::mkdir(folder_.file("programs").c_str(), 0777);
    make_file(path_, program_file_from_listing("cube", {"func(a)", "a^(3)"}));
  }

  const TTestFolder folder_;
  const std::string path_ = folder_.file("programs/cube.prgm");
};

TEST_F(catalog_of_custom_functions, one_is_called_with_its_arguments) {
  EXPECT_EQ(choose(CUSTOM_FUNCTION_GROUP, "cube(value)"), NO_FUNCTION_TOKEN);
  EXPECT_EQ(entry_line.expression.tokens[0], TOKEN_FUNC1);
  EXPECT_EQ(entry(), "cube(");
}

TEST_F(catalog_of_custom_functions, one_whose_file_has_vanished_is_called_without) {
  in_dialog([this](TDialog& dialog) {
    choose_row(dialog, 0, CUSTOM_FUNCTION_GROUP);
    EXPECT_EQ(dialog[1].rows, std::vector<std::string>{"cube(value)"});
    ASSERT_EQ(std::remove(path_.c_str()), 0);
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_function(), NO_FUNCTION_TOKEN);
  EXPECT_EQ(entry_line.expression.tokens[0], TOKEN_FUNC2);
  EXPECT_EQ(entry(), "cube(");
}

TEST_F(catalog, the_list_and_matrix_screens_open_on_their_functions) {
  state.calcMode = LIST_MODE;
  in_dialog([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 5); });
  select_function();
  state.calcMode = MATRIX_MODE;
  in_dialog([](TDialog& dialog) { EXPECT_EQ(dialog[0].selected, 7); });
  select_function();
}

TEST_F(catalog, a_variable_is_read_or_written) {
  in_dialog([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 214);
    choose_row(dialog, 0, 1);
    choose_row(dialog, 1, 13);
    EXPECT_EQ(dialog[1].rows[13], "xMin");
    EXPECT_EQ(dialog[2].text, "Left edge of a plot.");
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_system_variable(), 1424);
  in_dialog([](TDialog& dialog) {
    EXPECT_EQ(dialog[1].selected, 13);
    choose_row(dialog, 3, 1);
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_system_variable(), 1524);
}

TEST_F(catalog, a_function_variable_shows_its_expression_and_is_stored_fifty_higher) {
  const TToken tokens[] = {859, 36, 33};
  for (const TToken token : tokens) function_slots[0].tokens[function_slots[0].count++] = token;
  EXPECT_EQ(variable_rows(2)[0], "f1(x): x+1");
  in_dialog([](TDialog& dialog) {
    choose_row(dialog, 0, 2);
    choose_row(dialog, 3, 1);
    accept_dialog(dialog);
  });
  EXPECT_EQ(select_system_variable(), 1650);
}

TEST_F(catalog, the_catalog_of_variables_is_sorted_without_regard_to_case) {
  const std::vector<std::string> all = variable_rows(ALL_VARIABLES_GROUP);
  EXPECT_EQ(all.front(), "angleMode");
  EXPECT_EQ(all.back(), "zScale");
}

}  // namespace

}  // namespace zephyl
