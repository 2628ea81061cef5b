#include "programs/program_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "engine/errors.h"
#include "platform/platform.h"
#include "programs/program.h"

namespace zephyl {

namespace {

constexpr int VERSION_CHARACTERS = 3;  // only so many of a version count
constexpr int LINE_HEAD = 3;           // a letter, a colon and a blank
constexpr TToken NO_MEANING = 0;

bool fail_to_read() {
  clear_program();
  return false;
}

bool refuse_later_release(const TReadRules& rules) {
  if (rules.shows_messages)
    platform().show_message("The program requires a more recent version of Zephyl in order to load.",
                            "Program Error");
  report_error(ERR_PROGRAM_VERSION);
  return fail_to_read();
}

// strtol, held within the range. A file may hold any number of digits.
int read_number(const char* text, int low, int high) {
  const long number = std::strtol(text, nullptr, 10);
  return static_cast<int>(std::clamp<long>(number, low, high));
}

void read_field(std::int16_t& field, const char* value) {
  field = static_cast<std::int16_t>(read_number(value, INT16_MIN, INT16_MAX));
}

bool read_version(const char* value, const TReadRules& rules) {
  if (!rules.checks_version || std::strncmp(value, VERSION_TEXT, VERSION_CHARACTERS) <= 0) return true;
  return refuse_later_release(rules);
}

bool begin_statement(const char* value, const TReadRules& rules) {
  const int number = read_number(value, INT16_MIN, INT16_MAX);
  if (number > LAST_STATEMENT_NUMBER || program.statement_count >= STATEMENT_LIMIT)
    return refuse_later_release(rules);
  ProgramStatement& statement = program.statements[program.statement_count++];
  statement = {};
  statement.number = number;
  return true;
}

// A token counts only when a comma follows it.
void read_keys(ProgramStatement& statement, const char* value) {
  statement.key_count = 0;
  for (const char* comma = std::strchr(value, ','); comma && statement.key_count < KEY_LIMIT;
       comma = std::strchr(value, ',')) {
    const int token = read_number(value, -1, UINT16_MAX + 1);
    const bool in_range = token >= 0 && token <= UINT16_MAX;
    statement.keys[statement.key_count++] = in_range ? static_cast<TToken>(token) : NO_MEANING;
    value = comma + 1;
  }
}

bool read_statement_line(ProgramStatement& statement, char letter, const char* value) {
  switch (letter) {
    case 'T':
      std::snprintf(statement.text, sizeof statement.text, "%s", value);
      return true;
    case 'E':
      read_keys(statement, value);
      return true;
    case 'C':
      read_field(statement.compare, value);
      return true;
    case '0':
      read_field(statement.var0, value);
      return true;
    case '1':
      read_field(statement.var1, value);
      return true;
    case 'L':
      read_field(statement.label, value);
      return true;
    case 'F':
      read_field(statement.func, value);
      return true;
    case 'P':
      statement.pause = value[0] == '1';
      return true;
    default:
      return fail_to_read();
  }
}

bool has_head(const char* line) {
  return line[0] >= '0' && line[0] <= 'Z' && line[1] == ':' && line[2] == ' ';
}

}  // namespace

bool read_program_line(const char* line, const TReadRules& rules) {
  if (!has_head(line)) return fail_to_read();
  const char letter = line[0];
  const char* const value = line + LINE_HEAD;
  switch (letter) {
    case 'N':
      return true;
    case 'V':
      return read_version(value, rules);
    case 'I':
      return begin_statement(value, rules);
    case 'Z':
      if (!rules.skips_description)
        std::snprintf(program.description, sizeof program.description, "%s", value);
      return true;
    default:
      break;
  }
  // A line in front of the first statement has none to fill; it must be one that could.
  ProgramStatement nobody;
  const int last = program.statement_count - 1;
  return read_statement_line(last >= 0 ? program.statements[last] : nobody, letter, value);
}

}  // namespace zephyl
