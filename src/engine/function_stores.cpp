// Stores into function slots. The tokens are taken down while the expression is read and go into their slots
// only when all of it has compiled: an expression with an error changes no function.

#include <algorithm>

#include "engine/compile_passes.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

struct TFunctionStore {
  int slot = 0;
  TExpression tokens;
};

struct TFunctionStores {
  TFunctionStore stores[ITEM_LIMIT];
  int count = 0;
};
TFunctionStores pending;

constexpr int STORED_TOKENS_LIMIT = 100;

// How a token changes the number of groups that are open, read from the end of an expression.
int closes(TToken token) { return closes_group(token) ? 1 : closing_token(token) != 0 ? -1 : 0; }

// Where the tokens begin that a store at `index` keeps: behind the last comma outside of parentheses.
int first_stored(const TExpression& expression, int index) {
  int depth = 0;
  for (int i = index - 1; i >= 0; --i) {
    depth += closes(expression.tokens[i]);
    if (depth == 0 && expression.tokens[i] == TOKEN_COMMA) return i + 1;
  }
  return 0;
}

bool reads_slot(const TExpression& expression, int end, int slot) {
  return std::find(expression.tokens, expression.tokens + end, FIRST_FUNCTION_READ + slot) !=
         expression.tokens + end;
}

}  // namespace

void drop_function_stores() { pending.count = 0; }

bool note_function_store(const TExpression& expression, int index, int slot) {
  if (index == 0) return fail(ERR_SYNTAX);
  if (index >= STORED_TOKENS_LIMIT || pending.count >= ITEM_LIMIT) return fail(ERR_MEMORY_LIMIT);
  if (reads_slot(expression, index, slot)) return fail(ERR_NESTED_FUNCTION);
  const int first = first_stored(expression, index);
  TFunctionStore& store = pending.stores[pending.count++];
  store.slot = slot;
  store.tokens.count = index - first;
  std::copy(expression.tokens + first, expression.tokens + index, store.tokens.tokens);
  return true;
}

void commit_function_stores() {
  for (int i = 0; i < pending.count; ++i) {
    const TExpression& from = pending.stores[i].tokens;
    TExpression& to = function_slots[pending.stores[i].slot];
    std::copy(from.tokens, from.tokens + from.count, to.tokens);
    to.count = from.count;
  }
  pending.count = 0;
}

}  // namespace zephyl
