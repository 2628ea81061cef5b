// The calculator as a conversation: a line of text form in, its answer out.
#pragma once

#include <string>

#include "platform/console/console_platform.h"
#include "platform/console/line_reader.h"

namespace zephyl {

class TConsole {
 public:
  // interactive: somebody sits at a terminal and is greeted.
  TConsole(TConsoleLines& lines, TConsolePlatform& platform, bool interactive);

  // Starts the calculator, answers until `quit` or the end of the input, stops it.
  // The platform must be set and the families registered.
  void run();

 private:
  // False for the line that ends the conversation.
  bool obey(const std::string& line);
  void evaluate(const std::string& line);

  TConsoleLines& lines_;
  TConsolePlatform& platform_;
  bool interactive_;
};

}  // namespace zephyl
