// Lines for the console, from a person at a terminal or from a pipe.
#pragma once

#include <memory>
#include <string>

namespace zephyl {

class TLineReader {
 public:
  virtual ~TLineReader() = default;
  // The next line without its end. False at the end of the input.
  virtual bool read(std::string& line) = 0;
};

// With a prompt, editing and recall of earlier lines. Ctrl+C gives up the line.
std::unique_ptr<TLineReader> terminal_lines();
std::unique_ptr<TLineReader> plain_lines();

}  // namespace zephyl
