// Records back into the state, in any order.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/bounded_text.h"
#include "persistence/state_numbers.h"
#include "persistence/state_options.h"
#include "persistence/state_records.h"
#include "platform/platform.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int RECORD_TOKENS = 100;  // further ones are dropped
constexpr int TOKEN_LIMIT = 32000;
constexpr std::size_t FIELDS = 3;  // where they begin in a line

// Each number has to have a comma behind it.
void read_tokens(const char* text, TExpression& expression) {
  expression.count = 0;
  for (const char* comma; expression.count < RECORD_TOKENS && (comma = std::strchr(text, ','));
       text = comma + 1) {
    const int token = TFieldReader(text).read_bounded(0, TOKEN_LIMIT, 0);
    expression.tokens[expression.count++] = static_cast<TToken>(token);
  }
}

void read_memory(TFieldReader fields, double TValue::*part) {
  const int slot = fields.read_index();
  if (slot < SLOT_MATRIX_A) memory_array[slot].*part = fields.read_real();
}

void read_stats_value(TFieldReader fields, double* column) {
  const int row = fields.read_index();
  if (row < STATS_LIMIT) column[row] = fields.read_real();
}

void read_indexed_expression(TFieldReader fields, int count, TExpression& (*place)(int index)) {
  const int index = fields.read_index();
  if (index < count) read_tokens(fields.rest(), place(index));
}

TExpression& plot_function(int index) { return plot_slot(index / PLOT_SLOT_COUNT, index % PLOT_SLOT_COUNT); }
TExpression& history_entry(int index) { return history.entries[index]; }
TExpression& program_function(int index) { return function_slots[FIRST_PROGRAM_FUNCTION + index]; }

// The matrix is as large as its last record says.
void read_matrix_cell(TFieldReader fields) {
  const int number = fields.read_index(), row = fields.read_index(), col = fields.read_index();
  if (number >= STORE_COUNT || row >= MATRIX_LIMIT || col >= MATRIX_LIMIT) return;
  MatrixRecord& matrix = stores.matrices[number];
  matrix.defined = true;
  matrix.last_row = row;
  matrix.last_col = col;
  matrix.cells[row][col] = fields.read_real();
  matrix_view.top_row[number] = matrix_view.left_col[number] = 0;
  matrix_view.cursor_row[number] = matrix_view.cursor_col[number] = 0;
}

void read_list_element(TFieldReader fields) {
  const int number = fields.read_index(), index = fields.read_index();
  if (number >= STORE_COUNT || index >= LIST_LIMIT) return;
  ListRecord& list = stores.lists[number];
  list.defined = true;
  list.last = index;
  list.elements[index].re = fields.read_real_of_pair();
  list.elements[index].im = fields.read_real_of_pair();
  list_view.top_row[number] = list_view.cursor[number] = 0;
}

void read_string(TFieldReader fields) {
  const int number = fields.read_index();
  if (number < STORE_COUNT) bounded_copy(stores.strings[number].text, STRING_LIMIT, fields.rest());
}

void read_option_record(TFieldReader fields) {
  const int number = fields.read_index();
  read_option(number, fields);
}

void read_result_text(TFieldReader fields) {
  std::snprintf(state.result_text, sizeof state.result_text, "%s", fields.rest());
  state.result_offset = 0;
}

// Only the number counts: "2.7A" is 2.7.
bool is_newer(const char* version) {
  return std::strtod(version, nullptr) > std::strtod(VERSION_TEXT, nullptr);
}

TStateLine check_version(const char* version) {
  if (!is_newer(version)) return STATE_LINE_READ;
  platform().show_message("The state file requires a more recent revision of Zephyl in order to load.",
                          "Error");
  return STATE_LINE_NEWER;
}

// A number outside of clear_items is no error of an expression.
void clear_item_by_number(TFieldReader fields) {
  const int item = fields.read_index();
  if (item >= CLEAR_VARIABLES && item <= CLEAR_ALL_ITEMS) clear_items(item);
}

void read_record(char letter, TFieldReader fields) {
  switch (letter) {
    case 'A':
      return clear_item_by_number(fields);
    case 'R':
      return read_memory(fields, &TValue::re);
    case 'I':
      return read_memory(fields, &TValue::im);
    case 'X':
      return read_stats_value(fields, stats.x);
    case 'Y':
      return read_stats_value(fields, stats.y);
    case 'E':
      return read_indexed_expression(fields, PLOT_TYPE_COUNT * PLOT_SLOT_COUNT, plot_function);
    case 'D':
      return read_tokens(fields.rest(), entry_line.expression);
    case 'K':
      return read_indexed_expression(fields, HISTORY_LIMIT, history_entry);
    case 'P':
      return read_indexed_expression(fields, 9, program_function);
    case 'S':
      return read_result_text(fields);
    case 'M':
      return read_matrix_cell(fields);
    case 'L':
      return read_list_element(fields);
    case 'W':
      return read_string(fields);
    case 'O':
      return read_option_record(fields);
    default:
      return;
  }
}

// The four bounds are saved one by one: only together can they be judged.
void mend_view() {
  const TPlotVariables wanted = plot_variables, usual;
  plot_variables.xMin = usual.xMin;
  plot_variables.xMax = usual.xMax;
  plot_variables.yMin = usual.yMin;
  plot_variables.yMax = usual.yMax;
  set_plot_view(wanted.xMin, wanted.yMin, wanted.xMax, wanted.yMax);
}

// Only a 3D plot can be rotated.
void mend_plot_cursor() {
  if (plot_variables.plotType != PLOT_3D && plot_variables.plotCursor == CURSOR_ROTATE)
    plot_variables.plotCursor = CURSOR_TRACE;
}

// A screen without a tab of its own, or none at all, can't be where the fourth tab leads.
void mend_fourth_tab() {
  const int mode = state.dynamic_mode;
  if (mode != BASE_MODE && mode != MATRIX_MODE && mode != LIST_MODE) state.dynamic_mode = STATS_MODE;
}

}  // namespace

TStateLine read_state_line(const std::string& line) {
  if (line.size() < FIELDS || line[0] < 'A' || line[0] > 'Y') return STATE_LINE_READ;
  const char* const fields = line.c_str() + FIELDS;
  if (line[0] == 'V') return check_version(fields);
  if (line[0] == 'G') return STATE_LINE_DRAWING;
  read_record(line[0], TFieldReader(fields));
  return STATE_LINE_READ;
}

void finish_reading_state() {
  mend_view();
  mend_plot_cursor();
  mend_fourth_tab();
  entry_line.cursor = std::min(entry_line.cursor, entry_line.expression.count);
  refresh_result();
  hooks.redraw_title();
  hooks.plot_changed();
  platform().invalidate(false);
}

}  // namespace zephyl
