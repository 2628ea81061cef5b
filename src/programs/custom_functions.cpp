#include "programs/custom_functions.h"

#include <cstdio>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/poll.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "plot/drawing.h"
#include "programs/function_header.h"
#include "programs/interpreter.h"
#include "programs/program_cache.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/working_functions.h"

namespace zephyl {

namespace {

// --- Arguments

// What a list, matrix or string argument is copied from: a store as it was before the arguments went to their
// slots, or what stands beside a register. Null, with the error reported, for none.
const ListRecord* list_argument(int number) {
  const bool stored = number >= 0 && number < ANSWER_RECORD;
  const ListRecord* const list = stored ? list_at_begin(number) : list_by_number(number);
  if (!list) report_error(ERR_LIST_UNDEFINED);
  return list;
}

const MatrixRecord* matrix_argument(int number) {
  const bool stored = number >= 0 && number < ANSWER_RECORD;
  const MatrixRecord* const matrix = stored ? matrix_at_begin(number) : matrix_by_number(number);
  if (!matrix) report_error(ERR_MATRIX_UNDEFINED);
  return matrix;
}

const TString* string_argument(int number) {
  const bool stored = number >= 0 && number < ANSWER_RECORD;
  return stored ? string_at_begin(number) : string_by_number(number);
}

// A function slot takes a number as the expression that it then is.
void bind_function(int slot, const TValue& value) {
  constexpr int text_size = 80;
  char text[text_size], error[text_size];
  std::snprintf(text, sizeof text, is_real(value) ? "%.17g" : "%.17g+%.17g*(i)", value.re, value.im);
  const int index = slot - SLOT_F1;
  TExpression expression;
  if (index >= WORKING_FUNCTION_COUNT || !text_to_tokens(text, expression, error, sizeof error))
    return report_error(ERR_UNEXPECTED);
  function_slots[FIRST_PROGRAM_FUNCTION + index] = expression;
}

void bind_argument(int slot, const TArgument& argument) {
  keep_store(slot);
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      if (const MatrixRecord* from = matrix_argument(argument.matrix))
        copy_matrix(stores.matrices[slot - SLOT_MATRIX_A], *from);
      return;
    case CLASS_LIST:
      if (const ListRecord* from = list_argument(argument.list))
        copy_list(stores.lists[slot - SLOT_LIST_A], *from);
      return;
    case CLASS_STRING:
      if (const TString* from = string_argument(argument.string))
        copy_string(stores.strings[slot - SLOT_STR1], *from);
      return;
    case CLASS_FUNCTION:
      return bind_function(slot, argument.value);
    case CLASS_NONE:
      return report_error(ERR_UNEXPECTED);
    default:
      return memory_copy_in(slot, argument.value);
  }
}

// The kinds have been checked against the header, which is read again here: a file may have changed in
// between.
void bind_arguments(const TFuncFrame& arguments) {
  TFunctionHeader header;
  read_function_header("", header);
  if (header.count > arguments.count) return report_error(ERR_ARGUMENT_COUNT);
  for (int i = 0; i < header.count && !errors.error_flag; ++i)
    bind_argument(header.slots[i], arguments.arguments[i]);
}

// --- The level of a function

bool is_outermost() { return run.level == 1; }

// Puts away what runs already. False, with the error reported, where functions are too deep in one another.
bool begin_level() {
  if (run.level >= NEST_LIMIT) {
    report_error(ERR_PROGRAM_NESTING);
    return false;
  }
  TWaitingPart& waiting = run.waiting[run.waiting_count++];
  waiting.place = run;
  waiting.program_running = state.program_running;
  waiting.at_prompt = state.at_prompt;
  waiting.at_function_prompt = state.at_function_prompt;
  waiting.key_wait = state.key_wait;
  ++run.level;
  if (is_outermost()) take_working_functions();
  return true;
}

// From here on the function is the program that runs; until then errors are those of the statement that
// called.
void begin_part() {
  run.part = {};
  std::snprintf(run.part.name, sizeof run.part.name, "%s", program.name);
  run.call_base = run.call_top;
}

void end_level() {
  const TWaitingPart& waiting = run.waiting[--run.waiting_count];
  static_cast<TRunPlace&>(run) = waiting.place;
  state.program_running = waiting.program_running;
  state.at_prompt = waiting.at_prompt;
  state.at_function_prompt = waiting.at_function_prompt;
  state.key_wait = waiting.key_wait;
  if (is_outermost()) {
    drop_working_functions();
    resume_drawing_updates();
  }
  --run.level;
}

// The program that called stands in memory again.
void reload_caller() {
  if (run.level > 0 && load_program(run.part.name, run.part.built_in) < 0) report_error(ERR_PROGRAM_CODE);
}

// --- The run

// Statements don't yield to the main loop, but a tap is looked for among them.
void run_to_end() {
  begin_part();
  start_function_run();
  while (step()) poll_after(1);
}

void run_with_arguments(const TFuncFrame& arguments) {
  const int frames_below = frame_count();
  if (!push_frame()) return;
  bind_arguments(arguments);
  if (!errors.error_flag && push_evaluation()) {
    run_to_end();
    pop_evaluation();
  }
  pop_frames_to(frames_below);
}

bool load_function(const char* name) {
  if (load_program(name, false) >= 0) return true;
  report_error(ERR_PROGRAM_NOT_FOUND);
  return false;
}

}  // namespace

void run_custom_function(const char* name, const TFuncFrame& arguments) {
  if (!begin_level()) return;
  const TAnswers answers_before = answers;
  if (load_function(name)) run_with_arguments(arguments);
  end_level();
  reload_caller();
  // After an error the answer that was to be shown is so again; the number in it is the function's last.
  if (!errors.error_flag) return;
  const TValue last = answers.ans;
  answers = answers_before;
  answers.ans = last;
}

}  // namespace zephyl
