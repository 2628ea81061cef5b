// The lines of a program file, read one by one into the program in memory.
#pragma once

namespace zephyl {

// What the place that a program is loaded from asks of the reader.
struct TReadRules {
  bool checks_version = true;      // built-in programs carry the release that added them, and no demand
  bool skips_description = false;  // a nested function leaves its caller's description alone
  bool shows_messages = true;
};

// Reads one line, without its end. False if it can't be: the program in memory is cleared then. Reports
// ERR_PROGRAM_VERSION, with a box, for a program of a later release: its version, a statement number above
// LAST_STATEMENT_NUMBER or more statements than STATEMENT_LIMIT.
bool read_program_line(const char* line, const TReadRules& rules);

}  // namespace zephyl
