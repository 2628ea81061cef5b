// The table of handlers, one row a TOp_Code. A family fills in its part of the rows at start (`register_...`), the
// evaluator calls through the table and knows no family. A part left empty reports ERR_UNEXPECTED when it is used.
#pragma once

#include "engine/compiled.h"
#include "engine/operation_codes.h"
#include "engine/real_rule.h"
#include "engine/records.h"
#include "engine/values.h"

namespace zephyl {

constexpr int ARGUMENT_LIMIT = 6;

struct TFuncFrame;
struct TNumericState;

// What a scalar handler gets, and where it leaves its result.
struct TScalarCall {
  TOp_Code op;
  TValue args[ARGUMENT_LIMIT];  // infix: left, right; one operand: the first; functions in written order
  int count = 0;
  bool operands_real = true;
  bool stay_real = false;
  bool plotting = false;  // the force-real flag: a plot evaluates
  TValue result;
  // For resumable operators and those that look at their call site.
  int result_register = 0;
  int frame = -1;
  TNumericState* numeric = nullptr;
  const TStep* step = nullptr;
  bool repeat = false;         // out: run the body again, then call again
  bool stop_on_error = false;  // out: an error ends the walk even where a dry pass would forgive it
  bool keeps_register = false;  // out: the handler has filled the register itself
};
using TScalarHandler = void (*)(TScalarCall& call);

// What a list, matrix or string handler gets. Aggregates are named by number: 0 to 10 the store, 11 and above register
// n - 11; -1 none. For infix operations entry 0 is the left and entry 1 the right operand, each -1 if that operand
// is of another type; for functions the first two of the type in written order.
struct TFamilyCall {
  TOp_Code op;
  int matrices[2] = {-1, -1};
  int lists[2] = {-1, -1};
  int strings[2] = {-1, -1};
  TValue numbers[ARGUMENT_LIMIT];  // infix: by side, as above; functions: the scalar arguments in written order
  int number_count = 0;
  int result_register = 0;
  int target = -1;  // of a store: the memory slot
  const TStep* step = nullptr;
};
// Leaves its result in the register `result_register` (evaluator.h: set_number_result and its siblings).
using TFamilyHandler = void (*)(TFamilyCall& call);

struct TOperationHandlers {
  TRealRule real = nullptr;
  TRealUse real_use = REAL_NEVER;
  // The real rule computes through intermediate results that may fault although its result is finite.
  bool real_is_composite = false;
  TScalarHandler scalar = nullptr;
  TFamilyHandler matrix = nullptr;
  TFamilyHandler list = nullptr;
  TFamilyHandler string = nullptr;
};
extern TOperationHandlers operations[OPERATION_COUNT];

// True if any family has filled in its part of the operation's row, or the evaluator does it by itself.
bool is_filled_in(TOp_Code op);

// The operations that no family has filled in and the evaluator does not do itself, by code, in `rows`; their number.
int empty_operations(TOp_Code* rows);

}  // namespace zephyl
