#include "engine/operations.h"

#include "engine/operation_table.h"

namespace zephyl {

TOperationHandlers operations[OPERATION_COUNT];

namespace {

// What the evaluator does by itself: separators, stores into numbers, calls of custom functions.
bool done_by_evaluator(int op) {
  return (op >= OP_SAVE_MEMORY && op <= OP_STRING_SINGLE) || op == OP_FUNC1 || op == OP_FUNC2;
}

}  // namespace

bool is_filled_in(TOp_Code op) {
  const TOperationHandlers& row = operations[op];
  return done_by_evaluator(op) || row.real || row.scalar || row.matrix || row.list || row.string;
}

int empty_operations(TOp_Code* rows) {
  int count = 0;
  for (int op = 0; op < OPERATION_COUNT; ++op)
    if (!is_filled_in(static_cast<TOp_Code>(op))) rows[count++] = static_cast<TOp_Code>(op);
  return count;
}

}  // namespace zephyl
