// The histogram: how many values fall into each of a number of bins of equal width.

#include <algorithm>
#include <cmath>

#include "platform/dialog.h"
#include "platform/platform.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"

namespace zephyl {

THistogram histogram;

namespace {

constexpr int HISTOGRAM_DIALOG = 190;
constexpr int FIRST_COLUMN = 24;
constexpr int COLUMN_SPAN = 197;
constexpr TColour SELECTED_BIN = rgb(192, 192, 255);

enum THistogramControl { PICTURE, BINS, PREVIOUS, NEXT, FIRST_INFO };

struct TExtent {
  double low;
  double high;
};

TExtent extent_of(const double* data, int count) {
  const auto [low, high] = std::minmax_element(data, data + count);
  return {*low, *high};
}

int bin_of(double value, const TExtent& extent, int bin_count) {
  const double place = plot_share(value, extent.low, extent.high, bin_count);
  const int bin = std::clamp(static_cast<int>(place), 0, bin_count - 1);
  const double range = extent.high - extent.low;
  if (range == 0.0 || !std::isfinite(range)) return bin;
  // Rounding must not move a value over an edge.
  const double width = range / bin_count, above = value - extent.low;
  if (bin + 1 < bin_count && above >= (bin + 1) * width) return bin + 1;
  return bin > 0 && above < bin * width ? bin - 1 : bin;
}

std::vector<int> bin_counts(const double* data, int count, int bin_count) {
  const TExtent extent = extent_of(data, count);
  std::vector<int> bins(static_cast<std::size_t>(bin_count));
  for (int k = 0; k < count; ++k) ++bins[static_cast<std::size_t>(bin_of(data[k], extent, bin_count))];
  return bins;
}

void draw_bars(TSurface& picture, const TStatsPane& pane) {
  const std::vector<int> bins = bin_counts(pane.data, stats.count, histogram.bin_count);
  const int highest = *std::max_element(bins.begin(), bins.end());
  for (int i = 0; i < histogram.bin_count; ++i) {
    const int count = bins[static_cast<std::size_t>(i)];
    const TRect bar = {FIRST_COLUMN + i * COLUMN_SPAN / histogram.bin_count, pane.top + pane.height - pane.height * count / highest,
                       FIRST_COLUMN + (i + 1) * COLUMN_SPAN / histogram.bin_count, pane.top + pane.height};
    picture.fill(bar, i == histogram.selected_bin ? SELECTED_BIN : PLOT_MARK);
    picture.frame(bar, PLOT_FRAME);
  }
}

// Edges and count of the selected bin.
std::string bin_info(const TStatsPane& pane) {
  const TExtent extent = extent_of(pane.data, stats.count);
  const double width = extent.high / histogram.bin_count - extent.low / histogram.bin_count;
  const int bin = histogram.selected_bin;
  const bool last = bin == histogram.bin_count - 1;
  return "min>=" + plot_number(extent.low + bin * width) + ", " + (last ? "max<=" : "max<") +
         plot_number(extent.low + (bin + 1) * width) + ", n=" +
         std::to_string(values_in_bin(pane.data, stats.count, bin, histogram.bin_count));
}

void refresh(TDialog& dialog) {
  dialog[PICTURE].picture = {histogram_picture()};
  int info = FIRST_INFO;
  for (const TStatsPane& pane : stats_panes()) dialog[info++].text = bin_info(pane);
}

void select_bin(int bin) { histogram.selected_bin = (bin + histogram.bin_count) % histogram.bin_count; }

void set_bin_count(int count) {
  histogram.bin_count = count;
  histogram.selected_bin = std::min(histogram.selected_bin, count - 1);
}

void handle(TDialog& dialog, const TDialogEvent& event) {
  if (event.kind == CONTROL_CHANGED && event.control == BINS) set_bin_count(dialog[BINS].selected + 1);
  if (event.kind == CONTROL_ACTIVATED && event.control == PREVIOUS) select_bin(histogram.selected_bin - 1);
  if (event.kind == CONTROL_ACTIVATED && event.control == NEXT) select_bin(histogram.selected_bin + 1);
  refresh(dialog);
}

std::vector<std::string> bin_rows() {
  std::vector<std::string> rows;
  for (int count = 1; count <= BIN_LIMIT; ++count) rows.push_back(std::to_string(count) + " bins");
  return rows;
}

}  // namespace

int values_in_bin(const double* data, int count, int bin, int bin_count) {
  return bin_counts(data, count, bin_count)[static_cast<std::size_t>(bin)];
}

TSurface histogram_picture() {
  TSurface picture(STATS_PICTURE_WIDTH, STATS_PICTURE_HEIGHT);
  picture.fill({0, 0, STATS_PICTURE_WIDTH - 1, STATS_PICTURE_HEIGHT - 1}, WHITE);
  for (const TStatsPane& pane : stats_panes()) {
    draw_pane(picture, pane);
    draw_bars(picture, pane);
  }
  return picture;
}

void show_histogram() {
  TDialog dialog(HISTOGRAM_DIALOG, "Histogram Plot");
  dialog.add(picture_control("", histogram_picture()));
  dialog.add(combo_control("Bins:", bin_rows(), histogram.bin_count - 1));
  dialog.add(beside(button_control("<")));
  dialog.add(beside(button_control(">")));
  for (const TStatsPane& pane : stats_panes()) dialog.add(text_control(pane.heading, bin_info(pane)));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  dialog.procedure = handle;
  platform().run_dialog(dialog);
}

}  // namespace zephyl
