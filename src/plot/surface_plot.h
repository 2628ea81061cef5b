// Plots of surfaces: wireframes of parametric surfaces as a turn of the eye shows them, and the axes in their
// midst.
#pragma once

namespace zephyl {

class TSurface;

// Axes, then the surfaces, the one that the trace cursor follows last. offset_x, offset_y: pixels of a drag
// that is under way. fast: every second sample of the last full plot, without any evaluation. A full plot
// fills plot_points.
void draw_3d_plot(TSurface& target, double offset_x, double offset_y, bool fast);

// A frame of a drag onto the plot's picture, shown at once; nothing while there is no surface to turn.
void show_rotated(double offset_x, double offset_y);

}  // namespace zephyl
