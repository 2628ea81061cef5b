// What cursors and calculations draw over a plot.
#pragma once

#include "platform/surface.h"

namespace zephyl {

enum TMarker {
  MARKER_DOTS,  // the four corners around the point
  MARKER_BOX    // two frames around it, for what was calculated
};

// A line of full height and one of full width through a pixel of the plot's picture, as far as it lies
// within, and at a point within a marker. column, row: clamped (plot_mapping.h); undefined_value leaves the
// part of it out.
void draw_cross(TSurface& surface, double column, double row, TColour colour, TMarker marker);

// A frame of dotted lines between two corners in any order.
void draw_dotted_frame(TSurface& surface, TPoint from, TPoint to);

}  // namespace zephyl
