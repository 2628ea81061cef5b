// Expressions as the calculator keeps them, a row of token codes, and the line that the user edits.
#pragma once

#include <cstdint>

namespace zephyl {

using TToken = std::uint16_t;

constexpr int EXPRESSION_LIMIT = 99;  // the most tokens a line holds
constexpr int HISTORY_LIMIT = 20;
// The note that an expression is full.
void note_size_limit();

struct TExpression {
  TToken tokens[106] = {};
  int count = 0;
};
bool operator==(const TExpression& a, const TExpression& b);

// The line being edited.
struct TEntryLine {
  TExpression expression;
  int cursor = 0;  // 0 to count: the token that the next one goes in front of
  bool cursor_shown = true;
};
extern TEntryLine entry_line;

// Entered expressions, oldest first.
struct THistory {
  TExpression entries[HISTORY_LIMIT];
  int count = 0;
};
extern THistory history;

// Expressions that other expressions name: plot functions and f1() to f9(), by token minus
// FIRST_FUNCTION_READ. 0 to 5 f1(x).., 6 to 11 R1(theta).., 12 to 17 X1(t), Y1(t), X2(t).., 21 to 29
// f1()..f9(). Without a name: 30 to 35 of the surfaces, and 36 what a plot calculation puts together.
constexpr int FUNCTION_SLOT_COUNT = 50;
constexpr int FIRST_PROGRAM_FUNCTION = 21;
constexpr int FIRST_SURFACE_FUNCTION = 30;
constexpr int SURFACE_FUNCTION_COUNT = 6;
constexpr int SCRATCH_FUNCTION = 36;
extern TExpression function_slots[FUNCTION_SLOT_COUNT];
// "f1(x)", "R2(theta)", "X1(t)", "f9()"; empty for a slot without a name.
const char* function_slot_name(int slot);

// Inserts a token at the cursor. After a result it starts a new expression, with the answer in front of an
// operator that wants a left operand. silent: nothing is drawn. Returns false, with a note, when the line is
// full.
bool insert_token(bool silent, TToken token);
void delete_token();
// big: a fifth of the line. Both clear the standing error and go back to editing after a result.
void cursor_left(bool big);
void cursor_right(bool big);
// To the place in front of a token, as a tap on it does, with the same clean-up.
void cursor_to(int position);
// Empties the line; draws nothing.
void clear_entry_line();

// Each checks in advance that all its tokens fit, else shows the limit note and inserts nothing; returns
// whether they went in. A number's text in parentheses, with the glyph codes of small text; numeric_only cuts
// it at the first character that can't belong to a plain number.
bool insert_constant_string(const char* text, bool numeric_only);
// A call of the custom function `text`: token 181 or 182 with the name's characters behind it.
bool insert_name_tokens(const char* text, TToken token);
bool insert_string_tokens(const char* text);
// tvmPmt( to tvmFV(, tokens 1250 to 1254, with the solver's variables as arguments; the cursor stays in
// front.
bool insert_tvm_call(TToken token);
// from: the unit's code; position: of the target within the property.
bool insert_conversion(int from, int position);
bool insert_variable_value(int slot);
// Several tokens at the cursor, all or none.
bool insert_tokens(const TToken* tokens, int count);

// The line goes into the history unless it is the last entry already.
void add_history();
// Takes an entry back: over the line, or (insert) at the cursor.
bool use_history(int index, bool insert);

void reset_expressions();

}  // namespace zephyl
