#include "programs/interpreter.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/values.h"
#include "platform/platform.h"
#include "plot/drawing.h"
#include "programs/menu.h"
#include "programs/output_files.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/statements.h"
#include "programs/working_functions.h"

namespace zephyl {

namespace {

// The entry line as it was before the run.
struct TSavedEntry {
  TEntryLine line;
  bool fresh_flag = true;
};
TSavedEntry saved_entry;

void save_entry() { saved_entry = {entry_line, state.fresh_flag}; }

void restore_entry() {
  entry_line = saved_entry.line;
  state.fresh_flag = saved_entry.fresh_flag;
}

void clear_stacks() {
  run.block_top = run.gosub_top = run.call_top = run.call_base = run.waiting_count = 0;
  run.prompt_line[0] = 0;
}

// The plot keys and the stylus belong to the plot until the program looks at them.
void disarm_plot_input() {
  state.plot_button = -1;
  state.plot_stylus_x = state.plot_stylus_y = undefined_value;
}

void set_running() {
  clear_error();
  state.program_running = true;
  state.at_prompt = state.at_function_prompt = state.key_wait = false;
}

void refresh_screen() {
  hooks.redraw_title();
  platform().invalidate(false);
}

}  // namespace

void show_program_text(const char* text) {
  std::snprintf(state.result_text, sizeof state.result_text, "%s", text);
  state.result_shown = false;
  hooks.draw_result(true);
}

void start_run() {
  clear_stacks();
  run.part = {};
  std::snprintf(run.part.name, sizeof run.part.name, "%s", program.name);
  run.part.built_in = program.built_in;
  std::snprintf(run.title, sizeof run.title, "%s", program.name);
  run.level = 1;
  run.key_run = true;
  set_running();
  state.program_start_tick = platform().tick_count();
  disarm_plot_input();
  resume_drawing_updates();
  pop_frames_to(0);
  push_frame();
  take_working_functions();
  clear_menu();
  close_output_files();
  save_entry();
  entry_line.cursor_shown = false;
  show_program_text(RUNNING_TEXT);
  refresh_screen();
}

void start_function_run() {
  const bool outermost = !state.program_running && run.level == 1;
  set_running();
  if (!outermost) return;
  state.program_start_tick = platform().tick_count();
  close_output_files();
}

// --- Ending

namespace {

void leave_waiting() {
  state.key_wait = state.program_running = state.at_prompt = state.at_function_prompt = false;
}

// The editor opens on the statement that an error came from.
void go_to_error() {
  remember_place(errors.error_program, errors.error_line, errors.error_line);
  if (std::strncmp(program.name, errors.error_program, sizeof errors.error_program - 1) == 0)
    return_to_place();
}

// What a program of the keypad leaves as it found it.
void end_keypad_run() {
  run.level = 0;
  run.key_run = false;
  clear_stacks();
  pop_frames_to(0);
  drop_working_functions();
  if (std::strcmp(state.result_text, RUNNING_TEXT) == 0) state.result_text[0] = 0;
  restore_entry();
  resume_drawing_updates();
}

}  // namespace

void stop_run(bool show) {
  if (run.level > 1) return;
  const bool keypad = !in_custom_function();
  leave_waiting();
  if (keypad) end_keypad_run();
  close_output_files();
  if (show && errors.error_flag && errors.error_in_program) go_to_error();
  if (keypad) refresh_screen();
}

// --- Stepping

namespace {

bool is_statement(int index) { return index >= 0 && index < program.statement_count; }

// Ends called programs until there is a statement to run. False at the end of the run.
bool reach_statement() {
  while (!is_statement(run.part.pc)) {
    if (run.call_top == run.call_base) return false;
    const int next = return_to_caller();
    if (errors.error_flag) return false;
    run.part.pc = next;
  }
  return true;
}

}  // namespace

bool step() {
  if (state.key_wait || state.at_prompt) return true;
  if (errors.error_flag || !reach_statement()) {
    stop_run(errors.error_flag);
    return false;
  }
  const ProgramStatement& statement = program.statements[run.part.pc];
  const int next = statement_handler(statement.number)(statement);
  if (errors.error_flag) {
    stop_run(true);
    return false;
  }
  run.part.pc = next;
  return true;
}

int next_statement() { return run.part.pc + 1; }

// --- Handlers by number

namespace {

int run_nothing(const ProgramStatement&) { return next_statement(); }

struct THandlerRow {
  int number;
  TStatementHandler run;
};

constexpr THandlerRow handler_rows[] = {{STATEMENT_IF, run_if},
                                        {STATEMENT_END, run_end},
                                        {STATEMENT_ELSE, run_else},
                                        {STATEMENT_WHILE, run_while},
                                        {STATEMENT_LOOP, run_loop},
                                        {STATEMENT_CALL, run_call},
                                        {STATEMENT_RETURN_CALL, run_return_call},
                                        {STATEMENT_GOTO, run_goto},
                                        {STATEMENT_IN, run_in},
                                        {STATEMENT_OUT, run_out},
                                        {STATEMENT_EXPRESS, run_express},
                                        {STATEMENT_STOP, run_stop},
                                        {STATEMENT_TEXT, run_text},
                                        {STATEMENT_FOUT, run_fout},
                                        {STATEMENT_IN_FUNCTION, run_in_function},
                                        {STATEMENT_FUNCTION, run_function_statement},
                                        {STATEMENT_ERROR, run_error},
                                        {STATEMENT_BREAK, run_break},
                                        {STATEMENT_GOSUB, run_gosub},
                                        {STATEMENT_RETURN_SUB, run_return_sub},
                                        {STATEMENT_MENU_ITEM, run_menu_item},
                                        {STATEMENT_MENU_DISPLAY, run_menu_display},
                                        {STATEMENT_MENU_TITLE, run_menu_title},
                                        {STATEMENT_MENU_CLEAR, run_menu_clear},
                                        {STATEMENT_DESCRIPTION, run_description}};

struct THandlers {
  TStatementHandler of[LAST_STATEMENT_NUMBER + 1] = {};
};

constexpr THandlers make_handlers() {
  THandlers handlers;
  for (TStatementHandler& handler : handlers.of) handler = run_nothing;
  for (const THandlerRow& row : handler_rows) handlers.of[row.number] = row.run;
  return handlers;
}

constexpr THandlers handlers = make_handlers();

}  // namespace

TStatementHandler statement_handler(int number) {
  return number >= 0 && number <= LAST_STATEMENT_NUMBER ? handlers.of[number] : run_nothing;
}

// --- Failures

int fail_statement(const char* box_text, const char* box_title, TError error) {
  if (!in_custom_function()) platform().show_message(box_text, box_title);
  report_error(error);
  return END_OF_PROGRAM;
}

int fail_in_code(const char* box_text) { return fail_statement(box_text, "Program Error", ERR_PROGRAM_CODE); }

int fail_at_limit(const char* box_text) { return fail_statement(box_text, "Limit", ERR_MEMORY_LIMIT); }

}  // namespace zephyl
