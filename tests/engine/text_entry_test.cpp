// Text into the entry line: pasted, inserted, entered whole.

#include "engine/text_entry.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class text_entry : public calculator {
 protected:
  // The reason, or "" if the text went in.
  std::string insert(const char* text) {
    char reason[200] = "";
    return insert_text(text, reason, sizeof reason) ? "" : reason;
  }
  std::string enter(const char* text) {
    char reason[200] = "";
    return enter_text(text, reason, sizeof reason) ? "" : reason;
  }
};

TEST_F(text_entry, inserts_at_the_cursor) {
  EXPECT_EQ(enter("13"), "");
  cursor_left(false);
  EXPECT_EQ(insert("+2*"), "");
  EXPECT_EQ(entry(), "1+2*3");
  EXPECT_EQ(entry_line.cursor, 4);
}

TEST_F(text_entry, insertion_after_a_result_begins_anew) {
  eval("6");
  EXPECT_EQ(insert("2+2"), "");
  EXPECT_EQ(entry(), "2+2");
}

TEST_F(text_entry, inserted_operator_goes_on_with_the_answer) {
  eval("6");
  EXPECT_EQ(insert("*2"), "");
  EXPECT_EQ(entry(), "(Ans)*2");
}

TEST_F(text_entry, insertion_takes_the_result_off_the_display) {
  eval("6");
  EXPECT_EQ(insert("2"), "");
  EXPECT_STREQ(state.result_text, "");
}

TEST_F(text_entry, unreadable_text_inserts_nothing) {
  enter("12");
  EXPECT_EQ(insert("+3+?"), "cannot read '?' at column 4");
  EXPECT_EQ(entry(), "12");
}

TEST_F(text_entry, insertion_that_does_not_fit_inserts_nothing) {
  enter(std::string(97, '1').c_str());
  EXPECT_EQ(insert("+22"), "the line is full");
  EXPECT_EQ(entry_line.expression.count, 97);
  EXPECT_EQ(insert("+2"), "");
  EXPECT_EQ(entry_line.expression.count, 99);
}

TEST_F(text_entry, nothing_is_inserted_while_an_error_stands) {
  eval("1/0");
  EXPECT_EQ(insert("2"), "an error stands");
  EXPECT_EQ(entry(), "1/0");
  EXPECT_TRUE(errors.error_flag);
}

TEST_F(text_entry, nothing_is_inserted_while_a_program_runs_but_at_its_prompt) {
  state.program_running = true;
  EXPECT_EQ(insert("2"), "a program runs");
  state.at_prompt = true;
  EXPECT_EQ(insert("2"), "");
  EXPECT_EQ(entry(), "2");
}

TEST_F(text_entry, entering_replaces_the_line) {
  enter("1+1");
  EXPECT_EQ(enter("2+2"), "");
  EXPECT_EQ(entry(), "2+2");
  EXPECT_EQ(enter(""), "");
  EXPECT_EQ(entry(), "");
}

TEST_F(text_entry, entering_puts_no_answer_in_front_of_an_operator) {
  eval("6");
  EXPECT_EQ(enter("*2"), "");
  EXPECT_EQ(entry(), "*2");
}

TEST_F(text_entry, entering_clears_an_error_and_keeps_the_answer) {
  eval("6");
  eval("1/0");
  EXPECT_EQ(enter("2"), "");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(answers.ans.re, 6.0);
}

TEST_F(text_entry, entering_what_cannot_be_read_changes_nothing) {
  eval("1/0");
  EXPECT_EQ(enter("?"), "cannot read '?' at column 1");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(entry(), "1/0");
}

TEST_F(text_entry, pasting_says_what_it_cannot_read) {
  paste_text("2+?");
  EXPECT_EQ(message(), "Paste | cannot read '?' at column 3");
  EXPECT_EQ(entry(), "");
}

TEST_F(text_entry, pasting_too_much_shows_the_limit_note) {
  enter(std::string(99, '1').c_str());
  paste_text("2");
  EXPECT_EQ(message(), "Limit | Reached expression size limit");
  EXPECT_EQ(message(), "none");
}

TEST_F(text_entry, pasting_is_ignored_while_an_error_stands) {
  eval("1/0");
  paste_text("2+?");
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(entry(), "1/0");
}

}  // namespace
}  // namespace zephyl
