// A whole state into a file and back: 999 statistics rows, 11 lists of 999, 11 matrices of 30 by 30, all functions,
// the drawing. The flush to the disk is part of a save.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "app/start_up.h"
#include "persistence/constants.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "platform/events.h"
#include "support/states.h"

namespace {

using namespace zephyl;

// In the current folder, and away again.
const char* const FILE_NAME = "zephyl-bench.state";

void start_with_all() {
  register_families();
  on_start();
  empty_state();
  fill_state();
  check_filled_items();
}

void state_save(benchmark::State& bench) {
  start_with_all();
  for (auto _ : bench) save_state(FILE_NAME);
  std::remove(FILE_NAME);
  std::remove("drawing.dat");
}
BENCHMARK(state_save)->Unit(benchmark::kMillisecond);

void state_load(benchmark::State& bench) {
  start_with_all();
  save_state(FILE_NAME);
  for (auto _ : bench) load_state(FILE_NAME);
  std::remove(FILE_NAME);
  std::remove("drawing.dat");
}
BENCHMARK(state_load)->Unit(benchmark::kMillisecond);

void units_and_constants(benchmark::State& bench) {
  register_families();
  on_start();
  for (auto _ : bench) load_units_and_constants(false);
}
BENCHMARK(units_and_constants)->Unit(benchmark::kMicrosecond);

}  // namespace
