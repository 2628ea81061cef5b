// What every plot reads: its type, the view window, the parameter ranges and the display switches.
#pragma once

namespace zephyl {

enum TPlotType { PLOT_FUNCTION = 0, PLOT_POLAR = 1, PLOT_PARAMETRIC = 2, PLOT_3D = 3 };
enum TPlotType3D { PLOT_CARTESIAN = 0, PLOT_CYLINDRICAL = 1, PLOT_SPHERICAL = 2 };
enum TPlotCursor { CURSOR_TRACE = 0, CURSOR_BOX_ZOOM = 1, CURSOR_PAN = 2, CURSOR_ROTATE = 3 };

struct TPlotRange {
  double min = 0.0;
  double max = 6.283185307179586;
  double step = 0.006283185307179587;
};

// Held from 0; the system variables of the same names read the numbered choices from 1.
struct TPlotVariables {
  int plotType = PLOT_FUNCTION;
  int plotType3D = PLOT_CARTESIAN;
  int plotCursor = CURSOR_TRACE;
  int connectDots = 1;
  int displayGrid = 1;
  int enablePlots = 1;
  double xMin = -10.0;
  double xMax = 10.0;
  double yMin = -10.0;
  double yMax = 10.0;
  TPlotRange t;  // of t and theta, one range under two names, and of u
  TPlotRange v;  // of v in 3D; no system variable reaches it
  double zScale = 1.0;
  double rotation_x = 0.0;  // of a 3D plot
  double rotation_y = 0.0;
};
extern TPlotVariables plot_variables;

// Takes the view if all four magnitudes are at most 1e100 and each minimum is below its maximum. Otherwise
// nothing changes and nothing is reported. Returns whether it took them.
bool set_plot_view(double xMin, double yMin, double xMax, double yMax);

// The values of the Defaults button; the ranges are one turn in the current angle mode. plotType3D stays.
void set_plot_defaults();

// Sets plotType; a plot without depth has no Rotate cursor, which becomes Trace.
void set_plot_type(int plot_type);
// The cursor that the pen works: Rotate is Trace outside of 3D.
int active_plot_cursor();

// As at the very start, in silence.
void reset_plot_variables();

// Fills in the rows of the system variables.
void register_plot_variables();

}  // namespace zephyl
