// Each dialog in the hands of somebody who tries whatever there is: every row, mark, slider, text and button, and Cancel.
// Whatever is done, the calculator goes on; what is cancelled or refused changes nothing that it keeps.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>

#include "dialogs/dialog_roads.h"
#include "dialogs/dialog_visit.h"
#include "dialogs/user_acts.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

constexpr int PLOT_SETUP = 185;
constexpr int PLOT_FUNCTIONS = 186;
constexpr int NOTE = 187;
constexpr int STOPWATCH = 205;
constexpr int MONEY_SOLVER = 206;
constexpr int DESCRIPTION = 182;
constexpr int PLOT_CALCULATE = 212;
constexpr int PLOT_TABLE = 213;

// The default buttons Start/Lap and Recalc close nothing.
bool stays_open(int id) { return id == STOPWATCH || id == PLOT_TABLE; }

class dialog_monkey : public ::testing::TestWithParam<TDialogRoad> {
 protected:
  const int id = GetParam().id;

  // A visit after which the calculator must be sound.
  TVisit go(const TDialogUser& user, const TDialogUser& next_user = nullptr) {
    const TVisit visited = visit(GetParam(), user, next_user);
    EXPECT_TRUE(visited.opened);
    EXPECT_EQ(visited.fault, "");
    for (const std::string& message : visited.messages)
      EXPECT_FALSE(message.rfind("Bug", 0) == 0 || message.rfind("Opps", 0) == 0) << message;
    return visited;
  }
  // The same, where nothing may be different afterwards.
  void go_in_vain(const TDialogUser& user) {
    const TVisit visited = go(user);
    // The note is followed by the plot screen.
    const std::string& now = id == NOTE ? visited.left : visited.behind;
    EXPECT_EQ(difference(visited.before, now), "");
    EXPECT_EQ(difference(now, visited.before), "");
    EXPECT_TRUE(visited.messages.empty());
  }
  // The controls of a kind, as the dialog opens.
  std::vector<int> controls(TControlKind kind) {
    std::vector<int> found;
    go([&](TDialog& dialog) { found = controls_of(dialog, kind); });
    return found;
  }
};

}  // namespace

TEST_P(dialog_monkey, cancel_changes_nothing) {
  go_in_vain(cancel_dialog);
  go_in_vain([](TDialog& dialog) {
    choose_every_row(dialog);
    cancel_dialog(dialog);
  });
  // What stands in the fields of the money solver counts when its Exit is pressed.
  if (id == MONEY_SOLVER) return;
  go_in_vain([](TDialog& dialog) {
    change_everything(dialog);
    cancel_dialog(dialog);
  });
}

// Of very many rows some are accepted; all are chosen.
TEST_P(dialog_monkey, every_row_is_taken) {
  constexpr std::size_t MOST_VISITS = 60;
  std::vector<TChoices> ways;
  go([&](TDialog& dialog) { ways = choose_every_row(dialog); });
  const std::size_t step = ways.size() / MOST_VISITS + 1;
  for (std::size_t i = 0; i < ways.size(); i = i + 1 == ways.size() ? i + 1 : std::min(i + step, ways.size() - 1)) {
    const TVisit visited = go([&](TDialog& dialog) {
      make(dialog, ways[i]);
      const bool closes = accept_dialog(dialog);
      EXPECT_TRUE(!closes || dialog.closed() || stays_open(id));
    });
    SCOPED_TRACE("row " + std::to_string(ways[i].back().row) + " of control " + std::to_string(ways[i].back().control));
  }
}

TEST_P(dialog_monkey, every_row_is_double_clicked) {
  constexpr int STEP = 7;
  for (const TControlKind kind : {CONTROL_LIST, CONTROL_TABLE})
    for (const int control : controls(kind)) {
      int rows = 1;
      for (int row = 0; row < rows; row += rows > 4 * STEP ? STEP : 1)
        go([&](TDialog& dialog) {
          rows = static_cast<int>(dialog[control].rows.size());
          choose_row(dialog, control, row);
          activate_row(dialog, control);
        });
    }
}

TEST_P(dialog_monkey, every_mark_is_set_and_cleared) {
  for (const TControlKind kind : {CONTROL_CHECK, CONTROL_RADIO})
    for (const int control : controls(kind))
      for (const bool on : {true, false})
        go([&](TDialog& dialog) {
          set_checked(dialog, control, on);
          accept_dialog(dialog);
        });
  go([](TDialog& dialog) {
    for (int control = 0; control < dialog.count(); ++control) set_checked(dialog, control, true);
    accept_dialog(dialog);
  });
}

TEST_P(dialog_monkey, sliders_go_to_their_ends_and_not_beyond) {
  for (const int control : controls(CONTROL_SLIDER)) {
    go([&](TDialog& dialog) {
      EXPECT_FALSE(set_value(dialog, control, dialog[control].minimum - 1));
      EXPECT_FALSE(set_value(dialog, control, dialog[control].maximum + 1));
      EXPECT_TRUE(set_value(dialog, control, dialog[control].minimum));
      accept_dialog(dialog);
    });
    go([&](TDialog& dialog) {
      EXPECT_TRUE(set_value(dialog, control, dialog[control].maximum));
      accept_dialog(dialog);
    });
  }
}

TEST_P(dialog_monkey, every_button_is_pressed) {
  const auto press_twice = [](TDialog& dialog, int control) {
    press_button(dialog, control);
    press_button(dialog, control);
  };
  for (const int control : controls(CONTROL_BUTTON)) {
    go([&](TDialog& dialog) { press_twice(dialog, control); });
    go([&](TDialog& dialog) {
      change_everything(dialog);
      press_twice(dialog, control);
    });
  }
}

// A field takes a text, or a box says why not and the dialog stays, with nothing changed.
TEST_P(dialog_monkey, fields_take_or_refuse_whatever_is_written) {
  for (const int control : controls(CONTROL_EDIT))
    for (const std::string& text : nonsense_texts()) {
      SCOPED_TRACE(text.substr(0, 20) + " in control " + std::to_string(control));
      bool accepts = false, closed = false;
      const TVisit visited = go([&](TDialog& dialog) {
        set_text(dialog, control, text);
        accepts = accept_dialog(dialog);
        closed = dialog.closed();
      });
      if (!accepts) continue;
      if (!stays_open(id)) {
        EXPECT_EQ(closed, visited.messages.empty());
      }
      if (!visited.messages.empty()) {
        EXPECT_EQ(difference(visited.before, visited.left), "");
        EXPECT_EQ(difference(visited.before, visited.behind), "");
      }
    }
}

TEST_P(dialog_monkey, whatever_is_done_in_any_order) {
  constexpr int VISITS = 8, ACTS = 80, NEXT_ACTS = 10;
  for (unsigned seed = 0; seed < VISITS; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 dice(seed * 1000 + static_cast<unsigned>(id));
    int depth = 0;
    go([&](TDialog& dialog) { act_at_random(dialog, dice, ACTS); },
       [&](TDialog& dialog) {
         if (++depth < 4) act_at_random(dialog, dice, NEXT_ACTS);
         --depth;
       });
  }
}

// A dialog opens as it did the very first time, whatever was chosen before the calculator was stopped.
TEST_P(dialog_monkey, a_new_start_forgets_what_was_chosen) {
  const auto opened_as = [this] {
    std::string text;
    go([&](TDialog& dialog) {
      for (const TControl& control : dialog.controls) {
        text += control.label + "=" + control.text + std::to_string(control.selected) + std::to_string(control.checked) +
                std::to_string(control.value) + "\n";
        for (const std::string& row : control.rows) text += row + "\n";
      }
    });
    return text;
  };
  const std::string first = opened_as();
  go([](TDialog& dialog) {
    change_everything(dialog);
    accept_dialog(dialog);
  });
  EXPECT_EQ(opened_as(), first);
}

INSTANTIATE_TEST_SUITE_P(all, dialog_monkey, ::testing::ValuesIn(dialog_roads()),
                         [](const auto& info) { return std::to_string(info.param.id); });

// --- What each field refuses

namespace {

// Writes a text into a field and presses OK, which must be refused with a box.
void expect_refused(int id, int control, const std::string& text) {
  SCOPED_TRACE(text.substr(0, 20) + " in control " + std::to_string(control) + " of " + std::to_string(id));
  bool closed = true;
  const TVisit visited = visit(*road_to(id), [&](TDialog& dialog) {
    set_text(dialog, control, text);
    accept_dialog(dialog);
    closed = dialog.closed();
  });
  EXPECT_FALSE(closed);
  EXPECT_EQ(visited.messages.size(), 1u);
  EXPECT_EQ(difference(visited.before, visited.left), "");
}

}  // namespace

// Another dialog with fields must say here what those refuse.
TEST(dialog_fields, are_in_six_dialogs) {
  std::vector<int> with_fields;
  for (const TDialogRoad& road : dialog_roads())
    visit(road, [&](TDialog& dialog) {
      if (!controls_of(dialog, CONTROL_EDIT).empty()) with_fields.push_back(road.id);
    });
  EXPECT_EQ(with_fields, (std::vector<int>{DESCRIPTION, PLOT_SETUP, PLOT_FUNCTIONS, MONEY_SOLVER, PLOT_CALCULATE, PLOT_TABLE}));
}

TEST(dialog_fields, of_the_plot_setup_refuse_what_is_no_number) {
  constexpr int X_MIN = 0, Z_SCALE = 16;
  const std::vector<std::string> products = {"nan", "inf", "0x10", "a\nb\r\nc\td"};  // of variables
  for (const int control : {X_MIN, Z_SCALE})
    for (const std::string& text : nonsense_texts())
      if (std::find(products.begin(), products.end(), text) == products.end())
        expect_refused(PLOT_SETUP, control, text);
}

TEST(dialog_fields, of_the_plot_calculations_refuse_what_is_no_number) {
  constexpr int VALUE = 3;
  for (const char* text : {"", "oh?", "2+", "1/0", "ln(0)", "1e999", "{1,2}", "[C]", "\xff\xfe\x80"})
    expect_refused(PLOT_CALCULATE, VALUE, text);
  expect_refused(PLOT_CALCULATE, VALUE, std::string(10000, '1'));
}

TEST(dialog_fields, of_the_plot_functions_refuse_what_cant_be_read) {
  for (const char* text : {"oh?", "\xff\xfe\x80", "x # 2"}) expect_refused(PLOT_FUNCTIONS, 0, text);
  for (const char letter : {'1', '(', '~'}) expect_refused(PLOT_FUNCTIONS, 15, std::string(10000, letter));
}

TEST(dialog_fields, of_the_money_solver_keep_their_value_if_the_text_is_no_number) {
  for (const std::string& text : nonsense_texts()) {
    if (text == std::string(text.size(), '1') && !text.empty()) continue;  // the first 30 of them
    for (const int control : {0, 6}) {
      const TVisit visited = visit(*road_to(MONEY_SOLVER), [&](TDialog& dialog) {
        set_text(dialog, control, text);
        cancel_dialog(dialog);
      });
      EXPECT_EQ(difference(visited.before, visited.behind), "") << text.substr(0, 20);
    }
  }
}

TEST(dialog_fields, of_a_description_take_1050_characters) {
  const TVisit visited = visit(*road_to(DESCRIPTION), [&](TDialog& dialog) {
    set_text(dialog, 0, std::string(10000, 'd'));
    accept_dialog(dialog);
  });
  EXPECT_NE(visited.behind.find("description " + std::string(1050, 'd') + "\n"), std::string::npos);
}

}  // namespace zephyl
