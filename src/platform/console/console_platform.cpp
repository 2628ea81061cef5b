#include "platform/console/console_platform.h"

#include <chrono>
#include <cstdio>
#include <ctime>

#include "platform/console/data_folder.h"
#include "platform/console/interrupts.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

constexpr TPoint AC_KEY = {215, 202};

}  // namespace

TConsolePlatform::TConsolePlatform(bool interactive)
    : interactive_(interactive), folder_(find_data_folder()) {}

void TConsolePlatform::forget_interrupt() {
  clear_interrupt();
  tap_used_up_ = false;
}

std::uint32_t TConsolePlatform::tick_count() {
  using namespace std::chrono;
  return static_cast<std::uint32_t>(
      duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

TLocalTime TConsolePlatform::local_time() {
  std::timespec now = {};
  std::timespec_get(&now, TIME_UTC);
  TLocalTime time;
  if (const std::tm* parts = std::localtime(&now.tv_sec)) {
    time.year = parts->tm_year + 1900;
    time.month = parts->tm_mon + 1;
    time.day = parts->tm_mday;
    time.hour = parts->tm_hour;
    time.minute = parts->tm_min;
    time.second = parts->tm_sec;
    time.weekday = parts->tm_wday;
  }
  time.millisecond = static_cast<int>(now.tv_nsec / 1000000);
  return time;
}

// Ends early at an interrupt.
void TConsolePlatform::sleep(std::uint32_t milliseconds) {
  const std::timespec time = {static_cast<std::time_t>(milliseconds / 1000),
                              static_cast<long>(milliseconds % 1000) * 1000000};
  nanosleep(&time, nullptr);
}

bool TConsolePlatform::peek_pen_down(TPoint& at) {
  at = AC_KEY;
  return interrupted() && !tap_used_up_;
}

bool TConsolePlatform::peek_cancel() { return interrupted(); }

void TConsolePlatform::show_message(const char* text, const char* title) {
  std::printf("%s: %s\n", title, text);
  std::fflush(stdout);
}

bool TConsolePlatform::ask_question(const char* text, const char* title) {
  if (!interactive_) return true;
  std::printf("%s: %s [y/n] ", title, text);
  std::fflush(stdout);
  const int first = std::getc(stdin);
  for (int c = first; c != '\n' && c != EOF;) c = std::getc(stdin);
  return first == 'y' || first == 'Y';
}

void TConsolePlatform::run_dialog(TDialog& dialog) {
  dialog.tell(DIALOG_OPENED);
  cancel_dialog(dialog);
}

bool TConsolePlatform::choose_file(const TFileQuestion&, std::string&) { return false; }

}  // namespace zephyl
