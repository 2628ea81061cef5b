// What can be calculated of the functions on a flat plot: values, zeros, extremes, crossings and slopes. The
// result shows on the plot, with its numbers.
#pragma once

#include "plot/custom_function.h"

namespace zephyl {

enum TCalculation {
  CALCULATE_VALUE = 0,
  CALCULATE_ROOT,
  CALCULATE_MINIMUM,
  CALCULATE_MAXIMUM,
  CALCULATE_INTERSECTION,
  CALCULATE_SLOPE,
  CALCULATE_TABLE
};
constexpr int CALCULATION_COUNT = 7;

// What was chosen last; it is offered again until the program ends.
struct TPlotCalculation {
  int calculation = CALCULATE_VALUE;
  int function = 0;  // a function, a curve, or a pair of a parametric plot, from 0
  int pair = 0;      // of functions that may cross: a row of function_pair
  double value = 0.0;
};
extern TPlotCalculation plot_calculation;

// Two different functions in an order.
struct TFunctionPair {
  int first;
  int second;
};
constexpr int FUNCTION_PAIR_COUNT = PLOT_SLOT_COUNT * (PLOT_SLOT_COUNT - 1);
TFunctionPair function_pair(int row);

// What a calculation gave: a point of the plot, and the numbers that are shown of it.
struct TCalculated {
  int calculation = CALCULATE_VALUE;
  TPlotNumber parameter;  // x, theta or t
  TPlotNumber x, y;       // the point
  TPlotNumber number;     // what was asked for: y or the slope, the radius, the x of a pair
};

// Calculates what is chosen of the chosen function, or pair of functions, of the current plot type, and shows
// it over the plot. calculation: any but CALCULATE_TABLE, on polar and parametric plots CALCULATE_VALUE.
// value: the x, theta or t of values and slopes. What goes wrong shows as a word in the place of a number; a
// function that is too long for a calculation is told in a box. A cancelled calculation shows nothing.
void plot_calculate(int calculation, double value);

// A row a number, and the name of the calculation above them.
void print_calculate_small_numbers_low_level(TSurface& surface, int plot_type, const TCalculated& calculated);

}  // namespace zephyl
