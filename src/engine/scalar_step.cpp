// Steps on numbers, and their mapping over the elements of lists.

#include "engine/base_integer.h"
#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/memory.h"
#include "engine/poll.h"
#include "engine/state.h"
#include "engine/step_run.h"
#include "engine/system_variables.h"

namespace zephyl {

namespace {

bool takes_real_rule(const TOperationHandlers& row, const TScalarCall& call) {
  return row.real && ((row.real_use == REAL_ON_REAL && call.operands_real) ||
                      (row.real_use == REAL_WHEN_FORCED && call.stay_real));
}

void fill_call(const TStepRun& run, TScalarCall& call) {
  call.op = run.step.op;
  call.count = run.count;
  for (int i = 0; i < run.count; ++i) call.args[i] = run.args[i].value;
  const int kind = run.step.arg_kind;
  call.operands_real = kind == KIND_INFIX      ? is_real(call.args[0]) && is_real(call.args[1])
                       : kind == KIND_FUNCTION ? run.all_real
                                               : is_real(call.args[0]);
  call.stay_real = call.operands_real && (settings.complexFormat == ST_REAL || run.plotting);
  call.plotting = run.plotting;
  call.result = {};
  call.result_register = run.step.result;
  call.frame = run.step.frame;
  call.numeric = run.step.frame >= 0 ? &numeric_states[run.step.frame] : nullptr;
  call.step = &run.step;
}

void cut_to_base(TValue& value) {
  value.re = cut_to_base_bits(value.re);
  value.im = cut_to_base_bits(value.im);
}

void store_number(const TStep& step, const TValue& value) {
  if (step.op == OP_SAVE_MEMORY)
    memory_copy_in(step.target, value);
  else
    write_system_variable(step.target, value);
}

void run_operation(TStepRun& run, TScalarCall& call) {
  fill_call(run, call);
  const bool integers = state.calcMode == BASE_MODE;
  if (integers)
    for (int i = 0; i < call.count; ++i) cut_to_base(call.args[i]);
  const TOperationHandlers& row = *run.step.handlers;
  if (run.step.op == OP_SAVE_MEMORY || run.step.op == OP_SAVE_VARIABLE) {
    store_number(run.step, call.args[0]);
    call.result = call.args[0];
  } else if (takes_real_rule(row, call)) {
    call.result = {row.real(call.args[0].re, call.args[1].re), 0.0};
  } else if (row.scalar) {
    row.scalar(call);
    run.repeat = call.repeat;
    run.stop_on_error = call.stop_on_error;
  } else {
    report_error(ERR_UNEXPECTED);
  }
  if (integers) cut_to_base(call.result);
}

struct TListOperands {
  const ListRecord* lists[ARGUMENT_LIMIT] = {};
  int last = -1;
};

// Reads all list operands; they must have one size.
bool read_lists(const TStepRun& run, TListOperands& operands) {
  for (int i = 0; i < run.count; ++i) {
    if (run.args[i].list < 0) continue;
    const ListRecord* list = list_by_number(run.args[i].list);
    if (!list) return false;
    if (operands.last >= 0 && operands.last != list->last) {
      report_error(ERR_LIST_MISMATCH);
      return false;
    }
    operands.lists[i] = list;
    operands.last = list->last;
  }
  return true;
}

bool all_real_at(const TStepRun& run, int count) {
  for (int i = 0; i < count; ++i)
    if (!is_real(run.args[i].value)) return false;
  return true;
}

void run_number_operation(TStepRun& run, TScalarCall& call) {
  run_operation(run, call);
  if (fault_raised()) report_fault();
  if (errors.error_flag) call.result = {};
}

// Element by element into the register's list. An operand may be that very list: each element is read before
// it is written. An error leaves zeros from its element on.
void map_elements(TStepRun& run) {
  TListOperands operands;
  if (!read_lists(run, operands)) return;
  ListRecord* result = set_list_result(run.step.result);
  if (!result) return;
  TScalarCall call{};
  for (int element = 0; element <= operands.last; ++element) {
    for (int i = 0; i < run.count; ++i)
      if (operands.lists[i]) run.args[i].value = operands.lists[i]->elements[element];
    run.all_real = all_real_at(run, run.count);
    call.result = {};
    if (!errors.error_flag) run_number_operation(run, call);
    if (!call.keeps_register) result->elements[element] = call.result;
  }
  poll_budget -= operands.last;
  if (call.keeps_register) return;
  run.made_list = true;
  result->last = operands.last;
  result->defined = true;
}

}  // namespace

void run_scalar_step(TStepRun& run, bool has_list) {
  clear_faults();
  if (has_list) return map_elements(run);
  TScalarCall call{};
  run_number_operation(run, call);
  if (!call.keeps_register) set_number_result(run.step.result, call.result);
}

}  // namespace zephyl
