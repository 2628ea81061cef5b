// Plots from their slots to their finished picture, and what one sample of a slot costs beside the bare walk
// over its steps.

#include <benchmark/benchmark.h>

#include "app/start_up.h"
#include "engine/compiler.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"
#include "plot/custom_function.h"
#include "plot/plot.h"
#include "plot/surface_plot.h"

namespace {

using namespace zephyl;

void put(int type, int slot, const char* text) {
  char error[200];
  if (!text_to_tokens(text, plot_slot(type, slot), error, sizeof error)) std::abort();
}

void start(int type) {
  register_families();
  on_start();
  state.calcMode = PLOT_MODE;
  set_plot_type(type);
}

void start_surface() {
  start(PLOT_3D);
  plot_variables.t = plot_variables.v = {-5.0, 5.0, 0.2};
  put(PLOT_3D, 0, "u");
  put(PLOT_3D, 1, "v");
  put(PLOT_3D, 2, "2cos(sqRt(u^(2)+v^(2)))");
}

void draw_again(benchmark::State& bench) {
  for (auto _ : bench) {
    request_plot();
    benchmark::DoNotOptimize(&shown_plot());
  }
}

// --- Whole plots

void plot_of_a_function(benchmark::State& bench) {
  start(PLOT_FUNCTION);
  put(PLOT_FUNCTION, 0, "sin(x)/x");
  draw_again(bench);
}
BENCHMARK(plot_of_a_function);

void plot_of_grid_and_labels_alone(benchmark::State& bench) {
  start(PLOT_FUNCTION);
  draw_again(bench);
}
BENCHMARK(plot_of_grid_and_labels_alone);

void plot_of_a_parametric_curve(benchmark::State& bench) {
  start(PLOT_PARAMETRIC);
  put(PLOT_PARAMETRIC, 0, "8cos(3t)");
  put(PLOT_PARAMETRIC, 1, "8sin(4t)");
  draw_again(bench);
}
BENCHMARK(plot_of_a_parametric_curve);

void plot_of_a_surface(benchmark::State& bench) {
  start_surface();
  draw_again(bench);
}
BENCHMARK(plot_of_a_surface);

void frame_of_a_drag(benchmark::State& bench) {
  start_surface();
  request_plot();
  shown_plot();
  int drag = 0;
  for (auto _ : bench) {
    ++drag;
    show_rotated(drag % 100, drag % 60);
    benchmark::DoNotOptimize(&shown_plot());
  }
}
BENCHMARK(frame_of_a_drag);

// --- Samples

constexpr int SAMPLES = 1000;

void samples_of_a_slot(benchmark::State& bench) {
  start(PLOT_FUNCTION);
  put(PLOT_FUNCTION, 0, "sin(x)/(x+20)");
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_BEGIN);
  for (auto _ : bench)
    for (int i = 0; i < SAMPLES; ++i)
      benchmark::DoNotOptimize(custom_function(PLOT_FUNCTION, 0.01 * i, 0.0, 0, PHASE_SAMPLE));
  custom_function(PLOT_FUNCTION, 0.0, 0.0, 0, PHASE_END);
  bench.SetItemsProcessed(bench.iterations() * SAMPLES);
}
BENCHMARK(samples_of_a_slot);

void walks_over_its_steps(benchmark::State& bench) {
  start(PLOT_FUNCTION);
  put(PLOT_FUNCTION, 0, "sin(x)/(x+20)");
  static TCompiled compiled;
  compile_expression(plot_slot(PLOT_FUNCTION, 0), compiled);
  for (auto _ : bench)
    for (int i = 0; i < SAMPLES; ++i) {
      memory_array[SLOT_X] = {0.01 * i, 0.0};
      walk_steps(compiled, true);
      benchmark::DoNotOptimize(registers[0].value.re);
    }
  bench.SetItemsProcessed(bench.iterations() * SAMPLES);
}
BENCHMARK(walks_over_its_steps);

}  // namespace
