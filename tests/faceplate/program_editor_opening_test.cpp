// Into the program editor and out of it: its dialog, what can't be opened, and what is saved.

#include <algorithm>
#include <cstring>

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/modes.h"
#include "faceplate/program_editor.h"
#include "programs/editor.h"
#include "programs/program.h"

namespace zephyl {
namespace {

constexpr const char* LATER =
    "Program Error | The program requires a more recent version of Zephyl in order to load.";

class opening_programs : public program_editor {
 protected:
  // What the dialog opens on; it is cancelled.
  struct TOpening {
    TListing names;
    std::string name, action, type;
  };
  TOpening opening() {
    TOpening seen;
    answer([&seen](TDialog& dialog) {
      EXPECT_EQ(dialog.title, "Select Program");
      const TControl& names = dialog[find_control(dialog, "Program Name")];
      seen.names = names.rows;
      seen.name = selected_text(names);
      seen.action = selected_text(dialog[find_control(dialog, "Action")]);
      seen.type = selected_text(dialog[find_control(dialog, "Program Type")]);
    });
    press_tab(TAB_PROGRAMS);
    return seen;
  }
  void expect_open(const std::string& name, const TListing& lines) {
    EXPECT_EQ(state.calcMode, PROGRAM_EDIT_MODE);
    EXPECT_EQ(platform_.title, name);
    EXPECT_STREQ(program.name, name.c_str());
    EXPECT_EQ(listing(), lines);
    EXPECT_FALSE(errors.error_flag);
  }
};

TEST_F(opening_programs, edit_shows_the_program_and_its_name) {
  write_program("One", {"1", "stop"});
  edit("One");
  expect_open("One", {"1", "stop"});
}

TEST_F(opening_programs, an_editor_left_is_found_where_it_was) {
  write_program("One", {"1", "2", "3", "4"});
  edit("One");
  tap_keys({3, 3});
  leave();
  EXPECT_EQ(state.calcMode, COMP_MODE);
  edit("One");
  EXPECT_EQ(program.cursor, 2);
}

TEST_F(opening_programs, a_new_program_is_empty_and_a_file_at_once) {
  write_program("One", {"1"});
  edit("One");
  make("Two");
  expect_open("Two", {});
  EXPECT_EQ(file_of("Two"), "N: Two\r\nV: 2.7A\r\n");
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 33,\r\n");
}

TEST_F(opening_programs, a_new_name_is_asked_for_and_may_be_cancelled) {
  write_program("One", {"1"});
  edit("One");
  choose(NEW_PROGRAM);
  EXPECT_TRUE(state.alpha_active);
  type("Two\x1B");
  EXPECT_FALSE(state.alpha_active);
  expect_open("One", {"1"});
  EXPECT_EQ(file_of("Two"), "(no file)");
}

TEST_F(opening_programs, a_name_in_use_is_refused_and_can_be_changed) {
  write_program("One", {"1"});
  make("One");
  EXPECT_EQ(message(), "Error | Program name in use");
  EXPECT_TRUE(state.alpha_active);
  type("1\r");
  expect_open("One1", {});
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 11\r\nE: 33,\r\n");
  choose(COPY_PROGRAM, "One");
  type("One1\r");
  EXPECT_EQ(message(), "Error | Program name in use");
  EXPECT_TRUE(state.alpha_active);
  type("\x1B");
  expect_open("One1", {});
}

TEST_F(opening_programs, without_programs_ok_is_cancel_but_for_a_new_one) {
  EXPECT_EQ(opening().names, TListing{"(Found no Custom Programs)"});
  for (const TProgramAction action : {EDIT_PROGRAM, COPY_PROGRAM, DELETE_PROGRAM}) {
    choose(action);
    EXPECT_EQ(state.calcMode, COMP_MODE) << action;
    EXPECT_FALSE(state.alpha_active) << action;
    EXPECT_TRUE(platform_.questions.empty()) << action;
  }
  EXPECT_EQ(opening().action, "Edit Program");
  make("First");
  expect_open("First", {});
}

TEST_F(opening_programs, a_folder_that_is_not_there_is_made) {
  platform_.folder = folder_.file("programs/deeper");
  make_file(folder_.file("programs/deeper.txt"), "");
  EXPECT_EQ(opening().names, TListing{"(Found no Custom Programs)"});
}

TEST_F(opening_programs, the_dialog_opens_where_it_was_left) {
  write_program("One", {"1"});
  write_program("Two", {"2"});
  EXPECT_EQ(opening().name, "One");
  choose(COPY_PROGRAM, "Two");
  type("\x1B");
  EXPECT_EQ(opening().name, "Two");
  EXPECT_EQ(opening().action, "Copy Program");
  EXPECT_EQ(opening().type, "Custom Program");
  choose(EDIT_PROGRAM, "Prime Factors", true);
  EXPECT_EQ(opening().name, "Prime Factors");
  EXPECT_EQ(opening().type, "Built-in Program");
  restart(folder_.path());
  EXPECT_EQ(opening().name, "One");
  EXPECT_EQ(opening().action, "Edit Program");
}

TEST_F(opening_programs, functions_are_listed_with_their_arguments) {
  write_program("area", {"func(a,b)", "a*b"});
  write_program("Plain", {"1"});
  EXPECT_EQ(opening().names, (TListing{"area(val1, val2)", "Plain"}));
  edit("area(");
  expect_open("area", {"func(a,b)", "a*b"});
}

// --- Copies

TEST_F(opening_programs, a_copy_has_a_name_of_its_own) {
  write_program("One", {"1", "stop"});
  choose(COPY_PROGRAM, "One");
  type("Other\r");
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(file_of("Other"), "N: Other\r\nV: 2.7A\r\nI: 11\r\nE: 33,\r\nI: 12\r\n");
  edit("Other");
  expect_open("Other", {"1", "stop"});
}

TEST_F(opening_programs, a_copy_made_in_the_editor_is_edited) {
  write_program("One", {"1"});
  write_program("Two", {"2"});
  edit("One");
  tap_key(17);
  choose(COPY_PROGRAM, "Two");
  type("Three\r");
  expect_open("Three", {"2"});
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 12\r\nI: 11\r\nE: 33,\r\n");
}

TEST_F(opening_programs, the_copy_of_a_built_in_program_can_be_edited) {
  choose(COPY_PROGRAM, "Volume of Cylinder", true);
  type("Mine\r");
  edit("Mine");
  EXPECT_EQ(program.statement_count, 5);
  EXPECT_FALSE(program.built_in);
  tap_keys({3, 3, 17});
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(program.statement_count, 6);
  EXPECT_EQ(std::string(program.description).substr(0, 16), "Given the radius");
}

// --- Deleting

TEST_F(opening_programs, deleting_asks) {
  write_program("One", {"1"});
  platform_.answer = false;
  choose(DELETE_PROGRAM, "One");
  EXPECT_EQ(platform_.questions, TListing{"Delete Program? | Delete program: One?"});
  EXPECT_NE(file_of("One"), "(no file)");
  platform_.answer = true;
  choose(DELETE_PROGRAM, "One");
  EXPECT_EQ(file_of("One"), "(no file)");
}

TEST_F(opening_programs, a_built_in_program_is_not_deleted) {
  choose(DELETE_PROGRAM, "Prime Factors", true);
  EXPECT_EQ(message(), "Note | A built-in program can't be deleted");
  EXPECT_TRUE(platform_.questions.empty());
}

TEST_F(opening_programs, the_open_program_closes_when_it_is_deleted) {
  write_program("One", {"1"});
  edit("One");
  choose(DELETE_PROGRAM, "One");
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(program.statement_count, 0);
  on_stop();
  EXPECT_EQ(file_of("One"), "(no file)");
}

TEST_F(opening_programs, the_open_program_stays_when_another_is_deleted) {
  write_program("One", {"1"});
  write_program("Two", {"2"});
  edit("One");
  choose(DELETE_PROGRAM, "Two");
  expect_open("One", {"1"});
  tap_key(17);
  leave();
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 12\r\nI: 11\r\nE: 33,\r\n");
}

// A program of one's own may have the name of a built-in one.
TEST_F(opening_programs, an_open_built_in_program_is_not_the_custom_one_of_its_name) {
  write_program("Prime Factors", {"1"});
  choose(EDIT_PROGRAM, "Prime Factors", true);
  const int count = program.statement_count;
  choose(DELETE_PROGRAM, "Prime Factors");
  EXPECT_EQ(state.calcMode, PROGRAM_EDIT_MODE);
  EXPECT_EQ(program.statement_count, count);
}

// --- Programs that can't be read

class unreadable_programs : public opening_programs {
 protected:
  void SetUp() override {
    write_file_of("Broken", "N: Broken\r\nV: 2.7A\r\nX: 1\r\n");
    write_file_of("Later", "N: Later\r\nV: 2.8\r\nI: 12\r\n");
    write_file_of("Nothing", "");
    write_program("Mine", {"1", "2"});
  }
  const TListing names = {"Broken", "Later", "Nothing"};
  static std::string box(const std::string& name) {
    return name == "Later" ? LATER : "Program Error | The program can't be read: " + name;
  }
};

TEST_F(unreadable_programs, are_not_edited) {
  for (const std::string& name : names) {
    edit(name);
    EXPECT_EQ(message(), box(name));
    EXPECT_EQ(message(), "none");
    EXPECT_EQ(state.calcMode, COMP_MODE) << name;
    EXPECT_FALSE(errors.error_flag) << name;
  }
  edit("Mine");
  expect_open("Mine", {"1", "2"});
}

TEST_F(unreadable_programs, leave_the_open_program_open) {
  edit("Mine");
  tap_keys({3, 17});
  for (const std::string& name : names) {
    edit(name);
    EXPECT_EQ(message(), box(name));
    expect_open("Mine", {"1", "stop", "2"});
    EXPECT_EQ(program.cursor, 2) << name;
  }
  tap_key(17);
  leave();
  EXPECT_EQ(file_of("Mine"),
            "N: Mine\r\nV: 2.7A\r\nI: 11\r\nE: 33,\r\nI: 12\r\nI: 12\r\nI: 11\r\nE: 34,\r\n");
}

TEST_F(unreadable_programs, are_not_copied) {
  edit("Mine");
  tap_key(17);
  for (const std::string& name : names) {
    choose(COPY_PROGRAM, name);
    type("Copy\r");
    EXPECT_EQ(message(), box(name));
    EXPECT_EQ(file_of("Copy"), "(no file)") << name;
    EXPECT_FALSE(state.alpha_active) << name;
    expect_open("Mine", {"stop", "1", "2"});
  }
}

TEST_F(unreadable_programs, are_not_run_from_the_editor) {
  write_program("f", {"func(a)", "a"});
  edit("f(");
  tap_keys({3, 3, 17});
  for (const std::string name : {"Broken", "Later"}) {
    answer([name](TDialog& dialog) {
      const TListing& rows = dialog[0].rows;
      choose_row(dialog, 0, static_cast<int>(std::find(rows.begin(), rows.end(), name) - rows.begin()));
      accept_dialog(dialog);
    });
    tap_key(0);
    EXPECT_EQ(message(), box(name));
    expect_open("f", {"func(a)", "a", "stop"});
  }
  leave();
  EXPECT_EQ(file_of("f"), "N: f\r\nV: 2.7A\r\nI: 17\r\nT: 2\r\nI: 11\r\nE: 2036,\r\nI: 12\r\n");
}

TEST_F(unreadable_programs, can_be_deleted) {
  choose(DELETE_PROGRAM, "Broken");
  EXPECT_EQ(file_of("Broken"), "(no file)");
}

// --- Leaving

TEST_F(opening_programs, every_tab_saves) {
  for (int tab = 0; tab < 6; ++tab) {
    const std::string name = "P" + std::to_string(tab);
    write_program(name, {"1"});
    edit(name);
    tap_key(17);
    tap_key(EDITOR_FIRST_TAB + tab);
    EXPECT_EQ(file_of(name), "N: " + name + "\r\nV: 2.7A\r\nI: 12\r\nI: 11\r\nE: 33,\r\n");
    set_mode(COMP_MODE, false);
  }
}

TEST_F(opening_programs, the_end_of_the_calculator_saves) {
  write_program("One", {"1"});
  edit("One");
  tap_key(17);
  on_stop();
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 12\r\nI: 11\r\nE: 33,\r\n");
}

TEST_F(opening_programs, the_run_key_saves_and_runs) {
  make("One");
  answer_rows({0});
  tap_key(11);
  tap_key(0);
  EXPECT_TRUE(state.program_running);
  EXPECT_EQ(file_of("One"), "N: One\r\nV: 2.7A\r\nI: 10\r\n");
  while (on_idle()) {
  }
  EXPECT_STREQ(state.result_text, "Ans=0");
}

TEST_F(opening_programs, the_run_key_asks_where_there_is_nothing_to_run) {
  write_program("One", {"1"});
  make("Empty");
  platform_.dialogs.clear();
  tap_key(0);
  EXPECT_EQ(platform_.dialogs, TListing{"156 Select Program to Run"});
  expect_open("Empty", {});
}

TEST_F(opening_programs, a_running_program_keeps_the_editor_shut) {
  write_program("One", {"in A"});
  edit("One");
  tap_key(0);
  platform_.dialogs.clear();
  press_tab(TAB_PROGRAMS);
  EXPECT_TRUE(platform_.dialogs.empty());
}

}  // namespace
}  // namespace zephyl
