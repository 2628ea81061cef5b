// One step on its general road: operands read by class, arguments gathered and checked, dispatch by type. Between the
// files of the evaluator only.
#pragma once

#include "engine/compiled.h"
#include "engine/evaluator.h"
#include "engine/operation_table.h"

namespace zephyl {

// Everything that happens to one step.
struct TStepRun {
  const TCompiled& compiled;
  const TStep& step;
  bool last;      // the last step of the list
  bool plotting;  // scalar functions stay real
  TArgument args[ARGUMENT_LIMIT] = {};  // infix: left, right; one operand: the first; functions in written order
  int count = 0;
  bool all_real = true;  // no argument of a function is a complex number
  bool repeat = false;
  bool stop_on_error = false;
  bool made_list = false;  // the register has its list, whatever the error
};

// Runs the step; leaves its value in its register or reports an error.
void run_step(TStepRun& run);

// Reads an operand by its class; reports ERR_UNEXPECTED for an unknown one.
TArgument read_operand(const TOperand& operand);

// Adds an argument to a call site; a seventh is ERR_ARGUMENT_COUNT.
void push_argument(TFuncFrame& frame, const TArgument& argument);
// The comma of a function's arguments: runs right to left, so a frame fills up from the last argument to the first.
void run_comma(TStepRun& run);
// Turns the frame of the step into run.args, in written order, each checked against the row of func_arg_array.
// False, with the error reported, where they don't fit.
bool check_arguments(TStepRun& run);

// The steps of list and string literals, OP_LIST_FIRST_COMMA to OP_STRING_SINGLE.
void run_literal_step(TStepRun& run);
void clear_literal();
// The elements of an unfinished literal, LITERAL_LIMIT at most: for a walk that is put aside.
constexpr int LITERAL_LIMIT = 1000;
int copy_literal(TValue* to);
void set_literal(const TValue* from, int count);

// A step on numbers; has_list: on the elements of its list operands one by one.
void run_scalar_step(TStepRun& run, bool has_list);

}  // namespace zephyl
