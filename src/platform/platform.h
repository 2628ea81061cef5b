// Everything that the calculator asks of the outside. A driver (a window, a script, a console) implements TPlatform,
// hands it over with `set_platform` before `on_start`, and feeds the events of events.h.
// All calls come on the one thread that also feeds the events.
#pragma once

#include <cstdint>
#include <string>

#include "platform/geometry.h"

namespace zephyl {

class TDialog;

// What a file dialog asks for.
struct TFileQuestion {
  const char* title = "";
  const char* type_name = "";  // "State Files"
  const char* extension = "";  // without the dot
  bool save = false;           // else an existing file is opened
};

// The path of a file to save, as chosen: the extension is appended unless the file's name holds it somewhere.
std::string path_to_save(const TFileQuestion& question, const std::string& chosen);

struct TLocalTime {
  int year = 2024;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 12;
  int minute = 0;
  int second = 0;
  int millisecond = 0;
  int weekday = 0;  // 0 Sunday to 6 Saturday
};

class TPlatform {
 public:
  virtual ~TPlatform() = default;

  // Milliseconds since some fixed moment; wraps to 0 after 2^32.
  virtual std::uint32_t tick_count() = 0;
  virtual TLocalTime local_time() = 0;
  virtual void sleep(std::uint32_t milliseconds) = 0;

  // The event queue, looked into while a long evaluation keeps the main loop waiting.
  // The position of the first pen-down that waits; it stays in the queue. False if none waits.
  virtual bool peek_pen_down(TPoint& at) = 0;
  // Drops that pen-down.
  virtual void remove_pen_down() = 0;
  // True if the queue holds a request to abandon what is running (the system took the pointer away, a quit).
  virtual bool peek_cancel() = 0;

  // The picture of events.h must be composed anew: `on_paint` is to be called, at once or when the queue is empty.
  virtual void invalidate(bool at_once) = 0;
  // Removes a waiting paint request; true if there was one. The caller paints itself and then calls `present`.
  virtual bool take_paint_request() = 0;
  // The picture changed and is finished: show it now (`at_once`) or with the next round of events.
  virtual void present(bool at_once) = 0;

  virtual void set_title(const char* title) = 0;
  virtual void set_wait_cursor(bool on) = 0;

  // A box with an exclamation mark and OK; returns when it is closed.
  virtual void show_message(const char* text, const char* title) = 0;
  // A box with Yes and No.
  virtual bool ask_question(const char* text, const char* title) = 0;
  // Shows a dialog (dialog.h) and returns when it is closed: it tells the dialog DIALOG_OPENED, then what the user does.
  virtual void run_dialog(TDialog& dialog) = 0;
  // Asks for a file; false on Cancel. path: whole, with the extension.
  virtual bool choose_file(const TFileQuestion& question, std::string& path) = 0;

  // The sound of a key; returns at once. The path is that of "click.wav" in the data folder.
  virtual void play_click() = 0;
  virtual void show_help() = 0;

  // The folder of programs, constants, settings and sounds, without a separator at its end. Owned by the driver.
  virtual const char* data_folder() = 0;
};

// The one platform in use. Never null after `set_platform`; before it a silent one without a queue stands in.
TPlatform& platform();
void set_platform(TPlatform* platform);

}  // namespace zephyl
