// Start, stop, and the dialogs in between.

#include <cstring>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "platform/events.h"
#include "programs/built_in_programs.h"
#include "programs/dialogs/select_program.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"
#include "programs/run_state.h"

namespace zephyl {

class run_key : public programs {
 protected:
  // The rows of the list of names in the next dialog, which is cancelled.
  std::vector<std::string> offered(const std::string& type = "Custom Program") {
    std::vector<std::string> rows;
    platform_.dialog_answers.push_back([&](TDialog& dialog) {
      choose_row(dialog, find_control(dialog, "Program Type"), type == "Custom Program" ? 0 : 1);
      rows = dialog[find_control(dialog, "Program Name")].rows;
    });
    run_key_pressed();
    return rows;
  }
};

TEST_F(run_key, asks_for_a_program) {
  write_program("One", {"1"});
  run_key_pressed();
  ASSERT_EQ(platform_.dialogs.size(), 1u);
  EXPECT_EQ(platform_.dialogs[0], "156 Select Program to Run");
  EXPECT_FALSE(state.program_running);
}

TEST_F(run_key, offers_programs_sorted_without_regard_to_case) {
  for (const char* name : {"beta", "Alpha", "Gamma", "alpha2", "Beta"}) write_program(name, {"1"});
  const std::vector<std::string> expected = {"Alpha", "alpha2", "Beta", "beta", "Gamma"};
  EXPECT_EQ(offered(), expected);
}

TEST_F(run_key, leaves_functions_out) {
  write_program("F", {"func(a)", "1"});
  write_program("P", {"1"});
  EXPECT_EQ(offered(), std::vector<std::string>{"P"});
  EXPECT_EQ(function_names(), std::vector<std::string>{"F"});
}

TEST_F(run_key, offers_only_program_files) {
  write_program("P", {"1"});
  make_file(folder_.file("programs/notes.txt"), "x");
  make_file(folder_.file("programs/.prgm"), "x");
  EXPECT_EQ(program_names(), std::vector<std::string>{"P"});
}

TEST_F(run_key, says_where_there_is_no_program) {
  EXPECT_EQ(offered(), std::vector<std::string>{"(Found no Custom Programs)"});
  platform_.dialog_answers.push_back(choosing("Program Name", "(Found no Custom Programs)"));
  run_key_pressed();
  EXPECT_FALSE(state.program_running);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(run_key, offers_the_built_in_programs) {
  const std::vector<std::string> names = offered("Built-in Program");
  ASSERT_EQ(names.size(), 32u);
  EXPECT_EQ(names.front(), "2 by 2 Matrix");
  EXPECT_EQ(names.back(), "Volume of Cylinder");
}

TEST_F(run_key, remembers_the_choice_but_not_a_cancelled_one) {
  write_program("One", {"1"});
  write_program("Two", {"1"});
  run_program("Two");
  const auto selected = [this] {
    std::string row;
    platform_.dialog_answers.push_back([&](TDialog& dialog) {
      const int list = find_control(dialog, "Program Name");
      row = dialog[list].rows[static_cast<std::size_t>(dialog[list].selected)];
      choose_row(dialog, list, 0);
    });
    run_key_pressed();
    return row;
  };
  EXPECT_EQ(selected(), "Two");
  EXPECT_EQ(selected(), "Two");
}

TEST_F(run_key, runs_and_tells_so) {
  write_program("One", {"1", "2"});
  start("One");
  EXPECT_TRUE(state.program_running);
  EXPECT_TRUE(program_can_be_stopped());
  EXPECT_EQ(result(), "Running...");
  EXPECT_EQ(platform_.title, "One");
  go_on();
  EXPECT_FALSE(state.program_running);
  EXPECT_FALSE(program_can_be_stopped());
  EXPECT_EQ(platform_.title, "Zephyl");
}

TEST_F(run_key, the_title_stays_that_of_the_first_program) {
  write_program("Sub", {"in A"});
  run_lines({"call Sub"});
  on_paint();
  EXPECT_EQ(platform_.title, "Test");
}

TEST_F(run_key, stops_a_program_with_its_line) {
  write_program("Endless", {"1->A", "label A", "A+1->A", "goto label A"});
  start("Endless");
  go_on(3);
  run_key_pressed();
  EXPECT_EQ(result(), "Program Stopped (line 4)");
  EXPECT_FALSE(state.program_running);
  EXPECT_EQ(memory("A"), 0);
  EXPECT_EQ(eval("2+2"), "4");
}

TEST_F(run_key, stops_at_the_end_with_the_last_line) {
  write_program("One", {"1->A", "2->A"});
  start("One");
  go_on(2);
  run_key_pressed();
  EXPECT_EQ(result(), "Program Stopped (line 2)");
}

TEST_F(run_key, stops_at_a_pause_with_the_line_of_the_pause) {
  run_lines({"5->A", "out A (p)", "6->A"});
  const int x = 20, y = 80;  // the run key
  on_pen_down(x, y);
  on_pen_up(x, y);
  EXPECT_EQ(result(), "Program Stopped (line 2)");
  EXPECT_FALSE(state.key_wait);
  EXPECT_FALSE(state.program_running);
}

TEST_F(run_key, a_stop_is_where_the_editor_goes) {
  write_program("Endless", {"1->A", "label A", "A+1->A", "goto label A"});
  start("Endless");
  go_on(3);
  run_key_pressed();
  EXPECT_EQ(program.cursor, 3);
  forget_programs();
  load_program("Endless", false);
  EXPECT_EQ(program.cursor, 3);
}

TEST_F(run_key, a_standing_error_ends_with_the_start) {
  write_program("One", {"5->A", "out A"});
  eval("1/0");
  EXPECT_EQ(run_program("One"), "A=5");
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(run_key, a_program_that_cannot_be_read_is_not_found) {
  write_file_of("Broken", "N: Broken\r\nX: 1\r\n");
  EXPECT_EQ(run_program("Broken"), "Program Not Found");
  EXPECT_EQ(message(), "Program Error | The program can't be read: Broken");
  EXPECT_FALSE(state.program_running);
  write_file_of("Later", "N: Later\r\nV: 3.0\r\n");
  EXPECT_EQ(run_program("Later"), "Program Version Error");
  EXPECT_EQ(message(),
            "Program Error | The program requires a more recent version of Zephyl in order to load.");
  EXPECT_EQ(message(), "none");
}

TEST_F(run_key, in_program_edit_a_program_that_cannot_be_read_leaves_the_open_one) {
  write_file_of("Broken", "N: Broken\r\nX: 1\r\n");
  write_file_of("Later", "N: Later\r\nV: 3.0\r\n");
  write_program("F", {"func(a)", "a"});
  load_program("F", false);
  state.calcMode = PROGRAM_EDIT_MODE;
  program.cursor = 1;
  for (const char* name : {"Broken", "Later"}) {
    start(name);
    EXPECT_NE(message(), "none");
    EXPECT_FALSE(errors.error_flag) << name;
    EXPECT_FALSE(state.program_running) << name;
    EXPECT_EQ(state.calcMode, PROGRAM_EDIT_MODE);
    EXPECT_STREQ(program.name, "F");
    EXPECT_EQ(program.statement_count, 2);
    EXPECT_EQ(program.cursor, 1);
  }
}

TEST_F(run_key, an_empty_program_runs_to_its_end) {
  write_program("Nothing", {});
  EXPECT_EQ(run_program("Nothing"), "");
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(run_key, keys_do_nothing_while_a_program_runs) {
  write_program("Endless", {"label A", "goto label A"});
  start("Endless");
  go_on(1);
  for (const char character : {'7', '+', '=', '\x1B', '\b'}) on_char(static_cast<unsigned char>(character));
  EXPECT_EQ(entry(), "");
  EXPECT_EQ(result(), "Running...");
  EXPECT_TRUE(state.program_running);
}

TEST_F(run_key, the_entry_line_comes_back_as_it_was) {
  char error[80];
  enter_text("8*8", error, sizeof error);
  on_arrow(ARROW_LEFT);
  write_program("One", {"1"});
  run_program("One");
  EXPECT_EQ(entry(), "8*8");
  EXPECT_EQ(entry_line.cursor, 2);
  EXPECT_TRUE(entry_line.cursor_shown);
  EXPECT_FALSE(state.fresh_flag);
}

TEST_F(run_key, a_result_that_stood_is_gone_and_the_answer_is_the_programs) {
  eval("3");
  write_program("One", {"5"});
  run_program("One");
  EXPECT_EQ(answers.ans.re, 5);
}

TEST_F(run_key, a_drag_halts_the_program) {
  write_program("One", {"1->A", "out A"});
  start("One");
  state.drag_in_progress = true;
  EXPECT_FALSE(on_idle());
  EXPECT_EQ(memory("A"), 0);
  state.drag_in_progress = false;
  go_on();
  EXPECT_EQ(memory("A"), 1);
}

TEST_F(run_key, ticks_count_from_the_start) {
  write_program("One", {"(tickCount)->A", "out A"});
  platform_.ticks = 5000;
  start("One");
  platform_.ticks = 5250;
  go_on();
  EXPECT_EQ(memory("A"), 250);
}

TEST_F(run_key, the_plots_pen_and_keys_are_not_watched_at_the_start) {
  eval("(plotButton)");
  EXPECT_EQ(state.plot_button, 0);
  write_program("One", {"1"});
  start("One");
  EXPECT_EQ(state.plot_button, -1);
  EXPECT_EQ(state.plot_stylus_x, undefined_value);
}

TEST_F(run_key, a_run_from_the_plot_screen_goes_to_comp) {
  state.calcMode = PLOT_MODE;
  write_program("One", {"1"});
  start("One");
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(run_key, a_run_from_another_screen_stays_there) {
  state.calcMode = STATS_MODE;
  write_program("One", {"1"});
  start("One");
  EXPECT_EQ(state.calcMode, STATS_MODE);
}

TEST_F(run_key, in_program_edit_runs_the_edited_program) {
  write_program("One", {"1->A", "out A"});
  load_program("One", false);
  state.calcMode = PROGRAM_EDIT_MODE;
  program.statements[1].var0 = 0;  // out Ans
  run_key_pressed();
  EXPECT_TRUE(platform_.dialogs.empty());
  EXPECT_EQ(state.calcMode, COMP_MODE);
  go_on();
  EXPECT_EQ(result(), "Ans=1");
  EXPECT_EQ(file_content(program_path_of("One")), "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 33,3010,\r\nI: 10\r\n");
}

TEST_F(run_key, in_program_edit_does_not_run_a_function) {
  write_program("F", {"func(a)", "a"});
  load_program("F", false);
  state.calcMode = PROGRAM_EDIT_MODE;
  run_key_pressed();
  EXPECT_EQ(platform_.dialogs.size(), 1u);
  EXPECT_FALSE(state.program_running);
}

TEST_F(run_key, stopping_the_calculator_saves_the_program_under_edit) {
  write_program("One", {"1"});
  load_program("One", false);
  program.statements[0].keys[0] = 34;
  state.calcMode = PROGRAM_EDIT_MODE;
  on_stop();
  EXPECT_EQ(file_content(program_path_of("One")), "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 34,\r\n");
}

TEST_F(run_key, calling_offers_programs_by_a_dialog_of_its_own) {
  write_program("One", {"1"});
  platform_.dialog_answers.push_back(choosing("Program Name", "One"));
  TProgramChoice choice;
  EXPECT_TRUE(select_program_to_call(choice));
  EXPECT_EQ(choice.name, "One");
  EXPECT_FALSE(choice.built_in);
  EXPECT_EQ(platform_.dialogs.back(), "161 Select Program to Call");
  EXPECT_FALSE(select_program_to_call(choice));
}

TEST_F(run_key, names_with_a_separator_are_files_too) {
  std::strcpy(program.name, "km/h");
  program.statement_count = 1;
  program.statements[0] = {};
  program.statements[0].number = STATEMENT_STOP;
  ASSERT_TRUE(save_program());
  EXPECT_EQ(program_names(), std::vector<std::string>{"km/h"});
  forget_programs();
  EXPECT_EQ(load_program("km/h", false), 1);
  EXPECT_EQ(load_program("../programs/km|h", false), -1);
}

}  // namespace zephyl
