// Lists of the largest size beside what they stand for: a function of a list beside as many evaluations of
// the function, sorts, and Fourier transforms by both roads.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <stdexcept>

#include "app/start_up.h"
#include "engine/compiler.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"

namespace {

using namespace zephyl;

void start_calculator() {
  static const bool started = [] {
    register_families();
    on_start();
    return true;
  }();
  benchmark::DoNotOptimize(started);
}

// {A}: numbers from 0 to 1 in no order, complex ones if asked for.
void fill_list(int size, bool complex) {
  std::uint32_t word = 12345;
  const auto next = [&word] { return (word = word * 1664525u + 1013904223u) / 4294967296.0; };
  ListRecord& list = stores.lists[0];
  for (int i = 0; i < size; ++i) list.elements[i] = {next(), complex ? next() : 0.0};
  list.last = size - 1;
  list.defined = true;
}

void compile_text(const char* text, TCompiled& compiled) {
  TExpression expression;
  char error[200];
  if (!text_to_tokens(text, expression, error, sizeof error) || !compile_expression(expression, compiled))
    throw std::runtime_error(text);
}

// An expression of {A}, compiled once.
void of_list(benchmark::State& bench, const char* text, int size, bool complex) {
  start_calculator();
  fill_list(size, complex);
  TCompiled compiled;
  compile_text(text, compiled);
  for (auto _ : bench) {
    walk_steps(compiled, false);
    benchmark::DoNotOptimize(temporaries.lists[0].elements[0].re);
  }
  bench.SetItemsProcessed(bench.iterations() * size);
}

// The same expression of x, once for each element.
void of_each_element(benchmark::State& bench, const char* text) {
  start_calculator();
  fill_list(LIST_LIMIT, false);
  TCompiled compiled;
  compile_text(text, compiled);
  double sum = 0.0;
  for (auto _ : bench)
    for (int i = 0; i < LIST_LIMIT; ++i) {
      memory_array[SLOT_X] = stores.lists[0].elements[i];
      walk_steps(compiled, false);
      sum += registers[0].value.re;
    }
  benchmark::DoNotOptimize(sum);
  bench.SetItemsProcessed(bench.iterations() * LIST_LIMIT);
}

BENCHMARK_CAPTURE(of_each_element, sin, "sin(x)");
BENCHMARK_CAPTURE(of_list, sin, "sin({A})", LIST_LIMIT, false);
BENCHMARK_CAPTURE(of_each_element, sum, "x+1");
BENCHMARK_CAPTURE(of_list, sum, "{A}+1", LIST_LIMIT, false);
BENCHMARK_CAPTURE(of_each_element, maximum, "Max(x,0.5)");
BENCHMARK_CAPTURE(of_list, maximum, "Max({A},0.5)", LIST_LIMIT, false);
BENCHMARK_CAPTURE(of_list, sin_of_complex, "sin({A})", LIST_LIMIT, true);
BENCHMARK_CAPTURE(of_list, sort_real, "sortA({A})", LIST_LIMIT, false);
BENCHMARK_CAPTURE(of_list, sort_complex, "sortD({A})", LIST_LIMIT, true);
BENCHMARK_CAPTURE(of_list, sort_keys, "sortKeyInit({A})", LIST_LIMIT, false);
BENCHMARK_CAPTURE(of_list, dft_512, "DFT({A})", 512, true);
BENCHMARK_CAPTURE(of_list, dft_999, "DFT({A})", LIST_LIMIT, true);
BENCHMARK_CAPTURE(of_list, idft_999_real, "IDFT({A})", LIST_LIMIT, false);

}  // namespace
