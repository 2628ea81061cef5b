// A program's loop, `x+sqRt(n)->x` for n from 1 on: one statement a round of the main loop, beside the same loop in bc
// and Python, each a process of its own whose processor time counts. And calls of functions and programs.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/start_up.h"
#include "engine/calculator.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"
#include "platform/silent_platform.h"
#include "programs/interpreter.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_writer.h"

namespace {

using namespace zephyl;

class TBenchPlatform : public TSilentPlatform {
 public:
  TBenchPlatform() : folder_((std::filesystem::temp_directory_path() / "zephyl-bench").string()) {
    std::filesystem::create_directories(folder_);
  }
  ~TBenchPlatform() override { std::filesystem::remove_all(folder_); }
  const char* data_folder() override { return folder_.c_str(); }

 private:
  std::string folder_;
};

void start_calculator() {
  static TBenchPlatform platform;
  static const bool started = [] {
    set_platform(&platform);
    register_families();
    on_start();
    return true;
  }();
  benchmark::DoNotOptimize(started);
}

ProgramStatement express(const char* text) {
  ProgramStatement statement;
  statement.number = STATEMENT_EXPRESS;
  TExpression expression;
  char error[200];
  if (!text_to_tokens(text, expression, error, sizeof error)) throw std::runtime_error(text);
  statement.key_count = expression.count;
  std::copy(expression.tokens, expression.tokens + expression.count, statement.keys);
  return statement;
}

ProgramStatement plain(int number, int var0 = 0, const char* text = "") {
  ProgramStatement statement;
  statement.number = number;
  statement.var0 = static_cast<std::int16_t>(var0);
  std::snprintf(statement.text, sizeof statement.text, "%s", text);
  return statement;
}

void write_program(const char* name, const std::vector<ProgramStatement>& statements) {
  TProgram made;
  std::snprintf(made.name, sizeof made.name, "%s", name);
  for (const ProgramStatement& statement : statements) made.statements[made.statement_count++] = statement;
  std::ofstream(program_path(name)) << program_file_text(made);
}

constexpr int SLOT_N = SLOT_SMALL_A + 13;

// Around a statement, `rounds` times.
std::vector<ProgramStatement> loop(int rounds, const ProgramStatement& body) {
  return {express((std::to_string(rounds) + "->n").c_str()), plain(STATEMENT_LOOP, SLOT_N), body, plain(STATEMENT_END)};
}

void run_to_end(const char* name) {
  forget_programs();
  if (load_program(name, false) < 0) throw std::runtime_error(name);
  start_run();
  while (on_idle()) {
  }
  if (state.program_running) throw std::runtime_error("it waits");
}

void run_program(benchmark::State& bench, const std::vector<ProgramStatement>& statements, int rounds) {
  start_calculator();
  write_program("Loop", statements);
  for (auto _ : bench) run_to_end("Loop");
  bench.SetItemsProcessed(bench.iterations() * rounds);
}

double seconds(const timeval& time) { return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec); }

double time_of_children() {
  rusage usage;
  getrusage(RUSAGE_CHILDREN, &usage);
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void run_command(benchmark::State& bench, const std::string& command, int rounds) {
  for (auto _ : bench) {
    const double before = time_of_children();
    if (std::system((command + " > /dev/null 2>&1").c_str()) != 0) return bench.SkipWithError("is not there");
    bench.SetIterationTime(time_of_children() - before);
  }
  bench.SetItemsProcessed(bench.iterations() * rounds);
}

constexpr int ROUNDS = 1000000;
constexpr int BC_ROUNDS = 100000;

void loop_program(benchmark::State& bench) { run_program(bench, loop(ROUNDS, express("x+sqRt(n)->x")), ROUNDS); }

void loop_native(benchmark::State& bench) {
  for (auto _ : bench) {
    volatile double x = 0.0;
    for (int n = 1; n <= ROUNDS; ++n) x = x + std::sqrt(n);
  }
  bench.SetItemsProcessed(bench.iterations() * ROUNDS);
}

void loop_python(benchmark::State& bench) {
  run_command(bench, "python3 -c 'from math import sqrt\nx=0.0\nfor n in range(1," + std::to_string(ROUNDS + 1) +
                         "): x=x+sqrt(n)'",
              ROUNDS);
}

void loop_bc(benchmark::State& bench) {
  run_command(bench, "echo 'x=0; for (n=1; n<=" + std::to_string(BC_ROUNDS) + "; n++) x=x+sqrt(n)' | bc -l", BC_ROUNDS);
}

constexpr int CALLS = 10000;

void program_calls(benchmark::State& bench) {
  start_calculator();
  write_program("Sub", {express("A+1->A")});
  run_program(bench, loop(CALLS, plain(STATEMENT_CALL, 0, "Sub")), CALLS);
}

void function_calls(benchmark::State& bench) {
  start_calculator();
  const char argument[] = {static_cast<char>(SLOT_SMALL_A + FUNC_SLOT_OFFSET), 0};
  write_program("Square", {plain(STATEMENT_FUNC, 0, argument), express("a*a")});
  run_program(bench, loop(CALLS, express("x+Square(n)->x")), CALLS);
}

}  // namespace

BENCHMARK(loop_native)->Unit(benchmark::kMillisecond);
BENCHMARK(loop_program)->Unit(benchmark::kMillisecond);
BENCHMARK(loop_python)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(loop_bc)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(program_calls)->Unit(benchmark::kMillisecond);
BENCHMARK(function_calls)->Unit(benchmark::kMillisecond);
