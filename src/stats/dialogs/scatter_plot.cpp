// The scatter plot: each pair as a point, with the curve of the regression.

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/state.h"
#include "engine/values.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"
#include "stats/stats_values.h"

namespace zephyl {

namespace {

constexpr int SCATTER_DIALOG = 189;
constexpr TRect PLOT = {9, 8, 217, 180};
constexpr double COLUMNS = 208.0;
constexpr double ROWS = 172.0;
constexpr double CURVE_STEP = 0.004807692307692308;  // of the range: a column
constexpr int CURVE_STEPS = 520;                     // to 1.5 ranges past the last point
constexpr TColour CURVE = rgb(255, 0, 0);

// A fit value, or undefined_value where it can't be computed; no error stands afterwards.
double fit_value(int index) {
  const double value = stats_value(index);
  const bool failed = errors.error_flag;
  clear_error();
  return failed ? undefined_value : value;
}

// The map from data to the picture.
struct TScale {
  double x_min, x_max, y_min, y_max;

  TScale() {
    const auto [x_low, x_high] = std::minmax_element(stats.x, stats.x + stats.count);
    const auto [y_low, y_high] = std::minmax_element(stats.y, stats.y + stats.count);
    x_min = *x_low, x_max = *x_high;
    y_min = *y_low, y_max = *y_high;
  }
  double x_range() const { return x_max - x_min; }
  double column(double x) const { return plot_share(x, x_min, x_max, COLUMNS) + PLOT.left; }
  double row(double y) const { return ROWS - plot_share(y, y_min, y_max, ROWS) + PLOT.top; }
};

// y of the curve at x; false where it has none.
bool curve_at(double x, double& y) {
  if (!std::isfinite(x)) return false;
  clear_faults();
  y = predict_y(x);
  const bool fails = errors.error_flag || !std::isfinite(y);
  clear_error();
  clear_faults();
  return !fails;
}

int pixel(double coordinate) { return static_cast<int>(std::clamp(coordinate, -1e8, 1e8)); }

void draw_curve(TSurface& picture, const TScale& scale) {
  bool joined = false;
  TPoint last;
  for (int k = 0; k <= CURVE_STEPS; ++k) {
    const double x = scale.x_min + k * CURVE_STEP * scale.x_range();
    double y;
    const bool defined = curve_at(x, y);
    const TPoint point = defined ? TPoint{pixel(scale.column(x)), pixel(scale.row(y))} : last;
    if (defined && joined) picture.line(last, point, CURVE, PLOT);
    joined = defined;
    last = point;
  }
}

bool has_curve(const TScale& scale) {
  return scale.x_range() != 0.0 && std::isfinite(scale.x_range()) && fit_value(STAT_SLOPE) != undefined_value &&
         fit_value(STAT_INTERCEPT) != undefined_value;
}

std::string fit_text(int index) {
  const double value = fit_value(index);
  return value == undefined_value ? "error" : plot_number(value);
}

}  // namespace

TSurface scatter_picture() {
  TSurface picture(227, 189);
  picture.fill({0, 0, 226, 188}, WHITE);
  picture.frame({PLOT.left - 3, PLOT.top - 3, PLOT.right + 3, PLOT.bottom + 3}, PLOT_FRAME);
  const TScale scale;
  for (int k = 0; k < stats.count; ++k)
    draw_plus(picture, pixel(scale.column(stats.x[k])), pixel(scale.row(stats.y[k])), PLOT_MARK);
  if (has_curve(scale)) draw_curve(picture, scale);
  return picture;
}

void show_scatter_plot() {
  const std::string r = fit_text(STAT_CORRELATION);
  TDialog dialog(SCATTER_DIALOG, "Scatter Plot");
  dialog.add(picture_control("", scatter_picture()));
  dialog.add(text_control("", "a=" + fit_text(STAT_SLOPE) + ", b=" + fit_text(STAT_INTERCEPT) + ", r=" + r));
  dialog.add(text_control("", std::string(regression_equation(settings.statsRegress)) + ", r=" + r));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
