// Passes 1 to 4 of the compiler: everything that an expression leaves unwritten is put in.

#include "engine/compile_passes.h"

namespace zephyl {

namespace {

constexpr TItem make_operator(TOp_Code op) {
  TItem item;
  item.kind = ITEM_OPERATOR;
  item.op = op;
  return item;
}

constexpr TItem make_bracket(TItemKind kind, TBracket paren) {
  TItem item;
  item.kind = kind;
  item.paren = paren;
  return item;
}

constexpr TItem make_zero() {
  TItem item;
  item.sub = OPERAND_LITERAL;
  return item;
}

constexpr TItem open_paren = make_bracket(ITEM_OPEN, BRACKET_PAREN);
constexpr TItem close_paren = make_bracket(ITEM_CLOSE, BRACKET_PAREN);
constexpr TItem open_brace = make_bracket(ITEM_OPEN, BRACKET_BRACE);
constexpr TItem close_brace = make_bracket(ITEM_CLOSE, BRACKET_BRACE);
constexpr TItem zero = make_zero();
constexpr TItem list_first_comma = make_operator(OP_LIST_FIRST_COMMA);
constexpr TItem list_comma = make_operator(OP_LIST_COMMA);
constexpr TItem list_leading_comma = make_operator(OP_LIST_LEADING_COMMA);
constexpr TItem string_first_comma = make_operator(OP_STRING_FIRST_COMMA);
constexpr TItem string_single = make_operator(OP_STRING_SINGLE);
constexpr TItem multiply_operand = make_operator(OP_MULTIPLY_OPERAND);
constexpr TItem multiply_function = make_operator(OP_MULTIPLY_FUNCTION);

bool append(TItemSequence& to, const TItem& item) {
  if (to.count >= SEQUENCE_LIMIT) return fail(ERR_MEMORY_LIMIT);
  to.items[to.count++] = &item;
  return true;
}

// --- Pass 1

bool takes_no_argument(const TItem& item) {
  const int kind = row_of(item).arg_kind;
  return kind == KIND_NO_ARGUMENT || kind == KIND_CALL;
}

bool append_function(TItemSequence& to, const TItem& item) {
  if (!append(to, item) || !append(to, open_paren)) return false;
  return !takes_no_argument(item) || (append(to, zero) && append(to, close_paren));
}

}  // namespace

bool insert_function_parentheses(const TItemList& list, TItemSequence& to) {
  to.count = 0;
  for (int i = 0; i < list.count; ++i) {
    const TItem& item = list.items[i];
    if (i > 0 && item.kind == ITEM_NUMBER && list.items[i - 1].kind == ITEM_NUMBER) return fail(ERR_SYNTAX);
    if (!(is_function(item) ? append_function(to, item) : append(to, item))) return false;
  }
  return true;
}

// --- Pass 2

namespace {

// The characters of one string, from `first` up to `end`.
bool append_string(const TItemSequence& from, int first, int end, TItemSequence& to) {
  if (!append(to, open_brace)) return false;
  if (end - first == 1 && !append(to, string_single)) return false;
  for (int i = first; i < end; ++i) {
    if (i > first && !append(to, i == first + 1 ? string_first_comma : list_comma)) return false;
    if (!append(to, *from.items[i])) return false;
  }
  return append(to, close_brace);
}

int end_of_string(const TItemSequence& sequence, int first) {
  int end = first;
  while (end < sequence.count && sequence.items[end]->kind == ITEM_CHARACTER) ++end;
  return end;
}

}  // namespace

bool wrap_string_literals(const TItemSequence& from, TItemSequence& to) {
  to.count = 0;
  for (int i = 0; i < from.count;) {
    const int end = end_of_string(from, i);
    if (!(end > i ? append_string(from, i, end, to) : append(to, *from.items[i]))) return false;
    i = end > i ? end : i + 1;
  }
  return true;
}

// --- Pass 3

namespace {

// What a comma means in a bracket.
enum TBracketState : std::int8_t {
  NO_LIST = -1,     // a comma of function arguments, or of a brace that began with a comma
  LATER_COMMA = 0,  // a brace that has had its first comma
  FIRST_COMMA = 1   // a brace without a comma yet
};

const TItem* comma_of_list(TBracketState& state, bool leads) {
  if (state == LATER_COMMA) return &list_comma;
  state = leads ? NO_LIST : LATER_COMMA;
  return leads ? &list_leading_comma : &list_first_comma;
}

bool opens_brace(const TItem& item) { return item.kind == ITEM_OPEN && item.paren == BRACKET_BRACE; }

}  // namespace

void mark_list_commas(TItemSequence& sequence) {
  TBracketState states[SEQUENCE_LIMIT];
  int depth = 0;
  for (int i = 0; i < sequence.count; ++i) {
    const TItem& item = *sequence.items[i];
    if (item.kind == ITEM_OPEN) states[depth++] = opens_brace(item) ? FIRST_COMMA : NO_LIST;
    if (item.kind == ITEM_CLOSE && depth > 0) --depth;
    if (item.op == OP_COMMA && depth > 0 && states[depth - 1] != NO_LIST)
      sequence.items[i] = comma_of_list(states[depth - 1], opens_brace(*sequence.items[i - 1]));
  }
}

// --- Pass 4

namespace {

bool is_postfix(const TItem& item) { return is_operator(item) && row_of(item).arg_kind == KIND_POSTFIX; }

bool begins_with_operator(const TItem& item) {
  return is_operator(item) && (row_of(item).arg_kind == KIND_PREFIX || is_function(item));
}

bool ends_value(const TItem& item) { return is_operand(item) || item.kind == ITEM_CLOSE || is_postfix(item); }

bool begins_value(const TItem& item) {
  return is_operand(item) || item.kind == ITEM_OPEN || begins_with_operator(item);
}

}  // namespace

bool insert_multiplications(const TItemSequence& from, TItemSequence& to) {
  to.count = 0;
  for (int i = 0; i < from.count; ++i) {
    const TItem& item = *from.items[i];
    const bool joined = i > 0 && ends_value(*from.items[i - 1]) && begins_value(item);
    if (joined && !append(to, begins_with_operator(item) ? multiply_function : multiply_operand))
      return false;
    if (!append(to, item)) return false;
  }
  return true;
}

}  // namespace zephyl
