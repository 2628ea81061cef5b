// The expressions entered before, oldest first.

#include <algorithm>

#include "engine/entry_line.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/state.h"

namespace zephyl {

namespace {

void replace_line(const TExpression& entry) {
  entry_line.expression = entry;
  entry_line.cursor = entry.count;
  entry_line.cursor_shown = false;
  state.fresh_flag = true;
  hooks.draw_expression(false);
}

}  // namespace

void add_history() {
  const TExpression& line = entry_line.expression;
  if (history.count > 0 && history.entries[history.count - 1] == line) return;
  if (history.count == HISTORY_LIMIT) {
    std::copy(history.entries + 1, history.entries + HISTORY_LIMIT, history.entries);
    --history.count;
  }
  history.entries[history.count++] = line;
}

bool use_history(int index, bool insert) {
  if (index < 0 || index >= history.count) return false;
  const TExpression& entry = history.entries[index];
  if (insert) return insert_tokens(entry.tokens, entry.count);
  replace_line(entry);
  return true;
}

}  // namespace zephyl
