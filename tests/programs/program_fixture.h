// A calculator with a data folder of its own and the means to write, run and ask programs.
#pragma once

#include <string>
#include <vector>

#include "support/calculator.h"
#include "support/file_faults.h"

namespace zephyl {

class programs : public calculator {
 protected:
  programs();

  // Writes programs/NAME.prgm from its listing (support/program_listing.h), or as it stands.
  void write_program(const std::string& name, const std::vector<std::string>& listing);
  void write_file_of(const std::string& name, const std::string& content);
  std::string program_path_of(const std::string& name) const;

  // The run key, with the program chosen in the dialog that it opens.
  void start(const std::string& name);
  // Rounds of the main loop, `most` at most, until the program stops or waits.
  void go_on(int most = 100000);
  // Both, and what the result line shows then, in plain text.
  std::string run_program(const std::string& name);
  // Writes a program under a name of its own and runs it.
  std::string run_lines(const std::vector<std::string>& listing);
  // The answer at a prompt, then rounds as go_on; the result line.
  std::string answer_with(const std::string& text);

  std::string standing_error() const;
  double memory(const char* name) const;

  TTestFolder folder_;
};

// The user chooses a row by its text, then the default button.
std::function<void(TDialog&)> choosing(const std::string& control, const std::string& row);

}  // namespace zephyl
