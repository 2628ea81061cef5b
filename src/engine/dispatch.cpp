// Which family a step goes to, by the types of its operands. The order of the tests is part of the language:
// programs in circulation depend on which message a mixed expression ends in.

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/step_run.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

// The operand types of a step, at a glance.
struct TOperandTypes {
  int matrices = 0;
  int lists = 0;
  int strings = 0;
};

TOperandTypes operand_types(const TStepRun& run) {
  TOperandTypes types;
  for (int i = 0; i < run.count; ++i) {
    types.matrices += run.args[i].matrix >= 0;
    types.lists += run.args[i].list >= 0;
    types.strings += run.args[i].string >= 0;
  }
  return types;
}

bool makes_matrix(int op) { return op == OP_IDEN || op == OP_INIT_MATRIX || op == OP_RAND_MATRIX; }
bool makes_list(int op) { return op == OP_INIT_LIST || op == OP_X_TO_LIST || op == OP_Y_TO_LIST; }
bool belongs_to_strings(int op) { return operation_array[op].family == STRING_FAMILY; }

bool has_list_parameter(TOp_Code op) {
  const TFunctionArguments* row = function_arguments(op);
  if (!row) return false;
  for (TArgumentType type : row->types)
    if (type == ARGUMENT_LIST) return true;
  return false;
}

bool stores_into(const TStep& step, TSlotClass slots) {
  return step.op == OP_SAVE_MEMORY && slot_class(step.target) == slots;
}

bool goes_to_lists(const TStep& step, const TOperandTypes& types) {
  if (makes_list(step.op) || has_list_parameter(step.op)) return true;
  if (types.lists == 0) return false;
  if (operation_array[step.op].family == LIST_FAMILY || stores_into(step, CLASS_LIST)) return true;
  return types.lists == 2 && (step.op == OP_EQUAL || step.op == OP_NOT_EQUAL);
}

// The first two arguments of the call must be real.
bool first_two_real(const TStepRun& run) {
  if (is_real(run.args[0].value) && is_real(run.args[1].value)) return true;
  report_error(ERR_DATA_TYPE);
  return false;
}

void fill_numbers(const TStepRun& run, TFamilyCall& call) {
  if (!is_function_kind(run.step.arg_kind)) {
    for (int i = 0; i < run.count; ++i) call.numbers[i] = run.args[i].value;
    call.number_count = run.count;
    return;
  }
  for (int i = 0; i < run.count; ++i) {
    const TArgument& argument = run.args[i];
    if (argument.matrix < 0 && argument.list < 0 && argument.string < 0)
      call.numbers[call.number_count++] = argument.value;
  }
}

// For infix operations by side, for functions the first two in written order.
void fill_pair(const TStepRun& run, int TArgument::*number, int (&pair)[2]) {
  const bool by_side = !is_function_kind(run.step.arg_kind);
  int found = 0;
  for (int i = 0; i < run.count; ++i) {
    if (run.args[i].*number < 0 || found >= 2) continue;
    pair[by_side ? i : found++] = run.args[i].*number;
  }
}

// An operation that has a handler for other operands refuses these; one without any is not there at all.
void call_family(TStepRun& run, TFamilyHandler handler) {
  if (!handler) return report_error(is_filled_in(run.step.op) ? ERR_DATA_TYPE : ERR_UNEXPECTED);
  TFamilyCall call{};
  call.op = run.step.op;
  call.result_register = run.step.result;
  call.target = run.step.target;
  call.step = &run.step;
  fill_numbers(run, call);
  fill_pair(run, &TArgument::matrix, call.matrices);
  fill_pair(run, &TArgument::list, call.lists);
  fill_pair(run, &TArgument::string, call.strings);
  clear_faults();
  handler(call);
  report_fault();
}

// A store into a function slot was done when the expression compiled; the step hands its operand on.
void pass_operand_on(const TStepRun& run) {
  const TArgument& from = run.args[0];
  const int reg = run.step.result;
  if (from.matrix >= 0) {
    const MatrixRecord* source = matrix_by_number(from.matrix);
    if (MatrixRecord* to = source ? set_matrix_result(reg) : nullptr) copy_matrix(*to, *source);
  } else if (from.list >= 0) {
    const ListRecord* source = list_by_number(from.list);
    if (ListRecord* to = source ? set_list_result(reg) : nullptr) copy_list(*to, *source);
  } else if (from.string >= 0) {
    const TString* source = string_by_number(from.string);
    if (TString* to = source ? set_string_result(reg) : nullptr) copy_string(*to, *source);
  } else {
    set_number_result(reg, from.value);
  }
}

// True if a store's operand and target don't go together, with numbers and lists left as operands.
bool store_refused(const TStep& step, const TOperandTypes& types) {
  if (step.op == OP_SAVE_VARIABLE) return types.lists > 0;
  if (step.op != OP_SAVE_MEMORY) return false;
  const TSlotClass slots = slot_class(step.target);
  return types.lists > 0 || slots == CLASS_NONE || slots > CLASS_GREEK;
}

void dispatch(TStepRun& run) {
  const TStep& step = run.step;
  const TOperandTypes types = operand_types(run);
  const int family = operation_array[step.op].family;
  if (step.op == OP_SAVE_VARIABLE && step.target >= FUNCTION_SLOT_OFFSET) return pass_operand_on(run);
  if (types.matrices > 0 || makes_matrix(step.op)) {
    if (first_two_real(run)) call_family(run, step.handlers->matrix);
    return;
  }
  if (family == MATRIX_FAMILY || stores_into(step, CLASS_MATRIX)) return report_error(ERR_DATA_TYPE);
  if (types.strings > 0 || belongs_to_strings(step.op)) {
    if (first_two_real(run)) call_family(run, step.handlers->string);
    return;
  }
  if (stores_into(step, CLASS_STRING)) return report_error(ERR_DATA_TYPE);
  if (goes_to_lists(step, types)) return call_family(run, step.handlers->list);
  if (family == LIST_FAMILY || store_refused(step, types)) return report_error(ERR_DATA_TYPE);
  // A numeric operator never maps: it refuses a list as its body once it looks at the body's value.
  run_scalar_step(run, types.lists > 0 && step.arg_kind != KIND_NUMERIC);
}

void read_operands(TStepRun& run) {
  run.args[0] = read_operand(run.step.operand[0]);
  run.count = 1;
  if (run.step.arg_kind != KIND_INFIX) return;
  run.args[1] = read_operand(run.step.operand[1]);
  run.count = 2;
}

}  // namespace

void run_step(TStepRun& run) {
  const TStep& step = run.step;
  read_operands(run);
  // What can't be read counts as 0 here: where a dry pass forgives the error, no argument and no element may be missing.
  if (step.op == OP_COMMA) return run_comma(run);
  if (step.op >= OP_LIST_FIRST_COMMA && step.op <= OP_STRING_SINGLE) return run_literal_step(run);
  if (errors.error_flag) return;
  if (is_function_kind(step.arg_kind) && !check_arguments(run)) return;
  if (step.op == OP_FUNC1 || step.op == OP_FUNC2) return;
  if (step.op == OP_TO_HMS && !run.last) return report_error(ERR_TO_HMS_NOT_LAST);
  dispatch(run);
}

}  // namespace zephyl
