// Token codes: what each one means. A token is close to the key that enters it; it is not a TOp_Code.
#pragma once

#include "engine/expression.h"
#include "engine/operation_codes.h"

namespace zephyl {

enum TTokenKind {
  TOKEN_DIGIT = 0,
  TOKEN_OPERATION = 1,
  TOKEN_SPECIAL = 2,
  TOKEN_STATISTIC = 3,
  TOKEN_CONVERSION = 4,
  TOKEN_VARIABLE = 5,
  TOKEN_STORE_VARIABLE = 6,
  TOKEN_NONE = 7
};

enum TSpecial {
  SPECIAL_NONE = 0,
  SPECIAL_RECALL = 1,
  SPECIAL_STORE,
  SPECIAL_OPEN_PAREN,
  SPECIAL_OPEN_BRACK_1,
  SPECIAL_OPEN_BRACK_2,
  SPECIAL_CLOSE_PAREN,
  SPECIAL_CLOSE_BRACK_1,
  SPECIAL_CLOSE_BRACK_2,
  SPECIAL_OPEN_HIDDEN,
  SPECIAL_CLOSE_HIDDEN,
  SPECIAL_ANS,
  SPECIAL_PI,
  SPECIAL_I,
  SPECIAL_E,
  SPECIAL_RAND,
  SPECIAL_M_ANS,
  SPECIAL_L_ANS,
  SPECIAL_STR_ANS,
  SPECIAL_STRING_CHARACTER
};

constexpr int NO_STATISTIC = 21;

// Tokens that code names; ranges are by their first.
enum : TToken {
  TOKEN_OPEN = 3,
  TOKEN_CLOSE = 4,
  TOKEN_POWER = 13,
  TOKEN_NEG = 17,
  TOKEN_COMMA = 20,
  TOKEN_PLUS = 36,
  TOKEN_MINUS = 37,
  TOKEN_POINT = 39,
  TOKEN_EXPONENT = 40,
  TOKEN_ANS = 41,
  TOKEN_OPEN_HIDDEN = 42,
  TOKEN_CLOSE_HIDDEN = 43,
  TOKEN_OPEN_BRACKET = 103,
  TOKEN_CLOSE_BRACKET = 104,
  TOKEN_INV_LN = 111,
  TOKEN_PI = 117,
  TOKEN_RAND = 118,
  TOKEN_I = 120,
  TOKEN_FUNC1 = 181,
  TOKEN_FUNC2 = 182,
  TOKEN_OPEN_BRACE = 203,
  TOKEN_CLOSE_BRACE = 204,
  TOKEN_E = 217,
  TOKEN_BASE_NEG = 540,
  FIRST_STRING_TOKEN = 700,
  STRING_TOKEN_OFFSET = 668,
  FIRST_RECALL = 800,
  FIRST_STORE = 900,
  TOKEN_M_ANS = 1299,
  TOKEN_L_ANS = 1300,
  TOKEN_STR_ANS = 1301,
  FIRST_VARIABLE_READ = 1400,
  FIRST_VARIABLE_WRITE = 1500,
  FIRST_FUNCTION_READ = 1600,
  FIRST_FUNCTION_WRITE = 1650,
  FIRST_RECALL_HIGH = 2000,
  FIRST_STORE_HIGH = 3000,
  FIRST_NAME_TOKEN = 5000,
  LAST_NAME_TOKEN = 5999,
  FIRST_CONVERSION_PAIR = 16384,
  FIRST_CONVERSION = 32768
};

// `name` by kind:
//   digit: the character, "7", ".", "e" (the exponent letter), "A", "h";
//   operation: its internal_name; for a call of a custom function the program's name, where the expression is
//   known; special: "start_paren", "end_brack_2", "Ans", "matrix_ans", "pi", "imaginary", "rand_num",
//   "e_constant" and so
//     on; the slot's short display name for a recall and a store; the character (quotes see below) of a
//     string;
//   statistic: its glyph, "mean_x"; conversion: "(ft", the character 128, "m)", "?" for an unknown unit;
//   variable and its store: the variable's or function slot's name.
struct TDecodedToken {
  char name[120] = "";
  TTokenKind kind = TOKEN_NONE;
  TOp_Code op = OP_NONE;
  TSpecial special = SPECIAL_NONE;
  int stat_index = NO_STATISTIC;
  int memory = 0;     // memory slot, system variable number (0 to 99) or 100 + function slot
  int unit_from = 0;  // code of the unit converted from
  int unit_to = 0;    // position within the property (unit_by_position) or code of the unit converted to
  bool unit_by_position = false;
};

// In TDecodedToken::memory of kinds TOKEN_VARIABLE and TOKEN_STORE_VARIABLE, and in a step's target: the
// function slots stand behind the 100 numbers of system variables.
constexpr int FUNCTION_SLOT_OFFSET = 100;

// One token by itself. The result is one shared record.
const TDecodedToken& decode_token(TToken token);
// The token at `index` of an expression: a string character's name then carries the quotes of the string's
// ends.
const TDecodedToken& decode_token(const TExpression& expression, int index);

inline bool is_name_token(TToken token) { return token >= FIRST_NAME_TOKEN && token <= LAST_NAME_TOKEN; }
inline bool is_string_token(TToken token) { return token >= FIRST_STRING_TOKEN && token < FIRST_RECALL; }
inline bool is_conversion_token(TToken token) { return token >= FIRST_CONVERSION_PAIR; }

// The operation of a token, OP_NONE if it is none. No record is filled: for hot paths.
TOp_Code token_operation(TToken token);
// The token that enters an operation; 0 for one that only the compiler makes.
TToken operation_token(TOp_Code op);

// The token that closes the group which a token opens, as functions with arguments do; 0 for one that opens
// none.
TToken closing_token(TToken token);
bool closes_group(TToken token);

// The tokens that the variable keys enter, of the ranges that reach every slot: 2000 and 3000 plus slot.
TToken recall_token(int slot);
TToken store_token(int slot);

// The token of statistics value 0 to 20, and the text of a value in listings, " xMean ". NO_STATISTIC gives
// an empty text; any other number shows the note "Stats string not defined" and gives "Not Defined ".
TToken statistics_token(int index);
const char* get_stats_string(int index);
// The value that a token stands for, NO_STATISTIC for another token, and the name of a value's glyph,
// "mean_x".
int statistics_index(TToken token);
const char* statistics_glyph(int index);

// Pieces of token names. The name of TDecodedToken::memory of a system variable or a function slot: "xMin",
// "f1(x)"; empty for a number without a name.
const char* variable_name(int memory);
// "(ft>m)" of a decoded conversion, with `arrow` between the units; an unknown unit is "?".
void conversion_name(const TDecodedToken& conversion, char arrow, char* out, int size);
// The program's name behind the token 181 or 182 at `index`, cut to size.
void call_name(const TExpression& expression, int index, char* out, int size);

// The listing text of one token: "sin(", " > [A]", "(ft>m)", with its neighbours in view for strings and
// names. One shared buffer.
const char* token_text(const TExpression& expression, int index);
// The listing text of a whole expression; cut to the size of `out`.
void expression_text(const TExpression& expression, char* out, int size);

}  // namespace zephyl
