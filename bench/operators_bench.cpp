// Numeric operators over an expression, beside the plain evaluation of the same expression.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "app/start_up.h"
#include "engine/compiler.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/text_form.h"
#include "platform/events.h"

namespace {

using namespace zephyl;

void compile_text(const char* text, TCompiled& compiled) {
  static const bool started = [] {
    register_families();
    on_start();
    return true;
  }();
  benchmark::DoNotOptimize(started);
  TExpression expression;
  char error[200];
  if (!text_to_tokens(text, expression, error, sizeof error) || !compile_expression(expression, compiled))
    throw std::runtime_error(text);
}

// One evaluation of the body, as a plot samples it.
void plain_body(benchmark::State& bench, const char* body) {
  TCompiled compiled;
  compile_text(body, compiled);
  double x = 0.5;
  for (auto _ : bench) {
    memory_array[SLOT_X] = {x, 0.0};
    walk_steps(compiled, true);
    benchmark::DoNotOptimize(registers[0].value.re);
  }
  bench.SetItemsProcessed(bench.iterations());
}

// A whole operator that evaluates its body `evaluations` times.
void whole_operator(benchmark::State& bench, const char* text, int evaluations) {
  TCompiled compiled;
  compile_text(text, compiled);
  for (auto _ : bench) {
    run_compiled(compiled, false);
    benchmark::DoNotOptimize(answers.ans.re);
  }
  bench.SetItemsProcessed(bench.iterations() * evaluations);
}

BENCHMARK_CAPTURE(plain_body, power, "x^2");
BENCHMARK_CAPTURE(whole_operator, summation_to_a_million, "Summ(x^2,x,1,1000000)", 1000000);
BENCHMARK_CAPTURE(whole_operator, integral_of_a_power, "fnInt(x^2,x,0,1)", 61);
BENCHMARK_CAPTURE(plain_body, sine, "sin(x)*e^x");
// Smooth: one rule of 61 points is enough.
BENCHMARK_CAPTURE(whole_operator, integral_of_61_samples, "fnInt(sin(x)*e^x,x,0,1)", 61);

}  // namespace
