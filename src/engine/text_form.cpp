// The reader of the text form. At each place the longest match decides; what a table of words can't tell
// (signs, exponents, strings, conversions, names of custom functions, the digits of base-n numbers) has a
// small reader of its own.

#include "engine/text_form.h"

#include <cstdio>
#include <cstring>

#include "engine/compiled.h"
#include "engine/hooks.h"
#include "engine/operation_table.h"
#include "engine/state.h"
#include "engine/text_words.h"
#include "engine/tokens.h"

namespace zephyl {

namespace {

constexpr int SHOWN_LENGTH = 20;      // of unread text in a message
constexpr int UNIT_NAME_LENGTH = 24;  // the longest short name of a unit
constexpr int NAME_LENGTH = PROGRAM_NAME_SIZE - 1;

struct TReader {
  const char* at;
  TExpression line;
  bool full = false;
  bool after_operand = false;        // a "-" here is the minus between two operands
  const char* number_end = nullptr;  // behind the last digit or point of a number
};

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool is_name_character(char c) { return is_letter(c) || is_digit(c) || c == '_'; }

bool ends_operand(TToken token) {
  const TOp_Code op = token_operation(token);
  if (op == OP_NONE) return token != TOKEN_OPEN && token != 103 && token != TOKEN_OPEN_BRACE;
  const int kind = operation_array[op].arg_kind;
  return kind == KIND_POSTFIX || kind == KIND_NO_ARGUMENT;
}

void put(TReader& reader, TToken token) {
  if (reader.line.count == EXPRESSION_LIMIT) {
    reader.full = true;
    return;
  }
  reader.line.tokens[reader.line.count++] = token;
  reader.after_operand = ends_operand(token);
}

void put_digit(TReader& reader, TToken token) {
  put(reader, token);
  reader.number_end = ++reader.at;
}

// An e between the digits of a number: the exponent letter, with the sign of the exponent.
bool read_exponent(TReader& reader) {
  const char c = reader.at[0], next = reader.at[1];
  if (reader.number_end != reader.at || (c != 'e' && c != 'E')) return false;
  if (!is_digit(next) && next != '+' && next != '-') return false;
  put(reader, TOKEN_EXPONENT);
  ++reader.at;
  if (next == '-') put(reader, TOKEN_NEG);
  if (next == '-' || next == '+') ++reader.at;
  return true;
}

bool read_sign(TReader& reader) {
  if (reader.at[0] != '-') return false;
  TToken sign = TOKEN_MINUS;
  if (!reader.after_operand) sign = state.calcMode == BASE_MODE ? TOKEN_BASE_NEG : TOKEN_NEG;
  put(reader, sign);
  ++reader.at;
  return true;
}

// "-> NAME". A longer name that only begins like one that there is, is not read as that one.
bool read_store(TReader& reader) {
  const char* name = reader.at + 2;
  while (is_blank(*name)) ++name;
  const TWordMatch found = match_store_name(name);
  if (found.length == 0) return false;
  const char* end = name + found.length;
  if (is_name_character(end[-1]) && is_name_character(*end)) return false;
  put(reader, found.token);
  reader.at = end;
  return true;
}

// The character of a string literal at `at`, which moves on; 0 for one that no token holds.
char string_character(const char*& at) {
  if (*at == '\\' && (at[1] == '"' || at[1] == '\\'))
    ++at;
  else if (*at == '\\')
    return 0;
  const int code = static_cast<unsigned char>(*at);
  if (code + STRING_TOKEN_OFFSET < FIRST_STRING_TOKEN || code + STRING_TOKEN_OFFSET >= FIRST_RECALL) return 0;
  return *at++;
}

bool read_string(TReader& reader) {
  const char* at = reader.at + 1;
  while (*at != '"') {
    const char character = string_character(at);
    if (character == 0) return false;
    put(reader, static_cast<TToken>(static_cast<unsigned char>(character) + STRING_TOKEN_OFFSET));
  }
  reader.at = at + 1;
  return true;
}

// Digits of base-n numbers. A..F count as digits behind a digit, in hexadecimal, and where the suffix h
// closes them, unless a longer word begins there ("AND", "DFT("); with other letters behind them they are no
// digits.

bool longer_word_at(const char* at) { return match_word(at).length > 1; }

bool is_base_digit(const char* at) {
  return is_digit(*at) || (*at >= 'A' && *at <= 'F' && !longer_word_at(at));
}

TToken base_suffix(const char* at) {
  struct TRow {
    char letter;
    TToken token;
  };
  constexpr TRow rows[] = {{'d', 517}, {'h', 518}, {'b', 519}, {'o', 619}};
  for (const TRow& row : rows)
    if (*at == row.letter && !is_name_character(at[1]) && !longer_word_at(at)) return row.token;
  return 0;
}

bool read_base_number(TReader& reader) {
  constexpr TToken first_letter = 511, hex_suffix = 518;
  const char* end = reader.at;
  while (is_base_digit(end)) ++end;
  if (end == reader.at) return false;
  const TToken suffix = base_suffix(end);
  if (!suffix && is_name_character(*end) && !longer_word_at(end)) return false;
  if (!is_digit(*reader.at) && settings.baseType != U_HEX && suffix != hex_suffix) return false;
  while (reader.at < end) {
    const char c = *reader.at;
    put_digit(reader,
              is_digit(c) ? match_word(reader.at).token : static_cast<TToken>(first_letter + c - 'A'));
  }
  if (suffix) put_digit(reader, suffix);
  return true;
}

struct TConversionMatch {
  int length = 0;
  TToken token = 0;
};

int distance(const char* from, const char* to) { return static_cast<int>(to - from); }

// "(ft>m)". Unit names may hold parentheses of their own, so each close parenthesis in reach is tried.
TConversionMatch match_conversion(const char* text) {
  TConversionMatch found;
  if (!hooks.find_units) return found;
  const char* from = text + 1;
  const char* arrow = from;
  while (*arrow && *arrow != '>' && distance(from, arrow) < UNIT_NAME_LENGTH) ++arrow;
  if (*arrow != '>') return found;
  const char* to = arrow + 1;
  for (const char* end = to; *end && distance(to, end) <= UNIT_NAME_LENGTH; ++end) {
    int code = 0, position = 0;
    if (*end != ')' || !hooks.find_units(from, static_cast<std::size_t>(arrow - from), to,
                                         static_cast<std::size_t>(end - to), code, position))
      continue;
    found = {distance(text, end + 1), static_cast<TToken>(FIRST_CONVERSION + code * 64 + position)};
  }
  return found;
}

bool read_conversion(TReader& reader, const TWordMatch& word) {
  const TConversionMatch found = match_conversion(reader.at);
  if (found.length <= word.length) return false;
  put(reader, found.token);
  reader.at += found.length;
  return true;
}

// The length of a custom function's name at `at`: letters, digits and underscores that begin with a letter
// and end at an open parenthesis; 0 for none.
int call_name_length(const char* at) {
  if (!is_letter(*at)) return 0;
  int length = 1;
  while (is_name_character(at[length])) ++length;
  return at[length] == '(' ? length : 0;
}

// True if the name is a word that can stand in front of an open parenthesis: "x(", "pi(", "AND(" are no
// calls. A statistics value gives way to a function of its name.
bool is_whole_word(const TWordMatch& word, int length) {
  if (word.length > length) return true;
  return word.length == length && statistics_index(word.token) == NO_STATISTIC;
}

bool read_call(TReader& reader, int length) {
  if (length > NAME_LENGTH) return false;
  const bool empty = reader.at[length + 1] == ')';
  put(reader, empty ? TOKEN_FUNC2 : TOKEN_FUNC1);
  for (int i = 0; i < length; ++i) put(reader, static_cast<TToken>(FIRST_NAME_TOKEN + reader.at[i]));
  reader.after_operand = empty;
  reader.at += length + (empty ? 2 : 1);
  return true;
}

// The word at `at`. "^T" gives way to a power whose exponent begins with that letter: "2^Trunc(x)".
TWordMatch word_at(const char* at) {
  const TWordMatch word = match_word(at);
  if (token_operation(word.token) != OP_TRANSPOSE) return word;
  const bool exponent_follows = longer_word_at(at + 1) || call_name_length(at + 1) > 1;
  return exponent_follows ? TWordMatch{1, TOKEN_POWER} : word;
}

bool read_word(TReader& reader) {
  const TWordMatch word = word_at(reader.at);
  if (reader.at[0] == '(' && read_conversion(reader, word)) return true;
  const int name_length = call_name_length(reader.at);
  if (name_length > 0 && !is_whole_word(word, name_length)) return read_call(reader, name_length);
  if (word.length == 0) return false;
  const bool digit = is_digit(*reader.at) || *reader.at == '.';
  put(reader, word.token);
  reader.at += word.length;
  if (digit) reader.number_end = reader.at;
  return true;
}

bool read_token(TReader& reader) {
  if (reader.at[0] == '"') return read_string(reader);
  if (reader.at[0] == '-' && reader.at[1] == '>') return read_store(reader);
  if (state.calcMode == BASE_MODE && read_base_number(reader)) return true;
  return read_exponent(reader) || read_sign(reader) || read_word(reader);
}

// Bytes that continue a character of UTF-8.
bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

int column(const char* text, const char* at) {
  int column = 1;
  for (const char* c = text; c < at; ++c) column += !continues_character(*c);
  return column;
}

// The unread text up to the next blank, SHOWN_LENGTH bytes at most, with no character cut in two.
int shown_length(const char* at) {
  int length = 0;
  while (length < SHOWN_LENGTH && at[length] && !is_blank(at[length])) ++length;
  while (length > 0 && continues_character(at[length])) --length;
  return length;
}

void explain(const TReader& reader, const char* text, char* error, int error_size) {
  const std::size_t size = static_cast<std::size_t>(error_size);
  if (reader.full)
    std::snprintf(error, size, "Reached expression size limit");
  else
    std::snprintf(error, size, "cannot read '%.*s' at column %d", shown_length(reader.at), reader.at,
                  column(text, reader.at));
}

}  // namespace

bool text_to_tokens(const char* text, TExpression& out, char* error, int error_size) {
  TReader reader;
  reader.at = text;
  for (;;) {
    while (is_blank(*reader.at)) ++reader.at;
    if (*reader.at == 0) break;
    if (!read_token(reader) || reader.full) {
      explain(reader, text, error, error_size);
      return false;
    }
  }
  out = reader.line;
  return true;
}

}  // namespace zephyl
