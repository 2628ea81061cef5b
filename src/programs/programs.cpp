#include "programs/programs.h"

#include <algorithm>
#include <cstring>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "programs/custom_functions.h"
#include "programs/dialogs/select_program.h"
#include "programs/function_header.h"
#include "programs/interpreter.h"
#include "programs/menu.h"
#include "programs/output_files.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_input.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/working_functions.h"

namespace zephyl {

namespace {

bool running_program(TRunningProgram& running) {
  if (run.level == 0) return false;
  running.name = run.part.name;
  running.paused = state.at_prompt || state.key_wait;
  const bool own = std::strcmp(program.name, run.part.name) == 0;  // not one that a statement has just loaded
  // Behind the last statement it is still that one.
  const bool at_end = own && !running.paused && run.part.pc > 0 && run.part.pc == program.statement_count;
  running.statement = std::max(0, run.part.pc - (at_end ? 1 : 0));
  return true;
}

bool function_header(const char* name, TFunctionHeader& header) {
  return name[0] != 0 && read_function_header(name, header) != NO_FUNCTION;
}

void make_global(int slot) {
  if (run.level == 0) return;
  if (slot == NO_SLOT) return report_error(ERR_ARGUMENT_TYPE);
  make_slot_global(slot);
}

void (*clear_other_item)(int) = nullptr;

void clear_program_item(int item) {
  if (item == CLEAR_PROGRAM_INPUT) clear_last_answers();
  clear_other_item(item);
}

}  // namespace

void register_programs() {
  hooks.running_program = running_program;
  hooks.function_header = function_header;
  hooks.run_function = run_custom_function;
  hooks.about_to_store = keep_store;
  hooks.make_global = make_global;
  hooks.evaluation_begins = forget_programs;
  hooks.prompt_entered = keep_last_answer;
  hooks.prompt_answered = take_answer;
  hooks.function_prompt_answered = take_function_answer;
  if (hooks.clear_item == clear_program_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_program_item;
}

void reset_programs() {
  close_output_files();
  reset_run();
  reset_program();
  reset_scopes();
  forget_working_functions();
  clear_menu();
  clear_last_answers();
  forget_programs();
  reset_program_dialogs();
}

bool program_tick() {
  if (!state.program_running || state.at_prompt || state.key_wait || state.drag_in_progress) return false;
  return step();
}

}  // namespace zephyl
