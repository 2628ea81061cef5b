#include "engine/evaluator.h"

#include <algorithm>
#include <iterator>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/hooks.h"
#include "engine/loop_variables.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/poll.h"
#include "engine/state.h"
#include "engine/step_run.h"

namespace zephyl {

namespace {

const TCompiled* walked = nullptr;

// What a whole walk depends on.
struct TWalk {
  const TCompiled& compiled;
  bool plotting;
  bool integers;      // BASE_MODE: every operand and result is cut
  TRealUse real_use;  // the real rules that real operands may take
};

// --- The quick road: steps whose operands are numbers wherever they run.

// A result that isn't finite is a fault. The rule is pure: run again with clean flags, it tells which.
void report_fault_of(const TStep& step, double left, double right) {
  clear_faults();
  step.real(left, right);
  if (!report_fault()) report_error(ERR_OVERFLOW);
}

bool is_finite(double x) { return x - x == 0.0; }

// False if the step can't take its real rule here.
inline bool run_real_rule(const TStep& step, TRealUse allowed) {
  // Copies: the result may go to a register that an operand comes from.
  const TValue left = *step.cell[0];
  const TValue right = *step.cell[1];
  if (step.real_use > allowed || left.im != 0.0 || right.im != 0.0) return false;
  if (step.reads_flags) clear_faults();
  const double result = step.real(left.re, right.re);
  step.out->value = {result, 0.0};
  step.out->type = TYPE_NUMBER;
  if (!is_finite(result) || (step.reads_flags && fault_raised())) report_fault_of(step, left.re, right.re);
  return true;
}

// What a step asks of the walk.
struct TOutcome {
  bool repeat = false;
  bool stop_on_error = false;
  bool made_list = false;
};

TOutcome run_general(const TWalk& walk, const TStep& step) {
  const bool last = &step == walk.compiled.steps + walk.compiled.count - 1;
  TStepRun run{walk.compiled, step, last, walk.plotting};
  run_step(run);
  if (is_function_kind(step.arg_kind) && step.arg_kind < KIND_CALL_WITH_ARGUMENTS)
    func_frames[step.frame].count = 0;
  return {run.repeat, run.stop_on_error, run.made_list};
}

// A whole list of steps on plain numbers: no frames, no bodies, one look at the clock.
void walk_plain(const TWalk& walk) {
  const TStep* const end = walk.compiled.steps + walk.compiled.count;
  for (const TStep* step = walk.compiled.steps; step != end; ++step) {
    if (!run_real_rule(*step, walk.real_use)) run_general(walk, *step);
    if (errors.error_flag) return;
  }
  poll_after(walk.compiled.count);
}

// --- The general road.

// Errors that stand even in the dry pass over the body of a numeric operator.
bool stands_in_dry_pass(int code) {
  constexpr int standing[] = {ERR_OVERFLOW,       ERR_OVERFLOW_TOO,  ERR_MEMORY_LIMIT, ERR_UNEXPECTED,
                              ERR_ARGUMENT_COUNT, ERR_ARGUMENT_TYPE, ERR_NESTED_FNINT};
  return std::find(std::begin(standing), std::end(standing), code) != std::end(standing);
}

// An operator that failed in a dry pass begins anew when it is called again.
void abandon_operator(TNumericState& numeric) {
  if (numeric.phase == 0) return;
  pop_loop_variable();
  numeric.phase = 0;
}

// True if the error ends the walk. In a dry pass it is forgiven, or stands while the walk goes on; the step's
// value is 0, or the list as far as it came.
bool error_ends_walk(const TStep& step, const TOutcome& outcome) {
  if (step.numeric_frame < 0 || numeric_states[step.numeric_frame].iterating || outcome.stop_on_error)
    return true;
  if (!outcome.made_list) set_number_result(step.result, {});
  if (stands_in_dry_pass(errors.error_code)) return false;
  clear_error();
  if (step.arg_kind == KIND_NUMERIC) abandon_operator(numeric_states[step.frame]);
  return false;
}

void take_function_result(int reg) {
  if (answers.m_ans_valid) {
    if (MatrixRecord* to = set_matrix_result(reg)) copy_matrix(*to, stores.matrices[ANSWER_RECORD]);
  } else if (answers.l_ans_valid) {
    if (ListRecord* to = set_list_result(reg)) copy_list(*to, stores.lists[ANSWER_RECORD]);
  } else if (answers.str_ans_valid) {
    if (TString* to = set_string_result(reg)) copy_string(*to, stores.strings[ANSWER_RECORD]);
  } else {
    set_number_result(reg, answers.ans);
  }
}

// The arguments are in the frame, checked.
void call_custom_function(const TStep& step, const TCompiled& compiled) {
  if (!errors.error_flag) hooks.run_function(compiled.names[step.name], func_frames[step.frame]);
  if (!errors.error_flag) take_function_result(step.result);
  func_frames[step.frame].count = 0;
}

TOutcome run_one(const TWalk& walk, const TStep& step) {
  if (step.path == PATH_SCALAR && !walk.integers && run_real_rule(step, walk.real_use)) return {};
  const TOutcome outcome = run_general(walk, step);
  if (step.op == OP_FUNC1 || step.op == OP_FUNC2) call_custom_function(step, walk.compiled);
  return outcome;
}

// --- Bodies of plain numbers, which run again without their operator's other arguments being gathered anew.

// A body that is run again and again: as a compact list of its own while its operands are real.
class TBody {
 public:
  TBody(const TWalk& walk, const TStep& call)
      : walk_(walk),
        begin_(walk.compiled.steps + call.body_start),
        end_(walk.compiled.steps + call.body_end),
        result_(*call.body_value) {
    TRealProgramBuilder builder(real_);
    for (const TStep* step = begin_; step != end_; ++step) builder.add(*step);
    builder.finish(false);
    if (real_.real_use > walk.real_use) real_.count = 0;
  }

  // False if a step ended in an error.
  bool run(TValue& value) {
    if (real_.count == 0 || !inputs_are_real(real_)) {
      const bool done = run_steps();
      value = result_;
      return done;
    }
    if (!registers_are_real_) clear_registers();
    const bool done = run_real_program(real_);
    value = {result_.re, 0.0};
    return done;
  }

 private:
  // The steps one by one, on the quick road where they can.
  bool run_steps() {
    registers_are_real_ = false;
    for (const TStep* step = begin_; step != end_; ++step) {
      if (!run_real_rule(*step, walk_.real_use)) run_general(walk_, *step);
      if (errors.error_flag) return false;
    }
    return true;
  }

  // The compact list writes real parts alone.
  void clear_registers() {
    for (const TStep* step = begin_; step != end_; ++step) set_number_result(step->result, {});
    registers_are_real_ = true;
  }

  const TWalk& walk_;
  const TStep* const begin_;
  const TStep* const end_;
  const TValue& result_;
  TRealProgram real_;
  bool registers_are_real_ = false;
};

// The call of an operator as its first call left it in its frame.
TScalarCall repeated_call(const TWalk& walk, const TStep& step) {
  TScalarCall call{};
  const TFunctionArguments& row = *function_arguments(step.op);
  call.op = step.op;
  for (int i = 0; i < row.count; ++i) call.args[i] = func_frames[step.frame].arguments[i].value;
  call.count = row.count;
  call.plotting = walk.plotting;
  call.result_register = step.result;
  call.frame = step.frame;
  call.numeric = &numeric_states[step.frame];
  call.step = &step;
  return call;
}

// One round: the body, then the operator with its value. False if the body ended the walk.
bool run_round(TBody& body, const TStep& step, bool wants_real, TScalarCall& call) {
  if (!body.run(call.args[0])) return false;
  call.repeat = false;
  if (wants_real && !is_real(call.args[0])) {
    report_error(ERR_ARGUMENT_TYPE);
    return true;
  }
  call.result = {};
  step.handlers->scalar(call);
  if (fault_raised()) report_fault();
  return true;
}

// All rounds after the first call. False if the walk ends: an error in the body, or a cancel.
bool run_rounds(const TWalk& walk, const TStep& step) {
  const bool wants_real = function_arguments(step.op)->types[0] == ARGUMENT_REAL;
  const int work = step.body_end - step.body_start + 1;
  TScalarCall call = repeated_call(walk, step);
  TBody body(walk, step);
  clear_faults();
  do {
    if (!run_round(body, step, wants_real, call) || (!errors.error_flag && poll_after(work))) return false;
  } while (call.repeat && !errors.error_flag);
  if (!call.keeps_register) set_number_result(step.result, call.result);
  return true;
}

// --- The walk

// The index that the walk goes on with: the first step of the body if a numeric operator asks for another
// round.
int next_step(const TStep& step, const TOutcome& outcome, int index) {
  if (step.arg_kind != KIND_NUMERIC) return index + 1;
  numeric_states[step.frame].iterating = outcome.repeat;
  return outcome.repeat ? step.body_start : index + 1;
}

void walk_general(const TWalk& walk) {
  for (int i = 0; i < walk.compiled.frame_count; ++i) numeric_states[i].iterating = false;
  int index = 0;
  while (index < walk.compiled.count) {
    const TStep& step = walk.compiled.steps[index];
    TOutcome outcome = run_one(walk, step);
    if (outcome.repeat && step.body_value && !walk.integers && !errors.error_flag) {
      if (!run_rounds(walk, step)) return;
      outcome.repeat = false;
    }
    if (errors.error_flag) {
      if (error_ends_walk(step, outcome)) return;
    } else if (poll_after(1)) {
      return;
    }
    index = next_step(step, outcome, index);
  }
}

// An expression without an operator: its operand goes straight to register 0.
void deliver_single(const TOperand& only) {
  const TArgument argument = read_operand(only);
  if (errors.error_flag) return;
  if (argument.string >= 0) {
    copy_string(*set_string_result(0), *string_by_number(argument.string));
  } else if (argument.list >= 0) {
    if (const ListRecord* list = list_by_number(argument.list)) copy_list(*set_list_result(0), *list);
  } else if (argument.matrix >= 0) {
    if (const MatrixRecord* matrix = matrix_by_number(argument.matrix))
      copy_matrix(*set_matrix_result(0), *matrix);
  } else {
    set_number_result(0, argument.value);
  }
}

}  // namespace

const TCompiled* walked_steps() { return walked; }

namespace {

// Every expression that isn't plain real arithmetic.
void walk_otherwise(const TCompiled& compiled, bool plotting, TRealUse real_use) {
  if (compiled.error != NO_COMPILE_ERROR) return report_error(static_cast<TError>(compiled.error));
  if (compiled.single) return deliver_single(compiled.only);
  const TCompiled* const outer = walked;
  walked = &compiled;
  const TWalk walk{compiled, plotting, state.calcMode == BASE_MODE, real_use};
  if (compiled.all_plain && !walk.integers)
    walk_plain(walk);
  else
    walk_general(walk);
  walked = outer;
}

}  // namespace

void walk_steps(const TCompiled& compiled, bool plotting) {
  const TRealProgram& real = compiled.real_program;
  const TRealUse real_use = plotting || settings.complexFormat == ST_REAL ? REAL_WHEN_FORCED : REAL_ON_REAL;
  const bool takes_real = real.count > 0 && real.real_use <= real_use && state.calcMode != BASE_MODE;
  if (!takes_real || !inputs_are_real(real)) return walk_otherwise(compiled, plotting, real_use);
  if (run_real_program(real)) poll_after(real.count);
}

namespace {

void clear_frames(int count) {
  for (int i = 0; i < count; ++i) {
    func_frames[i].count = 0;
    numeric_states[i].rounds = 0;
    numeric_states[i].phase = 0;
  }
}

bool arguments_left(int frame_count) {
  return std::any_of(func_frames, func_frames + frame_count,
                     [](const TFuncFrame& frame) { return frame.count > 0; });
}

// A list or matrix without a size is no result: ERR_LIST_UNDEFINED, ERR_MATRIX_UNDEFINED.
bool result_is_defined() {
  if (registers[0].type == TYPE_LIST) return list_by_number(REGISTER_NUMBER);
  return registers[0].type != TYPE_MATRIX || matrix_by_number(REGISTER_NUMBER);
}

void deliver_result() {
  const TRegister& result = registers[0];
  answers.m_ans_valid = result.type == TYPE_MATRIX;
  answers.l_ans_valid = result.type == TYPE_LIST;
  answers.str_ans_valid = result.type == TYPE_STRING;
  answers.ans_valid = result.type == TYPE_NUMBER;
  switch (result.type) {
    case TYPE_MATRIX:
      copy_matrix(stores.matrices[ANSWER_RECORD], temporaries.matrices[0]);
      break;
    case TYPE_LIST:
      copy_list(stores.lists[ANSWER_RECORD], temporaries.lists[0]);
      break;
    case TYPE_STRING:
      copy_string(stores.strings[ANSWER_RECORD], temporaries.strings[0]);
      break;
    default:
      answers.ans = result.value;
      break;
  }
}

}  // namespace

namespace {

int runs_under_way = 0;

// From clean frames to the value in register 0.
void run_steps(const TCompiled& compiled, bool plotting) {
  clear_literal();
  clear_frames(compiled.frame_count);
  registers[0].type = TYPE_NUMBER;
  const int loop_variables = loop_variable_count();
  if (!errors.error_flag) walk_steps(compiled, plotting);
  if (errors.error_flag) pop_loop_variables_to(loop_variables);
  if (arguments_left(compiled.frame_count)) report_error(ERR_SYNTAX);
}

}  // namespace

bool is_evaluating() { return runs_under_way > 0; }

void run_sample(const TCompiled& compiled) {
  registers[0].value = {};
  if (!compiled.all_plain || errors.error_flag) return run_steps(compiled, true);
  // Plain numbers: no call sites, no loops and no literals to clear.
  registers[0].type = TYPE_NUMBER;
  walk_steps(compiled, true);
}

void run_compiled(const TCompiled& compiled, bool plotting) {
  poll_budget = 0;  // what the user waits for looks at the clock from its first step
  ++runs_under_way;
  run_steps(compiled, plotting);
  --runs_under_way;
  if (errors.error_flag || !result_is_defined()) return;
  deliver_result();
  if (state.at_prompt) hooks.prompt_answered();
}

void reset_evaluator() {
  clear_literal();
  clear_frames(STEP_LIMIT);
  pop_loop_variables_to(0);
  for (TRegister& reg : registers) reg = {};
  walked = nullptr;
  runs_under_way = 0;
  forget_evaluations();
  reset_poll();
}

}  // namespace zephyl
