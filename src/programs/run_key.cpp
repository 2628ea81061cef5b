// The run key: start and stop of programs.

#include <cstdio>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "programs/dialogs/select_program.h"
#include "programs/interpreter.h"
#include "programs/open_program.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/programs.h"
#include "programs/run_state.h"

namespace zephyl {

namespace {

// The message carries the line, also where the program stood at a prompt with an error of the user's own.
void stop_by_user() {
  clear_error();
  report_error(ERR_PROGRAM_STOPPED);
  stop_run(true);
  hooks.draw_result(true);
  hooks.redraw_part(PART_AC_AND_ARROWS);
}

// An error of the calculator itself, not of a running program.
void show_error(TError error) {
  report_error(error);
  std::snprintf(state.result_text, sizeof state.result_text, "%s", errors.error_text);
  hooks.draw_result(true);
  hooks.redraw_part(PART_AC_AND_ARROWS);
}

bool shows_lines() { return state.calcMode != PROGRAM_EDIT_MODE && state.calcMode != PLOT_MODE; }

void leave_screens_without_lines() {
  if (!shows_lines() && hooks.set_mode) hooks.set_mode(COMP_MODE, false);
}

// A box has told it already; an error that no line shows would only shut the keys.
void fail_to_open() {
  if (shows_lines())
    show_error(ERR_PROGRAM_NOT_FOUND);
  else
    clear_error();
}

void run_program_in_memory() {
  leave_screens_without_lines();
  start_run();
}

bool edits_a_runnable_program() {
  return state.calcMode == PROGRAM_EDIT_MODE && program.statement_count > 0 && !is_function_program();
}

void run_edited_program() {
  save_program();
  program_edited();
  forget_programs();
  run_program_in_memory();
}

void choose_and_run() {
  TProgramChoice choice;
  if (!select_program_to_run(choice)) return;
  if (state.calcMode == PROGRAM_EDIT_MODE) save_program();
  clear_error();
  forget_programs();
  if (!open_program(choice)) return fail_to_open();
  run_program_in_memory();
}

}  // namespace

void run_key_pressed() {
  if (state.program_running) return stop_by_user();
  if (edits_a_runnable_program()) return run_edited_program();
  choose_and_run();
}

void end_pause() { state.key_wait = false; }

bool program_can_be_stopped() { return state.program_running && run.key_run; }

const char* program_prompt_line() { return program_works() ? run.prompt_line : ""; }

const char* program_title() {
  if (state.calcMode == PROGRAM_EDIT_MODE) return program.name;
  return program_can_be_stopped() ? run.title : nullptr;
}

}  // namespace zephyl
