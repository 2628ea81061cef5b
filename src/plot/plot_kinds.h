// The plots of each type. Each draws all curves of its type onto the target, which the screen shows
// meanwhile, and stops at once when plot_cancelled rises.
#pragma once

#include "plot/plot_variables.h"

namespace zephyl {

class TSurface;

// f1(x) to f6(x).
void draw_plot_function(TSurface& target);
// PLOT_PARAMETRIC: the pairs X1(t), Y1(t) to X3(t), Y3(t); PLOT_POLAR: R1(theta) to R6(theta).
void draw_parametric_polar(TSurface& target, int plot_type);

// The row of a value f in a function plot, clamped; its middle row is 90. The column of an x, likewise: that
// whose sample is taken there.
double function_row(double f);
double function_column(double x);

// Where the radius r at an angle lies, both undefined for an undefined radius.
void polar_point(double angle, double r, double& x, double& y);

// --- Parameter ranges

constexpr int SAMPLE_LIMIT = 65536;  // of a curve

// The samples of a parameter: min, min + step, and so on; the last one, if rounding leads beyond max, is max.
struct TSamples {
  double min = 0.0;
  double max = 0.0;
  double step = 0.0;
  int count = 0;

  double operator[](int index) const {
    const double value = min + index * step;
    return value < max ? value : max;
  }
};

// None where min lies above max or a bound isn't finite, one where they are equal. A step that is no positive
// number counts as 0.
TSamples samples_of(double min, double max, double step);
// Of a flat curve: a step that would lead nowhere or to more than SAMPLE_LIMIT samples counts as a thousandth
// of the range.
TSamples curve_samples(const TPlotRange& range);

}  // namespace zephyl
