#include "platform/dialog.h"

#include <gtest/gtest.h>

namespace zephyl {
namespace {

using TEvents = std::vector<TDialogEvent>;

// Notes what a dialog's procedure is told.
class dialog : public ::testing::Test {
 protected:
  dialog() {
    dialog_.procedure = [this](TDialog& told, const TDialogEvent& event) {
      events_.push_back(event);
      if (then_) then_(told, event);
    };
  }

  TDialog dialog_{157, "Select Variable"};
  TEvents events_;
  TDialog::TProcedure then_;
};

void expect_told(const TEvents& events, TDialogEventKind kind, int control) {
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, kind);
  EXPECT_EQ(events[0].control, control);
}

TEST_F(dialog, controls_are_numbered_in_the_order_they_are_added) {
  EXPECT_EQ(dialog_.add(label_control("Group")), 0);
  EXPECT_EQ(dialog_.add(edit_control("Value:", "5")), 1);
  EXPECT_EQ(dialog_.count(), 2);
  EXPECT_EQ(dialog_[1].text, "5");
  EXPECT_EQ(dialog_.id(), 157);
}

TEST_F(dialog, rows_open_on_the_remembered_row_or_the_nearest_there_is) {
  EXPECT_EQ(combo_control("a", {"x", "y", "z"}).selected, 0);
  EXPECT_EQ(combo_control("a", {"x", "y", "z"}, 2).selected, 2);
  EXPECT_EQ(list_control("a", {"x", "y", "z"}, 7).selected, 2);
  EXPECT_EQ(list_control("a", {"x", "y", "z"}, -1).selected, 0);
  EXPECT_EQ(combo_control("a", {}, 1).selected, -1);
  EXPECT_EQ(table_control("a", {{"n", 0}}, {"1", "2"}).selected, 0);
}

TEST_F(dialog, new_rows_take_the_selection_along) {
  TControl control = combo_control("Unit:", {"m", "ft", "in"}, 2);
  set_rows(control, {"g", "lb"});
  EXPECT_EQ(control.selected, 0);
  set_rows(control, {"g", "lb"}, 1);
  EXPECT_EQ(selected_text(control), "lb");
  set_rows(control, {});
  EXPECT_EQ(control.selected, -1);
  EXPECT_EQ(selected_text(control), "");
}

TEST_F(dialog, a_slider_begins_inside_its_range) {
  EXPECT_EQ(slider_control("s", 0, 255, 300).value, 255);
  EXPECT_EQ(slider_control("s", 5, 255, 1).value, 5);
}

TEST_F(dialog, choosing_a_row_selects_it_and_tells) {
  dialog_.add(combo_control("Group:", {"a", "b"}));
  EXPECT_TRUE(choose_row(dialog_, 0, 1));
  EXPECT_EQ(dialog_[0].selected, 1);
  expect_told(events_, CONTROL_CHANGED, 0);
}

TEST_F(dialog, a_row_that_is_not_there_is_not_chosen) {
  dialog_.add(list_control("Group:", {"a", "b"}));
  dialog_.add(edit_control("Text:", ""));
  EXPECT_FALSE(choose_row(dialog_, 0, 2));
  EXPECT_FALSE(choose_row(dialog_, 0, -1));
  EXPECT_FALSE(choose_row(dialog_, 1, 0));
  EXPECT_FALSE(choose_row(dialog_, 2, 0));
  EXPECT_FALSE(choose_row(dialog_, -1, 0));
  EXPECT_TRUE(events_.empty());
}

TEST_F(dialog, an_edit_keeps_as_many_characters_as_it_may) {
  dialog_.add(edit_control("Name:", "", 3));
  EXPECT_TRUE(set_text(dialog_, 0, "abcdef"));
  EXPECT_EQ(dialog_[0].text, "abc");
  EXPECT_TRUE(set_text(dialog_, 0, "\xCE\xB1\xCE\xB2\xCE\xB3\xCE\xB4"));
  EXPECT_EQ(dialog_[0].text, "\xCE\xB1\xCE\xB2\xCE\xB3");
  EXPECT_EQ(events_.size(), 2u);
}

TEST_F(dialog, an_edit_without_a_limit_takes_any_text) {
  dialog_.add(edit_control("Text:", ""));
  EXPECT_TRUE(set_text(dialog_, 0, std::string(10000, 'x')));
  EXPECT_EQ(dialog_[0].text.size(), 10000u);
}

TEST_F(dialog, a_slider_takes_values_of_its_range_only) {
  dialog_.add(slider_control("Red:", 0, 255, 10));
  EXPECT_TRUE(set_value(dialog_, 0, 255));
  EXPECT_FALSE(set_value(dialog_, 0, 256));
  EXPECT_FALSE(set_value(dialog_, 0, -1));
  EXPECT_EQ(dialog_[0].value, 255);
  expect_told(events_, CONTROL_CHANGED, 0);
}

TEST_F(dialog, a_check_box_goes_on_and_off) {
  dialog_.add(check_control("Key Click?", false));
  EXPECT_TRUE(set_checked(dialog_, 0, true));
  EXPECT_TRUE(dialog_[0].checked);
  EXPECT_TRUE(set_checked(dialog_, 0, false));
  EXPECT_FALSE(dialog_[0].checked);
}

TEST_F(dialog, a_radio_button_clears_its_fellows_of_the_group_only) {
  dialog_.add(radio_control("Float", 1, true));
  dialog_.add(radio_control("Fixed", 1, false));
  dialog_.add(radio_control("Dark", 2, true));
  EXPECT_TRUE(set_checked(dialog_, 1, true));
  EXPECT_FALSE(dialog_[0].checked);
  EXPECT_TRUE(dialog_[1].checked);
  EXPECT_TRUE(dialog_[2].checked);
  expect_told(events_, CONTROL_CHANGED, 1);
}

TEST_F(dialog, a_radio_button_is_not_cleared_by_itself) {
  dialog_.add(radio_control("Float", 1, true));
  EXPECT_FALSE(set_checked(dialog_, 0, false));
  EXPECT_TRUE(dialog_[0].checked);
}

TEST_F(dialog, disabled_and_hidden_controls_do_nothing) {
  dialog_.add(check_control("Lists", false));
  dialog_.add(button_control("Delete"));
  dialog_[0].enabled = false;
  dialog_[1].visible = false;
  EXPECT_FALSE(set_checked(dialog_, 0, true));
  EXPECT_FALSE(press_button(dialog_, 1));
  EXPECT_FALSE(dialog_[0].checked);
  EXPECT_TRUE(events_.empty());
}

TEST_F(dialog, a_plain_button_only_tells) {
  dialog_.add(button_control("About"));
  EXPECT_TRUE(press_button(dialog_, 0));
  expect_told(events_, CONTROL_ACTIVATED, 0);
  EXPECT_FALSE(dialog_.closed());
}

TEST_F(dialog, ok_closes_with_0_and_cancel_with_its_own_result) {
  add_ok_cancel(dialog_);
  TDialog other = dialog_;
  EXPECT_TRUE(accept_dialog(dialog_));
  EXPECT_TRUE(dialog_.closed());
  EXPECT_EQ(dialog_.result(), 0);
  cancel_dialog(other);
  EXPECT_TRUE(other.closed());
  EXPECT_EQ(other.result(), DIALOG_CANCELLED);
}

TEST_F(dialog, the_procedure_says_what_ok_gives) {
  add_ok_cancel(dialog_);
  then_ = [](TDialog& told, const TDialogEvent&) { told.close(2057); };
  accept_dialog(dialog_);
  EXPECT_EQ(dialog_.result(), 2057);
}

TEST_F(dialog, ok_with_a_field_that_can_not_be_read_leaves_it_open) {
  add_ok_cancel(dialog_);
  then_ = [](TDialog& told, const TDialogEvent&) { told.keep_open(); };
  EXPECT_TRUE(accept_dialog(dialog_));
  EXPECT_FALSE(dialog_.closed());
  then_ = nullptr;
  EXPECT_TRUE(accept_dialog(dialog_));
  EXPECT_TRUE(dialog_.closed());
}

TEST_F(dialog, keeping_it_open_stands_through_what_the_procedure_does_itself) {
  add_ok_cancel(dialog_);
  const int field = dialog_.add(edit_control("N:", "abc"));
  then_ = [field](TDialog& told, const TDialogEvent& event) {
    if (event.kind != CONTROL_ACTIVATED) return;
    told.keep_open();
    set_text(told, field, "");
  };
  accept_dialog(dialog_);
  EXPECT_FALSE(dialog_.closed());
}

TEST_F(dialog, cancelling_tells_the_cancel_button) {
  add_ok_cancel(dialog_);
  cancel_dialog(dialog_);
  expect_told(events_, CONTROL_ACTIVATED, 1);
}

TEST_F(dialog, without_a_cancel_button_cancelling_just_closes) {
  dialog_.add(button_control("OK", BUTTON_DEFAULT));
  cancel_dialog(dialog_);
  EXPECT_TRUE(dialog_.closed());
  EXPECT_EQ(dialog_.result(), DIALOG_CANCELLED);
  EXPECT_TRUE(events_.empty());
}

TEST_F(dialog, nothing_keeps_it_from_being_cancelled) {
  add_ok_cancel(dialog_);
  dialog_[1].enabled = false;
  then_ = [](TDialog& told, const TDialogEvent&) { told.keep_open(); };
  cancel_dialog(dialog_);
  EXPECT_EQ(dialog_.result(), DIALOG_CANCELLED);
  EXPECT_TRUE(dialog_.closed());
}

TEST_F(dialog, a_closed_dialog_is_told_nothing_more) {
  add_ok_cancel(dialog_);
  dialog_.add(check_control("Lists", false));
  accept_dialog(dialog_);
  events_.clear();
  EXPECT_FALSE(set_checked(dialog_, 2, true));
  EXPECT_FALSE(press_button(dialog_, 1));
  dialog_.tell(DIALOG_TICK);
  cancel_dialog(dialog_);
  EXPECT_TRUE(events_.empty());
  EXPECT_EQ(dialog_.result(), 0);
}

TEST_F(dialog, a_double_click_on_a_list_is_ok) {
  dialog_.add(list_control("Item:", {"a", "b"}, 1));
  add_ok_cancel(dialog_);
  EXPECT_TRUE(activate_row(dialog_, 0));
  ASSERT_EQ(events_.size(), 2u);
  EXPECT_EQ(events_[0].kind, CONTROL_ACTIVATED);
  EXPECT_EQ(events_[0].control, 0);
  EXPECT_EQ(events_[1].control, 1);
  EXPECT_EQ(dialog_.result(), 0);
}

TEST_F(dialog, a_double_click_that_the_procedure_keeps_to_itself_is_not_ok) {
  dialog_.add(list_control("Item:", {"a", "b"}, 1));
  add_ok_cancel(dialog_);
  then_ = [](TDialog& told, const TDialogEvent&) { told.keep_open(); };
  activate_row(dialog_, 0);
  EXPECT_FALSE(dialog_.closed());
}

TEST_F(dialog, a_double_click_on_a_table_only_tells) {
  dialog_.add(table_control("", {{"n", 30}}, {"1", "2"}));
  add_ok_cancel(dialog_);
  EXPECT_TRUE(activate_row(dialog_, 0));
  expect_told(events_, CONTROL_ACTIVATED, 0);
  EXPECT_FALSE(dialog_.closed());
  EXPECT_FALSE(activate_row(dialog_, 1));
}

TEST_F(dialog, a_table_that_scrolls_tells_how_far) {
  dialog_.add(table_control("", {{"n", 30}}, {"1", "2"}));
  EXPECT_FALSE(scroll_rows(dialog_, 0, 3));
  dialog_[0].scrolls = true;
  EXPECT_TRUE(scroll_rows(dialog_, 0, -3));
  expect_told(events_, CONTROL_SCROLLED, 0);
  EXPECT_EQ(events_[0].rows, -3);
  EXPECT_EQ(dialog_[0].selected, 0);
  dialog_[0].enabled = false;
  EXPECT_FALSE(scroll_rows(dialog_, 0, 1));
  EXPECT_FALSE(scroll_rows(dialog_, 7, 1));
}

TEST_F(dialog, the_procedure_may_add_and_drop_controls) {
  dialog_.add(button_control("More"));
  then_ = [](TDialog& told, const TDialogEvent&) { told.controls.clear(); };
  EXPECT_TRUE(press_button(dialog_, 0));
  EXPECT_EQ(dialog_.count(), 0);
}

TEST_F(dialog, controls_are_found_by_their_label_with_or_without_its_colon) {
  dialog_.add(combo_control("Decimal Digits:", {"0", "1"}));
  dialog_.add(button_control("About"));
  EXPECT_EQ(find_control(dialog_, "Decimal Digits:"), 0);
  EXPECT_EQ(find_control(dialog_, "Decimal Digits"), 0);
  EXPECT_EQ(find_control(dialog_, "About"), 1);
  EXPECT_EQ(find_control(dialog_, "about"), -1);
  EXPECT_EQ(find_control(dialog_, "Decimal"), -1);
}

TEST_F(dialog, controls_are_found_by_their_number) {
  dialog_.add(list_control("", {"a"}));
  dialog_.add(button_control("OK"));
  EXPECT_EQ(find_control(dialog_, "#0"), 0);
  EXPECT_EQ(find_control(dialog_, "#1"), 1);
  EXPECT_EQ(find_control(dialog_, "#2"), -1);
  EXPECT_EQ(find_control(dialog_, "#-1"), -1);
  EXPECT_EQ(find_control(dialog_, "#x"), -1);
  EXPECT_EQ(find_control(dialog_, "#"), -1);
  EXPECT_EQ(find_control(dialog_, "#99999999999"), -1);
  EXPECT_EQ(find_control(dialog_, ""), -1);
}

TEST_F(dialog, among_namesakes_the_one_that_can_be_used_is_found) {
  dialog_.add(label_control("Value:"));
  dialog_.add(edit_control("Value:", ""));
  dialog_.add(edit_control("Value:", ""));
  EXPECT_EQ(find_control(dialog_, "Value"), 1);
  dialog_[1].visible = false;
  EXPECT_EQ(find_control(dialog_, "Value"), 2);
  dialog_[2].enabled = false;
  EXPECT_EQ(find_control(dialog_, "Value"), 1);
}

}  // namespace
}  // namespace zephyl
