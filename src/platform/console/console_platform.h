// The outside world of a calculator in a terminal: the real clock, messages as lines, Ctrl+C as the tap that
// cancels. Nothing is painted.
#pragma once

#include <string>

#include "platform/platform.h"

namespace zephyl {

class TConsolePlatform : public TPlatform {
 public:
  // interactive: questions and dialogs are put to whoever sits at the terminal; otherwise each question is answered
  // with yes, each dialog cancelled.
  explicit TConsolePlatform(bool interactive);

  // An interrupt that came is done with.
  void forget_interrupt();

  std::uint32_t tick_count() override;
  TLocalTime local_time() override;
  void sleep(std::uint32_t milliseconds) override;
  bool peek_pen_down(TPoint& at) override;
  void remove_pen_down() override { tap_used_up_ = true; }
  bool peek_cancel() override;
  void invalidate(bool) override {}
  bool take_paint_request() override { return false; }
  void present(bool) override {}
  void set_title(const char*) override {}
  void set_wait_cursor(bool) override {}
  void show_message(const char* text, const char* title) override;
  bool ask_question(const char* text, const char* title) override;
  void run_dialog(TDialog& dialog) override;
  bool choose_file(const TFileQuestion& question, std::string& path) override;
  void play_click() override {}
  void show_help() override {}
  const char* data_folder() override { return folder_.c_str(); }

 private:
  bool interactive_;
  // The interrupt was offered as a tap, and the calculator let it pass.
  bool tap_used_up_ = false;
  std::string folder_;
};

}  // namespace zephyl
