#include "support/whole_state.h"

#include <cmath>
#include <cstring>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "persistence/constants.h"
#include "persistence/units.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

bool between(int value, int low, int high) { return value >= low && value <= high; }

bool is_expression(const TExpression& expression) {
  return between(expression.count, 0, EXPRESSION_LIMIT + 1);
}

bool has_end(const char* text, std::size_t size) { return std::memchr(text, 0, size) != nullptr; }

std::string store_fault() {
  for (const ListRecord& list : stores.lists)
    if (!between(list.last, -1, LIST_LIMIT - 1)) return "size of a list";
  for (const MatrixRecord& matrix : stores.matrices)
    if (!between(matrix.last_row, 0, MATRIX_LIMIT - 1) || !between(matrix.last_col, 0, MATRIX_LIMIT - 1))
      return "size of a matrix";
  for (const TString& string : stores.strings)
    if (!has_end(string.text, sizeof string.text)) return "end of a string";
  for (const TValue& value : memory_array)
    if (!std::isfinite(value.re) || !std::isfinite(value.im)) return "number in a memory";
  return between(stats.count, 0, STATS_LIMIT) ? "" : "number of statistics rows";
}

std::string expression_fault() {
  if (!between(history.count, 0, HISTORY_LIMIT)) return "number of entries";
  for (const TExpression& entry : history.entries)
    if (!is_expression(entry)) return "length of an entry";
  for (const TExpression& function : function_slots)
    if (!is_expression(function)) return "length of a function";
  for (int i = 0; i < PLOT_TYPE_COUNT * PLOT_SLOT_COUNT; ++i)
    if (!is_expression(plot_slot(i / PLOT_SLOT_COUNT, i % PLOT_SLOT_COUNT)))
      return "length of a plot function";
  if (!is_expression(entry_line.expression)) return "length of the entry line";
  return between(entry_line.cursor, 0, entry_line.expression.count) ? "" : "place of the cursor";
}

std::string setting_fault() {
  const bool fine = between(settings.angleMode, 0, 2) && between(settings.baseBits, 0, 2) &&
                    between(settings.baseType, 0, 3) && between(settings.complexFormat, 0, 2) &&
                    between(settings.decimalDigits, 0, 10) && between(settings.decimalMark, 0, 1) &&
                    between(settings.numberFormat, 0, 3) && between(settings.statsRegress, 0, 3) &&
                    between(settings.statsVar, 0, 1) && between(state.calcMode, 0, 7) &&
                    between(matrix_view.current_matrix, 0, 10) && between(list_view.current_list, 0, 10);
  if (!fine) return "a setting";
  return has_end(state.result_text, sizeof state.result_text) ? "" : "end of the result line";
}

std::string plot_fault() {
  const TPlotVariables& plot = plot_variables;
  if (!between(plot.plotType, 0, 3) || !between(plot.plotType3D, 0, 2) || !between(plot.plotCursor, 0, 3))
    return "a choice of the plot";
  for (const int slot : trace_functions.slot)
    if (!between(slot, 0, PLOT_SLOT_COUNT - 1)) return "a trace function";
  return plot.xMin < plot.xMax && plot.yMin < plot.yMax ? "" : "the plot's view";
}

std::string table_fault() {
  if (!between(unit_table.unit_count, 0, UNIT_LIMIT) ||
      !between(unit_table.property_count, 0, PROPERTY_LIMIT))
    return "number of units";
  if (!between(constant_count(), 0, CONSTANT_LIMIT)) return "number of constants";
  for (int i = 0; i < unit_table.unit_count; ++i)
    if (!between(unit_table.units[i].property, 0, unit_table.property_count - 1)) return "property of a unit";
  return "";
}

}  // namespace

std::string state_fault() {
  for (const auto& fault : {store_fault, expression_fault, setting_fault, plot_fault, table_fault})
    if (const std::string found = fault(); !found.empty()) return found;
  return "";
}

std::string calculator_fault() {
  if (const std::string fault = state_fault(); !fault.empty()) return fault;
  settings = {};
  state.calcMode = COMP_MODE;
  clear_error();
  char error[200];
  text_to_tokens("2+2", entry_line.expression, error, sizeof error);
  entry_line.cursor = entry_line.expression.count;
  state.fresh_flag = false;
  evaluate_expression(false);
  return errors.error_flag || answers.ans.re != 4.0 ? "2+2" : "";
}

}  // namespace zephyl
