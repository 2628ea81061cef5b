// Pass 0 of the compiler: tokens become items.

#include <iterator>

#include "engine/compile_passes.h"
#include "engine/number_buffer.h"
#include "engine/tokens.h"

namespace zephyl {

TItemList item_list;

namespace {

constexpr int INLINE_DEPTH_LIMIT = 11;  // the expression itself is at depth 0

// What the tokens of one expression are read into.
struct TTokenReader {
  TNumberBuffer number;
  TStoredSlots stored;
};
TTokenReader reader;

bool read_tokens(const TExpression& expression, int depth);

// A fresh row of item_list; null, with ERR_MEMORY_LIMIT reported, if there is none.
TItem* add_item(TItemKind kind) {
  if (item_list.count >= ITEM_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return nullptr;
  }
  TItem& item = item_list.items[item_list.count++];
  item = {};
  item.kind = kind;
  return &item;
}

bool add_bracket(TItemKind kind, TBracket paren) {
  TItem* item = add_item(kind);
  if (item) item->paren = paren;
  return item != nullptr;
}

bool add_operand(TOperandClass sub, int memory = 0, int stat = NO_STATISTIC) {
  TItem* item = add_item(ITEM_OPERAND);
  if (!item) return false;
  item->sub = sub;
  item->memory = memory;
  item->stat = stat;
  return true;
}

bool add_value(TItemKind kind, double value) {
  TItem* item = add_item(kind);
  if (!item) return false;
  item->sub = OPERAND_LITERAL;
  item->value = value;
  return true;
}

bool add_store(TOp_Code op, int memory) {
  TItem* item = add_item(ITEM_OPERATOR);
  if (!item) return false;
  item->op = op;
  item->memory = memory;
  return true;
}

bool add_conversion(const TDecodedToken& token) {
  TItem* item = add_item(ITEM_OPERATOR);
  if (!item) return false;
  item->op = OP_CONVERSION;
  item->unit_from = token.unit_from;
  item->unit_to = token.unit_to;
  item->unit_by_position = token.unit_by_position;
  return true;
}

bool add_operation(const TExpression& expression, int index, TOp_Code op) {
  TItem* item = add_item(ITEM_OPERATOR);
  if (!item) return false;
  item->op = op;
  if (op == OP_FUNC1 || op == OP_FUNC2) call_name(expression, index, item->name, sizeof item->name);
  return true;
}

// --- Special tokens that always make the same item

struct TSpecialRow {
  TItemKind kind;
  TOperandClass sub;
  TBracket paren;
  double value;
};

constexpr TSpecialRow special_operand(TOperandClass sub) { return {ITEM_OPERAND, sub, BRACKET_NONE, 0.0}; }
constexpr TSpecialRow special_constant(double value) {
  return {ITEM_OPERAND, OPERAND_LITERAL, BRACKET_NONE, value};
}
constexpr TSpecialRow special_bracket(TItemKind kind, TBracket paren) {
  return {kind, OPERAND_NONE, paren, 0.0};
}

// From SPECIAL_OPEN_PAREN to SPECIAL_STR_ANS, in their order.
constexpr TSpecialRow special_rows[] = {
    special_bracket(ITEM_OPEN, BRACKET_PAREN),
    special_bracket(ITEM_OPEN, BRACKET_SQUARE),
    special_bracket(ITEM_OPEN, BRACKET_BRACE),
    special_bracket(ITEM_CLOSE, BRACKET_PAREN),
    special_bracket(ITEM_CLOSE, BRACKET_SQUARE),
    special_bracket(ITEM_CLOSE, BRACKET_BRACE),
    special_bracket(ITEM_OPEN, BRACKET_PAREN),   // hidden
    special_bracket(ITEM_CLOSE, BRACKET_PAREN),  // hidden
    special_operand(OPERAND_ANS),
    special_constant(3.141592653589793),
    special_operand(OPERAND_I),
    special_constant(2.718281828459045),
    special_operand(OPERAND_RANDOM),
    special_operand(OPERAND_M_ANS),
    special_operand(OPERAND_L_ANS),
    special_operand(OPERAND_STR_ANS),
};
static_assert(std::size(special_rows) == SPECIAL_STR_ANS - SPECIAL_OPEN_PAREN + 1);

bool add_special_row(const TSpecialRow& row) {
  TItem* item = add_item(row.kind);
  if (!item) return false;
  item->sub = row.sub;
  item->paren = row.paren;
  item->value = row.value;
  return true;
}

bool add_special(const TDecodedToken& decoded, TToken token) {
  switch (decoded.special) {
    case SPECIAL_RECALL:
      return add_operand(OPERAND_MEMORY, decoded.memory);
    case SPECIAL_STORE:
      return add_store(OP_SAVE_MEMORY, decoded.memory);
    case SPECIAL_STRING_CHARACTER:
      return add_value(ITEM_CHARACTER, token - STRING_TOKEN_OFFSET);
    case SPECIAL_NONE:
      return true;
    default:
      return add_special_row(special_rows[decoded.special - SPECIAL_OPEN_PAREN]);
  }
}

// --- Variables and function slots

bool inline_function(int slot, int depth) {
  const TExpression& function = function_slots[slot];
  if (depth >= INLINE_DEPTH_LIMIT) return fail(ERR_MEMORY_LIMIT);
  if (function.count == 0) return fail(ERR_UNDEFINED_FUNCTION);
  return add_bracket(ITEM_OPEN, BRACKET_PAREN) && read_tokens(function, depth) &&
         add_bracket(ITEM_CLOSE, BRACKET_PAREN);
}

bool read_variable(int memory, int depth) {
  if (memory >= FUNCTION_SLOT_OFFSET) return inline_function(memory - FUNCTION_SLOT_OFFSET, depth + 1);
  return add_operand(OPERAND_VARIABLE, memory);
}

bool store_variable(const TExpression& expression, int index, int memory) {
  if (memory >= FUNCTION_SLOT_OFFSET) {
    const int slot = memory - FUNCTION_SLOT_OFFSET;
    if (!note_function_store(expression, index, slot)) return false;
    (slot >= FIRST_PROGRAM_FUNCTION ? reader.stored.program_function : reader.stored.plot_function) = true;
  }
  return add_store(OP_SAVE_VARIABLE, memory);
}

// --- Tokens

bool flush_number() {
  if (!reader.number.open()) return true;
  double value = 0.0;
  return take_number(reader.number, value) && add_value(ITEM_NUMBER, value);
}

bool read_meaning(const TExpression& expression, int index, int depth) {
  const TToken token = expression.tokens[index];
  const TDecodedToken& meaning = decode_token(token);
  if (meaning.kind == TOKEN_DIGIT) return append_to_number(reader.number, meaning.name[0]);
  if (!flush_number()) return false;
  switch (meaning.kind) {
    case TOKEN_SPECIAL:
      return add_special(meaning, token);
    case TOKEN_STATISTIC:
      return add_operand(OPERAND_STATISTIC, 0, meaning.stat_index);
    case TOKEN_CONVERSION:
      return add_conversion(meaning);
    case TOKEN_VARIABLE:
      return read_variable(meaning.memory, depth);
    case TOKEN_STORE_VARIABLE:
      return store_variable(expression, index, meaning.memory);
    default:
      return true;
  }
}

bool read_token(const TExpression& expression, int index, int depth) {
  const TOp_Code op = token_operation(expression.tokens[index]);
  if (op == OP_NONE) return read_meaning(expression, index, depth);
  // The minus sign of an exponent: 1e-5 is one number. (2-3 with this sign is a number that can't be read.)
  if (op == OP_NEG && reader.number.open()) return append_to_number(reader.number, '-');
  return flush_number() && add_operation(expression, index, op);
}

bool read_tokens(const TExpression& expression, int depth) {
  for (int i = 0; i < expression.count; ++i)
    if (!read_token(expression, i, depth)) return false;
  return flush_number();
}

}  // namespace

void tokens_to_items(const TExpression& expression, TStoredSlots* stored) {
  item_list.count = 0;
  reader.number.length = 0;
  reader.stored = {};
  drop_function_stores();
  read_tokens(expression, 0);
  if (stored) *stored = reader.stored;
}

}  // namespace zephyl
