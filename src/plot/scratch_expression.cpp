#include "plot/scratch_expression.h"

#include <algorithm>
#include <vector>

#include "engine/tokens.h"
#include "plot/plot_slots.h"

namespace zephyl {

namespace {

constexpr int SCRATCH_LIMIT = 100;    // tokens
constexpr int FUNCTION_WRAPPING = 2;  // tokens around a function
constexpr int DIFFERENCE_WRAPPING = 7;

using TTokens = std::vector<TToken>;

void append(TTokens& tokens, const TExpression& function) {
  tokens.insert(tokens.end(), function.tokens, function.tokens + function.count);
}

// The tokens that close what an expression leaves open, the innermost first. False where it closes more than
// it opens.
bool find_open_groups(const TExpression& expression, TTokens& closing) {
  for (int i = 0; i < expression.count; ++i) {
    const TToken token = expression.tokens[i];
    if (const TToken close = closing_token(token)) closing.push_back(close);
    if (!closes_group(token)) continue;
    if (closing.empty()) return false;
    closing.pop_back();
  }
  std::reverse(closing.begin(), closing.end());
  return true;
}

TScratch keep(const TTokens& tokens) {
  TExpression& scratch = plot_slot(PLOT_SCRATCH_TYPE, 0);
  scratch = {};
  std::copy(tokens.begin(), tokens.end(), scratch.tokens);
  scratch.count = static_cast<int>(tokens.size());
  return SCRATCH_READY;
}

}  // namespace

// What a function leaves open at the end of an expression is closed by that end, and so is all around it.
TScratch wrap_function(TToken operation, const TExpression& function) {
  TTokens tokens = {operation}, open;
  if (function.count + FUNCTION_WRAPPING > SCRATCH_LIMIT) return SCRATCH_TOO_LONG;
  if (!find_open_groups(function, open)) return SCRATCH_UNBALANCED;
  append(tokens, function);
  if (open.empty()) tokens.push_back(TOKEN_CLOSE);
  return keep(tokens);
}

TScratch wrap_difference(TToken operation, const TExpression& first, const TExpression& second) {
  TTokens tokens = {operation, TOKEN_OPEN}, open, open_at_end;
  if (!find_open_groups(first, open) || !find_open_groups(second, open_at_end)) return SCRATCH_UNBALANCED;
  const int length = first.count + second.count + static_cast<int>(open.size()) + DIFFERENCE_WRAPPING;
  if (length >= SCRATCH_LIMIT) return SCRATCH_TOO_LONG;
  append(tokens, first);
  tokens.insert(tokens.end(), open.begin(), open.end());
  tokens.insert(tokens.end(), {TOKEN_CLOSE, TOKEN_MINUS, TOKEN_OPEN});
  append(tokens, second);
  if (open_at_end.empty()) tokens.insert(tokens.end(), {TOKEN_CLOSE, TOKEN_CLOSE});
  return keep(tokens);
}

void clear_scratch() { plot_slot(PLOT_SCRATCH_TYPE, 0) = {}; }

}  // namespace zephyl
