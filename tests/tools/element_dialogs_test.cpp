#include "tools/dialogs/element_dialogs.h"

#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

class element_dialogs : public calculator {};

constexpr int FACTS = 0;
constexpr int SELECT = 1;

TEST_F(element_dialogs, only_a_number_can_be_taken) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog[FACTS].rows.size(), 19u);
    EXPECT_FALSE(dialog[SELECT].enabled);
    choose_row(dialog, FACTS, 3);
    EXPECT_TRUE(dialog[SELECT].enabled);
    choose_row(dialog, FACTS, 12);
    EXPECT_FALSE(dialog[SELECT].enabled);
    EXPECT_FALSE(press_button(dialog, SELECT));
  });
  show_element_information(0);
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"177 Element Information"});
  EXPECT_EQ(entry(), "");
}

TEST_F(element_dialogs, a_number_taken_stands_in_the_expression_of_comp_mode) {
  state.calcMode = PERIODIC_MODE;
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, FACTS, 6);
    press_button(dialog, SELECT);
  });
  show_element_information(0);
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(entry(), "(0.0899)");
}

TEST_F(element_dialogs, the_index_behind_the_last_element_opens_nothing) {
  show_element_information(109);
  EXPECT_TRUE(platform_.dialogs.empty());
}

TEST_F(element_dialogs, the_table_has_all_elements_with_all_facts) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    ASSERT_EQ(dialog[0].rows.size(), 109u);
    ASSERT_EQ(dialog[0].columns.size(), 19u);
    EXPECT_EQ(dialog[0].columns[0].width, 50);
    EXPECT_EQ(dialog[0].columns[1].width, 70);
    EXPECT_EQ(dialog[0].columns[2].width, 90);
    EXPECT_EQ(dialog[0].rows[0].substr(0, 24), "H\tHydrogen\t1\t1.00794 g/m");
  });
  show_element_table();
  EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"203 Element Data Table"});
}

}  // namespace

}  // namespace zephyl
