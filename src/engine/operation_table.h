// The constant tables of the 289 operations and of the argument lists of functions, and their check at start.
// The compiler and the evaluator are driven by them.
#pragma once

#include "engine/expression.h"
#include "engine/operation_codes.h"

namespace zephyl {

// How an operation takes its operands.
enum TArgKind {
  KIND_INFIX = 0,                // operands left and right
  KIND_PREFIX = 1,               // operand to the right
  KIND_POSTFIX = 2,              // operand to the left
  KIND_FUNCTION = 3,             // several arguments; "(" is part of the token
  KIND_SHORT_FUNCTION = 4,       // exactly one argument
  KIND_NUMERIC = 5,              // its first argument is an expression that is run again and again
  KIND_NO_ARGUMENT = 6,          // "()" are part of the token; a dummy argument 0 is supplied
  KIND_CALL_WITH_ARGUMENTS = 7,  // custom function
  KIND_CALL = 8                  // custom function without arguments
};
constexpr bool is_function_kind(int arg_kind) { return arg_kind >= KIND_FUNCTION; }

// Bits of `assoc`.
constexpr int ASSOC_RIGHT_TO_LEFT = 1;
constexpr int ASSOC_BASE_N = 256;  // integer operation of base-n arithmetic

// An operation of one of these is ERR_DATA_TYPE without an operand of its family.
enum TFamily { SCALAR_FAMILY = 0, MATRIX_FAMILY = 1, LIST_FAMILY = 2, STRING_FAMILY = 3 };

constexpr int PRIORITY_COUNT = 16;  // 0 binds tightest

struct TOperationRow {
  int code;  // equals the row's index
  int arg_kind;
  int assoc;
  int family;
  std::int16_t spelled;   // 1: the entry line spells internal_name glyph by glyph; 0: it is one glyph
  std::int16_t priority;
  const char* internal_name;
  const char* display_text;  // in listings and program text
};
extern const TOperationRow operation_array[OPERATION_COUNT];

enum TArgumentType {
  ARGUMENT_REAL = 0,
  ARGUMENT_NUMBER = 1,           // real or complex
  ARGUMENT_MATRIX = 2,
  ARGUMENT_LIST = 3,
  ARGUMENT_STRING = 4,
  ARGUMENT_VARIABLE = 5,         // the name of a variable, recorded as the operator's
  ARGUMENT_OPTIONAL_NUMBER = 6,  // last only; missing: 0, but 1e-9 for fnInt(
  ARGUMENT_OPTIONAL_LIST = 7,    // last only; a list or a number
  ARGUMENT_NO_STRING = 8,        // number, list or matrix
  ARGUMENT_NONE = 9
};
constexpr int ARGUMENT_TYPE_COUNT = 6;

struct TFunctionArguments {
  TOp_Code op;
  int count;  // number of types other than ARGUMENT_NONE
  TArgumentType types[ARGUMENT_TYPE_COUNT];
  int spare;
};
constexpr int FUNCTION_ROW_COUNT = 237;

// The argument list of an operation; null for one that takes none.
const TFunctionArguments* function_arguments(TOp_Code op);

// True if the nodes of a priority level are taken right to left: the last row of a level decides.
bool scans_right_to_left(int priority);
int highest_priority();

// Checks both tables and fills the index and the scan directions, at start. Each fault shows a note with the title
// "Opps" and the check goes on; the return value is how many there were. The parameters are the tables to check,
// so that a test can hand over broken ones.
int check_operation_array(const TOperationRow* rows = operation_array);
int check_function_arguments(const TFunctionArguments* rows = nullptr, int count = 0);

}  // namespace zephyl
