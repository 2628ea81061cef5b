// How programs come into memory. The texts of the last ones are kept, so that a `call` in a loop reads no
// file again.
#pragma once

#include <optional>

#include "persistence/text_file.h"

namespace zephyl {

constexpr int CACHED_PROGRAMS = 10;
constexpr int CACHED_TEXT_SIZE =
    4000;  // bytes of a text with its line ends; longer ones are read anew each time
constexpr int CACHED_LINES = 300;

// Loads a program: its number of statements, or -1, with the memory empty, where there is none of the name or
// a line of it can't be read. Of a program of a later release ERR_PROGRAM_VERSION is reported; everything
// else is the caller's.
int load_program(const char* name, bool built_in);
// The user's program of the name, else the built-in one.
int load_any_program(const char* name);

// All kept texts, and the compiled expressions with them, are void: files may have changed since.
void forget_programs();
// The program in memory is no longer what was loaded.
void forget_loaded_program();
// The place of the program in memory among the kept ones, -1 for one that isn't kept.
int loaded_place();

// The lines of a program, one by one, out of the kept texts or from where they are.
class TProgramLines {
 public:
  TProgramLines(const char* name, bool built_in);

  // The next line, good until the next call; null behind the last one. An empty line ends a program, and so
  // does one that is too long.
  const char* next();

 private:
  const char* next_kept_ = nullptr;
  int kept_lines_ = 0;
  std::optional<TLineReader> reader_;  // of a text that isn't kept
};

}  // namespace zephyl
