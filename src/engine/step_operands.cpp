// What a step works on: operands by class, and the arguments of functions gathered in frames.

#include <algorithm>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/step_run.h"
#include "engine/system_variables.h"

namespace zephyl {

TFuncFrame func_frames[STEP_LIMIT];
TNumericState numeric_states[STEP_LIMIT];

namespace {

TArgument number_argument(const TValue& value) {
  TArgument argument;
  argument.value = value;
  return argument;
}

TArgument aggregate_argument(int type, int number) {
  TArgument argument;
  if (type == TYPE_MATRIX) argument.matrix = number;
  if (type == TYPE_LIST) argument.list = number;
  if (type == TYPE_STRING) argument.string = number;
  return argument;
}

TArgument read_register(int reg) {
  if (registers[reg].type == TYPE_NUMBER) return number_argument(registers[reg].value);
  return aggregate_argument(registers[reg].type, reg + REGISTER_NUMBER);
}

TArgument read_slot(int slot) {
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return aggregate_argument(TYPE_MATRIX, slot - SLOT_MATRIX_A);
    case CLASS_LIST:
      return aggregate_argument(TYPE_LIST, slot - SLOT_LIST_A);
    case CLASS_STRING:
      return aggregate_argument(TYPE_STRING, slot - SLOT_STR1);
    case CLASS_R:
    case CLASS_CAPITAL:
    case CLASS_SMALL:
    case CLASS_GREEK: {
      TArgument argument = number_argument(memory_array[slot]);
      argument.memory = slot;
      return argument;
    }
    default:
      report_error(ERR_UNEXPECTED);
      return {};
  }
}

TArgument read_statistic(int index) {
  if (hooks.statistics_value) return number_argument({hooks.statistics_value(index), 0.0});
  report_error(ERR_UNEXPECTED);
  return {};
}

}  // namespace

TArgument read_operand(const TOperand& operand) {
  switch (operand.kind) {
    case OPERAND_REGISTER:
      return read_register(operand.reg);
    case OPERAND_LITERAL:
    case OPERAND_I:
      return number_argument(operand.literal);
    case OPERAND_ANS:
      return number_argument(answers.ans);
    case OPERAND_M_ANS:
      return aggregate_argument(TYPE_MATRIX, ANSWER_RECORD);
    case OPERAND_L_ANS:
      return aggregate_argument(TYPE_LIST, ANSWER_RECORD);
    case OPERAND_STR_ANS:
      return aggregate_argument(TYPE_STRING, ANSWER_RECORD);
    case OPERAND_RANDOM:
      return number_argument({hooks.next_random(), 0.0});
    case OPERAND_MEMORY:
      return read_slot(operand.reg);
    case OPERAND_STATISTIC:
      return read_statistic(operand.reg);
    case OPERAND_VARIABLE:
      return number_argument(read_system_variable(operand.reg));
    case OPERAND_NONE:
      break;
  }
  report_error(ERR_UNEXPECTED);
  return {};
}

void push_argument(TFuncFrame& frame, const TArgument& argument) {
  if (frame.count >= ARGUMENT_LIMIT) return report_error(ERR_ARGUMENT_COUNT);
  frame.arguments[frame.count++] = argument;
}

void run_comma(TStepRun& run) {
  TFuncFrame& frame = func_frames[run.step.frame];
  if (frame.count == 0) push_argument(frame, run.args[1]);
  push_argument(frame, run.args[0]);
  set_number_result(run.step.result, {});
}

namespace {

// The row that the arguments of a call have to fit.
struct TSignature {
  int count = 0;
  TArgumentType types[ARGUMENT_LIMIT] = {};
};

TArgumentType type_of_slot(int slot) {
  switch (slot_class(slot)) {
    case CLASS_MATRIX:
      return ARGUMENT_MATRIX;
    case CLASS_LIST:
      return ARGUMENT_LIST;
    case CLASS_STRING:
      return ARGUMENT_STRING;
    default:
      return ARGUMENT_NUMBER;
  }
}

// What a custom function declares; a call without arguments has a dummy one.
bool signature_of_program(const TStepRun& run, TSignature& signature) {
  TFunctionHeader header;
  const char* name = run.compiled.names[run.step.name];
  if (!hooks.function_header || !hooks.function_header(name, header)) {
    report_error(ERR_PROGRAM_NOT_FOUND);
    return false;
  }
  if (run.step.op == OP_FUNC2) {
    if (header.count != 0) report_error(ERR_ARGUMENT_COUNT);
    signature.count = 1;
    signature.types[0] = ARGUMENT_NUMBER;
    return header.count == 0;
  }
  signature.count = header.count;
  for (int i = 0; i < header.count; ++i) signature.types[i] = type_of_slot(header.slots[i]);
  return true;
}

bool signature_of(const TStepRun& run, TSignature& signature) {
  const TFunctionArguments* row = function_arguments(run.step.op);
  if (!row) {
    report_error(ERR_UNEXPECTED);
    return false;
  }
  if (run.step.op == OP_FUNC1 || run.step.op == OP_FUNC2) return signature_of_program(run, signature);
  signature.count = row->count;
  std::copy(row->types, row->types + ARGUMENT_LIMIT, signature.types);
  return true;
}

// Fills up a missing last argument that the row lets be missing.
void supply_default(TFuncFrame& frame, const TSignature& signature, TOp_Code op) {
  constexpr double default_tolerance = 1e-9;  // of fnInt(
  if (signature.count == 0 || frame.count != signature.count - 1) return;
  const TArgumentType last = signature.types[signature.count - 1];
  if (last != ARGUMENT_OPTIONAL_NUMBER && last != ARGUMENT_OPTIONAL_LIST) return;
  push_argument(frame, number_argument({op == OP_FN_INT ? default_tolerance : 0.0, 0.0}));
}

bool list_is_real(int number) {
  const ListRecord* list = list_by_number(number);
  return list && !is_complex_list(*list);
}

bool list_fits(const TArgument& argument, TArgumentType type, bool lists_map) {
  if (type == ARGUMENT_LIST || type == ARGUMENT_OPTIONAL_LIST || type == ARGUMENT_NO_STRING) return true;
  if (!lists_map) return false;
  return type == ARGUMENT_NUMBER || (type == ARGUMENT_REAL && list_is_real(argument.list));
}

bool number_fits(const TValue& value, TArgumentType type) {
  if (type == ARGUMENT_NUMBER || type == ARGUMENT_NO_STRING) return true;
  return is_real(value) &&
         (type == ARGUMENT_REAL || type == ARGUMENT_OPTIONAL_NUMBER || type == ARGUMENT_OPTIONAL_LIST);
}

bool argument_fits(const TArgument& argument, TArgumentType type, bool lists_map) {
  if (argument.matrix >= 0) return type == ARGUMENT_MATRIX || type == ARGUMENT_NO_STRING;
  if (argument.list >= 0) return list_fits(argument, type, lists_map);
  if (argument.string >= 0) return type == ARGUMENT_STRING;
  return number_fits(argument.value, type);
}

bool is_number(const TArgument& argument) {
  return argument.matrix < 0 && argument.list < 0 && argument.string < 0;
}

bool check_types(TStepRun& run, const TFuncFrame& frame, const TSignature& signature) {
  const int kind = run.step.arg_kind;
  const bool lists_map = kind != KIND_NUMERIC && kind != KIND_CALL_WITH_ARGUMENTS &&
                         operation_array[run.step.op].family == SCALAR_FAMILY;
  TNumericState& numeric = numeric_states[run.step.frame];
  const bool after_dry_pass = kind == KIND_NUMERIC && numeric.rounds == 0 && numeric.phase == 0;
  for (int i = 0; i < frame.count; ++i) {
    const TArgument& argument = frame.arguments[i];
    // The number that the dry pass over a body leaves is not used, and so not looked at.
    if (i == 0 && after_dry_pass && is_number(argument)) continue;
    if (signature.types[i] == ARGUMENT_VARIABLE && argument.memory >= 0) {
      numeric.variable = argument.memory;
      continue;
    }
    if (is_number(argument) && !is_real(argument.value)) run.all_real = false;
    if (!argument_fits(argument, signature.types[i], lists_map)) {
      report_error(ERR_ARGUMENT_TYPE);
      return false;
    }
  }
  return true;
}

}  // namespace

bool check_arguments(TStepRun& run) {
  TFuncFrame& frame = func_frames[run.step.frame];
  if (frame.count == 0) push_argument(frame, run.args[0]);
  std::reverse(frame.arguments, frame.arguments + frame.count);
  TSignature signature;
  if (!signature_of(run, signature)) return false;
  supply_default(frame, signature, run.step.op);
  if (frame.count != signature.count) {
    report_error(ERR_ARGUMENT_COUNT);
    return false;
  }
  if (!check_types(run, frame, signature)) return false;
  std::copy(frame.arguments, frame.arguments + frame.count, run.args);
  run.count = frame.count;
  return true;
}

}  // namespace zephyl
