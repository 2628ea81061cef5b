// `goto`, `gosub`, `return sub`, `call`, `return call`, `stop`.

#include <cstdio>

#include "programs/program_cache.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/statements.h"

namespace zephyl {

int run_goto(const ProgramStatement& statement) { return jump_to_label(statement.label); }

int run_gosub(const ProgramStatement& statement) {
  const int target = jump_to_label(statement.label);
  if (target == END_OF_PROGRAM) return target;
  if (run.gosub_top >= GOSUB_LIMIT) return fail_at_limit("Reached maximum number of gosub/subroutine calls");
  run.gosubs[run.gosub_top++] = static_cast<std::uint16_t>(next_statement());
  ++run.part.gosub_count;
  return target;
}

int run_return_sub(const ProgramStatement&) {
  if (run.part.gosub_count == 0) return fail_in_code("No subroutine called");
  --run.part.gosub_count;
  return run.gosubs[--run.gosub_top];
}

// --- Calls

namespace {

// Only what the called program left open is dropped; what its caller has open is open again.
void take_part(const TRunningPart& part) {
  run.block_top -= run.part.block_count;
  run.gosub_top -= run.part.gosub_count;
  run.part = part;
}

}  // namespace

int run_call(const ProgramStatement& statement) {
  if (run.call_top >= CALL_LIMIT) return fail_at_limit("Reached maximum number of subroutine calls");
  char name[STATEMENT_TEXT_SIZE];
  std::snprintf(name, sizeof name, "%s", statement.text);
  if (!push_frame()) return END_OF_PROGRAM;
  if (load_any_program(name) < 0) return fail_in_code("Could not call program");
  if (is_function_program()) return fail_in_code("Can't call a custom function");
  run.calls[run.call_top++] = run.part;
  run.part = {};
  std::snprintf(run.part.name, sizeof run.part.name, "%s", program.name);
  run.part.built_in = program.built_in;
  return 0;
}

int return_to_caller() {
  pop_frame();
  take_part(run.calls[--run.call_top]);
  if (load_program(run.part.name, run.part.built_in) < 0)
    return fail_in_code("Could no return to calling program");
  return next_statement();
}

int run_return_call(const ProgramStatement&) {
  return run.call_top > run.call_base ? return_to_caller() : END_OF_PROGRAM;
}

// The end of a called program is its return.
int run_stop(const ProgramStatement&) { return END_OF_PROGRAM; }

}  // namespace zephyl
