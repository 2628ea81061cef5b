#include "engine/compiled.h"

#include <algorithm>
#include <bitset>

#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/operations.h"

namespace zephyl {

namespace {

// 50 to the power 11 - level: a digit of a position key for each level of parentheses. Nothing fits in one
// too deep.
struct TWeights {
  std::uint64_t of[PARENTHESIS_LIMIT + 2] = {};
};

constexpr TWeights make_weights() {
  TWeights weights;
  std::uint64_t weight = 1;
  for (int level = PARENTHESIS_LIMIT; level >= 0; --level) {
    weights.of[level] = weight;
    weight *= 50;
  }
  return weights;
}

constexpr TWeights weights = make_weights();
static_assert(weights.of[1] == 97656250000000000u && weights.of[PARENTHESIS_LIMIT] == 1);

}  // namespace

std::uint64_t group_end(std::uint64_t key, int level) { return key + weights.of[level]; }

// --- Linking

namespace {

constexpr TValue unused_cell = {0.0, 0.0};

// The registers that a PATH_SCALAR step was the last to fill.
using TScalarRegisters = std::bitset<REGISTER_LIMIT>;

// The value of an operand that can be read in place; null for one that is computed or isn't a number.
const TValue* cell_of(const TOperand& operand) {
  switch (operand.kind) {
    case OPERAND_REGISTER:
      return &registers[operand.reg].value;
    case OPERAND_LITERAL:
    case OPERAND_I:
      return &operand.literal;
    case OPERAND_ANS:
      return &answers.ans;
    case OPERAND_MEMORY:
      return operand.reg < SLOT_MATRIX_A ? &memory_array[operand.reg] : nullptr;
    default:
      return nullptr;
  }
}

bool is_always_number(const TOperand& operand, const TScalarRegisters& scalar) {
  if (operand.kind == OPERAND_REGISTER) return scalar[operand.reg];
  return cell_of(operand) != nullptr;
}

// On numbers the operation gives a number, whatever the mode.
bool is_scalar_operation(const TStep& step) {
  const TOperationRow& row = operation_array[step.op];
  if (row.family != SCALAR_FAMILY || (row.assoc & ASSOC_BASE_N)) return false;
  if (step.op >= OP_SAVE_MEMORY && step.op <= OP_STRING_SINGLE) return false;
  return (step.handlers->real || step.handlers->scalar) && step.op != OP_NUM_TO_STRING;
}

// A short function that commas add arguments to has the value of a comma as its operand: never scalar.
bool is_scalar(const TStep& step, const TScalarRegisters& scalar) {
  switch (step.arg_kind) {
    case KIND_INFIX:
      if (!is_always_number(step.operand[1], scalar)) return false;
      break;
    case KIND_PREFIX:
    case KIND_POSTFIX:
    case KIND_SHORT_FUNCTION:
      break;
    default:
      return false;
  }
  return is_scalar_operation(step) && is_always_number(step.operand[0], scalar);
}

void link_operation(TStep& step) {
  step.handlers = &operations[step.op];
  step.arg_kind = static_cast<std::uint8_t>(operation_array[step.op].arg_kind);
  step.real = step.handlers->real;
  step.real_use = step.real ? step.handlers->real_use : REAL_NEVER;
  step.reads_flags = step.handlers->real_is_composite;
}

void link_step(TStep& step, TScalarRegisters& scalar) {
  link_operation(step);
  step.cell[0] = cell_of(step.operand[0]);
  step.cell[1] = step.arg_kind == KIND_INFIX ? cell_of(step.operand[1]) : &unused_cell;
  step.out = &registers[step.result];
  step.path = is_scalar(step, scalar) ? PATH_SCALAR : PATH_GENERAL;
  scalar[static_cast<std::size_t>(step.result)] = step.path == PATH_SCALAR;
}

bool is_comma_of(const TStep& step, const TStep& call) { return step.op == OP_COMMA && step.frame == call.frame; }

// Where the body of a numeric operator is plain numbers, and nothing but commas lies between it and the operator.
void link_body(TCompiled& compiled, int index) {
  TStep& call = compiled.steps[index];
  int end = call.body_start;
  while (end < index && compiled.steps[end].path == PATH_SCALAR && compiled.steps[end].numeric_frame == call.frame)
    ++end;
  call.body_end = static_cast<std::int16_t>(end);
  call.body_value = nullptr;
  if (end == index) return;
  for (int i = end; i < index; ++i)
    if (!is_comma_of(compiled.steps[i], call)) return;
  // The comma in front of the operator is the first one of the call: its left operand is the body's value. A register
  // holds a number if it is the body that filled it.
  const TOperand& value = compiled.steps[index - 1].operand[0];
  if (value.kind != OPERAND_REGISTER || end > call.body_start) call.body_value = cell_of(value);
}

}  // namespace

void link_steps(TCompiled& compiled) {
  TScalarRegisters scalar;
  TRealProgramBuilder real_program(compiled.real_program);
  compiled.all_plain = compiled.count > 0;
  for (int i = 0; i < compiled.count; ++i) {
    link_step(compiled.steps[i], scalar);
    real_program.add(compiled.steps[i]);
    if (compiled.steps[i].path != PATH_SCALAR) compiled.all_plain = false;
  }
  real_program.finish();
  for (int i = 0; i < compiled.count; ++i)
    if (compiled.steps[i].arg_kind == KIND_NUMERIC) link_body(compiled, i);
}

// --- Copying

TCompiled::TCompiled(const TCompiled& other) { *this = other; }

TCompiled& TCompiled::operator=(const TCompiled& other) {
  if (this == &other) return *this;
  std::copy(other.steps, other.steps + other.count, steps);
  count = other.count;
  single = other.single;
  only = other.only;
  error = other.error;
  frame_count = other.frame_count;
  for (int i = 0; i < other.name_count; ++i)
    std::copy(other.names[i], other.names[i] + PROGRAM_NAME_SIZE, names[i]);
  name_count = other.name_count;
  link_steps(*this);
  return *this;
}

}  // namespace zephyl
