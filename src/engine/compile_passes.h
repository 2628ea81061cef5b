// What the passes of the compiler hand to one another. For the compiler's own files.
//
// A pass returns false after it has reported an error; what it leaves behind is then not used.
#pragma once

#include <cstdint>

#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/operation_table.h"

namespace zephyl {

constexpr int SEQUENCE_LIMIT = 200;  // items of an expression with all that passes 1 to 4 insert
constexpr int NODE_LIMIT = 100;
constexpr int NO_NODE = -1;
constexpr int NO_REGISTER = -1;

// For "return fail(...)".
inline bool fail(TError code, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  report_error(code, file, line);
  return false;
}

inline const TOperationRow& row_of(const TItem& item) { return operation_array[item.op]; }
inline bool is_operator(const TItem& item) { return item.kind == ITEM_OPERATOR; }
inline bool is_function(const TItem& item) {
  return is_operator(item) && is_function_kind(row_of(item).arg_kind);
}
inline bool is_operand(const TItem& item) {
  return item.kind == ITEM_NUMBER || item.kind == ITEM_OPERAND || item.kind == ITEM_CHARACTER;
}

// --- Pass 0, function_stores.cpp: stores into function slots wait here until the expression has compiled.

void drop_function_stores();
// Notes the store token at `index`: what stands in front of it, from the last comma of its group on, goes to
// `slot`.
bool note_function_store(const TExpression& expression, int index, int slot);
void commit_function_stores();

// --- Passes 1 to 4, syntax_passes.cpp

// Items in the order of the expression: those of item_list and constant ones in between.
struct TItemSequence {
  const TItem* items[SEQUENCE_LIMIT];
  int count = 0;
};

// 1: "(" behind every function, "0)" too where it takes no argument. Two numbers in a row are ERR_SYNTAX.
bool insert_function_parentheses(const TItemList& list, TItemSequence& to);
// 2: a run of string characters becomes a brace group of numbers.
bool wrap_string_literals(const TItemSequence& from, TItemSequence& to);
// 3: commas that separate the elements of a list get operations of their own.
void mark_list_commas(TItemSequence& sequence);
// 4: the multiplications that are not written.
bool insert_multiplications(const TItemSequence& from, TItemSequence& to);

// --- Pass 5, position_keys.cpp: operators with their place among the parentheses

struct TOperatorNode {
  const TItem* item;
  std::int16_t entry;  // its index among the entries
  std::uint8_t arg_kind;
  std::uint8_t priority;
  std::int16_t frame;
  std::int16_t level;
  std::int16_t group_level;
  std::int16_t numeric_frame;
  std::uint64_t key;
  // Filled by pass 6: the node that took this one's value, the register that held it.
  std::int16_t parent;
  std::int16_t reg;
  bool deferred;
};

// The expression without its parentheses.
struct TCompileTable {
  const TItem* entries[SEQUENCE_LIMIT];  // operands and operators
  int entry_count = 0;
  TOperatorNode nodes[NODE_LIMIT];  // the operators, in the same order
  int node_count = 0;
  int frame_count = 0;
};

bool place_operators(const TItemSequence& sequence, TCompileTable& table);

// --- Passes 6 and 7, step_builder.cpp

// 6: one step for each node, in the order of evaluation.
bool build_steps(TCompileTable& table, TCompiled& out);
// 7: `nest` and `body_start` of the numeric operators.
bool number_numeric_steps(TCompiled& out);

}  // namespace zephyl
