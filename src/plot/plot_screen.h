// The pictures behind the plot on the screen, and how they get there.
#pragma once

#include "plot/plot_mapping.h"

namespace zephyl {

struct TPlotScreen {
  TSurface plot{PLOT_WIDTH, PLOT_HEIGHT};   // plot_bitmap: the plot without cursors, rebuilt by plot_it
  TSurface marks{PLOT_WIDTH, PLOT_HEIGHT};  // zoom_bitmap: the plot with what a cursor draws over it
  bool marks_shown = false;                 // which of the two the screen shows
  bool needs_drawing = true;                // the plot must be drawn anew before it is shown
  bool plotting = false;                    // plot_it is at work
};
TPlotScreen& plot_screen();

// A fresh copy of the plot for a cursor to draw on.
TSurface& begin_marks();
// What was drawn there goes to the screen, until the next plot or show_plot.
void show_marks();

// --- The picture of a long plot, shown while it grows

// From now on `grow` counts the time.
void begin_growth();
// To be called for every sample: shows the plot 20 times a second. quick: samples that take less than a
// microsecond, for which the clock is read now and then only.
void grow(bool quick);
// Shows the plot, at once if it is time.
void show_progress();

void reset_plot_screen();

}  // namespace zephyl
