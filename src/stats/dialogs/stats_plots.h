// The plots of the statistics data: dialogs with a picture that is drawn from the data.
#pragma once

#include <string>
#include <vector>

#include "platform/surface.h"

namespace zephyl {

// Lets the user choose a plot and shows it. Without data, or without y data for the scatter plot, a box says so.
void choose_stats_plot();

void show_line_chart();
void show_histogram();
// Two-variable data only.
void show_scatter_plot();

// What the pictures have in common.
constexpr TColour PLOT_MARK = rgb(0, 0, 255);
constexpr TColour PLOT_FRAME = rgb(128, 128, 128);

// Where a column of data is plotted: one plot 202 high, or two, x above y, 96 high each.
struct TStatsPane {
  const double* data = nullptr;
  const char* heading = "";
  int top = 8;
  int height = 202;
  int heading_row = 0;  // where the heading, written upwards, begins
};
std::vector<TStatsPane> stats_panes();

// The empty paper of a plot with its frames and heading.
void draw_pane(TSurface& picture, const TStatsPane& pane);
// Five pixels: the point and its four neighbours.
void draw_plus(TSurface& picture, int x, int y, TColour colour);
// (v - low) span / (high - low), also where the range overflows; 0 for equal ends.
double plot_share(double v, double low, double high, double span);
// A number in Fixed with 4 digits.
std::string plot_number(double value);

constexpr int STATS_PICTURE_WIDTH = 231;
constexpr int STATS_PICTURE_HEIGHT = 218;

// The histogram's state: the number of bins, 1 to 100, and the bin that is told about, from 0. Kept between openings.
struct THistogram {
  int bin_count = 10;
  int selected_bin = 0;
};
extern THistogram histogram;
constexpr int BIN_LIMIT = 100;

// How many values of a column of data are in a bin. The last bin includes its upper edge; where all values are equal
// they are in bin 0.
int values_in_bin(const double* data, int count, int bin, int bin_count);

// The pictures, for tests.
TSurface line_chart_picture();
TSurface histogram_picture();
TSurface scatter_picture();

}  // namespace zephyl
