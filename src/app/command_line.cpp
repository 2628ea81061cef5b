#include "app/command_line.h"

#include <cstdio>

#include "engine/errors.h"

namespace zephyl {

namespace {

constexpr const char* END_OF_OPTIONS = "--";

bool takes_files(const TUsage& usage) { return usage.operands[0] != 0; }

std::string synopsis(const TUsage& usage) {
  const std::string options = std::string(usage.program) + " [--version] [--help]";
  return takes_files(usage) ? options + " " + usage.operands : options;
}

bool refuse(const TUsage& usage, const std::string& word) {
  std::fprintf(stderr, "%s: unknown argument %s\nusage: %s\n", usage.program, word.c_str(),
               synopsis(usage).c_str());
  return false;
}

}  // namespace

bool answer_question(const TUsage& usage, int count, char** arguments) {
  for (int i = 1; i < count && arguments[i] != std::string(END_OF_OPTIONS); ++i) {
    const std::string word = arguments[i];
    if (word == "--version") {
      std::printf("%s %s\n", usage.program, VERSION_TEXT);
      return true;
    }
    if (word == "--help") {
      std::printf("%s\nusage: %s\n", usage.purpose, synopsis(usage).c_str());
      return true;
    }
  }
  return false;
}

bool read_files(const TUsage& usage, int count, char** arguments, std::vector<std::string>& files) {
  bool options_ended = false;
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    if (!options_ended && word == END_OF_OPTIONS) {
      options_ended = true;
      continue;
    }
    const bool is_option = !options_ended && word.size() > 1 && word[0] == '-';
    if (is_option || !takes_files(usage)) return refuse(usage, word);
    files.push_back(word);
  }
  return true;
}

std::optional<int> answered(const TUsage& usage, int count, char** arguments) {
  if (answer_question(usage, count, arguments)) return 0;
  std::vector<std::string> no_files;
  if (!read_files(usage, count, arguments, no_files)) return USAGE_ERROR;
  return std::nullopt;
}

}  // namespace zephyl
