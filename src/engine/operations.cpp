#include "engine/operations.h"

#include "engine/operation_table.h"

namespace zephyl {

TOperationHandlers operations[OPERATION_COUNT];
bool family_registered[4] = {};

namespace {

// What the evaluator does by itself: separators, stores into numbers, calls of custom functions.
bool done_by_evaluator(int op) {
  return (op >= OP_SAVE_MEMORY && op <= OP_STRING_SINGLE) || op == OP_FUNC1 || op == OP_FUNC2;
}

bool has_handler(const TOperationHandlers& row) { return row.real || row.scalar || row.matrix || row.list || row.string; }

}  // namespace

int empty_operations(TOp_Code* rows) {
  int count = 0;
  for (int op = 0; op < OPERATION_COUNT; ++op)
    if (!done_by_evaluator(op) && !has_handler(operations[op])) rows[count++] = static_cast<TOp_Code>(op);
  return count;
}

}  // namespace zephyl
