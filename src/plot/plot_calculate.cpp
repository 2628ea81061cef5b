#include "plot/plot_calculate.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/operation_codes.h"
#include "engine/tokens.h"
#include "platform/platform.h"
#include "plot/curve.h"
#include "plot/plot.h"
#include "plot/plot_kinds.h"
#include "plot/plot_marks.h"
#include "plot/plot_screen.h"
#include "plot/scratch_expression.h"

namespace zephyl {

TPlotCalculation plot_calculation;

TFunctionPair function_pair(int row) {
  const int partners = PLOT_SLOT_COUNT - 1;
  const int wanted = std::clamp(row, 0, FUNCTION_PAIR_COUNT - 1);
  const int first = wanted / partners, other = wanted % partners;
  return {first, other < first ? other : other + 1};
}

namespace {

// The operator that a calculation puts around a function.
TOp_Code operation_of(int calculation) {
  switch (calculation) {
    case CALCULATE_MINIMUM:
      return OP_PLOT_FN_MIN;
    case CALCULATE_MAXIMUM:
      return OP_PLOT_FN_MAX;
    case CALCULATE_SLOPE:
      return OP_PLOT_FN_DERIV;
    default:
      return OP_PLOT_FN_ROOT;
  }
}

// Of rounding in a search only: a value that was asked for is shown as it is.
TPlotNumber snapped_to_zero(TPlotNumber number) {
  if (std::fabs(number.value) < near_zero_limit) number.value = 0.0;
  return number;
}

// --- Functions of x

TScratch build_scratch(int calculation) {
  const TToken operation = operation_token(operation_of(calculation));
  if (calculation != CALCULATE_INTERSECTION)
    return wrap_function(operation, plot_slot(PLOT_FUNCTION, plot_calculation.function));
  const TFunctionPair pair = function_pair(plot_calculation.pair);
  return wrap_difference(operation, plot_slot(PLOT_FUNCTION, pair.first),
                         plot_slot(PLOT_FUNCTION, pair.second));
}

// The slot whose value is y.
int slot_of(int calculation) {
  return calculation == CALCULATE_INTERSECTION ? function_pair(plot_calculation.pair).first
                                               : plot_calculation.function;
}

bool functions_in_use(int calculation) {
  const bool crosses = calculation == CALCULATE_INTERSECTION;
  return slot_in_use(PLOT_FUNCTION, slot_of(calculation)) &&
         (!crosses || slot_in_use(PLOT_FUNCTION, function_pair(plot_calculation.pair).second));
}

// The operator's value. False, with a note, where the expression is too long.
bool evaluate_scratch(int calculation, double x, TPlotNumber& number) {
  const TScratch scratch = build_scratch(calculation);
  if (scratch == SCRATCH_TOO_LONG) {
    note_size_limit();
    return false;
  }
  number = {undefined_value, ERR_PARENTHESIS_UNBALANCED};
  if (scratch == SCRATCH_READY) number = plot_number(PLOT_SCRATCH_TYPE, x, 0);
  clear_scratch();
  if (calculation == CALCULATE_INTERSECTION && number.error == ERR_NO_ROOT)
    number.error = ERR_NO_INTERSECTION;
  return true;
}

bool calculate_slope(double x, TCalculated& result) {
  if (!evaluate_scratch(CALCULATE_SLOPE, x, result.number)) return false;
  result.parameter = result.x = {x};
  result.y = snapped_to_zero(plot_number(PLOT_FUNCTION, x, plot_calculation.function));
  return true;
}

// A search for an x in the view.
bool calculate_place(TCalculated& result) {
  TPlotNumber x;
  if (!evaluate_scratch(result.calculation, 0.0, x)) return false;
  result.parameter = result.x = result.y = x;
  if (x.defined())
    result.y = snapped_to_zero(plot_number(PLOT_FUNCTION, x.value, slot_of(result.calculation)));
  result.number = result.y;
  return true;
}

bool calculate_function(double value, TCalculated& result) {
  if (!functions_in_use(result.calculation)) return true;
  if (result.calculation == CALCULATE_SLOPE) return calculate_slope(value, result);
  if (result.calculation != CALCULATE_VALUE) return calculate_place(result);
  result.parameter = result.x = {value};
  result.number = result.y = plot_number(PLOT_FUNCTION, value, plot_calculation.function);
  return true;
}

// --- Curves

bool calculate_polar(double angle, TCalculated& result) {
  if (!slot_in_use(PLOT_POLAR, plot_calculation.function)) return true;
  result.parameter = {angle};
  result.number = plot_number(PLOT_POLAR, angle, plot_calculation.function);
  polar_point(angle, result.number.value, result.x.value, result.y.value);
  return true;
}

bool calculate_parametric(double t, TCalculated& result) {
  const int slot = slots_per_plot(PLOT_PARAMETRIC) * plot_calculation.function;
  if (!plot_in_use(PLOT_PARAMETRIC, slot)) return true;
  result.parameter = {t};
  result.number = result.x = plot_number(PLOT_PARAMETRIC, t, slot);
  if (!plot_cancelled) result.y = plot_number(PLOT_PARAMETRIC, t, slot + 1);
  return true;
}

// False where nothing is to be shown.
bool calculate(double value, TCalculated& result) {
  switch (plot_variables.plotType) {
    case PLOT_POLAR:
      return calculate_polar(value, result);
    case PLOT_PARAMETRIC:
      return calculate_parametric(value, result);
    default:
      return calculate_function(value, result);
  }
}

// --- What is shown

void draw_result_marker(TSurface& surface, const TCalculated& result) {
  double column = undefined_value, row = undefined_value;
  if (plot_variables.plotType != PLOT_FUNCTION) {
    project(result.x.value, result.y.value, column, row);
  } else {
    if (result.x.defined()) column = function_column(result.x.value);
    if (result.y.defined()) row = function_row(result.y.value);
  }
  draw_cross(surface, column, row, plot_colour(plot_variables.plotType, trace_function()), MARKER_BOX);
}

void show_result(const TCalculated& result) {
  shown_plot();  // drawn first if it must be: the marks lie on the plot as it is
  TSurface& marks = begin_marks();
  draw_result_marker(marks, result);
  print_calculate_small_numbers_low_level(marks, plot_variables.plotType, result);
  show_marks();
}

}  // namespace

void plot_calculate(int calculation, double value) {
  TCalculated result;
  result.calculation = calculation;
  plot_cancelled = false;
  platform().set_wait_cursor(true);
  const bool calculated = calculate(value, result);
  platform().set_wait_cursor(false);
  if (calculated && !plot_cancelled)
    show_result(result);
  else
    show_plot();
}

}  // namespace zephyl
