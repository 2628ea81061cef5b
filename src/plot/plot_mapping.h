// Where plot coordinates lie on the plot's picture, 226 by 180 pixels: the one mapping that drawing commands,
// parametric, polar and 3D plots share, with its clipping. The middle of the view is pixel (112.5, 89.5); row
// 0 is at the top.
#pragma once

#include "platform/surface.h"

namespace zephyl {

constexpr int PLOT_WIDTH = 226;
constexpr int PLOT_HEIGHT = 180;
constexpr TRect PLOT_AREA = {0, 0, PLOT_WIDTH - 1, PLOT_HEIGHT - 1};

// A pixel coordinate of magnitude 3000 or more becomes plus or minus 3000; a NaN becomes 3000.
double clamp_pixel(double pixel);

class TPlotMapping {
 public:
  // Made for a view; the members below map by it. A coordinate whose pixel overflows counts with its own
  // value, rows with the negated one, so that huge values leave at their own side. Clears the fault that it
  // raises then.
  TPlotMapping(double xMin, double xMax, double yMin, double yMax);

  double column(double x) const;
  double row(double y) const;
  bool is_for(double xMin, double xMax, double yMin, double yMax) const;

 private:
  double xMin_, xMax_, yMin_, yMax_;
  double centre_x_, centre_y_;
  double scale_x_, scale_y_;
};

// The mapping of the current view (plot_variables.h), made anew when a bound has changed.
const TPlotMapping& plot_mapping();

// A line between two pixels, whose coordinates are cut to whole numbers, as far as it lies in PLOT_AREA.
// Nothing if a coordinate is undefined_value or no number. Returns whether anything was drawn.
bool clipped_line(TSurface& target, double x1, double y1, double x2, double y2, TColour colour);

// One pixel, if it lies in PLOT_AREA.
void draw_dot(TSurface& target, double x, double y, TColour colour);

}  // namespace zephyl
