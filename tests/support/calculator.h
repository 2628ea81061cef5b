// A calculator for tests, without a window: a platform that keeps what it is told, and a fixture that starts
// afresh.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

class TTestPlatform : public TPlatform {
 public:
  std::uint32_t ticks = 0;
  TLocalTime now;
  std::vector<std::string> messages;  // "TITLE | TEXT"
  bool answer = true;                 // what a question box gets
  std::deque<TPoint> pen_downs;       // waiting in the queue
  bool cancel_waiting = false;
  bool paint_requested = false;
  std::vector<std::string> dialogs;  // "ID TITLE" of those that opened
  std::deque<std::function<void(TDialog&)>> dialog_answers;
  std::deque<std::string> file_answers;
  int clicks = 0;
  std::string title;
  // The data folder. At first it is none, so that no test leaves files to another; a test that wants files takes a
  // TTestFolder (file_faults.h) and sets its path.
  std::string folder = "/dev/null/data";
  // Milliseconds that pass with each look at the clock.
  std::uint32_t ticks_per_look = 0;

  std::uint32_t tick_count() override;
  TLocalTime local_time() override { return now; }
  void sleep(std::uint32_t milliseconds) override { ticks += milliseconds; }
  bool peek_pen_down(TPoint& at) override;
  void remove_pen_down() override;
  bool peek_cancel() override { return cancel_waiting; }
  void invalidate(bool) override { paint_requested = true; }
  bool take_paint_request() override;
  void present(bool) override {}
  void set_title(const char* text) override { title = text; }
  void set_wait_cursor(bool) override {}
  void show_message(const char* text, const char* title_word) override;
  std::vector<std::string> questions;  // "TITLE | TEXT"
  bool ask_question(const char* text, const char* title_word) override;
  // The oldest of dialog_answers plays the user; where there is none the dialog is cancelled.
  void run_dialog(TDialog& dialog) override;
  // The oldest of file_answers; "" or none: Cancel.
  bool choose_file(const TFileQuestion& question, std::string& path) override;
  void play_click() override { ++clicks; }
  void show_help() override {}
  const char* data_folder() override { return folder.c_str(); }
};

// Every test has a calculator as it is after its start: COMP_MODE, radians, ST_REAL, Float.
class calculator : public ::testing::Test {
 protected:
  calculator();
  ~calculator() override;

  // Enters the text form and evaluates; the result line in plain text, or the error's message.
  std::string eval(const std::string& text);
  // What the result line says, in plain text.
  std::string result() const;
  // The same; the error's message where one stands.
  std::string result_or_error() const;
  // The same, as numbers: the parts of Ans; fails the test on an error.
  double value(const std::string& text);
  double imaginary(const std::string& text);
  // The message of the error that the text ends in; "" if it has a result.
  std::string error_of(const std::string& text);
  // The entry line's listing text.
  std::string entry() const;
  // The entry line's token codes, blank separated.
  std::string codes() const;
  // The oldest message box not asked for yet, "TITLE | TEXT"; "none".
  std::string message();
  // Starts again, with the data in that folder.
  void restart(const std::string& folder);

  TTestPlatform platform_;
};

}  // namespace zephyl
