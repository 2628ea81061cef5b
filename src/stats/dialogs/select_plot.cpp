// The choice of a plot of the statistics data.

#include "platform/dialog.h"
#include "platform/platform.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int SELECT_PLOT_DIALOG = 193;

enum TStatsPlot { LINE_PLOT = 0, HISTOGRAM_PLOT, SCATTER_PLOT };

int selected_plot() {
  TDialog dialog(SELECT_PLOT_DIALOG, "Select Plot");
  for (const char* label : {"Line Plot", "Histogram Plot", "Scatter Plot"}) dialog.add(button_control(label));
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  dialog.procedure = [](TDialog& shown, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control <= SCATTER_PLOT) shown.close(event.control);
  };
  platform().run_dialog(dialog);
  return dialog.result();
}

void show_plot(int plot) {
  if (plot == LINE_PLOT) return show_line_chart();
  if (plot == HISTOGRAM_PLOT) return show_histogram();
  if (two_variable_stats())
    show_scatter_plot();
  else
    platform().show_message("No Stats y Data", "Stats");
}

}  // namespace

void choose_stats_plot() {
  if (stats.count == 0) return platform().show_message("No Stats Data", "Stats");
  const int plot = selected_plot();
  if (plot != DIALOG_CANCELLED) show_plot(plot);
}

}  // namespace zephyl
