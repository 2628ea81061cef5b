#include "platform/desktop/dialogs/dialog_plan.h"

#include <gtest/gtest.h>

#include "platform_desktop/sample_dialogs.h"

using namespace zephyl;

namespace {

using TLines = std::vector<std::vector<int>>;

}  // namespace

TEST(dialog_plan, a_control_beside_another_shares_its_line) {
  TDialog dialog(1, "T");
  dialog.add(beside(edit_control("A:", "")));
  dialog.add(beside(edit_control("B:", "")));
  dialog.add(edit_control("C:", ""));
  EXPECT_EQ(plan_of(dialog).lines, (TLines{{0, 1}, {2}}));
}

TEST(dialog_plan, the_last_buttons_make_the_bottom_row) {
  const TDialogPlan plan = plan_of(variable_sample());
  EXPECT_EQ(plan.lines, (TLines{{0}, {1}, {2}}));
  EXPECT_EQ(plan.bottom, (std::vector<int>{3, 4}));
  EXPECT_TRUE(plan.column.empty());
}

TEST(dialog_plan, buttons_below_one_another_that_close_share_the_bottom_row) {
  TDialog dialog(1, "T");
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  EXPECT_EQ(plan_of(dialog).bottom, (std::vector<int>{0, 1}));
}

TEST(dialog_plan, a_plain_button_in_the_closing_line_stays_there) {
  const TDialogPlan plan = plan_of(table_sample(3));
  EXPECT_EQ(plan.lines, (TLines{{0}}));
  EXPECT_EQ(plan.bottom, (std::vector<int>{1, 2}));
}

TEST(dialog_plan, buttons_above_the_closing_line_make_a_column) {
  const TDialogPlan plan = plan_of(setup_sample());
  EXPECT_EQ(plan.lines.size(), 8u);
  EXPECT_EQ(plan.column, (std::vector<int>{8, 9, 10, 11, 12, 13}));
  EXPECT_EQ(plan.bottom, (std::vector<int>{14, 15}));
}

TEST(dialog_plan, one_button_above_the_closing_line_joins_it) {
  TDialog dialog(147, "Select Constant");
  dialog.add(combo_control("Constant:", {"a"}));
  dialog.add(button_control("Elements"));
  add_ok_cancel(dialog);
  const TDialogPlan plan = plan_of(dialog);
  EXPECT_EQ(plan.lines, (TLines{{0}}));
  EXPECT_EQ(plan.bottom, (std::vector<int>{1, 2, 3}));
}

TEST(dialog_plan, two_buttons_are_no_column) {
  TDialog dialog(168, "Select Expression");
  dialog.add(list_control("", {"a"}));
  dialog.add(button_control("Replace Current Expression"));
  dialog.add(button_control("Insert Expression at Cursor"));
  add_ok_cancel(dialog);
  EXPECT_EQ(plan_of(dialog).lines, (TLines{{0}, {1}, {2}}));
}

TEST(dialog_plan, without_a_closing_button_there_is_no_bottom_row) {
  TDialog dialog(1, "T");
  dialog.add(button_control("u"));
  dialog.add(beside(button_control("v")));
  EXPECT_EQ(plan_of(dialog).lines, (TLines{{0, 1}}));
  EXPECT_TRUE(plan_of(dialog).bottom.empty());
}
