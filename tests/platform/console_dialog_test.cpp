#include <gtest/gtest.h>

#include <deque>

#include "platform/console/dialog_talk.h"
#include "platform/dialog.h"

namespace zephyl {
namespace {

// Answers every question with the next of these lines; nobody is there behind the last.
TAsk lines(std::deque<std::string> typed) {
  return [typed](const std::string&, std::string& line) mutable {
    if (typed.empty()) return false;
    line = typed.front();
    typed.pop_front();
    return true;
  };
}

TDialog sample() {
  TDialog dialog(150, "Select Variable");
  dialog.add(label_control("Which one?"));
  dialog.add(combo_control("Group:", {"R0-R9", "Upper Case"}));
  dialog.add(edit_control("Name:", "a"));
  dialog.add(check_control("Custom Prompt?", false));
  dialog.add(radio_control("Float", 1, true));
  dialog.add(radio_control("Fixed", 1, false));
  dialog.add(slider_control("Red:", 0, 255, 1));
  add_ok_cancel(dialog);
  return dialog;
}

TEST(console_dialog, controls_are_worked_by_number) {
  TDialog dialog = sample();
  testing::internal::CaptureStdout();
  talk_through(dialog, lines({"1", "2", "2", "some text", "3", "5", "6", "200", "7"}));
  testing::internal::GetCapturedStdout();
  EXPECT_EQ(dialog.result(), 0);
  EXPECT_EQ(dialog[1].selected, 1);
  EXPECT_EQ(dialog[2].text, "some text");
  EXPECT_TRUE(dialog[3].checked);
  EXPECT_TRUE(dialog[5].checked);
  EXPECT_FALSE(dialog[4].checked);
  EXPECT_EQ(dialog[6].value, 200);
}

TEST(console_dialog, prints_what_there_is) {
  TDialog dialog = sample();
  dialog[6].visible = false;
  dialog[3].enabled = false;
  testing::internal::CaptureStdout();
  talk_through(dialog, lines({"cancel"}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Select Variable\n      Which one?\n   1  Group: R0-R9\n   2  Name: a\n      [ ] Custom Prompt?\n"
            "   3  (x) Float\n   4  ( ) Fixed\n   5  <OK>\n   6  <Cancel>\n");
  EXPECT_EQ(dialog.result(), DIALOG_CANCELLED);
}

TEST(console_dialog, a_table_scrolls_by_a_signed_number) {
  for (const bool scrolls : {false, true}) {
    TDialog dialog(213, "Plot Table");
    dialog.add(table_control("", {{"x", 0}}, {"1", "2", "3"}));
    dialog[0].scrolls = scrolls;
    std::vector<int> scrolled;
    dialog.procedure = [&](TDialog&, const TDialogEvent& event) {
      if (event.kind == CONTROL_SCROLLED) scrolled.push_back(event.rows);
    };
    testing::internal::CaptureStdout();
    talk_through(dialog, lines({"1", "+4", "1", "-12", "1", "+", "1", "2"}));
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(scrolled, scrolls ? (std::vector<int>{4, -12}) : std::vector<int>{});
    EXPECT_EQ(dialog[0].selected, 1);
  }
}

TEST(console_dialog, an_empty_line_is_the_default_button) {
  TDialog dialog = sample();
  testing::internal::CaptureStdout();
  talk_through(dialog, lines({"99", "nonsense", ""}));
  testing::internal::GetCapturedStdout();
  EXPECT_EQ(dialog.result(), 0);
}

TEST(console_dialog, is_cancelled_when_nobody_is_there) {
  for (const std::deque<std::string>& typed : {std::deque<std::string>{}, {"1"}, {"2"}}) {
    TDialog dialog = sample();
    testing::internal::CaptureStdout();
    talk_through(dialog, lines(typed));
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(dialog.result(), DIALOG_CANCELLED);
  }
}

TEST(console_dialog, without_a_default_button_an_empty_line_cancels) {
  TDialog dialog(1, "Select Plot");
  dialog.add(button_control("Line Plot"));
  testing::internal::CaptureStdout();
  talk_through(dialog, lines({""}));
  testing::internal::GetCapturedStdout();
  EXPECT_TRUE(dialog.closed());
}

}  // namespace
}  // namespace zephyl
