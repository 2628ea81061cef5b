// The runner of the manual's examples notices what doesn't hold, and says where it stands.

#include "manual/manual_page.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace zephyl {

namespace {

class manual_pages : public ::testing::Test {
 protected:
  TManualPage page(const std::string& text) {
    std::ofstream(path_) << text;
    return read_manual_page(path_);
  }
  // What the runner prints for a page of one block with these lines, the first of which is line 2.
  std::string complaints(const std::string& lines) {
    const TManualPage written = page("```zephyl\n" + lines + "```\n");
    ::testing::internal::CaptureStdout();
    const int failing = count_failing_examples("page.md", written.sessions.at(0));
    const std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(failing == 0, printed.empty());
    return printed;
  }

  const TTemporaryFolder folder_;
  const std::string path_ = (folder_.path() / "page.md").string();
};

TEST_F(manual_pages, examples_that_hold_are_silent) {
  EXPECT_EQ(complaints("> 2+3*4\n14\n> 1/0\nerror: Division by Zero\n> 7->A\n$ value 10\n7 0\n"), "");
}

TEST_F(manual_pages, another_result_is_told_with_page_and_line) {
  EXPECT_EQ(complaints("> 1+1\n2\n\n> 2+2\n5\n"),
            "page.md:5: > 2+2\n  the page says 5\n  the calculator shows 4\n");
}

TEST_F(manual_pages, an_error_that_the_page_does_not_tell_fails) { EXPECT_NE(complaints("> 1/0\n"), ""); }

TEST_F(manual_pages, a_message_written_as_a_result_fails) {
  EXPECT_NE(complaints("> 1/0\nDivision by Zero\n"), "");
}

TEST_F(manual_pages, another_error_than_told_fails) { EXPECT_NE(complaints("> 1/0\nerror: Overflow\n"), ""); }

TEST_F(manual_pages, a_result_where_an_error_is_told_fails) {
  EXPECT_NE(complaints("> 1/2\nerror: Division by Zero\n"), "");
}

TEST_F(manual_pages, an_entry_that_cannot_be_read_fails) { EXPECT_NE(complaints("> 2+?\n"), ""); }

TEST_F(manual_pages, a_command_must_answer_as_told) {
  EXPECT_EQ(complaints("$ value 10\n1 0\n"),
            "page.md:2: $ value 10\n  the page says 1 0\n  the calculator shows 0 0\n");
}

TEST_F(manual_pages, a_block_begins_a_session_and_a_continued_one_goes_on) {
  const TManualPage read =
      page("text\n```zephyl\n> 1\n```\n```zephyl continued\n> 2\n```\n```zephyl\n> 3\n```\n```\n> 4\n```\n");
  EXPECT_TRUE(read.faults.empty());
  ASSERT_EQ(read.sessions.size(), 2u);
  EXPECT_EQ(read.sessions[0].size(), 2u);
  EXPECT_EQ(read.sessions[0][1].line, 6);
  EXPECT_EQ(read.sessions[1].size(), 1u);
}

TEST_F(manual_pages, a_picture_must_be_the_one_that_is_kept) {
  EXPECT_NE(complaints("$ png never-kept.png\n").find("there is no picture"), std::string::npos);
  // A picture of another page: the drawing screen, where this one shows the calculator.
  EXPECT_NE(complaints("$ png drawing.png\n").find("the picture is another"), std::string::npos);
}

TEST_F(manual_pages, what_cannot_be_read_is_told_with_its_line) {
  EXPECT_EQ(page("```zephyl\n14\n```\n").faults.at(0), path_ + ":2: an answer without an entry");
  EXPECT_EQ(page("```zephyl contd\n```\n").faults.at(0),
            path_ + ":1: no such kind of block: ```zephyl contd");
  EXPECT_EQ(page("```zephyl continued\n```\n").faults.at(0), path_ + ":1: no block to continue");
  EXPECT_EQ(page("```zephyl\n> 1\n").faults.at(0), path_ + ":2: the block is not closed");
}

}  // namespace

}  // namespace zephyl
