#include "platform/desktop/clipboard.h"

#include "engine/errors.h"
#include "platform_desktop/desktop.h"

using namespace zephyl;

TEST_F(desktop, a_result_is_copied_as_plain_text) {
  paste("1.5e-12/3");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "5e-13");
}

TEST_F(desktop, an_empty_result_line_copies_nothing) {
  type("2");
  EXPECT_EQ(copied(), "nothing was copied");
}

TEST_F(desktop, an_error_is_copied_as_its_words) {
  type("1/0");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "Division by Zero");
}

TEST_F(desktop, a_pasted_expression_goes_in_at_the_cursor) {
  type("13");
  press(Qt::Key_Left);
  paste("sin(2)*");
  EXPECT_EQ(entry(), "1sin(2)*3");
}

TEST_F(desktop, a_pasted_expression_is_evaluated_like_a_typed_one) {
  paste(" 2+6/3\n");
  press(Qt::Key_Return);
  EXPECT_EQ(copied(), "4");
}

TEST_F(desktop, what_can_not_be_read_is_told_in_a_box) {
  type("7");
  const TBox box = box_of([this] { paste("2+?3"); });
  EXPECT_TRUE(box.opened);
  EXPECT_TRUE(box.warns);
  EXPECT_EQ(box.text, "cannot read '?3' at column 3");
  EXPECT_EQ(entry(), "7");
}

TEST_F(desktop, signs_of_other_alphabets_are_shown_as_they_are) {
  const TBox box = box_of([this] { paste(QString::fromUtf8("2+\u4e09")); });
  EXPECT_TRUE(box.text.contains(QString::fromUtf8("\u4e09"))) << box.text.toStdString();
}

TEST_F(desktop, text_that_looks_like_markup_is_shown_as_it_is) {
  const TBox box = box_of([this] { platform_->show_message("1 <b>2</b>", "Limit"); });
  EXPECT_EQ(box.title, "Limit");
  EXPECT_EQ(box.text, "1 <b>2</b>");
}

TEST_F(desktop, an_empty_clipboard_pastes_nothing) {
  const TBox box = box_of([this] { paste("  \n"); });
  EXPECT_FALSE(box.opened);
  EXPECT_EQ(entry(), "");
}

TEST_F(desktop, a_paste_while_an_error_stands_is_ignored_as_keys_are) {
  type("1/0");
  press(Qt::Key_Return);
  const TBox box = box_of([this] { paste("5"); });
  EXPECT_FALSE(box.opened);
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(entry(), "1/0");
}

TEST(typed_text, typographic_signs_become_typed_ones) {
  EXPECT_EQ(typed_text(QString::fromUtf8("6\u00d77\u00f72\u22121")), "6*7/2-1");
  EXPECT_EQ(typed_text(QString::fromUtf8("2\u00b7\u03c0")), "2*(pi)");
}

TEST(typed_text, blanks_and_line_ends_around_it_go) { EXPECT_EQ(typed_text(" \t2 + 3\r\n"), "2 + 3"); }
