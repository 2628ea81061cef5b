#include "plot/plot_variables.h"

#include <cmath>

#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "platform/platform.h"

namespace zephyl {

TPlotVariables plot_variables;

namespace {

bool fits_view(double min, double max) {
  constexpr double view_limit = 1e100;
  return std::fabs(min) <= view_limit && std::fabs(max) <= view_limit && min < max;
}

TPlotRange one_turn() {
  if (settings.angleMode == DEGREES) return {0.0, 360.0, 0.36};
  if (settings.angleMode == GRADS) return {0.0, 400.0, 0.4};
  return {};
}

}  // namespace

bool set_plot_view(double xMin, double yMin, double xMax, double yMax) {
  if (!fits_view(xMin, xMax) || !fits_view(yMin, yMax)) return false;
  TPlotVariables& view = plot_variables;
  const bool changes = xMin != view.xMin || yMin != view.yMin || xMax != view.xMax || yMax != view.yMax;
  view.xMin = xMin;
  view.yMin = yMin;
  view.xMax = xMax;
  view.yMax = yMax;
  if (changes) hooks.plot_changed();
  return true;
}

void set_plot_defaults() {
  const int type = plot_variables.plotType, type_3d = plot_variables.plotType3D;
  plot_variables = {};
  plot_variables.plotType3D = type_3d;
  plot_variables.t = plot_variables.v = one_turn();
  hooks.redraw_part(PART_TRACE_LEDS);
  hooks.redraw_title();
  hooks.plot_changed();
  // The keys of the third dimension go.
  if (type == PLOT_3D) platform().invalidate(false);
}

void set_plot_type(int plot_type) {
  plot_variables.plotType = plot_type;
  plot_variables.plotCursor = active_plot_cursor();
}

int active_plot_cursor() {
  const bool rotates_flat = plot_variables.plotCursor == CURSOR_ROTATE && plot_variables.plotType != PLOT_3D;
  return rotates_flat ? static_cast<int>(CURSOR_TRACE) : plot_variables.plotCursor;
}

void reset_plot_variables() { plot_variables = {}; }

namespace {

void redraw_plot() { hooks.plot_changed(); }

// The type decides which keys the front has.
void redraw_type() {
  set_plot_type(plot_variables.plotType);
  hooks.plot_changed();
  hooks.redraw_title();
  platform().invalidate(false);
}

void redraw_cursor() {
  hooks.plot_changed();
  hooks.redraw_part(PART_TRACE_LEDS);
  hooks.redraw_title();
}

struct TChoiceRow {
  TSystemVariable number;
  int TPlotVariables::*field;
  int high;
  void (*redraw)();
};

constexpr TChoiceRow choice_rows[] = {
    {VAR_ENABLE_PLOTS, &TPlotVariables::enablePlots, 2, redraw_plot},
    {VAR_CONNECT_DOTS, &TPlotVariables::connectDots, 2, redraw_plot},
    {VAR_DISPLAY_GRID, &TPlotVariables::displayGrid, 2, redraw_plot},
    {VAR_PLOT_CURSOR, &TPlotVariables::plotCursor, 4, redraw_cursor},
    {VAR_PLOT_TYPE, &TPlotVariables::plotType, 4, redraw_type},
    {VAR_PLOT_TYPE_3D, &TPlotVariables::plotType3D, 3, redraw_type},
};

const TChoiceRow& choice_row(int number) {
  const TChoiceRow* row = choice_rows;
  while (row->number != number) ++row;
  return *row;
}

TValue read_choice(int number) {
  return {static_cast<double>(plot_variables.*choice_row(number).field + 1), 0.0};
}

void write_choice(int number, double value) {
  const TChoiceRow& row = choice_row(number);
  int choice;
  if (!take_choice(value, 1, row.high, choice)) return;
  if (plot_variables.*row.field == choice - 1) return;
  plot_variables.*row.field = choice - 1;
  row.redraw();
}

double* number_field(int number) {
  switch (number) {
    case VAR_T_MAX:
    case VAR_THETA_MAX:
      return &plot_variables.t.max;
    case VAR_T_MIN:
    case VAR_THETA_MIN:
      return &plot_variables.t.min;
    case VAR_T_STEP:
    case VAR_THETA_STEP:
      return &plot_variables.t.step;
    case VAR_X_MAX:
      return &plot_variables.xMax;
    case VAR_X_MIN:
      return &plot_variables.xMin;
    case VAR_Y_MAX:
      return &plot_variables.yMax;
    case VAR_Y_MIN:
      return &plot_variables.yMin;
    default:
      return &plot_variables.zScale;
  }
}

TValue read_number(int number) { return {*number_field(number), 0.0}; }

void write_number(int number, double value) {
  double& field = *number_field(number);
  if (field == value) return;
  field = value;
  hooks.plot_changed();
}

void write_view(int number, double value) {
  TPlotVariables wanted = plot_variables;
  switch (number) {
    case VAR_X_MAX:
      wanted.xMax = value;
      break;
    case VAR_X_MIN:
      wanted.xMin = value;
      break;
    case VAR_Y_MAX:
      wanted.yMax = value;
      break;
    default:
      wanted.yMin = value;
      break;
  }
  set_plot_view(wanted.xMin, wanted.yMin, wanted.xMax, wanted.yMax);
}

}  // namespace

void register_plot_variables() {
  for (const TChoiceRow& row : choice_rows) {
    system_variables[row.number].read = read_choice;
    system_variables[row.number].write = write_choice;
  }
  for (int number = VAR_T_MAX; number <= VAR_Z_SCALE; ++number) {
    const bool of_view = number >= VAR_X_MAX && number <= VAR_Y_MIN;
    system_variables[number].read = read_number;
    system_variables[number].write = of_view ? write_view : write_number;
  }
}

}  // namespace zephyl
