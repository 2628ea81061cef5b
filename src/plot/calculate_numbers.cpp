// The numbers of a plot calculation on its plot.

#include "platform/platform.h"
#include "plot/plot_calculate.h"
#include "plot/plot_labels.h"

namespace zephyl {

namespace {

int draw_number(TSurface& surface, const char* name, const TPlotNumber& number, int left, int row) {
  plot_error_code = number.error;
  return draw_small_line(surface, name, number.value, left, row);
}

// The slope has no heading: its word stands in front of the number.
void draw_heading(TSurface& surface, int calculation) {
  constexpr const char* names[] = {"SMALL_CALC_VALUE", "SMALL_CALC_ROOT", "SMALL_CALC_MINIMUM",
                                   "SMALL_CALC_MAXIMUM", "SMALL_CALC_INTERSECT"};
  if (calculation <= CALCULATE_INTERSECTION)
    draw_small_heading(surface, names[calculation], LABEL_LEFT, HEADING_ROW);
}

}  // namespace

void print_calculate_small_numbers_low_level(TSurface& surface, int plot_type,
                                             const TCalculated& calculated) {
  constexpr const char* names[][3] = {{"SMALL_XTRACE", "SMALL_YTRACE", nullptr},
                                      {"SMALL_THETA", "SMALL_RTRACE", nullptr},
                                      {"SMALL_T", "SMALL_XTTRACE", "SMALL_YTTRACE"}};
  if (plot_type < PLOT_FUNCTION || plot_type > PLOT_PARAMETRIC)
    return platform().show_message("Undefined Plot Type", "Bug (print_calculate_small_numbers_low_level)");
  const auto& [parameter, number, second] = names[plot_type];
  const bool slope = calculated.calculation == CALCULATE_SLOPE;
  draw_heading(surface, calculated.calculation);
  draw_number(surface, parameter, calculated.parameter, LABEL_LEFT, UPPER_ROW);
  const int end =
      draw_number(surface, slope ? "SMALL_CALC_SLOPE" : number, calculated.number, LABEL_LEFT, LOWER_ROW);
  if (second) draw_number(surface, second, calculated.y, end + LABEL_GAP, LOWER_ROW);
}

}  // namespace zephyl
