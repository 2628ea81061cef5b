// Curves over a parameter: pairs X(t), Y(t), and the radius over an angle.

#include <cmath>

#include "engine/polar.h"
#include "engine/values.h"
#include "plot/curve.h"
#include "plot/custom_function.h"
#include "plot/plot_kinds.h"
#include "plot/plot_points.h"
#include "plot/plot_screen.h"

namespace zephyl {

namespace {

double x_values[SAMPLE_LIMIT];  // what the X of a pair gave, while its Y is drawn

// Takes the samples of a slot one after the other, as long as none is cancelled.
template <typename TUse>
void for_samples(int plot_type, int slot, const TSamples& samples, TUse use) {
  custom_function(plot_type, 0.0, 0.0, slot, PHASE_BEGIN);
  for (int i = 0; i < samples.count; ++i) {
    const double value = custom_function(plot_type, samples[i], 0.0, slot, PHASE_SAMPLE);
    if (plot_cancelled) break;
    use(i, value);
    grow(samples_are_quick());
  }
  custom_function(plot_type, 0.0, 0.0, slot, PHASE_END);
}

// A curve whose points the trace cursor may follow.
class TTracedCurve {
 public:
  TTracedCurve(TSurface& target, int plot_type, int slot)
      : curve_(target, plot_colour(plot_type, slot)), traced_(slot == trace_function()) {}

  void add(int index, double parameter, double x, double y) {
    TPlotPoint point;
    point.parameter = parameter;
    point.x = x;
    point.y = y;
    curve_.add(x, y, index == 0, point.column, point.row);
    if (traced_) add_plot_point(point);
  }

 private:
  TCurve curve_;
  bool traced_;
};

void draw_pair(TSurface& target, int slot, const TSamples& samples) {
  for_samples(PLOT_PARAMETRIC, slot, samples, [](int i, double x) { x_values[i] = x; });
  if (plot_cancelled) return;
  TTracedCurve curve(target, PLOT_PARAMETRIC, slot);
  for_samples(PLOT_PARAMETRIC, slot + 1, samples,
              [&](int i, double y) { curve.add(i, samples[i], x_values[i], y); });
}

void draw_radius(TSurface& target, int slot, const TSamples& samples) {
  TTracedCurve curve(target, PLOT_POLAR, slot);
  for_samples(PLOT_POLAR, slot, samples, [&](int i, double r) {
    double x, y;
    polar_point(samples[i], r, x, y);
    curve.add(i, samples[i], x, y);
  });
}

}  // namespace

void polar_point(double angle, double r, double& x, double& y) {
  x = y = undefined_value;
  if (r == undefined_value) return;
  x = std::cos(to_radians(angle)) * r;
  y = std::sin(to_radians(angle)) * r;
}

TSamples samples_of(double min, double max, double step) {
  TSamples samples{min, max, step > 0.0 ? step : 0.0, 0};
  const double range = max - min;
  if (!(range >= 0.0) || !std::isfinite(range)) return samples;
  constexpr double tolerance = 1e-9;  // of a step
  const double steps = samples.step > 0.0 ? std::floor(range / samples.step + tolerance) : 0.0;
  samples.count = steps < SAMPLE_LIMIT ? static_cast<int>(steps) + 1 : SAMPLE_LIMIT;
  return samples;
}

TSamples curve_samples(const TPlotRange& range) {
  const double width = range.max - range.min;
  const bool usable = range.step > 0.0 && width / range.step < SAMPLE_LIMIT - 1;
  return samples_of(range.min, range.max, usable ? range.step : width / 1000.0);
}

void draw_parametric_polar(TSurface& target, int plot_type) {
  const TSamples samples = curve_samples(plot_variables.t);
  const int stride = slots_per_plot(plot_type);
  for (int slot = 0; slot < PLOT_SLOT_COUNT && !plot_cancelled; slot += stride) {
    if (!plot_in_use(plot_type, slot)) continue;
    if (plot_type == PLOT_PARAMETRIC)
      draw_pair(target, slot, samples);
    else
      draw_radius(target, slot, samples);
  }
}

}  // namespace zephyl
