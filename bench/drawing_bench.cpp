// Fractals and drawing commands, the Mandelbrot set beside a plain double loop of the same 128 rounds.

#include <benchmark/benchmark.h>

#include "app/start_up.h"
#include "engine/operations.h"
#include "engine/state.h"
#include "platform/events.h"
#include "plot/drawing.h"
#include "plot/fractals/escape_time.h"
#include "plot/fractals/palette.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace {

using namespace zephyl;

struct TView {
  double xMin, yMin, xMax, yMax;
};
constexpr TView views[] = {{-10, -10, 10, 10}, {-2.2, -1.2, 0.8, 1.2}, {-0.76, 0.08, -0.73, 0.105}};

void choose_view(benchmark::State& bench) {
  register_families();
  on_start();
  const TView& view = views[bench.range(0)];
  set_plot_view(view.xMin, view.yMin, view.xMax, view.yMax);
}

// As anybody would write it.
void mandelbrot_plain_loop(benchmark::State& bench) {
  choose_view(bench);
  const TPlotVariables& view = plot_variables;
  const TColour* palette = escape_palette();
  for (auto _ : bench) {
    const double dx = (view.xMax - view.xMin) / PLOT_WIDTH, dy = (view.yMin - view.yMax) / PLOT_HEIGHT;
    for (int row = 0; row < PLOT_HEIGHT; ++row)
      for (int column = 0; column < PLOT_WIDTH; ++column) {
        const double x = column * dx + view.xMin, y = row * dy + view.yMax;
        double re = 0.0, im = 0.0;
        int left = ESCAPE_ROUNDS;
        for (; left > 0; --left) {
          const double re_squared = re * re, im_squared = im * im;
          if (re_squared + im_squared > 4.0) break;
          im = 2.0 * re * im + y;
          re = re_squared - im_squared + x;
        }
        drawing_bitmap().set_pixel(column, row, palette[left]);
      }
    benchmark::ClobberMemory();
  }
}
BENCHMARK(mandelbrot_plain_loop)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

void mandelbrot_operation(benchmark::State& bench) {
  choose_view(bench);
  for (auto _ : bench) {
    TScalarCall call{};
    operations[OP_MANDELBROT].scalar(call);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(mandelbrot_operation)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// Each of the kernels on all pixels of the second view, without what is known beforehand.
void mandelbrot_kernel(benchmark::State& bench) {
  int count;
  const TNamedEscapeKernel* kernels = escape_kernels(count);
  if (bench.range(0) >= count) return bench.SkipWithError("not on this processor");
  bench.SetLabel(kernels[bench.range(0)].name);
  static TEscapeBatch batch;
  const TView& view = views[1];
  for (auto _ : bench)
    for (int row = 0; row < PLOT_HEIGHT; ++row) {
      batch.count = PLOT_WIDTH;
      for (int i = 0; i < PLOT_WIDTH; ++i) {
        batch.z_re[i] = batch.z_im[i] = 0.0;
        batch.c_re[i] = view.xMin + i * (view.xMax - view.xMin) / PLOT_WIDTH;
        batch.c_im[i] = view.yMax - row * (view.yMax - view.yMin) / PLOT_HEIGHT;
      }
      kernels[bench.range(0)].kernel(batch);
      benchmark::ClobberMemory();
    }
}
BENCHMARK(mandelbrot_kernel)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// One line as a statement of a program that shows each of its commands.
void line_shown_at_once(benchmark::State& bench) {
  register_families();
  on_start();
  state.calcMode = PLOT_MODE;
  state.program_running = true;
  TScalarCall call{};
  call.args[0] = call.args[1] = {-8.0, 0.0};
  call.args[2] = call.args[3] = {8.0, 0.0};
  for (auto _ : bench) operations[OP_LINE].scalar(call);
  state.program_running = false;
}
BENCHMARK(line_shown_at_once);

void line_alone(benchmark::State& bench) {
  register_families();
  on_start();
  for (auto _ : bench) {
    draw_line(-8, -8, 8, 8);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(line_alone);

}  // namespace
