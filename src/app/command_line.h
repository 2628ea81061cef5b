// The words behind a program's name: --version, --help and files.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zephyl {

struct TUsage {
  const char* program;
  const char* purpose;   // a line for --help
  const char* operands;  // "[FILE...]", or "" for a program that takes none
};

// Answers --version and --help on standard output. True if one was asked for: the program has nothing else to
// do.
bool answer_question(const TUsage& usage, int count, char** arguments);

// The files named; behind "--" everything is one. False where a word is none of the program's: standard error
// has been told, and the program is to end with USAGE_ERROR.
bool read_files(const TUsage& usage, int count, char** arguments, std::vector<std::string>& files);
constexpr int USAGE_ERROR = 2;

// Of a program that takes no files: the exit code, where the words leave it nothing to do.
std::optional<int> answered(const TUsage& usage, int count, char** arguments);

}  // namespace zephyl
