// The state as records, in the order of the format.

#include <cstdarg>
#include <cstdio>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/save_items.h"
#include "persistence/state_numbers.h"
#include "persistence/state_options.h"
#include "persistence/state_records.h"
#include "plot/plot_slots.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int RECORD_SIZE = 200;

// Only what isn't zero: the file stays short, and clearing has made the rest zero.
void append_number(std::string& text, char letter, int index, double value) {
  if (value != 0.0) append_record(text, "%c: %d:%s\r\n", letter, index, format_state_number(value));
}

void append_tokens(std::string& text, const TExpression& expression) {
  for (int i = 0; i < expression.count; ++i) text += std::to_string(expression.tokens[i]) + ",";
  text += "\r\n";
}

void append_expression(std::string& text, char letter, int index, const TExpression& expression) {
  if (expression.count == 0) return;
  append_record(text, "%c: %d:", letter, index);
  append_tokens(text, expression);
}

void append_clear_actions(std::string& text) {
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item)
    if (is_saved(item)) append_record(text, "A: %d:%d\r\n", item, 0);
}

void append_memories(std::string& text) {
  for (int slot = 0; slot < SLOT_MATRIX_A; ++slot) {
    append_number(text, 'R', slot, memory_array[slot].re);
    append_number(text, 'I', slot, memory_array[slot].im);
  }
}

void append_stats(std::string& text) {
  for (int row = 0; row < STATS_LIMIT; ++row) {
    append_number(text, 'X', row, stats.x[row]);
    append_number(text, 'Y', row, stats.y[row]);
  }
}

void append_plot_functions(std::string& text) {
  for (int type = 0; type < PLOT_TYPE_COUNT; ++type)
    for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot)
      append_expression(text, 'E', PLOT_SLOT_COUNT * type + slot, plot_slot(type, slot));
}

void append_current_expression(std::string& text) {
  if (entry_line.expression.count == 0) return;
  text += "D: ";
  append_tokens(text, entry_line.expression);
}

void append_history(std::string& text) {
  for (int i = 0; i < history.count; ++i) append_expression(text, 'K', i, history.entries[i]);
}

void append_program_functions(std::string& text) {
  for (int i = 0; i < 9; ++i) append_expression(text, 'P', i, function_slots[FIRST_PROGRAM_FUNCTION + i]);
}

void append_matrix(std::string& text, int number, const MatrixRecord& matrix) {
  if (!matrix.defined) return;
  for (int row = 0; row <= matrix.last_row; ++row)
    for (int col = 0; col <= matrix.last_col; ++col)
      append_record(text, "M: %d:%d:%d:%s\r\n", number, row, col,
                    format_state_number(matrix.cells[row][col]));
}

void append_list(std::string& text, int number, const ListRecord& list) {
  if (!list.defined) return;
  for (int i = 0; i <= list.last; ++i) {
    const std::string re = format_state_number(list.elements[i].re);
    append_record(text, "L: %d:%d:%s,%s,\r\n", number, i, re.c_str(),
                  format_state_number(list.elements[i].im));
  }
}

// Characters that would end the line or vanish in it are left out.
std::string without_line_ends(const char* characters) {
  std::string result;
  for (const char* c = characters; *c; ++c)
    if (*c != '\r' && *c != '\n') result += *c;
  return result;
}

void append_string(std::string& text, int number, const TString& string) {
  if (string.text[0] != 0)
    append_record(text, "W: %d:%s\r\n", number, without_line_ends(string.text).c_str());
}

template <class TRecord>
void append_store(std::string& text, int item, const TRecord (&records)[STORE_COUNT],
                  void (*append)(std::string&, int, const TRecord&)) {
  if (!is_saved(item)) return;
  for (int i = 0; i < STORE_COUNT; ++i) append(text, i, records[i]);
}

void append_if_saved(std::string& text, int item, void (*append)(std::string&)) {
  if (is_saved(item)) append(text);
}

}  // namespace

void append_record(std::string& text, const char* format, ...) {
  char record[RECORD_SIZE];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(record, sizeof record, format, arguments);
  va_end(arguments);
  text += record;
}

void append_state_records(std::string& text) {
  append_record(text, "V: %s\r\n", VERSION_TEXT);
  append_clear_actions(text);
  append_if_saved(text, SAVE_VARIABLES, append_memories);
  append_if_saved(text, SAVE_STATS, append_stats);
  append_if_saved(text, SAVE_PLOT, append_plot_functions);
  append_current_expression(text);
  append_if_saved(text, SAVE_HISTORY, append_history);
  append_if_saved(text, SAVE_PROGRAM_FUNCTIONS, append_program_functions);
  append_record(text, "S: %s\r\n", without_line_ends(state.result_text).c_str());
  append_store(text, SAVE_MATRICES, stores.matrices, append_matrix);
  append_store(text, SAVE_LISTS, stores.lists, append_list);
  append_store(text, SAVE_STRINGS, stores.strings, append_string);
  append_options(text);
  append_record(text, "Z: %s\r\n", errors.error_location);
}

}  // namespace zephyl
