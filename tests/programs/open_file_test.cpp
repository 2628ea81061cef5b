// State files and programs that the user opens from outside of the calculator.

#include "programs/open_file.h"

#include <filesystem>

#include "engine/errors.h"
#include "engine/state.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"
#include "support/program_listing.h"

namespace zephyl {
namespace {

const std::string ONE = "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 33,3010,\r\nI: 12\r\n";
const std::string ANOTHER = "N: One\r\nV: 2.7A\r\nI: 12\r\n";

// The files to open lie in a folder beside that of the programs.
class opened_files : public programs {
 protected:
  std::string outside(const std::string& name, const std::string& content) {
    const std::string path = folder_.file(name);
    make_file(path, content);
    return path;
  }
  void open(const std::string& name, const std::string& content) { open_file(outside(name, content)); }
  std::string kept(const std::string& program_name) { return file_content(program_path_of(program_name)); }
};

TEST_F(opened_files, a_state_file_is_loaded) {
  eval("7->B");
  open("monday.state", "V: 2.7A\r\nR: 10:1.5\r\n");
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(eval("A"), "1.5");
  EXPECT_EQ(eval("B"), "7");
}

TEST_F(opened_files, the_extension_may_be_in_capitals) {
  open("MONDAY.STATE", "V: 2.7A\r\nR: 10:1.5\r\n");
  EXPECT_EQ(eval("A"), "1.5");
}

TEST_F(opened_files, a_state_of_a_later_release_is_refused) {
  open("monday.state", "V: 2.8\r\nR: 10:1.5\r\n");
  EXPECT_EQ(message(), "Error | The state file requires a more recent revision of Zephyl in order to load.");
  EXPECT_EQ(eval("A"), "0");
}

TEST_F(opened_files, a_program_under_edit_is_saved_before) {
  make_file(program_path_of("One"), ONE);
  ASSERT_EQ(load_program("One", false), 2);
  state.calcMode = PROGRAM_EDIT_MODE;
  program.statement_count = 1;
  open("monday.state", "V: 2.7A\r\nR: 10:1.5\r\nO: 19:1\r\n");
  EXPECT_EQ(kept("One"), "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 33,3010,\r\n");
}

TEST_F(opened_files, the_program_under_edit_shows_anew) {
  make_file(program_path_of("One"), ONE);
  ASSERT_EQ(load_program("One", false), 2);
  state.calcMode = PROGRAM_EDIT_MODE;
  platform_.answer = true;
  platform_.paint_requested = false;
  open("One.prgm", ANOTHER);
  EXPECT_EQ(program.statement_count, 1);
  EXPECT_TRUE(platform_.paint_requested);
}

TEST_F(opened_files, are_not_taken_while_a_text_is_written) {
  state.alpha_active = true;
  open("monday.state", "V: 2.7A\r\nR: 10:1.5\r\n");
  state.alpha_active = false;
  EXPECT_EQ(eval("A"), "0");
}

TEST_F(opened_files, what_is_no_state_changes_nothing) {
  eval("2+3");
  for (const std::string content : {"", "\r\nV: 2.7A\r\n", "x\r\n", "\x89PNG\r\n\x1A\n", "Dear Sir,\r\n"}) {
    open("monday.state", content);
    EXPECT_EQ(message(), "Error | \"monday.state\" is no state file.");
    EXPECT_EQ(entry(), "2+3");
  }
}

TEST_F(opened_files, a_program_is_added_byte_by_byte) {
  open("One.prgm", ONE);
  EXPECT_EQ(message(), "Note | The program \"One\" is now among the programs.");
  EXPECT_EQ(kept("One"), ONE);
  EXPECT_EQ(runnable_names(), std::vector<std::string>{"One"});
}

TEST_F(opened_files, the_name_is_that_of_the_file) {
  open("Two.prgm", ONE);
  EXPECT_EQ(kept("Two"), ONE);
}

TEST_F(opened_files, a_separator_in_a_name_stands_in_the_file_as_a_bar) {
  open("ft|min.prgm", ONE);
  EXPECT_EQ(message(), "Note | The program \"ft/min\" is now among the programs.");
  EXPECT_TRUE(program_exists("ft/min"));
}

TEST_F(opened_files, a_program_that_is_there_is_replaced_if_the_user_says_so) {
  write_file_of("One", ONE);
  open("One.prgm", ANOTHER);
  EXPECT_EQ(platform_.questions,
            std::vector<std::string>{"Replace Program? | There is a program \"One\" already. Replace it?"});
  EXPECT_EQ(kept("One"), ANOTHER);
}

TEST_F(opened_files, a_program_that_is_there_stays_if_the_user_says_no) {
  write_file_of("One", ONE);
  platform_.answer = false;
  open("One.prgm", ANOTHER);
  EXPECT_EQ(platform_.questions.size(), 1u);
  EXPECT_EQ(kept("One"), ONE);
  EXPECT_EQ(message(), "none");
}

TEST_F(opened_files, the_same_program_is_there_already) {
  write_file_of("One", ONE);
  open("One.prgm", ONE);
  EXPECT_EQ(message(), "Note | The program \"One\" is there already.");
  EXPECT_TRUE(platform_.questions.empty());
}

TEST_F(opened_files, the_users_own_file_may_be_opened) {
  write_file_of("One", ONE);
  open_file(program_path_of("One"));
  EXPECT_EQ(message(), "Note | The program \"One\" is there already.");
  EXPECT_EQ(kept("One"), ONE);
}

TEST_F(opened_files, what_is_no_program_is_not_added) {
  for (const std::string content : {"", "\r\n", "hello\r\n", "N: One\r\nV: 2.7A\r\nX: 1\r\n",
                                    "\x7F"
                                    "ELF"}) {
    open("One.prgm", content);
    EXPECT_EQ(message(), "Error | \"One.prgm\" is no program.");
    EXPECT_FALSE(program_exists("One"));
  }
}

TEST_F(opened_files, a_program_of_a_later_release_is_refused_without_an_error_that_stays) {
  open("One.prgm", "N: One\r\nV: 2.8\r\nI: 12\r\n");
  EXPECT_EQ(message(),
            "Program Error | The program requires a more recent version of Zephyl in order to load.");
  EXPECT_EQ(message(), "none");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_FALSE(program_exists("One"));
}

TEST_F(opened_files, a_name_that_no_statement_can_hold_is_refused) {
  const std::string longest(24, 'a'), longer(25, 'a');
  open(longer + ".prgm", ONE);
  EXPECT_EQ(
      message(),
      "Error | \"" + longer +
          "\" can't be the name of a program: give the file one of up to 24 letters, digits and signs.");
  EXPECT_FALSE(program_exists(longer));
  open(longest + ".prgm", ONE);
  EXPECT_TRUE(program_exists(longest));
  for (const std::string name : {" One",
                                 "Gr\xC3\xB6\xC3\x9F"
                                 "e"}) {
    open(name + ".prgm", ONE);
    EXPECT_FALSE(program_exists(name));
  }
}

TEST_F(opened_files, a_program_that_can_not_be_written_is_told) {
  platform_.folder = "/dev/null/data";
  open("One.prgm", ONE);
  EXPECT_EQ(message(), "Error | The program \"One\" can't be written.");
}

TEST_F(opened_files, the_program_in_memory_stays) {
  write_file_of("Other", ONE);
  EXPECT_EQ(load_program("Other", false), 2);
  open("One.prgm", ANOTHER);
  EXPECT_STREQ(program.name, "Other");
  EXPECT_EQ(program.statement_count, 2);
}

TEST_F(opened_files, a_program_in_memory_that_was_replaced_is_read_again) {
  write_file_of("One", ONE);
  EXPECT_EQ(load_program("One", false), 2);
  open("One.prgm", ANOTHER);
  EXPECT_EQ(program.statement_count, 1);
  EXPECT_TRUE(save_program());
  EXPECT_EQ(kept("One"), ANOTHER);
}

TEST_F(opened_files, a_call_runs_the_new_text) {
  write_program("One", {"1->A", "out A"});
  write_program("Main", {"call One"});
  EXPECT_EQ(run_program("Main"), "A=1");
  open("One.prgm", program_file_from_listing("One", {"2->A", "out A"}));
  EXPECT_EQ(run_program("Main"), "A=2");
}

TEST_F(opened_files, another_kind_of_file_is_refused) {
  open("letter.txt", ONE);
  EXPECT_EQ(message(), "Error | \"letter.txt\" is neither a state file nor a program.");
  open("state", ONE);
  EXPECT_EQ(message(), "Error | \"state\" is neither a state file nor a program.");
}

TEST_F(opened_files, what_can_not_be_read_is_told) {
  open_file(folder_.file("none.state"));
  EXPECT_EQ(message(), "Error | \"none.state\" can't be read.");
  std::filesystem::create_directory(folder_.file("folder.prgm"));
  open_file(folder_.file("folder.prgm"));
  EXPECT_EQ(message(), "Error | \"folder.prgm\" can't be read.");
}

TEST_F(opened_files, nothing_happens_while_an_error_stands) {
  EXPECT_EQ(eval("1/0"), "Division by Zero");
  open("monday.state", "V: 2.7A\r\nR: 10:1.5\r\n");
  EXPECT_TRUE(errors.error_flag);
  EXPECT_EQ(eval("A"), "0");
}

TEST_F(opened_files, nothing_happens_while_a_program_runs) {
  write_program("Ask", {"in r, \"radius\""});
  start("Ask");
  go_on();
  open("monday.state", "V: 2.7A\r\nR: 10:1.5\r\n");
  open("One.prgm", ONE);
  EXPECT_FALSE(program_exists("One"));
  answer_with("1");
  EXPECT_EQ(eval("A"), "0");
}

}  // namespace
}  // namespace zephyl
