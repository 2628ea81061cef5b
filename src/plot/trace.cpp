#include "plot/trace.h"

#include <cmath>
#include <cstdint>

#include "engine/values.h"
#include "platform/platform.h"
#include "plot/custom_function.h"
#include "plot/pen_position.h"
#include "plot/plot_kinds.h"
#include "plot/plot_labels.h"
#include "plot/plot_marks.h"
#include "plot/plot_points.h"
#include "plot/plot_screen.h"

namespace zephyl {

namespace {

// Side by side on a row.
void draw_numbers(TSurface& surface, const char* left_name, double left, const char* right_name, double right,
                  int row) {
  const int end = draw_small_line(surface, left_name, left, LABEL_LEFT, row);
  draw_small_line(surface, right_name, right, end + LABEL_GAP, row);
}

bool trace_function_plot(TPoint pen) {
  const int slot = trace_function();
  if (!slot_in_use(PLOT_FUNCTION, slot)) return false;
  const double x = pen_x(pen);
  const double f = evaluate_plot_function(PLOT_FUNCTION, x, 0.0, slot);
  TSurface& marks = begin_marks();
  const double row = f == undefined_value ? f : function_row(f);
  draw_cross(marks, pen.x, row, plot_colour(PLOT_FUNCTION, slot), MARKER_DOTS);
  draw_small_line(marks, "SMALL_XTRACE", x, LABEL_LEFT, UPPER_ROW);
  draw_small_line(marks, "SMALL_YTRACE", f, LABEL_LEFT, LOWER_ROW);
  show_marks();
  return true;
}

// --- Plots whose points are kept

void draw_polar_numbers(TSurface& marks, const TPlotPoint& point) {
  draw_small_line(marks, "SMALL_THETA", point.parameter, LABEL_LEFT, UPPER_ROW);
  draw_small_line(marks, "SMALL_RTRACE", std::sqrt(point.x * point.x + point.y * point.y), LABEL_LEFT,
                  LOWER_ROW);
}

void draw_parametric_numbers(TSurface& marks, const TPlotPoint& point) {
  draw_small_line(marks, "SMALL_T", point.parameter, LABEL_LEFT, UPPER_ROW);
  draw_numbers(marks, "SMALL_XTTRACE", point.x, "SMALL_YTTRACE", point.y, LOWER_ROW);
}

void draw_surface_numbers(TSurface& marks, const TPlotPoint& point) {
  constexpr const char* names[][3] = {{"SMALL_X_3D", "SMALL_Y_3D", "SMALL_Z_3D"},
                                      {"SMALL_THETA_3D", "SMALL_R_3D", "SMALL_Z_3D"},
                                      {"SMALL_THETA_A_3D", "SMALL_THETA_B_3D", "SMALL_R_3D"}};
  const char* const* const name = names[plot_variables.plotType3D];
  draw_small_line(marks, name[0], point.values[0], LABEL_LEFT, UPPER_ROW);
  draw_numbers(marks, name[1], point.values[1], name[2], point.values[2], LOWER_ROW);
}

using TDrawNumbers = void (*)(TSurface& marks, const TPlotPoint& point);

TDrawNumbers numbers_of(int plot_type) {
  switch (plot_type) {
    case PLOT_POLAR:
      return draw_polar_numbers;
    case PLOT_PARAMETRIC:
      return draw_parametric_numbers;
    case PLOT_3D:
      return draw_surface_numbers;
    default:
      platform().show_message("Undefined Plot Type", "Bug (draw_parametric_polar_3D_trace_cursor)");
      return nullptr;
  }
}

bool draw_parametric_polar_3D_trace_cursor(TPoint pen) {
  const int type = plot_variables.plotType;
  const TDrawNumbers draw_numbers_of = numbers_of(type);
  const TPlotPoint* const point = nearest_plot_point(pen_x(pen), pen_y(pen));
  if (!draw_numbers_of || !point) return false;
  TSurface& marks = begin_marks();
  draw_cross(marks, point->column, point->row, plot_colour(type, trace_function()), MARKER_DOTS);
  draw_numbers_of(marks, *point);
  show_marks();
  return true;
}

}  // namespace

bool trace_at(TPoint pen) {
  if (plot_variables.plotType == PLOT_FUNCTION) return trace_function_plot(pen);
  return draw_parametric_polar_3D_trace_cursor(pen);
}

}  // namespace zephyl
