#include "plot/plot_table.h"

#include <cmath>
#include <cstdint>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/faults.h"
#include "engine/format.h"
#include "engine/state.h"
#include "platform/platform.h"
#include "plot/parameter_names.h"
#include "plot/plot_labels.h"

namespace zephyl {

namespace {

constexpr double FUNCTION_DELTA = 0.1;
constexpr int DECIMALS = 4;

std::vector<int> slots_shown(int plot_type) {
  std::vector<int> slots;
  const int stride = slots_per_plot(plot_type);
  for (int first = 0; first < PLOT_SLOT_COUNT; first += stride) {
    bool in_use = false;
    for (int i = 0; i < stride; ++i) in_use = in_use || slot_in_use(plot_type, first + i);
    for (int i = 0; in_use && i < stride; ++i) slots.push_back(first + i);
  }
  return slots;
}

std::string text_of(const TPlotNumber& number) {
  if (!number.defined()) return error_word_text(number.error);
  char text[RESULT_TEXT_SIZE];
  format_real(text, number.value, FORMAT_FIXED, DECIMALS, false);
  return text;
}

// A parameter as a number: one too large for a double is an overflow.
TPlotNumber parameter_number(double value) {
  if (std::isfinite(value)) return {value};
  return {undefined_value, ERR_OVERFLOW};
}

}  // namespace

TPlotTable::TPlotTable() : plot_type_(plot_variables.plotType), slots_(slots_shown(plot_type_)) {
  const TPlotVariables& plot = plot_variables;
  if (plot_type_ == PLOT_FUNCTION)
    recalculate(plot.xMin, FUNCTION_DELTA);
  else
    recalculate(plot.t.min, plot.t.step);
}

void TPlotTable::recalculate(double start, double delta) {
  origin_ = start;
  delta_ = delta;
  moved_ = 0.0;
  cells_ = {};
}

// From the start of the last calculation on, so that rounding doesn't add up.
double TPlotTable::row_value(int row) const {
  const double value = origin_ + (moved_ + row) * delta_;
  if (!std::isfinite(value)) clear_faults();
  return value;
}

bool TPlotTable::move(int rows) {
  if (!std::isfinite(row_value(rows))) return false;
  moved_ += rows;
  const TCells before = cells_;
  for (int row = 0; row < PLOT_TABLE_ROWS; ++row) {
    const std::int64_t from = std::int64_t{row} + rows;
    const bool known = from >= 0 && from < PLOT_TABLE_ROWS;
    cells_[static_cast<std::size_t>(row)] = known ? before[static_cast<std::size_t>(from)] : TRow{};
  }
  return true;
}

std::vector<std::string> TPlotTable::headings() const {
  std::vector<std::string> headings = {parameter_label()};
  for (const int slot : slots_) headings.push_back(function_slot_name(plot_type_ * PLOT_SLOT_COUNT + slot));
  return headings;
}

// A sample of the run that has begun. What a tap cancels isn't known and may be evaluated later.
TPlotTable::TCell TPlotTable::plot_table_cell(int slot, double value) const {
  if (!std::isfinite(value)) return {true, {undefined_value, ERR_OVERFLOW}};
  if (plot_cancelled) return {false, {undefined_value, ERR_CANCELED}};
  const double result = custom_function(plot_type_, value, 0.0, slot, PHASE_SAMPLE);
  return {!plot_cancelled, {result, plot_error_code}};
}

void TPlotTable::evaluate_column(std::size_t column) {
  const int slot = slots_[column];
  if (!slot_in_use(plot_type_, slot)) return;
  custom_function(plot_type_, 0.0, 0.0, slot, PHASE_BEGIN);
  for (int row = 0; row < PLOT_TABLE_ROWS; ++row)
    if (!cell(row, column).valid) cell(row, column) = plot_table_cell(slot, row_value(row));
  custom_function(plot_type_, 0.0, 0.0, slot, PHASE_END);
}

std::string TPlotTable::row_text(int row) {
  std::string text = text_of(parameter_number(row_value(row)));
  for (std::size_t column = 0; column < slots_.size(); ++column)
    text += "\t" + text_of(cell(row, column).number);
  return text;
}

std::vector<std::string> TPlotTable::rows() {
  plot_cancelled = false;
  platform().set_wait_cursor(true);
  for (std::size_t column = 0; column < slots_.size(); ++column) evaluate_column(column);
  platform().set_wait_cursor(false);
  std::vector<std::string> rows;
  for (int row = 0; row < PLOT_TABLE_ROWS; ++row) rows.push_back(row_text(row));
  return rows;
}

}  // namespace zephyl
