#include "programs/program_input.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "programs/interpreter.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/statements.h"
#include "programs/working_functions.h"

namespace zephyl {

namespace {

TExpression last_answers[SLOT_COUNT];

bool is_slot(int slot) { return slot >= 0 && slot < SLOT_COUNT; }

bool has_entry_line(int mode) {
  return mode != PLOT_MODE && mode != PERIODIC_MODE && mode != PROGRAM_EDIT_MODE;
}

// An expression that is there already stands as after its evaluation: a token begins another one, an arrow
// edits it.
void put_on_line(const TExpression& expression) {
  entry_line.expression = expression;
  entry_line.cursor = expression.count;
  state.fresh_flag = expression.count > 0;
}

void ask(const char* question, const TExpression& expression) {
  state.at_prompt = true;
  run.prompt_line[0] = 0;
  if (!has_entry_line(state.calcMode) && hooks.set_mode) hooks.set_mode(COMP_MODE, false);
  put_on_line(expression);
  std::snprintf(state.prompt_text, sizeof state.prompt_text, "%s", question);
  hooks.draw_expression(!state.fresh_flag);
  show_program_text(state.prompt_text);
}

void go_on() {
  state.at_prompt = state.at_function_prompt = false;
  show_program_text(RUNNING_TEXT);
}

}  // namespace

const TExpression& last_answer(int slot) {
  static const TExpression none;
  return is_slot(slot) ? last_answers[slot] : none;
}

bool has_last_answers() {
  return std::any_of(std::begin(last_answers), std::end(last_answers),
                     [](const TExpression& answer) { return answer.count > 0; });
}

void clear_last_answers() { std::fill(std::begin(last_answers), std::end(last_answers), TExpression{}); }

void ask_for_variable(const char* question, int slot) {
  run.in_target = slot;
  ask(question, last_answer(slot));
}

void ask_for_function(const char* question, int function) {
  run.in_target = function;
  state.at_function_prompt = true;
  ask(question, function_slots[FIRST_PROGRAM_FUNCTION + function]);
}

void keep_last_answer() {
  if (is_slot(run.in_target)) last_answers[run.in_target] = entry_line.expression;
}

// --- Answers

namespace {

// True if the answer is of the type that a class of variables holds.
bool answer_fits(TSlotClass slots) {
  switch (slots) {
    case CLASS_MATRIX:
      return answers.m_ans_valid;
    case CLASS_LIST:
      return answers.l_ans_valid;
    case CLASS_STRING:
      return answers.str_ans_valid;
    default:
      return !aggregate_answer();
  }
}

void store_answer(int slot) {
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return copy_matrix(stores.matrices[slot - SLOT_MATRIX_A], stores.matrices[ANSWER_RECORD]);
    case CLASS_LIST:
      return copy_list(stores.lists[slot - SLOT_LIST_A], stores.lists[ANSWER_RECORD]);
    case CLASS_STRING:
      return copy_string(stores.strings[slot - SLOT_STR1], stores.strings[ANSWER_RECORD]);
    default:
      return memory_copy_in(slot, answers.ans);
  }
}

}  // namespace

void take_answer() {
  const TSlotClass slots = slot_class(run.in_target);
  if (slots == CLASS_NONE || slots == CLASS_FUNCTION) return report_error(ERR_UNEXPECTED);
  if (!answer_fits(slots)) return report_error(ERR_DATA_TYPE);
  keep_store(run.in_target);
  if (errors.error_flag) return;
  store_answer(run.in_target);
  go_on();
}

void take_function_answer() {
  function_slots[FIRST_PROGRAM_FUNCTION + run.in_target] = entry_line.expression;
  go_on();
}

// --- Statements

namespace {

constexpr int QUESTION_SIZE = STATEMENT_TEXT_SIZE + 8;

}  // namespace

int run_in(const ProgramStatement& statement) {
  if (in_custom_function()) return next_statement();
  const char* const name = statement.text[0] ? statement.text : slot_name(statement.var0, false);
  if (!is_slot(statement.var0)) report_error(ERR_UNEXPECTED);
  if (errors.error_flag) return END_OF_PROGRAM;
  char question[QUESTION_SIZE];
  std::snprintf(question, sizeof question, "%s?", name);
  ask_for_variable(question, statement.var0);
  return next_statement();
}

int run_in_function(const ProgramStatement& statement) {
  if (in_custom_function()) return next_statement();
  if (statement.func < 0 || statement.func >= WORKING_FUNCTION_COUNT) {
    report_error(ERR_UNEXPECTED);
    return END_OF_PROGRAM;
  }
  char question[QUESTION_SIZE];
  std::snprintf(question, sizeof question, "f%d()?", statement.func + 1);
  ask_for_function(statement.text[0] ? statement.text : question, statement.func);
  return next_statement();
}

}  // namespace zephyl
