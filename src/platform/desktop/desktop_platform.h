// The outside world of the calculator on a desktop: one window, boxes of the desktop's own kind, the real
// clock. Input is collected while the calculator works and fed to it one by one when it is ready: nothing
// that the user does runs calculator code in the middle of an evaluation.
#pragma once

#include <QTimer>
#include <deque>
#include <string>

#include "platform/desktop/accessible/announcer.h"
#include "platform/desktop/calculator_window.h"
#include "platform/desktop/click_sound.h"
#include "platform/desktop/input_queue.h"
#include "platform/platform.h"

namespace zephyl {

class TDialogWindow;

class TDesktopPlatform : public TPlatform {
 public:
  // The QApplication must exist. folder: the data folder. help_file: what shows as help, "" for nothing.
  explicit TDesktopPlatform(std::string folder, std::string help_file = "");

  // Opens a file (programs/open_file.h) when the calculator is ready for it.
  void open(const std::string& path);

  // Starts the calculator, shows its window and returns when that was closed: the exit code of the program.
  // The platform must be set and the families registered.
  int run();

  // The parts of run, for whoever has an event loop already.
  void start();
  void stop();
  bool stopped() const { return stopped_; }
  TCalculatorWindow& window() { return window_; }
  TAnnouncer& announcer() { return announcer_; }

  std::uint32_t tick_count() override;
  TLocalTime local_time() override;
  void sleep(std::uint32_t milliseconds) override;
  bool peek_pen_down(TPoint& at) override;
  void remove_pen_down() override;
  bool peek_cancel() override;
  void invalidate(bool at_once) override;
  bool take_paint_request() override;
  void present(bool at_once) override;
  void set_title(const char* title) override;
  void set_wait_cursor(bool on) override;
  void show_message(const char* text, const char* title) override;
  bool ask_question(const char* text, const char* title) override;
  void run_dialog(TDialog& dialog) override;
  bool choose_file(const TFileQuestion& question, std::string& path) override;
  void play_click() override { click_.play(); }
  void show_help() override;
  const char* data_folder() override { return folder_.c_str(); }

 private:
  void take(const TInput& input);
  bool close_wished();
  void wake();
  bool work();
  void round();
  void dispatch(const TInput& input);
  void open_next();
  void compose();
  // The user wishes that what is evaluated ends: in the window or, while there is one, in the dialog above it.
  bool find_pen_down(TPoint& at) const;
  bool cancel_waits() const;
  // What a new box stands above.
  QWidget* front_window();
  class TBoxOpen;

  std::string folder_;
  std::string help_file_;
  std::deque<std::string> files_;  // one for each INPUT_OPEN in the queue
  TInputQueue queue_;
  TCalculatorWindow window_;
  TAnnouncer announcer_;
  QTimer timer_;
  TClickSound click_;
  bool paint_requested_ = true;
  bool working_ = false;  // calculator code is on the stack
  TDialogWindow* open_dialog_ = nullptr;  // the uppermost
  int boxes_open_ = 0;    // dialogs and message boxes, each above the one before
  bool composing_ = false;
  bool stopped_ = false;
  bool cancel_let_pass_ = false;
  bool wait_cursor_ = false;
};

}  // namespace zephyl
