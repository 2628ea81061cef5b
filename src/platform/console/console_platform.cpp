#include "platform/console/console_platform.h"

#include <chrono>
#include <cstdio>
#include <ctime>

#include "platform/console/dialog_talk.h"
#include "platform/console/interrupts.h"
#include "platform/dialog.h"
#include "platform/posix/folders.h"

namespace zephyl {

namespace {

constexpr TPoint AC_KEY = {215, 202};

// A line behind a prompt; false at the end of the input.
bool ask_line(const std::string& prompt, std::string& line) {
  std::printf("%s", prompt.c_str());
  std::fflush(stdout);
  line.clear();
  int c = std::getc(stdin);
  const bool any = c != EOF;
  for (; c != EOF && c != '\n'; c = std::getc(stdin)) line += static_cast<char>(c);
  return any;
}

}  // namespace

TConsolePlatform::TConsolePlatform(bool interactive)
    : interactive_(interactive), folder_(data_folder_of(executable_folder())) {}

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
  std::string line;
  ask_line(std::string(title) + ": " + text + " [y/n] ", line);
  return !line.empty() && (line[0] == 'y' || line[0] == 'Y');
}

void TConsolePlatform::run_dialog(TDialog& dialog) {
  dialog.tell(DIALOG_OPENED);
  if (interactive_)
    talk_through(dialog, ask_line);
  else
    cancel_dialog(dialog);
}

bool TConsolePlatform::choose_file(const TFileQuestion& question, std::string& path) {
  return interactive_ && ask_line(std::string(question.title) + ", path: ", path) && !path.empty();
}

}  // namespace zephyl
