#include "programs/function_header.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/tokens.h"
#include "programs/program.h"
#include "programs/program_cache.h"

namespace zephyl {

namespace {

constexpr int HEADER_LINE = 3;  // behind the name and the version

// The value of a line of that letter; null for another line and behind the last.
const char* value_of(const char* line, char letter) {
  return line && line[0] == letter && line[1] == ':' && line[2] == ' ' ? line + 3 : nullptr;
}

bool is_statement_line(const char* line, int number) {
  const char* const value = value_of(line, 'I');
  return value && std::strtol(value, nullptr, 10) == number;
}

// On through the lines of a program, from the one behind its header.
void read_description(TProgramLines& lines, const char* line, std::string& description) {
  if (!is_statement_line(line, STATEMENT_DESCRIPTION)) return;
  while ((line = lines.next()) && !value_of(line, 'I'))
    if (const char* const value = value_of(line, 'Z'))
      description.assign(value, std::min<std::size_t>(std::strlen(value), DESCRIPTION_SIZE - 1));
}

int read_header_lines(const char* name, TFunctionHeader& header, std::string* description) {
  TProgramLines lines(name, false);
  const char* line = nullptr;
  for (int i = 0; i < HEADER_LINE; ++i) line = lines.next();
  if (!is_statement_line(line, STATEMENT_FUNC)) return NO_FUNCTION;
  line = lines.next();
  if (const char* const text = value_of(line, 'T')) {
    read_argument_slots(text, header);
    line = lines.next();
  }
  if (description) read_description(lines, line, *description);
  return header.count;
}

int header_in_memory(TFunctionHeader& header, std::string* description) {
  if (!is_function_program()) return NO_FUNCTION;
  read_argument_slots(program.statements[0].text, header);
  if (description) *description = program.description;
  return header.count;
}

}  // namespace

void read_argument_slots(const char* text, TFunctionHeader& header) {
  for (header.count = 0; text[header.count] && header.count < ARGUMENT_LIMIT; ++header.count)
    header.slots[header.count] = static_cast<unsigned char>(text[header.count]) - FUNC_SLOT_OFFSET;
}

int read_function_header(const char* name, TFunctionHeader& header, std::string* description) {
  header = {};
  if (description) description->clear();
  return name[0] == 0 ? header_in_memory(header, description) : read_header_lines(name, header, description);
}

bool is_custom_function(const char* name) {
  TFunctionHeader header;
  return read_function_header(name, header) != NO_FUNCTION;
}

TToken function_token(const char* name) {
  TFunctionHeader header;
  return read_function_header(name, header) > 0 ? TOKEN_FUNC1 : TOKEN_FUNC2;
}

// --- Arguments in words

namespace {

struct TKindWords {
  const char* short_word;
  const char* long_word;
};

const TKindWords& words_of(int slot) {
  static constexpr TKindWords value = {"val", "value"}, matrix = {"matrix", "matrix"},
                              list = {"list", "list"}, function = {"func", "function"},
                              string = {"str", "string"};
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return matrix;
    case CLASS_LIST:
      return list;
    case CLASS_FUNCTION:
      return function;
    case CLASS_STRING:
      return string;
    default:
      return value;
  }
}

}  // namespace

std::string arguments_text(const TFunctionHeader& header) {
  if (header.count == 1) return words_of(header.slots[0]).long_word;
  std::string text;
  for (int i = 0; i < header.count; ++i) {
    const TKindWords& words = words_of(header.slots[i]);
    const auto same = [&](int slot) { return &words_of(slot) == &words; };
    const auto all = std::count_if(header.slots, header.slots + header.count, same);
    const auto before = std::count_if(header.slots, header.slots + i, same);
    text +=
        words.short_word + (all > 1 ? std::to_string(before + 1) : "") + (i + 1 < header.count ? ", " : "");
  }
  return text;
}

}  // namespace zephyl
