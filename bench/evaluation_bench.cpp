// Compiled evaluation of one-variable expressions: the walk over the steps beside a native call and muParser's bytecode.
// A run prints nanoseconds an evaluation; the ratios are what counts.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <cstring>
#include <string>

#include "app/start_up.h"
#include "engine/compiler.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"

namespace {

using namespace zephyl;

struct TFormula {
  const char* name;
  const char* text;      // text form
  const char* muparser;  // the same for muParser
  double (*native)(double x);
};

// One of every operator of the entry line that has a native counterpart.
double native_twenty(double x) {
  const double root = std::sqrt(x + 3);
  const double angles = std::sin(x) * std::cos(x) - std::tan(x / 4) + std::atan(x);
  const double powers = x * x + x * x * x + std::pow(x + 1, 1.5) + std::exp(x / 2) + std::log(x + 2) + std::log10(x + 5);
  const double rest = std::fabs(x - 1) - 1 / (x + 1) + std::sinh(x / 3) + std::cosh(x / 3) - std::tanh(x);
  return root + angles + powers + rest;
}

const TFormula formulas[] = {
    {"polynomial", "x^3-2*x+1", "x^3-2*x+1", [](double x) { return std::pow(x, 3.0) - 2 * x + 1; }},
    {"sinc", "sin(x)/x", "sin(x)/x", [](double x) { return std::sin(x) / x; }},
    {"exp_and_log", "x^2*e^x+ln(x+3)", "x^2*exp(x)+ln(x+3)",
     [](double x) { return std::pow(x, 2.0) * std::exp(x) + std::log(x + 3); }},
    {"twenty_operators",
     "sqRt(x+3)+sin(x)*cos(x)-tan(x/4)+atan(x)+x^(2)+x^(3)+(x+1)^1.5+e^(x/2)+ln(x+2)+log(x+5)+abs(x-1)-1/(x+1)+sinh(x/3)+"
     "cosh(x/3)-tanh(x)",
     "sqrt(x+3)+sin(x)*cos(x)-tan(x/4)+atan(x)+x^2+x^3+(x+1)^1.5+exp(x/2)+ln(x+2)+log10(x+5)+abs(x-1)-1/(x+1)+sinh(x/3)+"
     "cosh(x/3)-tanh(x)",
     native_twenty}};

constexpr int SAMPLES = 1000;
double sample(int i) { return 0.001 * (i + 1); }

void start_calculator() {
  static const bool started = [] {
    register_families();
    on_start();
    return true;
  }();
  benchmark::DoNotOptimize(started);
}

void compile_text(const char* text, TCompiled& compiled) {
  TExpression expression;
  char error[200];
  if (!text_to_tokens(text, expression, error, sizeof error) || !compile_expression(expression, compiled))
    throw std::runtime_error(text);
}

void walk(benchmark::State& bench, const TFormula& formula) {
  start_calculator();
  TCompiled compiled;
  compile_text(formula.text, compiled);
  double sum = 0.0;
  for (auto _ : bench)
    for (int i = 0; i < SAMPLES; ++i) {
      memory_array[SLOT_X] = {sample(i), 0.0};
      walk_steps(compiled, true);
      sum += registers[0].value.re;
    }
  benchmark::DoNotOptimize(sum);
  bench.SetItemsProcessed(bench.iterations() * SAMPLES);
}

void muparser(benchmark::State& bench, const TFormula& formula) {
  double x = 0.0, sum = 0.0;
  mu::Parser parser;
  parser.DefineVar("x", &x);
  parser.SetExpr(formula.muparser);
  for (auto _ : bench)
    for (int i = 0; i < SAMPLES; ++i) {
      x = sample(i);
      sum += parser.Eval();
    }
  benchmark::DoNotOptimize(sum);
  bench.SetItemsProcessed(bench.iterations() * SAMPLES);
}

void native(benchmark::State& bench, const TFormula& formula) {
  double sum = 0.0;
  double (*volatile function)(double) = formula.native;
  for (auto _ : bench)
    for (int i = 0; i < SAMPLES; ++i) sum += function(sample(i));
  benchmark::DoNotOptimize(sum);
  bench.SetItemsProcessed(bench.iterations() * SAMPLES);
}

void from_text(benchmark::State& bench) {
  start_calculator();
  static TCompiled compiled;
  for (auto _ : bench) {
    compile_text("2+sin(30)*3^2", compiled);
    walk_steps(compiled, false);
    benchmark::DoNotOptimize(registers[0].value.re);
  }
}

void muparser_from_text(benchmark::State& bench) {
  mu::Parser parser;
  for (auto _ : bench) {
    parser.SetExpr("2+sin(30)*3^2");
    benchmark::DoNotOptimize(parser.Eval());
  }
}

const bool registered = [] {
  for (const TFormula& formula : formulas) {
    const std::string name = formula.name;
    benchmark::RegisterBenchmark((name + "/native").c_str(), native, formula);
    benchmark::RegisterBenchmark((name + "/zephyl").c_str(), walk, formula);
    benchmark::RegisterBenchmark((name + "/muparser").c_str(), muparser, formula);
  }
  benchmark::RegisterBenchmark("afresh/zephyl", from_text);
  benchmark::RegisterBenchmark("afresh/muparser", muparser_from_text);
  return true;
}();

}  // namespace
