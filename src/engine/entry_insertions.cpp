// Entries of several tokens at once: numbers, names, strings, calls of the money solver, pasted expressions.
// Each fits as a whole or doesn't start.

#include <algorithm>
#include <cstring>
#include <iterator>

#include "engine/entry_line.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/system_variables.h"
#include "engine/tokens.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

// Tokens gathered before they go in. One that runs over keeps its count, so that it is seen not to fit.
struct TGathered {
  TToken tokens[EXPRESSION_LIMIT];
  int count = 0;

  void add(TToken token) {
    if (count < EXPRESSION_LIMIT) tokens[count] = token;
    ++count;
  }
};

bool fits(const TToken* tokens, int count) {
  const int standing = state.fresh_flag ? 0 : entry_line.expression.count;
  const int answer = begins_with_answer(tokens[0]) ? 1 : 0;
  return count <= EXPRESSION_LIMIT && standing + answer + count <= EXPRESSION_LIMIT;
}

bool insert_gathered(const TGathered& gathered) { return insert_tokens(gathered.tokens, gathered.count); }

TToken code_token(char character, int offset) {
  return static_cast<TToken>(static_cast<unsigned char>(character) + offset);
}

constexpr TToken digit_tokens[] = {38, 33, 34, 35, 28, 29, 30, 23, 24, 25};
constexpr TToken FIRST_HEX_TOKEN = 511;
constexpr TToken NO_TOKEN = 0;

struct TCharacterRow {
  char character;
  TToken token;
};

constexpr TCharacterRow number_characters[] = {
    {'(', TOKEN_OPEN},
    {')', TOKEN_CLOSE},
    {'+', TOKEN_PLUS},
    {',', TOKEN_POINT},
    {'.', TOKEN_POINT},
    {'b', 519},
    {'d', 517},
    {'h', 518},
    {'o', 619},
    {'i', TOKEN_I},
    {GLYPH_I, TOKEN_I},
    {GLYPH_E, TOKEN_INV_LN},
    {GLYPH_EXPONENT, TOKEN_EXPONENT},
    {GLYPH_NARROW_0, 38},
    {GLYPH_NARROW_1, 33},
};

// Blanks of both widths and the mark of a power, which its base has already said.
bool says_nothing(char c) { return c == ' ' || c == GLYPH_NARROW_BLANK || c == '^'; }

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool is_base_digit(char c) { return state.calcMode == BASE_MODE && c >= 'A' && c <= 'F'; }

bool ends_operand(TToken token) {
  return token == TOKEN_POINT || token == TOKEN_CLOSE ||
         (token >= FIRST_HEX_TOKEN && token < FIRST_HEX_TOKEN + 6) ||
         std::find(std::begin(digit_tokens), std::end(digit_tokens), token) != std::end(digit_tokens);
}

// The token of text[0], with what stands around it; NO_TOKEN for a character that no number has.
TToken number_token(const char* text, TToken previous) {
  const char c = text[0];
  if (is_digit(c)) return digit_tokens[c - '0'];
  if (is_base_digit(c)) return static_cast<TToken>(FIRST_HEX_TOKEN + c - 'A');
  if (c == '-') return ends_operand(previous) ? TOKEN_MINUS : TOKEN_NEG;
  if (c == 'E' || c == 'e') return text[1] == '^' ? TOKEN_INV_LN : TOKEN_EXPONENT;
  for (const TCharacterRow& row : number_characters)
    if (row.character == c) return row.token;
  return NO_TOKEN;
}

// How much of the text belongs to a plain number.
int plain_number_length(const char* text) {
  int length = text[0] == '-' ? 1 : 0;
  while (is_digit(text[length]) || text[length] == '.') ++length;
  return length;
}

// The tokens of a number's text in parentheses; returns how many characters it could not read. Each of them
// repeats the token before it, if there was one: entries made so before would read differently without it.
int gather_number(const char* text, int length, TGathered& gathered) {
  int unknown = 0;
  TToken previous = NO_TOKEN;
  gathered.add(TOKEN_OPEN);
  for (int i = 0; i < length; ++i) {
    if (says_nothing(text[i])) continue;
    const TToken token = number_token(text + i, previous);
    if (token == NO_TOKEN) ++unknown;
    if (token != NO_TOKEN) previous = token;
    if (previous != NO_TOKEN) gathered.add(previous);
  }
  gathered.add(TOKEN_CLOSE);
  return unknown;
}

}  // namespace

bool insert_tokens(const TToken* tokens, int count) {
  if (count <= 0) return true;
  if (!fits(tokens, count)) {
    note_size_limit();
    return false;
  }
  for (int i = 0; i < count; ++i) insert_token(true, tokens[i]);
  show_entry();
  return true;
}

bool insert_constant_string(const char* text, bool numeric_only) {
  const int length = numeric_only ? plain_number_length(text) : static_cast<int>(std::strlen(text));
  TGathered gathered;
  const int unknown = gather_number(text, length, gathered);
  if (!fits(gathered.tokens, gathered.count)) {
    note_size_limit();
    return false;
  }
  for (int i = 0; i < unknown; ++i)
    platform().show_message("Unknown constant character", "insert_constant_string");
  return insert_gathered(gathered);
}

bool insert_name_tokens(const char* text, TToken token) {
  TGathered gathered;
  gathered.add(token);
  for (const char* c = text; *c; ++c) gathered.add(code_token(*c, FIRST_NAME_TOKEN));
  return insert_gathered(gathered);
}

bool insert_string_tokens(const char* text) {
  TGathered gathered;
  for (const char* c = text; *c; ++c) gathered.add(code_token(*c, STRING_TOKEN_OFFSET));
  return insert_gathered(gathered);
}

bool insert_tvm_call(TToken token) {
  // The variable that each of the five functions solves for, and so does not take.
  constexpr int solved_for[] = {VAR_TVM_PMT, VAR_TVM_I, VAR_TVM_PV, VAR_TVM_N, VAR_TVM_FV};
  constexpr TToken first = 1250;
  constexpr int solver_count = sizeof(solved_for) / sizeof(solved_for[0]);
  if (token < first || token >= first + solver_count) return false;
  TGathered gathered;
  gathered.add(token);
  for (int variable = VAR_TVM_N; variable <= VAR_TVM_CY; ++variable) {
    if (variable == solved_for[token - first]) continue;
    if (gathered.count > 1) gathered.add(TOKEN_COMMA);
    gathered.add(static_cast<TToken>(FIRST_VARIABLE_READ + variable));
  }
  gathered.add(TOKEN_CLOSE);
  if (!insert_gathered(gathered)) return false;
  entry_line.cursor -= gathered.count;
  hooks.draw_expression(true);
  return true;
}

bool insert_conversion(int from, int position) {
  return insert_token(false, static_cast<TToken>(FIRST_CONVERSION + from * 64 + position));
}

bool insert_variable_value(int slot) {
  if (slot < 0 || slot >= SLOT_MATRIX_A) return false;
  const TValue value = memory_array[slot];
  return insert_constant_string(format_result(value.re, value.im, true, true), false);
}

}  // namespace zephyl
