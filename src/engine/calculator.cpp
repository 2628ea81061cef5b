#include "engine/calculator.h"

#include <cstdio>

#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

TCompiled compiled;

void run_with_wait_cursor() {
  platform().set_wait_cursor(true);
  run_compiled(compiled, false);
  platform().set_wait_cursor(false);
}

// Compiles the items and, unless compile_only, runs them.
void process_items(bool compile_only) {
  if (!state.at_prompt) add_history();
  compile_items(compiled);
  if (!compile_only) run_with_wait_cursor();
}

// The line with its result, or its error, on the display. An answer that a program has taken is not shown.
void present_evaluation(bool taken_by_program) {
  if (!taken_by_program) show_result(true, true);
  state.nothing_evaluated = false;
  hooks.draw_expression(false);
  state.fresh_flag = true;
}

// At the prompt for a function: the line itself is the answer.
void answer_function_prompt() {
  if (entry_line.expression.count > 0) {
    hooks.function_prompt_answered();
    state.fresh_flag = true;
  }
  entry_line.cursor = entry_line.expression.count;
  hooks.draw_expression(entry_line.expression.count == 0);
}

}  // namespace

const TCompiled& last_compiled() { return compiled; }

bool evaluate_expression(bool compile_only) {
  if (program_works()) return false;
  if (state.at_function_prompt) {
    answer_function_prompt();
    return false;
  }
  const bool at_prompt = state.at_prompt;
  hooks.evaluation_begins();
  clear_error();
  if (!compile_only) state.fresh_flag = true;
  tokens_to_items(entry_line.expression);
  if (at_prompt) hooks.prompt_entered();
  const bool has_items = item_list.count > 0;
  const bool ready = has_items && !errors.error_flag;
  if (ready) process_items(compile_only);
  const bool shows = entry_line.expression.count > 0 && (!ready || !compile_only || errors.error_flag);
  const bool taken = at_prompt && !state.at_prompt;
  if (shows) present_evaluation(taken);
  hooks.redraw_part(PART_AC_AND_ARROWS);
  if (!compile_only || errors.error_flag) entry_line.cursor = entry_line.expression.count;
  return shows && ready && !errors.error_flag && !taken;
}

void clear_calculator(bool redraw) {
  const bool error_stood = errors.error_flag;
  item_list.count = 0;
  clear_entry_line();
  clear_error();
  answers = {};
  clear_matrix(stores.matrices[ANSWER_RECORD]);
  clear_list(stores.lists[ANSWER_RECORD]);
  stores.strings[ANSWER_RECORD].text[0] = 0;
  state.fresh_flag = true;
  state.nothing_evaluated = true;
  // A prompt stands again where an error stood.
  std::snprintf(state.result_text, sizeof state.result_text, "%s", state.at_prompt ? state.prompt_text : "");
  state.result_shown = false;
  if (!redraw) return;
  hooks.draw_expression(true);
  hooks.draw_result(true);
  if (error_stood) hooks.redraw_part(PART_AC_AND_ARROWS);
}

void show_result(bool show, bool home) {
  std::snprintf(state.result_text, sizeof state.result_text, "%s",
                format_result(answers.ans.re, answers.ans.im, true, false));
  answers.ans_valid = true;
  state.result_shown = true;
  if (show) hooks.draw_result(home);
}

void refresh_result() {
  if (answers.ans_valid && state.result_shown) show_result(true, true);
}

void reset_engine() {
  reset_settings();
  reset_state();
  reset_errors();
  reset_memory();
  reset_stores();
  reset_expressions();
  reset_evaluator();
}

}  // namespace zephyl
