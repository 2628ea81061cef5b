// Expressions as plain text, token by token: what lists, dialogs and the catalog show. The text form reads it
// back.

#include <cstdio>
#include <cstring>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

constexpr int TEXT_SIZE = 128;
char text[TEXT_SIZE];

const char* print(const char* form, const char* inserted) {
  std::snprintf(text, sizeof text, form, inserted);
  return text;
}

bool decimal_comma() { return settings.decimalMark == 1; }

const char* digit_text(TToken token, const TDecodedToken& meaning) {
  return token == TOKEN_POINT && decimal_comma() ? "," : print("%s", meaning.name);
}

const char* operation_text(const TExpression& expression, int index, TOp_Code op) {
  if (op == OP_COMMA && decimal_comma()) return ".";
  if (op != OP_FUNC1 && op != OP_FUNC2) return operation_array[op].display_text;
  char name[TEXT_SIZE];
  call_name(expression, index, name, sizeof name - 1);
  return print("%s(", name);
}

// A Greek letter stands in parentheses, or its word would run into the names around it.
const char* recall_text(int slot) {
  return print(slot_class(slot) == CLASS_GREEK ? "(%s)" : "%s", slot_name(slot, true));
}

// A string's own quotes and backslashes are marked by a backslash.
const char* string_text(const TExpression& expression, int index) {
  const TToken* token = expression.tokens + index;
  const char character = static_cast<char>(*token - STRING_TOKEN_OFFSET);
  const bool opens = index == 0 || !is_string_token(token[-1]);
  const bool closes = index + 1 == expression.count || !is_string_token(token[1]);
  const bool marked = character == '"' || character == '\\';
  std::snprintf(text, sizeof text, "%s%s%c%s", opens ? "\"" : "", marked ? "\\" : "", character,
                closes ? "\"" : "");
  return text;
}

const char* special_text(const TExpression& expression, int index, const TDecodedToken& meaning) {
  switch (meaning.special) {
    case SPECIAL_RECALL:
      return recall_text(meaning.memory);
    case SPECIAL_STORE:
      return print(" > %s", slot_name(meaning.memory, true));
    case SPECIAL_OPEN_PAREN:
      return "(";
    case SPECIAL_OPEN_BRACK_1:
      return "[";
    case SPECIAL_OPEN_BRACK_2:
      return "{";
    case SPECIAL_CLOSE_PAREN:
      return ")";
    case SPECIAL_CLOSE_BRACK_1:
      return "]";
    case SPECIAL_CLOSE_BRACK_2:
      return "}";
    case SPECIAL_ANS:
      return "(Ans)";
    case SPECIAL_PI:
      return "(pi)";
    case SPECIAL_I:
      return "(i)";
    case SPECIAL_E:
      return "(e)";
    case SPECIAL_RAND:
      return "(Rand)";
    case SPECIAL_M_ANS:
      return "(M_Ans)";
    case SPECIAL_L_ANS:
      return "(L_Ans)";
    case SPECIAL_STR_ANS:
      return "(str_Ans)";
    case SPECIAL_STRING_CHARACTER:
      return string_text(expression, index);
    default:
      return "";
  }
}

// A system variable's name in parentheses; a function slot's name has parentheses of its own.
const char* variable_text(const TDecodedToken& meaning) {
  const bool in_parentheses = meaning.memory < FUNCTION_SLOT_OFFSET && meaning.name[0] != 0;
  return print(in_parentheses ? "(%s)" : "%s", meaning.name);
}

const char* store_variable_text(const TDecodedToken& meaning) {
  return meaning.name[0] == 0 ? "" : print(" > %s", meaning.name);
}

const char* conversion_text(const TDecodedToken& meaning) {
  conversion_name(meaning, '>', text, sizeof text);
  return text;
}

}  // namespace

const char* token_text(const TExpression& expression, int index) {
  const TDecodedToken& meaning = decode_token(expression, index);
  switch (meaning.kind) {
    case TOKEN_DIGIT:
      return digit_text(expression.tokens[index], meaning);
    case TOKEN_OPERATION:
      return operation_text(expression, index, meaning.op);
    case TOKEN_SPECIAL:
      return special_text(expression, index, meaning);
    case TOKEN_STATISTIC:
      return get_stats_string(meaning.stat_index);
    case TOKEN_CONVERSION:
      return conversion_text(meaning);
    case TOKEN_VARIABLE:
      return variable_text(meaning);
    case TOKEN_STORE_VARIABLE:
      return store_variable_text(meaning);
    case TOKEN_NONE:
      break;
  }
  return "";
}

void expression_text(const TExpression& expression, char* out, int size) {
  int length = 0;
  out[0] = 0;
  for (int i = 0; i < expression.count && length < size - 1; ++i) {
    std::snprintf(out + length, static_cast<std::size_t>(size - length), "%s", token_text(expression, i));
    length += static_cast<int>(std::strlen(out + length));
  }
}

}  // namespace zephyl
