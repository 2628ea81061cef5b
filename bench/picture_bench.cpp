// From a key press to the finished picture, and a whole repaint.

#include <benchmark/benchmark.h>

#include "app/start_up.h"
#include "platform/events.h"
#include "platform/platform.h"

namespace {

using namespace zephyl;

void key_to_picture(benchmark::State& bench) {
  register_families();
  on_start();
  on_paint();
  int i = 0;
  for (auto _ : bench) {
    // The digits 7, 8, 9, and AC before the line is full.
    const int column = i++ % 64 == 63 ? 194 : 3 + 48 * (i % 3);
    on_pen_down(column + 20, 200);
    on_pen_up(column + 20, 200);
    benchmark::DoNotOptimize(&screen());
  }
}
BENCHMARK(key_to_picture);

void whole_repaint(benchmark::State& bench) {
  register_families();
  on_start();
  for (auto _ : bench) {
    platform().invalidate(false);
    on_paint();
    benchmark::DoNotOptimize(&screen());
  }
}
BENCHMARK(whole_repaint);

}  // namespace
