// The outside world of a scripted calculator: a clock that only moves when told to, a queue of pen events,
// boxes that are noted instead of shown. Everything in it repeats exactly from run to run.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace zephyl {

enum TQueuedKind { QUEUED_PEN_DOWN, QUEUED_PEN_UP, QUEUED_CANCEL };

struct TQueuedEvent {
  TQueuedKind kind = QUEUED_CANCEL;
  TPoint at;
};

// A dialog that waits, and how far its ticks have come.
struct TOpenDialog {
  TDialog* dialog = nullptr;
  std::uint64_t ticked = 0;  // `elapsed` at the last tick, or when it last had none
};

class TScriptPlatform : public TPlatform {
 public:
  // Milliseconds since the start. The clock begins at tick 0, 2024-01-01 12:00:00, a Monday.
  std::uint64_t elapsed = 0;
  // Events that wait for the main loop, oldest first; a long evaluation looks into them.
  std::deque<TQueuedEvent> queue;
  // The picture must be composed anew. It is at the start.
  bool paint_requested = true;
  // "TITLE | TEXT" of the message boxes that nobody asked for yet, oldest first; line ends as \n.
  std::deque<std::string> messages;
  // What the next question box gets; each one goes back to yes.
  bool answer = true;
  // What the next file dialog gets; empty cancels it.
  std::string file;
  std::string title;
  std::string folder = ".";
  int sounds = 0;

  bool pen_is_down = false;

  // Those that are open, each opened by the one before it.
  std::vector<TOpenDialog> dialogs;
  // Lets the user work the dialog, until it is closed or nobody is there any more: then it is cancelled.
  std::function<void(const TDialog& dialog)> work_dialog;
  // The one that the user works; null if none is open.
  TDialog* front_dialog() const { return dialogs.empty() ? nullptr : dialogs.back().dialog; }
  // A dialog has been told that it opens, and is about to wait.
  virtual void before_dialog(TDialog&) {}
  // Moves the clock; the dialog in front is told of the ticks that pass.
  void advance(std::uint64_t milliseconds);

  // The pen events, fed at once.
  void pen_down(int x, int y);
  void pen_up(int x, int y);
  // Calls on_paint if a paint request waits.
  void paint_if_requested();
  // Feeds the oldest event of the queue to the calculator; false if there was none.
  bool dispatch_queued();

  std::uint32_t tick_count() override { return static_cast<std::uint32_t>(elapsed); }
  TLocalTime local_time() override;
  void sleep(std::uint32_t milliseconds) override { elapsed += milliseconds; }
  bool peek_pen_down(TPoint& at) override;
  void remove_pen_down() override;
  bool peek_cancel() override;
  void invalidate(bool at_once) override;
  bool take_paint_request() override;
  void present(bool) override {}
  void set_title(const char* text) override { title = text; }
  void set_wait_cursor(bool) override {}
  void show_message(const char* text, const char* title_word) override;
  bool ask_question(const char* text, const char* title_word) override;
  void run_dialog(TDialog& dialog) override;
  bool choose_file(const TFileQuestion& question, std::string& path) override;
  void play_click() override { ++sounds; }
  void show_help() override {}
  const char* data_folder() override { return folder.c_str(); }
};

}  // namespace zephyl
