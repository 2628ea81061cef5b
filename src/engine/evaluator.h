// The walk over the steps of a compiled expression: operands in, one handler a step, a value in a register out.
#pragma once

#include <cstdint>

#include "engine/compiled.h"
#include "engine/operations.h"
#include "engine/records.h"

namespace zephyl {

constexpr int AGGREGATE_REGISTER_LIMIT = 10;  // registers that may hold a list, matrix or string
constexpr int REGISTER_NUMBER = 11;           // aggregate number of register 0

enum TValueType { TYPE_NUMBER = 0, TYPE_MATRIX = 1, TYPE_LIST = 2, TYPE_STRING = 3 };

struct TRegister {
  TValue value;
  bool in_use = false;  // the compiler's mark
  int type = TYPE_NUMBER;
};
extern TRegister registers[REGISTER_LIMIT];

// The aggregates that the first registers may hold.
struct TTemporaries {
  ListRecord lists[AGGREGATE_REGISTER_LIMIT];
  MatrixRecord matrices[AGGREGATE_REGISTER_LIMIT];
  TString strings[AGGREGATE_REGISTER_LIMIT];
};
extern TTemporaries temporaries;

// One operand or argument as it is at run time; the numbers of aggregates as in TFamilyCall, -1 none.
struct TArgument {
  TValue value;
  int memory = -1;  // the slot it was read from
  int matrix = -1;
  int list = -1;
  int string = -1;
};

// The arguments gathered for one call site.
struct TFuncFrame {
  TArgument arguments[ARGUMENT_LIMIT];
  int count = 0;
};

// What a numeric operator keeps between its calls.
struct TNumericState {
  int rounds = 0;
  double saved = 0.0;
  int variable = -1;  // memory slot
  int phase = 0;
  bool iterating = false;  // it re-runs its body: from then on errors in the body are errors
};

extern TFuncFrame func_frames[STEP_LIMIT];
extern TNumericState numeric_states[STEP_LIMIT];

// The whole run of a compiled expression: walks it and delivers the result to Ans, M Ans, L Ans or str Ans. An error
// leaves all answers untouched. plotting: scalar functions stay real.
void run_compiled(const TCompiled& compiled, bool plotting);

// One of many runs of a compiled form on the side, as plots make them: the value is left in register 0, no answer
// changes, and the clock is looked at no more often than the walk itself asks for. The first error of the run stands.
void run_sample(const TCompiled& compiled);

// True while run_compiled is at work: the poll may paint then, but nothing else may be evaluated.
bool is_evaluating();

// The walk alone; the value is left in register 0.
void walk_steps(const TCompiled& compiled, bool plotting);

// Puts the walk that is under way aside for a custom function, which evaluates expressions of its own, and takes it up
// again. False, with ERR_PROGRAM_NESTING or ERR_MEMORY_LIMIT reported, where there is no place for it.
constexpr int EVALUATION_DEPTH = 5;
bool push_evaluation();
void pop_evaluation();
void forget_evaluations();

// Looks into the event queue: paints what waits, and reports ERR_CANCELED for a tap on a key. True: abandon the walk.
bool pump_messages();
// For handlers that run long: pump_messages if 500 milliseconds have passed since the last time.
bool poll_cancel();

// The compiled form whose steps are being walked; null outside of a walk.
const TCompiled* walked_steps();

// The aggregate of a number. Reports what its absence means (ERR_LIST_UNDEFINED, ERR_MATRIX_UNDEFINED; ERR_MEMORY_LIMIT
// for a register without one) and gives null.
ListRecord* list_by_number(int number);
MatrixRecord* matrix_by_number(int number);
TString* string_by_number(int number);

// Leave a result in a register. The aggregate forms give the record to fill, or report ERR_MEMORY_LIMIT and give null
// for a register that can't hold one.
void set_number_result(int reg, const TValue& value);
ListRecord* set_list_result(int reg);
MatrixRecord* set_matrix_result(int reg);
TString* set_string_result(int reg);

void reset_evaluator();

}  // namespace zephyl
