#include "programs/program_cache.h"

#include <cstdio>
#include <cstring>

#include "programs/built_in_programs.h"
#include "programs/program.h"
#include "programs/program_files.h"
#include "programs/program_reader.h"
#include "programs/run_state.h"
#include "programs/statement_expressions.h"

namespace zephyl {

namespace {

constexpr int NOT_KEPT = -1;
constexpr int NO_PROGRAM = -1;

struct TKeptProgram {
  char name[PROGRAM_NAME_LENGTH] = "";
  bool built_in = false;
  char text[CACHED_TEXT_SIZE];  // lines, each with a 0
  int size = 0;
  int line_count = 0;  // 0: the place is free
  int statement_count = 0;
};

struct TKeptPrograms {
  TKeptProgram places[CACHED_PROGRAMS];
  int loaded = NOT_KEPT;
};
TKeptPrograms kept;

int find_kept(const char* name, bool built_in) {
  for (int i = 0; i < CACHED_PROGRAMS; ++i) {
    const TKeptProgram& place = kept.places[i];
    if (place.line_count > 0 && place.built_in == built_in && std::strcmp(place.name, name) == 0) return i;
  }
  return NOT_KEPT;
}

// A free place, else the last one.
int place_for_another() {
  for (int i = 0; i < CACHED_PROGRAMS; ++i)
    if (kept.places[i].line_count == 0) return i;
  return CACHED_PROGRAMS - 1;
}

// Takes a text down while it is read; gives up on one that is too long.
class TTextKeeper {
 public:
  TTextKeeper(const char* name, bool built_in)
      : place_(kept.places[index_]), name_(name), built_in_(built_in) {
    place_.line_count = place_.size = 0;
    forget_statement_hints(index_);
  }

  void add(const char* line) {
    const int length = static_cast<int>(std::strlen(line)) + 1;
    if (place_.size + length >= CACHED_TEXT_SIZE || lines_ >= CACHED_LINES) fits_ = false;
    if (!fits_) return;
    std::memcpy(place_.text + place_.size, line, static_cast<std::size_t>(length));
    place_.size += length;
    ++lines_;
  }

  // The place of the program that has been read; NOT_KEPT if it was too long.
  int finish() {
    if (!fits_) return NOT_KEPT;
    std::snprintf(place_.name, sizeof place_.name, "%s", name_);
    place_.built_in = built_in_;
    place_.line_count = lines_;
    place_.statement_count = program.statement_count;
    return index_;
  }

 private:
  int index_ = place_for_another();
  TKeptProgram& place_;
  const char* name_;
  bool built_in_;
  int lines_ = 0;
  bool fits_ = true;
};

TReadRules read_rules(bool built_in) {
  const bool nested = run.level > 1;
  return {!built_in && !nested, nested, !in_custom_function()};
}

void begin_loading(const TReadRules& rules) {
  if (rules.skips_description)
    program.statement_count = 0;
  else
    clear_program();
  kept.loaded = NOT_KEPT;
}

int fail_to_load() {
  clear_program();
  program.name[0] = 0;
  program.built_in = false;
  return NO_PROGRAM;
}

int finish_loading(const char* name, bool built_in) {
  std::snprintf(program.name, sizeof program.name, "%s", name);
  program.built_in = built_in;
  program.cursor = program.top = 0;
  return_to_place();
  return program.statement_count;
}

// Out of a kept text. A text that was read once can fail only by its version, which a nested function isn't
// asked for.
bool read_kept(int index, const TReadRules& rules) {
  const TKeptProgram& place = kept.places[index];
  const char* line = place.text;
  for (int i = 0; i < place.line_count; ++i, line += std::strlen(line) + 1)
    if (!read_program_line(line, rules)) return false;
  kept.loaded = index;
  return true;
}

bool read_from_source(const char* name, bool built_in, const TReadRules& rules) {
  TProgramLines lines(name, built_in);
  const char* line = lines.next();
  if (!line) return false;
  TTextKeeper keeper(name, built_in);
  for (; line; line = lines.next()) {
    if (!read_program_line(line, rules)) return false;
    keeper.add(line);
  }
  kept.loaded = keeper.finish();
  forget_statement_hints(kept.loaded);
  return true;
}

}  // namespace

int load_program(const char* name, bool built_in) {
  char wanted[PROGRAM_NAME_LENGTH];  // `name` may be that of the program in memory
  std::snprintf(wanted, sizeof wanted, "%s", name);
  const int index = find_kept(wanted, built_in);
  if (index != NOT_KEPT && index == kept.loaded) {
    program.statement_count = kept.places[index].statement_count;
    return finish_loading(wanted, built_in);
  }
  const TReadRules rules = read_rules(built_in);
  begin_loading(rules);
  const bool read = index != NOT_KEPT ? read_kept(index, rules) : read_from_source(wanted, built_in, rules);
  return read ? finish_loading(wanted, built_in) : fail_to_load();
}

int load_any_program(const char* name) {
  const bool custom = find_kept(name, false) != NOT_KEPT || program_exists(name);
  std::size_t size = 0;
  const bool built_in = !custom && find_built_in(name, size);
  return load_program(name, built_in);
}

void forget_programs() {
  for (TKeptProgram& place : kept.places) place.line_count = 0;
  kept.loaded = NOT_KEPT;
  forget_statement_expressions();
}

void forget_loaded_program() {
  kept.loaded = NOT_KEPT;
  forget_statement_hints(NOT_KEPT);
}

int loaded_place() { return kept.loaded; }

// --- Lines

TProgramLines::TProgramLines(const char* name, bool built_in) {
  const int index = find_kept(name, built_in);
  if (index != NOT_KEPT) {
    next_kept_ = kept.places[index].text;
    kept_lines_ = kept.places[index].line_count;
  } else if (!built_in) {
    reader_.emplace(program_path(name));
  } else {
    std::size_t size = 0;
    const char* const text = find_built_in(name, size);
    reader_.emplace(text ? text : "", size);
  }
}

const char* TProgramLines::next() {
  if (reader_) {
    const std::string& line = reader_->read_line();
    return line.empty() ? nullptr : line.c_str();
  }
  if (kept_lines_ == 0) return nullptr;
  --kept_lines_;
  const char* const line = next_kept_;
  next_kept_ += std::strlen(line) + 1;
  return line;
}

}  // namespace zephyl
