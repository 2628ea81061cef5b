// Obeys the commands of a script: reads them one a line, feeds the calculator the events they stand for, and
// writes what they ask for. The commands themselves are in command_*.cpp, a table a group.
#pragma once

#include <string>

#include "platform/script/script_platform.h"

namespace zephyl {

struct TCommand;

// Where commands come from and answers go to.
class TScriptChannel {
 public:
  virtual ~TScriptChannel() = default;
  // The next line, without its end. False at the end of the input.
  virtual bool read_line(std::string& line) = 0;
  // One line of an answer; shown at the latest with the next flush.
  virtual void write_line(const std::string& line) = 0;
  virtual void flush() = 0;
};

class TScript {
 public:
  TScript(TScriptChannel& channel, TScriptPlatform& platform);

  // Starts the calculator before the first command that needs it, obeys until `quit` or the end of the input,
  // and stops it. What is open then is cancelled. The platform must be set and the families registered.
  // Returns the exit status.
  int run();

  // For the commands:
  void answer(const std::string& line);
  // The command can't be obeyed: "? " and the reason. The run goes on, its status is 1.
  void refuse(const std::string& reason);
  void quit() { quitting_ = true; }
  bool started() const { return started_; }
  // While the command was obeyed a dialog opened, and others were obeyed in it: the command is over, what it
  // still had to do is dropped.
  bool broken_off() const { return broken_off_; }

  TScriptPlatform& platform;

 private:
  void start();
  // Reads and obeys the next command; false if there is none.
  bool obey_next();
  void obey(const std::string& line);
  void obey(const TCommand& command, const std::string& text);
  // Commands are obeyed in the middle of the one that opened the dialog.
  void work_dialog(const TDialog& dialog);

  TScriptChannel& channel_;
  bool started_ = false;
  bool quitting_ = false;
  bool broken_off_ = false;
  const TCommand* command_ = nullptr;  // the last one that was begun
  int status_ = 0;
};

}  // namespace zephyl
