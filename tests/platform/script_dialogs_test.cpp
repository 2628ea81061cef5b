// Dialogs in the scripted driver: a dialog opens in the middle of a command, and the next ones work it.

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "app/start_up.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "platform/dialog.h"
#include "platform/script/script.h"

namespace zephyl {
namespace {

using TLines = std::vector<std::string>;

class TLineChannel : public TScriptChannel {
 public:
  std::deque<std::string> input;
  TLines output;

  bool read_line(std::string& line) override {
    if (input.empty()) return false;
    line = input.front();
    input.pop_front();
    return true;
  }
  void write_line(const std::string& line) override { output.push_back(line); }
  void flush() override {}
};

// What each further token on the entry line leads to.
std::deque<std::function<void()>> on_token;
int tokens_met = 0;

void meet_token(bool) {
  if (on_token.empty() || entry_line.expression.count <= tokens_met) return;
  tokens_met = entry_line.expression.count;
  const std::function<void()> act = on_token.front();
  on_token.pop_front();
  act();
}

class TClickingPlatform : public TScriptPlatform {
 public:
  std::function<void()> on_click;
  void play_click() override {
    if (on_click) on_click();
  }
};

class script_dialogs : public ::testing::Test {
 protected:
  script_dialogs() {
    register_families();
    set_platform(&platform_);
    hooks.draw_expression = meet_token;
    on_token.clear();
    tokens_met = 0;
  }
  ~script_dialogs() override { set_platform(nullptr); }

  // The next token opens the dialog; its result is noted when it is closed.
  void open_by_token(TDialog& dialog) {
    on_token.push_back([this, &dialog] {
      zephyl::platform().run_dialog(dialog);
      results_.push_back(dialog.result());
    });
  }

  TLines run(std::initializer_list<const char*> lines) {
    channel_.input.assign(lines.begin(), lines.end());
    status_ = TScript(channel_, platform_).run();
    return channel_.output;
  }

  TClickingPlatform platform_;
  TLineChannel channel_;
  std::vector<int> results_;
  int status_ = -1;
};

TDialog sample() {
  TDialog dialog(103, "Setup Options");
  dialog.add(radio_control("Float", 1, true));
  dialog.add(radio_control("Fixed", 1, false));
  dialog.add(combo_control("Decimal Digits:", {"0", "1", "2"}, 1));
  dialog.add(check_control("Key Click?", false));
  dialog.add(edit_control("Name:", "one\ntwo"));
  dialog.add(table_control("", {{"n", 30}, {"x", 0}}, {"1\t2.5", "2\t-7"}));
  dialog.add(slider_control("Red:", 0, 255, 7));
  dialog.add(text_control("Help:", "what it does"));
  dialog.add(label_control("Some words."));
  dialog.add(picture_control("", TSurface(96, 64)));
  dialog.add(button_control("About"));
  dialog[10].enabled = false;
  add_ok_cancel(dialog);
  return dialog;
}

TEST_F(script_dialogs, dialog_lists_every_control_with_its_value_and_rows) {
  TDialog dialog = sample();
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "dialog"}), (TLines{"dialog 103 Setup Options",
                                                 "radio Float = on",
                                                 "radio Fixed = off",
                                                 "combo Decimal Digits: = 1",
                                                 "  0",
                                                 "  1",
                                                 "  2",
                                                 "check Key Click? = off",
                                                 "edit Name: = one\\ntwo",
                                                 "table = 1 | 2.5",
                                                 "  1 | 2.5",
                                                 "  2 | -7",
                                                 "slider Red: = 7",
                                                 "text Help: = what it does",
                                                 "label Some words.",
                                                 "picture = 96x64",
                                                 "button About (disabled)",
                                                 "button OK",
                                                 "button Cancel",
                                                 "."}));
}

TEST_F(script_dialogs, a_hidden_control_keeps_its_place_without_its_rows) {
  TDialog dialog(1, "T");
  dialog.add(combo_control("Unit:", {"m"}));
  dialog[0].visible = false;
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "dialog"}), (TLines{"dialog 1 T", "combo Unit: = m (hidden)", "."}));
}

TEST_F(script_dialogs, commands_work_the_controls) {
  TDialog dialog = sample();
  open_by_token(dialog);
  EXPECT_EQ(
      run({"tokens 1", "check Fixed on", "choose \"Decimal Digits\" 2", "check \"Key Click?\" on",
           "set Name three\\nfour  words", "choose #5 \"2 | -7\"", "set Red 255", "press OK", "dialog"}),
      TLines{"none"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(results_, std::vector<int>{0});
  EXPECT_FALSE(dialog[0].checked);
  EXPECT_TRUE(dialog[1].checked);
  EXPECT_EQ(dialog[2].selected, 2);
  EXPECT_TRUE(dialog[3].checked);
  EXPECT_EQ(dialog[4].text, "three\nfour  words");
  EXPECT_EQ(dialog[5].selected, 1);
  EXPECT_EQ(dialog[6].value, 255);
}

TEST_F(script_dialogs, a_table_scrolls) {
  TDialog dialog(1, "T");
  dialog.add(table_control("Values:", {{"x", 0}}, {"1", "2"}));
  dialog.add(table_control("", {{"x", 0}}, {"1", "2"}));
  dialog[0].scrolls = true;
  dialog.procedure = [](TDialog& told, const TDialogEvent& event) {
    if (event.kind == CONTROL_SCROLLED) set_rows(told[0], {std::to_string(event.rows), "next"});
  };
  open_by_token(dialog);
  EXPECT_EQ(
      run({"tokens 1", "scroll Values -12", "scroll Values", "scroll Values x", "scroll #1 2", "dialog"}),
      (TLines{"? it reads: scroll CONTROL ROWS, down or, below 0, up",
              "? it reads: scroll CONTROL ROWS, down or, below 0, up", "? #1 doesn't scroll", "dialog 1 T",
              "table Values: = -12", "  -12", "  next", "table = 1", "  1", "  2", "."}));
}

TEST_F(script_dialogs, a_combo_is_set_by_its_text_and_chosen_by_row_or_text) {
  TDialog dialog(1, "T");
  dialog.add(combo_control("Mark:", {"Dot(.)", "Comma(,)", "say \"when\""}));
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "set Mark Comma(,)", "choose Mark \"say \\\"when\\\"\"", "choose Mark \"no\"",
                 "choose Mark 3", "set Mark no", "choose Mark -1"}),
            (TLines{"? Mark: has no such row", "? Mark: has no such row", "? Mark: has no such row",
                    "? Mark: has no such row"}));
  EXPECT_EQ(dialog[0].selected, 2);
}

TEST_F(script_dialogs, what_a_control_can_not_do_is_refused_with_the_reason) {
  TDialog dialog = sample();
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "press Nothing", "press About", "press Fixed", "choose Float 0", "check OK on",
                 "check Float off", "set Red 256", "set Help x", "set \"Key Click?\" on"}),
            (TLines{"? the dialog has no control Nothing", "? About is disabled", "? Fixed is no button",
                    "? Float has no rows", "? OK can't be checked",
                    "? Float goes off when another of its group goes on", "? Red: goes from 0 to 255",
                    "? Help: can't be set", "? Key Click? can't be set"}));
  EXPECT_EQ(status_, 1);
}

TEST_F(script_dialogs, what_can_not_be_read_is_told_how_it_reads) {
  TDialog dialog = sample();
  open_by_token(dialog);
  const char* const choose = "? it reads: choose CONTROL ROW, a number or a text in double quotes";
  EXPECT_EQ(run({"tokens 1", "choose", "choose \"Decimal Digits", "choose \"Decimal Digits\"2",
                 "choose #2 two", "choose #2 \"1\" 5", "check Float maybe", "press OK now", "close it"}),
            (TLines{choose, choose, choose, choose, choose, "? it reads: check CONTROL on|off",
                    "? it reads: press CONTROL", "? it reads: close"}));
}

TEST_F(script_dialogs, close_is_cancel) {
  TDialog dialog = sample();
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "close", "close"}), TLines{"? no dialog is open"});
  EXPECT_EQ(results_, std::vector<int>{DIALOG_CANCELLED});
}

TEST_F(script_dialogs, nothing_else_works_while_one_is_open) {
  TDialog dialog = sample();
  open_by_token(dialog);
  const TLines output = run({"tokens 1", "tap 1 1", "key 5", "char 7", "arrow left", "idle", "run",
                             "post cancel", "enter 2", "eval 2+2", "tokens 1", "insert 1", "folder .", "mode",
                             "answer no", "advance 5", "hash", "close", "eval 2+2"});
  ASSERT_EQ(output.size(), 15u);
  for (std::size_t i = 0; i < 11; ++i) EXPECT_EQ(output[i], "? a dialog is open") << i;
  EXPECT_EQ(output[12], "COMP_MODE");
  EXPECT_EQ(output[14], "4");
}

TEST_F(script_dialogs, the_one_in_front_is_worked_and_gives_back_to_the_one_behind) {
  TDialog outer(103, "Setup Options"), inner(160, "About");
  outer.add(button_control("About"));
  add_ok_cancel(outer);
  outer.procedure = [&inner](TDialog&, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == 0) platform().run_dialog(inner);
  };
  inner.add(button_control("OK", BUTTON_DEFAULT));
  open_by_token(outer);
  EXPECT_EQ(run({"tokens 1", "press About", "dialog", "press OK", "dialog", "press OK", "dialog"}),
            (TLines{"dialog 160 About", "button OK", ".", "dialog 103 Setup Options", "button About",
                    "button OK", "button Cancel", ".", "none"}));
}

TEST_F(script_dialogs, one_after_the_other_in_the_same_command) {
  TDialog first(1, "A"), second(2, "B");
  add_ok_cancel(first);
  add_ok_cancel(second);
  on_token.push_back([&] {
    platform_.run_dialog(first);
    platform_.run_dialog(second);
  });
  EXPECT_EQ(run({"tokens 1", "press OK", "dialog", "close", "dialog"}),
            (TLines{"dialog 2 B", "button OK", "button Cancel", ".", "none"}));
  EXPECT_EQ(second.result(), DIALOG_CANCELLED);
}

TEST_F(script_dialogs, one_that_closes_itself_at_its_opening_does_not_wait) {
  TDialog dialog(1, "A");
  dialog.procedure = [](TDialog& told, const TDialogEvent&) { told.close(5); };
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "dialog"}), TLines{"none"});
  EXPECT_EQ(results_, std::vector<int>{5});
}

TEST_F(script_dialogs, quit_and_the_end_of_the_input_cancel_all) {
  for (const bool quits : {true, false}) {
    TDialog outer(1, "A"), inner(2, "B");
    outer.add(button_control("More"));
    outer.procedure = [&inner](TDialog&, const TDialogEvent& event) {
      if (event.kind == CONTROL_ACTIVATED) platform().run_dialog(inner);
    };
    tokens_met = 0;
    open_by_token(outer);
    EXPECT_EQ(run({"tokens 1", "press More", quits ? "quit" : "# the last line"}), TLines{});
    EXPECT_TRUE(inner.closed());
    EXPECT_EQ(outer.result(), DIALOG_CANCELLED);
    EXPECT_TRUE(platform_.dialogs.empty());
  }
}

TEST_F(script_dialogs, no_command_is_obeyed_behind_quit) {
  TDialog dialog = sample();
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "quit", "mode"}), TLines{});
}

TEST_F(script_dialogs, run_says_that_one_opened_and_nothing_when_it_is_closed) {
  TDialog dialog = sample();
  on_token.push_back([] {
    settings.keyClick = 1;
    state.program_running = true;
  });
  platform_.on_click = [&] { platform_.run_dialog(dialog); };
  EXPECT_EQ(run({"tokens 1", "post tap 20 110", "run", "error", "close", "mode"}),
            (TLines{"dialog", "none", "COMP_MODE"}));
}

TEST_F(script_dialogs, the_rest_of_a_broken_off_command_is_dropped) {
  TDialog dialog = sample();
  on_token.push_back([] {});
  open_by_token(dialog);
  EXPECT_EQ(run({"char 123456", "close", "entry"}), TLines{"12"});
}

TEST_F(script_dialogs, time_ticks_while_it_passes) {
  TDialog dialog(161, "Stopwatch");
  std::vector<std::uint64_t> ticks;
  dialog.tick_interval = 95;
  dialog.procedure = [&](TDialog& told, const TDialogEvent& event) {
    if (event.kind != DIALOG_TICK) return;
    ticks.push_back(platform_.elapsed);
    if (ticks.size() == 3) told.tick_interval = 0;
  };
  open_by_token(dialog);
  run({"advance 10", "tokens 1", "advance 94", "advance 1", "advance 200", "advance 1000"});
  EXPECT_EQ(ticks, (std::vector<std::uint64_t>{105, 200, 295}));
  EXPECT_EQ(platform_.elapsed, 1305u);
}

TEST_F(script_dialogs, ticks_begin_when_they_are_switched_on) {
  TDialog dialog(1, "T");
  std::vector<std::uint64_t> ticks;
  dialog.add(button_control("Start"));
  dialog.procedure = [&](TDialog& told, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED) told.tick_interval = 100;
    if (event.kind == DIALOG_TICK) ticks.push_back(platform_.elapsed);
  };
  open_by_token(dialog);
  run({"tokens 1", "advance 1050", "press Start", "advance 250"});
  EXPECT_EQ(ticks, (std::vector<std::uint64_t>{1150, 1250}));
}

TEST_F(script_dialogs, a_tick_may_close_the_dialog) {
  TDialog dialog(1, "T");
  dialog.tick_interval = 10;
  dialog.procedure = [](TDialog& told, const TDialogEvent& event) {
    if (event.kind == DIALOG_TICK) told.close(3);
  };
  open_by_token(dialog);
  EXPECT_EQ(run({"tokens 1", "advance 100", "dialog"}), TLines{"none"});
  EXPECT_EQ(results_, std::vector<int>{3});
  EXPECT_EQ(platform_.elapsed, 100u);
}

TEST_F(script_dialogs, without_a_script_they_are_cancelled) {
  TDialog dialog = sample();
  TScriptPlatform alone;
  alone.run_dialog(dialog);
  EXPECT_EQ(dialog.result(), DIALOG_CANCELLED);
  EXPECT_TRUE(alone.dialogs.empty());
}

}  // namespace
}  // namespace zephyl
