// The compiled form of an expression: a flat list of three-address steps.
#pragma once

#include <cstdint>

#include "engine/operation_codes.h"
#include "engine/real_program.h"
#include "engine/real_rule.h"
#include "engine/values.h"

namespace zephyl {

constexpr int STEP_LIMIT = 100;
constexpr int REGISTER_LIMIT = 100;
constexpr int PROGRAM_NAME_LIMIT = 20;  // calls by name in one expression
constexpr int PROGRAM_NAME_SIZE = 26;   // 25 characters and a 0
constexpr int NO_FRAME = -1;
constexpr int NO_NAME = 255;
constexpr std::uint16_t NO_NEST = 0xFFFF;
constexpr int PARENTHESIS_LIMIT = 11;
constexpr int NUMERIC_NEST_LIMIT = 10;
constexpr int NO_COMPILE_ERROR = -1;

enum TOperandClass : std::uint8_t {
  OPERAND_NONE = 0, OPERAND_REGISTER = 1, OPERAND_LITERAL = 2, OPERAND_ANS = 3, OPERAND_M_ANS = 4, OPERAND_L_ANS = 5,
  OPERAND_STR_ANS = 6, OPERAND_RANDOM = 7, OPERAND_MEMORY = 8, OPERAND_STATISTIC = 9, OPERAND_I = 10,
  OPERAND_VARIABLE = 11
};

struct TOperand {
  TOperandClass kind = OPERAND_NONE;
  std::uint16_t reg = 0;  // register, memory slot, statistics value or system variable, as `kind` says
  TValue literal;         // the value of a literal; (0, 1) for the imaginary unit
};

struct TOperationHandlers;
struct TRegister;

// How the walk may run a step.
enum TStepPath : std::uint8_t {
  PATH_GENERAL,  // operands by class, dispatch by type
  PATH_SCALAR,   // operands are numbers wherever the step runs, read through `cell`
};

struct TStep {
  // Resolved by link_steps, read by the walk.
  const TValue* cell[2] = {nullptr, nullptr};  // of a PATH_SCALAR step never null: an unused one is a zero
  TRegister* out = nullptr;
  TRealRule real = nullptr;
  TRealUse real_use = REAL_NEVER;  // REAL_NEVER where `real` is null
  bool reads_flags = false;        // the real rule may fault although its result is finite
  const TOperationHandlers* handlers = nullptr;
  TStepPath path = PATH_GENERAL;
  std::uint8_t arg_kind = 0;
  TOp_Code op = OP_NONE;
  std::int16_t result = 0;  // register
  std::int16_t numeric_frame = NO_FRAME;  // frame of the innermost numeric operator whose body holds this step
  // What was compiled.
  std::int16_t frame = NO_FRAME;  // call site this step adds an argument to, or calls
  std::int16_t level = 0;   // parenthesis depth of a function, 0 for others
  std::int16_t target = 0;  // of a store: memory slot; system variable; FUNCTION_SLOT_OFFSET + function slot
  std::uint16_t unit_from = 0;
  std::uint16_t unit_to = 0;
  bool unit_by_position = false;
  std::uint8_t name = NO_NAME;  // index into TCompiled::names
  // Of a numeric operator: the first step of its body. Where the body is plain numbers and the other arguments need no
  // steps, also the end of the body's steps and the place of its value; else null.
  std::int16_t body_start = 0;
  std::int16_t body_end = 0;
  const TValue* body_value = nullptr;
  std::uint16_t nest = NO_NEST;
  std::uint16_t group_level = 0;  // level of the parenthesis group whose keys start at `key`
  std::uint64_t key = 0;  // position key
  TOperand operand[2];    // operand 0 is the left or only one
};

struct TCompiled {
  TStep steps[STEP_LIMIT];
  int count = 0;
  bool all_plain = false;  // every step is PATH_SCALAR
  TRealProgram real_program;
  bool single = false;     // no operator at all: `only` is the value
  TOperand only;
  int error = NO_COMPILE_ERROR;  // reported again by each run
  int frame_count = 0;
  char names[PROGRAM_NAME_LIMIT][PROGRAM_NAME_SIZE] = {};
  int name_count = 0;

  TCompiled() = default;
  // Copies only what is in use and links the copy.
  TCompiled(const TCompiled& other);
  TCompiled& operator=(const TCompiled& other);
};

// Points the steps' operands and handlers at what they name. To be called after the steps were changed.
void link_steps(TCompiled& compiled);

// One past the last key of the group that begins at `key` on `level`.
std::uint64_t group_end(std::uint64_t key, int level);

}  // namespace zephyl
