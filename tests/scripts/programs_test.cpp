// The text programs as a shell sees them: what goes in, what comes out, and the exit status.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace {

struct TOutcome {
  std::string output;
  int status = -1;
};

// Runs a program in an empty folder with `input` as its standard input.
class programs : public ::testing::Test {
 protected:
  TOutcome run(const std::string& program, const std::string& input, const std::string& arguments = "") {
    std::ofstream(folder_ / "input") << input;
    const std::string command =
        "cd '" + folder_.string() + "' && '" + program + "' " + arguments + " <input 2>&1";
    TOutcome outcome;
    std::FILE* pipe = popen(command.c_str(), "r");
    for (int c = std::getc(pipe); c != EOF; c = std::getc(pipe)) outcome.output += static_cast<char>(c);
    outcome.status = WEXITSTATUS(pclose(pipe));
    return outcome;
  }
  TOutcome script(const std::string& input) { return run(ZEPHYL_SCRIPT, input); }
  // Its data folder is its own folder, so it runs as a copy beside the input: what another run has kept must
  // not show here.
  TOutcome console(const std::string& input) {
    const std::filesystem::path copy = folder_ / "zephyl-console";
    if (!std::filesystem::exists(copy)) std::filesystem::copy_file(ZEPHYL_CONSOLE, copy);
    return run(copy.string(), input);
  }

  const zephyl::TTemporaryFolder own_;
  const std::filesystem::path folder_ = own_.path();
};

TEST_F(programs, script_answers_and_ends_with_status_0) {
  const TOutcome outcome = script("eval 2+2\nans\n");
  EXPECT_EQ(outcome.output, "4\n4 0\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(programs, script_with_nothing_to_do_ends_with_status_0) {
  const TOutcome outcome = script("");
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(programs, script_goes_on_after_a_refusal_and_ends_with_status_1) {
  const TOutcome outcome = script("no_such_command\neval 2+2\n");
  EXPECT_EQ(outcome.output, "? unknown command no_such_command\n4\n");
  EXPECT_EQ(outcome.status, 1);
}

TEST_F(programs, script_ends_at_quit) { EXPECT_EQ(script("eval 1+1\nquit\neval 2+2\n").output, "2\n"); }

TEST_F(programs, script_obeys_a_last_line_without_an_end) { EXPECT_EQ(script("eval 2+2").output, "4\n"); }

TEST_F(programs, script_skips_blank_lines_and_comments) {
  EXPECT_EQ(script("\n   \n# eval 1+1\neval 2+2\n").output, "4\n");
}

TEST_F(programs, script_takes_line_ends_of_other_systems) { EXPECT_EQ(script("eval 2+2\r\n").output, "4\n"); }

TEST_F(programs, script_takes_the_folder_before_other_commands_only) {
  EXPECT_EQ(script("# first\nfolder .\nerror\n").output, "none\n");
  EXPECT_EQ(script("error\nfolder .\n").output,
            "none\n? the folder can only be set before the first other command\n");
}

TEST_F(programs, script_writes_the_screen_as_a_png) {
  script("png screen.png\n");
  std::ifstream file(folder_ / "screen.png", std::ios::binary);
  char signature[8] = "";
  file.read(signature, sizeof signature);
  EXPECT_EQ(std::string(signature, 8), std::string("\x89PNG\r\n\x1A\n", 8));
}

TEST_F(programs, console_prints_a_result_a_line) {
  const TOutcome outcome = console("2+2\n1/0\n\n2^10\n");
  EXPECT_EQ(outcome.output, "4\nDivision by Zero\n1024\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(programs, console_goes_on_with_the_last_answer) {
  EXPECT_EQ(console("2+3\n*10\nAns^2\n").output, "5\n50\n2500\n");
}

TEST_F(programs, console_keeps_the_answer_through_an_error) {
  EXPECT_EQ(console("5\n1/0\n+1\n").output, "5\nDivision by Zero\n6\n");
}

TEST_F(programs, console_keeps_memories_between_lines) {
  EXPECT_EQ(console("7->A\nA*A\n").output, "7\n49\n");
}

TEST_F(programs, console_prints_lists_in_full) { EXPECT_EQ(console("{1,2,3}^(2)\n").output, "{1, 4, 9}\n"); }

TEST_F(programs, console_prints_strings_between_quotes) {
  EXPECT_EQ(console("\"abc\"\n").output, "\"abc\"\n");
}

TEST_F(programs, console_says_what_it_cannot_read) {
  EXPECT_EQ(console("2+?\n2+2\n").output, "cannot read '?' at column 3\n4\n");
}

TEST_F(programs, console_ends_at_quit) { EXPECT_EQ(console("1+1\nquit\n2+2\n").output, "2\n"); }

TEST_F(programs, console_helps) { EXPECT_NE(console("help\n").output.find("quit"), std::string::npos); }

// Each of them, the window too: it answers these before it asks for a display.
const std::vector<std::string> PROGRAMS = {ZEPHYL_SCRIPT, ZEPHYL_CONSOLE, ZEPHYL_WINDOW_PROGRAM};

std::string name_of(const std::string& program) { return std::filesystem::path(program).filename(); }

TEST_F(programs, each_tells_its_version) {
  for (const std::string& program : PROGRAMS) {
    if (program.empty()) continue;
    const TOutcome outcome = run(program, "2+2\n", "--version");
    EXPECT_EQ(outcome.output, name_of(program) + " 2.7A\n");
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST_F(programs, each_tells_its_options) {
  for (const std::string& program : PROGRAMS) {
    if (program.empty()) continue;
    const TOutcome outcome = run(program, "", "--help");
    EXPECT_NE(outcome.output.find("\nusage: " + name_of(program) + " [--version] [--help]"),
              std::string::npos);
    EXPECT_EQ(outcome.status, 0);
  }
}

TEST_F(programs, an_argument_that_is_none_of_theirs_is_refused) {
  for (const std::string program : {ZEPHYL_SCRIPT, ZEPHYL_CONSOLE}) {
    for (const std::string argument : {"--no-such-option", "file.state", "-- --version"}) {
      const TOutcome outcome = run(program, "2+2\n", argument);
      EXPECT_EQ(outcome.output.find(name_of(program) + ": unknown argument "), 0u) << outcome.output;
      EXPECT_EQ(outcome.status, 2);
    }
  }
  if (std::string(ZEPHYL_WINDOW_PROGRAM).empty()) return;
  const TOutcome window =
      run("env' 'QT_QPA_PLATFORM=offscreen' '" ZEPHYL_WINDOW_PROGRAM, "", "--no-such-option");
  EXPECT_NE(window.output.find("zephyl: unknown argument --no-such-option"), std::string::npos)
      << window.output;
  EXPECT_EQ(window.status, 2);
}

}  // namespace
