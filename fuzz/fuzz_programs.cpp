// Bytes as a program file: they are read as any file is, and what loads is run for a bounded number of
// statements. The program may call itself, as a program and as a function; dialogs are cancelled, prompts and
// pauses answered.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz_calculator.h"
#include "fuzz_folder.h"
#include "platform/events.h"
#include "programs/interpreter.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_writer.h"
#include "programs/programs.h"
#include "programs/statement_text.h"

namespace {

using namespace zephyl;

constexpr int MOST_ROUNDS = 400;
constexpr const char* NAME = "A";  // under which the program can call itself

// What was read must come back out of the file that is written from it.
void must_write_itself() {
  const std::string text = program_file_text(program);
  const int count = program.statement_count;
  if (!save_program()) std::abort();
  forget_programs();
  if (load_program(NAME, false) != count || program_file_text(program) != text) std::abort();
}

void answer_prompt() {
  entry_line.expression.tokens[0] = 34;  // 2
  entry_line.expression.count = 1;
  evaluate_expression(false);
}

void run_bounded() {
  fuzz_platform().be_impatient(true);
  start_run();
  for (int i = 0; i < MOST_ROUNDS && state.program_running; ++i) {
    if (state.at_prompt) answer_prompt();
    if (state.key_wait) end_pause();
    program_tick();
  }
  if (state.program_running) run_key_pressed();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  take_folder();
  start_once();
  write_bytes(program_path(NAME), data, size);
  forget_programs();
  clear_error();
  if (load_program(NAME, false) >= 0) {
    for (int i = 0; i < program.statement_count; ++i) statement_text(i, NAMES_IN_WORDS);
    must_write_itself();
    run_bounded();
  }
  must_answer();
  return 0;
}
