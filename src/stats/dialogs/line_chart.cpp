// The line chart: each value at its place in the order of entering.

#include <algorithm>

#include "platform/dialog.h"
#include "platform/platform.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int LINE_CHART_DIALOG = 191;
constexpr int FIRST_COLUMN = 24;
constexpr double COLUMN_SPAN = 196.0;

std::vector<TPoint> chart_points(const TStatsPane& pane) {
  const auto [low, high] = std::minmax_element(pane.data, pane.data + stats.count);
  const double step = stats.count > 1 ? COLUMN_SPAN / (stats.count - 1) : 0.0;
  std::vector<TPoint> points;
  for (int k = 0; k < stats.count; ++k)
    points.push_back({FIRST_COLUMN + static_cast<int>(k * step),
                      pane.top + static_cast<int>(pane.height - plot_share(pane.data[k], *low, *high, pane.height))});
  return points;
}

}  // namespace

TSurface line_chart_picture() {
  TSurface picture(STATS_PICTURE_WIDTH, STATS_PICTURE_HEIGHT);
  picture.fill({0, 0, STATS_PICTURE_WIDTH - 1, STATS_PICTURE_HEIGHT - 1}, WHITE);
  for (const TStatsPane& pane : stats_panes()) {
    draw_pane(picture, pane);
    const std::vector<TPoint> points = chart_points(pane);
    picture.polyline(points.data(), static_cast<int>(points.size()), PLOT_MARK);
    for (const TPoint& point : points) draw_plus(picture, point.x, point.y, BLACK);
  }
  return picture;
}

void show_line_chart() {
  TDialog dialog(LINE_CHART_DIALOG, "Line Chart");
  dialog.add(picture_control("", line_chart_picture()));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
