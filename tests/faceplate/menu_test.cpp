// The menu: its rows, what they do, and when they don't.

#include "faceplate/dialogs/menu.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "faceplate/face.h"
#include "faceplate/modes.h"
#include "platform/dialog.h"

namespace zephyl {
namespace {

struct TRow {
  const char* text;
  const char* description;
};

constexpr TRow rows[] = {
    {"COMP Mode", "Standard scientific computations."},
    {"STATS Mode", "Statistical calculations."},
    {"BASE-n Mode", "Binary, octal, decimal and hexadecimal calculations."},
    {"LIST Mode", "List computations."},
    {"MATRIX Mode", "Linear algebra matrix computations."},
    {"PROG Mode", "Create and edit programs."},
    {"PLOT Mode", "Function, polar, parametric and 3D plotting."},
    {"TVM Solver", "Solve time value of money problems."},
    {"Constants", "Scientific constants."},
    {"Conversions", "Convert from one unit to another."},
    {"Periodic Table", "View the periodic table of the elements."},
    {"Plot Samples",
     "Sample plots for each plot type (function, polar, parametric, 3D cartesian, 3D cylindrical, 3D "
     "spherical)."},
    {"Stopwatch", "Time events."},
    {"View Help File", "View the help file."},
};

class menu : public face {
 protected:
  void choose(int row) {
    platform_.dialog_answers.push_front([row](TDialog& dialog) {
      EXPECT_TRUE(choose_row(dialog, 0, row));
      accept_dialog(dialog);
    });
    tap_key(47);
  }
};

TEST_F(menu, lists_modes_and_tools_with_what_they_are_for) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    EXPECT_EQ(dialog.id(), 200);
    EXPECT_EQ(dialog.title, "Menu");
    ASSERT_EQ(dialog[0].rows.size(), std::size(rows));
    const int description = find_control(dialog, "Description");
    EXPECT_EQ(dialog[description].text, rows[0].description);
    for (int row = 0; row < static_cast<int>(std::size(rows)); ++row) {
      EXPECT_EQ(dialog[0].rows[static_cast<std::size_t>(row)], rows[row].text);
      choose_row(dialog, 0, row);
      EXPECT_EQ(dialog[description].text, rows[row].description);
    }
  });
  show_menu();
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(menu, its_first_rows_are_modes) {
  const int modes[] = {COMP_MODE, STATS_MODE, BASE_MODE, LIST_MODE, MATRIX_MODE};
  for (int row = 0; row < 5; ++row) {
    state.calcMode = COMP_MODE;
    choose(row);
    EXPECT_EQ(state.calcMode, modes[row]) << "row " << row;
  }
  state.calcMode = COMP_MODE;
  choose(6);
  EXPECT_EQ(state.calcMode, PLOT_MODE);
}

TEST_F(menu, opens_where_it_was_left) {
  choose(1);
  int opened = -1;
  platform_.dialog_answers.push_back([&opened](TDialog& dialog) {
    opened = dialog[0].selected;
    choose_row(dialog, 0, 5);
    cancel_dialog(dialog);
  });
  show_menu();
  EXPECT_EQ(opened, 1);
  platform_.dialog_answers.push_back([&opened](TDialog& dialog) { opened = dialog[0].selected; });
  show_menu();
  EXPECT_EQ(opened, 1);
}

TEST_F(menu, a_double_click_is_ok) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 1);
    dialog.tell(CONTROL_ACTIVATED, 0);
  });
  show_menu();
  EXPECT_EQ(state.calcMode, STATS_MODE);
}

TEST_F(menu, cancel_does_nothing) {
  platform_.dialog_answers.push_back([](TDialog& dialog) {
    choose_row(dialog, 0, 2);
    cancel_dialog(dialog);
  });
  show_menu();
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

TEST_F(menu, an_error_shuts_all_but_three_modes_and_the_help) {
  eval("1/0");
  for (int row = 3; row <= 12; ++row) {
    platform_.dialogs.clear();
    choose(row);
    EXPECT_EQ(state.calcMode, COMP_MODE) << "row " << row;
    EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"200 Menu"}) << "row " << row;
  }
  choose(2);
  EXPECT_EQ(state.calcMode, BASE_MODE);
}

TEST_F(menu, leads_to_the_periodic_screen_from_screens_with_a_line) {
  for (const int mode : {COMP_MODE, PLOT_MODE, PROGRAM_EDIT_MODE}) {
    state.calcMode = mode;
    platform_.dialog_answers.push_back([](TDialog& dialog) {
      choose_row(dialog, 0, 10);
      accept_dialog(dialog);
    });
    show_menu();
    EXPECT_EQ(state.calcMode, PERIODIC_MODE) << "from " << mode;
  }
}

TEST_F(menu, tools_wait_for_the_end_of_a_program) {
  state.program_running = true;
  for (const int row : {7, 8, 9, 10, 12}) {
    platform_.dialogs.clear();
    choose(row);
    EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"200 Menu"}) << "row " << row;
    EXPECT_EQ(state.calcMode, COMP_MODE);
  }
}

TEST_F(menu, some_tools_work_at_a_pause) {
  for (bool* const flag : {&state.at_prompt, &state.key_wait}) {
    state.calcMode = COMP_MODE;
    state.program_running = *flag = true;
    choose(10);
    EXPECT_EQ(state.calcMode, PERIODIC_MODE);
    for (const int row : {7, 12}) {
      state.calcMode = COMP_MODE;
      platform_.dialogs.clear();
      choose(row);
      EXPECT_EQ(platform_.dialogs, std::vector<std::string>{"200 Menu"}) << "row " << row;
    }
    *flag = false;
  }
}

TEST_F(menu, opens_its_tools) {
  choose(7);
  choose(12);
  EXPECT_EQ(platform_.dialogs,
            (std::vector<std::string>{"200 Menu", "206 Time Value of Money Solver", "200 Menu", "205 Stopwatch"}));
}

TEST_F(menu, a_program_that_runs_does_not_go_into_edit) {
  state.program_running = true;
  choose(5);
  EXPECT_EQ(state.calcMode, COMP_MODE);
}

}  // namespace
}  // namespace zephyl
