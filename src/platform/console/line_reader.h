// Lines for the console, from a person at a terminal or from a pipe.
#pragma once

#include <memory>
#include <string>

namespace zephyl {

class TConsoleLines {
 public:
  virtual ~TConsoleLines() = default;
  // The next line without its end. False at the end of the input.
  virtual bool read(std::string& line) = 0;
};

// With a prompt, editing and recall of earlier lines. Ctrl+C gives up the line.
std::unique_ptr<TConsoleLines> terminal_lines();
std::unique_ptr<TConsoleLines> plain_lines();

}  // namespace zephyl
