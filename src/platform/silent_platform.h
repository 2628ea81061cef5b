// A platform without a clock, a queue or a screen: what stands in before a driver is there, and a base for those that need
// little of one.
#pragma once

#include "platform/platform.h"

namespace zephyl {

class TSilentPlatform : public TPlatform {
 public:
  std::uint32_t tick_count() override { return 0; }
  TLocalTime local_time() override { return {}; }
  void sleep(std::uint32_t) override {}
  bool peek_pen_down(TPoint&) override { return false; }
  void remove_pen_down() override {}
  bool peek_cancel() override { return false; }
  void invalidate(bool) override {}
  bool take_paint_request() override { return false; }
  void present(bool) override {}
  void set_title(const char*) override {}
  void set_wait_cursor(bool) override {}
  void show_message(const char*, const char*) override {}
  bool ask_question(const char*, const char*) override { return true; }
  void run_dialog(TDialog& dialog) override;
  bool choose_file(const TFileQuestion&, std::string&) override { return false; }
  void play_click() override {}
  void show_help() override {}
  // Nothing is kept: no file can lie there.
  const char* data_folder() override { return "/dev/null"; }
};

}  // namespace zephyl
