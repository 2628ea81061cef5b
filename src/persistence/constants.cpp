#include "persistence/constants.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "engine/format.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_resources.h"
#include "persistence/text_file.h"
#include "persistence/text_order.h"
#include "persistence/units_reader.h"
#include "platform/platform.h"

namespace zephyl {

TConstantTable constant_table;

namespace {

constexpr int ADDED_CONSTANT_LIMIT = 101;  // one less than a file may hold
constexpr int VALUE_DIGITS = 10;

std::string other_lines;  // of the user's file, that aren't constants: kept when it is written

std::string constants_path() { return data_file_path("constants", "const", true); }

bool write_constants() {
  std::string text = other_lines;
  for (int i = 0; i < constant_table.count; ++i) {
    const Constant& row = constant_table.rows[i];
    append_line(text, std::string("Cons: ") + row.name + ", " + row.unit + ", " + row.value);
  }
  return write_file(constants_path(), text);
}

bool stands_before(const Constant& a, const Constant& b) { return compare_ignoring_case(a.name, b.name) < 0; }

void sort_constants() {
  std::stable_sort(constant_table.rows, constant_table.rows + constant_table.count, stands_before);
}

// A file that is there but can't be read leaves the built-in ones, and is left alone.
void read_user_constants() {
  TLineReader reader(constants_path());
  if (!reader.open()) return;
  constant_table.count = 0;
  other_lines = read_units_text(reader);
}

// A folder that can't be written leaves what is in memory.
void save_and_reload() {
  if (write_constants())
    load_units_and_constants(false);
  else
    sort_constants();
}

void copy_field(char* to, std::size_t size, const char* from) {
  std::snprintf(to, size, "%s", from);
  std::replace(to, to + std::strlen(to), ',', ' ');
}

void append_answer(const char* name, const char* unit) {
  Constant& row = constant_table.rows[constant_table.count++];
  copy_field(row.name, sizeof row.name, name);
  copy_field(row.unit, sizeof row.unit, unit);
  char value[RESULT_TEXT_SIZE];
  format_real(value, answers.ans.re, FORMAT_SCIENTIFIC, VALUE_DIGITS, false);
  std::replace(value, value + std::strlen(value), ',', '.');
  std::snprintf(row.value, sizeof row.value, "%s", value);
}

}  // namespace

int constant_count() { return constant_table.count; }
const char* constant_name(int i) { return constant_table.rows[i].name; }
const char* constant_unit(int i) { return constant_table.rows[i].unit; }
const char* constant_value(int i) { return constant_table.rows[i].value; }

int find_constant(const char* name) {
  for (int i = 0; i < constant_table.count; ++i)
    if (compare_ignoring_case(constant_name(i), name) == 0) return i;
  return -1;
}

void load_units_and_constants(bool use_built_in) {
  other_lines.clear();
  read_built_in_units(text_resource("units"));
  if (!use_built_in && file_exists(constants_path()))
    read_user_constants();
  else
    write_constants();
  sort_constants();
}

bool add_constant(const char* name, const char* unit) {
  if (constant_table.count >= ADDED_CONSTANT_LIMIT) {
    platform().show_message("Reached maximum number of constants", "Limit");
    return false;
  }
  Constant wanted;
  copy_field(wanted.name, sizeof wanted.name, name);
  if (find_constant(wanted.name) >= 0) {
    platform().show_message("Constant name in use", "Error");
    return false;
  }
  append_answer(name, unit);
  save_and_reload();
  return true;
}

void delete_constant(const char* name) {
  char question[80];
  std::snprintf(question, sizeof question, "Delete Constant: %s?", name);
  const int row = find_constant(name);
  if (!platform().ask_question(question, "Delete Constant?") || row < 0) return;
  Constant* const rows = constant_table.rows;
  std::move(rows + row + 1, rows + constant_table.count, rows + row);
  --constant_table.count;
  if (constant_table.count > 0)
    save_and_reload();
  else
    load_units_and_constants(true);
}

}  // namespace zephyl
