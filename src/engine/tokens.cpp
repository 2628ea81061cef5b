// The map from token codes to meanings. Tokens are close to the keys that enter them, so their order is that
// of the faceplate, not that of the operations: the operations stand in runs, everything else in ranges and a
// few rows.

#include "engine/tokens.h"

#include <cstdio>
#include <cstring>

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "engine/system_variables.h"

namespace zephyl {

namespace {

// Tokens first to last are consecutive operations from `op` on.
struct TRun {
  TToken first;
  TToken last;
  TOp_Code op;
};

// clang-format off
constexpr TRun operation_runs[] = {
    {5, 7, OP_SIN}, {8, 9, OP_INVERT}, {11, 12, OP_LN}, {13, 13, OP_POWER}, {14, 15, OP_SQUARE_ROOT},
    {16, 16, OP_ANGLE_DEG}, {17, 17, OP_NEG}, {18, 18, OP_FACTORIAL}, {19, 19, OP_ABS}, {20, 20, OP_COMMA},
    {31, 32, OP_MULTIPLY}, {36, 37, OP_PLUS}, {105, 107, OP_ASIN}, {108, 108, OP_TRUNC},
    {111, 112, OP_INV_LN}, {113, 113, OP_INV_POWER}, {114, 114, OP_FMOD}, {115, 115, OP_CUBE},
    {116, 116, OP_ANGLE_RAD}, {119, 119, OP_ROUND}, {123, 123, OP_PERCENT}, {124, 124, OP_INT_PART},
    {125, 125, OP_NPR}, {167, 168, OP_FLOOR}, {169, 172, OP_CONJ}, {173, 173, OP_PERCENT_CHANGE},
    {174, 174, OP_FRAC_PART}, {175, 175, OP_NCR}, {176, 177, OP_GAMMA}, {178, 182, OP_Z_DEG},
    {197, 197, OP_LINE_TO}, {198, 198, OP_MOVE_TO}, {199, 199, OP_UPDATE_DRAW}, {200, 200, OP_DELAY},
    {205, 207, OP_SINH}, {208, 215, OP_CLR_MEM}, {216, 216, OP_ANGLE_GRAD}, {305, 307, OP_ASINH},
    {350, 369, OP_NORMAL_PDF}, {381, 381, OP_ARC}, {382, 382, OP_DELTA_DAYS_30}, {383, 383, OP_DAY_OF_WEEK},
    {384, 384, OP_DATE_PLUS}, {385, 385, OP_DELTA_DAYS}, {386, 386, OP_DATE}, {387, 387, OP_TIME},
    {388, 388, OP_LESS_EQUAL}, {389, 389, OP_LESS}, {390, 390, OP_GREATER_EQUAL}, {391, 391, OP_GREATER},
    {392, 392, OP_NOT_EQUAL}, {393, 393, OP_EQUAL}, {394, 394, OP_LOGIC_NOT}, {395, 397, OP_LOGIC_AND},
    {398, 398, OP_SWAP_LIST_ELEM}, {399, 399, OP_SET_LIST_TOP_ROW}, {400, 400, OP_MAX}, {401, 401, OP_MIN},
    {402, 402, OP_RAND_NORM}, {403, 407, OP_LOGB}, {408, 412, OP_ROW_SWAP}, {413, 416, OP_GET_ELEM},
    {417, 417, OP_AUGMENT}, {418, 420, OP_ROW_SCALE_ADD}, {421, 421, OP_RAND_BIN}, {422, 422, OP_RAND_POIS},
    {423, 423, OP_RAND_INT}, {424, 424, OP_STACK}, {425, 427, OP_ROW_DEL}, {428, 428, OP_RAND_MATRIX},
    {429, 429, OP_REPLACE}, {430, 431, OP_JN}, {432, 432, OP_DIAG}, {433, 433, OP_OUT_MATRIX},
    {434, 434, OP_PUT_ELEM_DIRECT}, {435, 443, OP_OUT_LIST}, {444, 445, OP_DFT}, {446, 446, OP_RAND_SEED},
    {447, 448, OP_DRAW_LIST_Y}, {449, 449, OP_INIT_DRAW}, {450, 458, OP_LIST_MAX}, {459, 461, OP_SORT_A},
    {462, 462, OP_MATRIX_TO_LIST}, {463, 464, OP_AUG_LIST}, {465, 465, OP_DELTA_LIST},
    {466, 467, OP_LIST_SIZE}, {468, 468, OP_FN_INT}, {469, 474, OP_REVERSE}, {475, 476, OP_FN_MIN},
    {477, 478, OP_FN_DERIV}, {479, 480, OP_SUMM}, {481, 481, OP_SEQ}, {482, 482, OP_ERROR},
    {483, 483, OP_FN_ROOT}, {484, 485, OP_TO_HMS}, {486, 489, OP_MANT}, {490, 490, OP_CLR_DRAW},
    {491, 491, OP_COLOR}, {492, 492, OP_POINT}, {493, 493, OP_LINE}, {494, 496, OP_RECT},
    {497, 499, OP_FILL_CIRC}, {505, 505, OP_BASE_NOT}, {506, 506, OP_BASE_AND}, {507, 507, OP_BASE_OR},
    {508, 509, OP_BASE_XOR}, {540, 540, OP_BASE_NEG}, {605, 605, OP_BASE_MOD}, {606, 607, OP_SHIFT_LEFT},
    {1007, 1008, OP_REGRESS_X}, {1200, 1200, OP_DET}, {1201, 1201, OP_IDEN}, {1202, 1202, OP_RREF},
    {1203, 1203, OP_SOLVE_LU}, {1204, 1204, OP_TRANSPOSE}, {1205, 1215, OP_TRACE},
    {1216, 1219, OP_ROW_NORM}, {1220, 1222, OP_SOLVE_QR}, {1223, 1223, OP_NORM}, {1224, 1226, OP_COND},
    {1250, 1258, OP_TVM_PMT}, {1261, 1261, OP_IRR}, {1262, 1264, OP_BALANCE}, {1265, 1265, OP_MIRR},
    {1266, 1266, OP_NUS}, {1267, 1267, OP_IRR_D}, {1271, 1271, OP_IFS_FRACTAL}, {1273, 1274, OP_STR_LEN},
    {1275, 1275, OP_STR_SUB}, {1276, 1280, OP_DRAW_STRING}, {1281, 1282, OP_MANDELBROT},
    {1283, 1285, OP_LOAD_STATE}, {1996, 1996, OP_PLOT_FN_DERIV}, {1997, 1997, OP_PLOT_FN_ROOT},
    {1998, 1998, OP_PLOT_FN_MAX}, {1999, 1999, OP_PLOT_FN_MIN},
};
// clang-format on

constexpr int OPERATION_TOKEN_LIMIT = 2000;

struct TOperationMap {
  TOp_Code op_of[OPERATION_TOKEN_LIMIT] = {};
  TToken token_of[OPERATION_COUNT] = {};
  int count = 0;
};

constexpr TOperationMap make_operation_map() {
  TOperationMap map;
  for (TOp_Code& op : map.op_of) op = OP_NONE;
  for (const TRun& run : operation_runs) {
    for (int token = run.first; token <= run.last; ++token) {
      const int op = run.op + token - run.first;
      map.op_of[token] = static_cast<TOp_Code>(op);
      map.token_of[op] = static_cast<TToken>(token);
      ++map.count;
    }
  }
  return map;
}

constexpr TOperationMap operation_map = make_operation_map();
// All but the ten operations that only the compiler makes.
static_assert(operation_map.count == OPERATION_COUNT - 10);

// A token that is neither an operation nor part of a range.
struct TSingleRow {
  TToken token;
  TTokenKind kind;
  TSpecial special;
  const char* name;
};

constexpr TSingleRow digit(TToken token, const char* name) {
  return {token, TOKEN_DIGIT, SPECIAL_NONE, name};
}
constexpr TSingleRow special(TToken token, TSpecial code, const char* name) {
  return {token, TOKEN_SPECIAL, code, name};
}

constexpr TSingleRow single_rows[] = {
    digit(23, "7"),
    digit(24, "8"),
    digit(25, "9"),
    digit(28, "4"),
    digit(29, "5"),
    digit(30, "6"),
    digit(33, "1"),
    digit(34, "2"),
    digit(35, "3"),
    digit(38, "0"),
    digit(TOKEN_POINT, "."),
    digit(TOKEN_EXPONENT, "e"),
    digit(511, "A"),
    digit(512, "B"),
    digit(513, "C"),
    digit(514, "D"),
    digit(515, "E"),
    digit(516, "F"),
    digit(517, "d"),
    digit(518, "h"),
    digit(519, "b"),
    digit(619, "o"),
    special(TOKEN_OPEN, SPECIAL_OPEN_PAREN, "start_paren"),
    special(TOKEN_OPEN_BRACKET, SPECIAL_OPEN_BRACK_1, "start_brack_1"),
    special(TOKEN_OPEN_BRACE, SPECIAL_OPEN_BRACK_2, "start_brack_2"),
    special(TOKEN_OPEN_HIDDEN, SPECIAL_OPEN_HIDDEN, "start_paren_hidden"),
    special(TOKEN_CLOSE, SPECIAL_CLOSE_PAREN, "end_paren"),
    special(TOKEN_CLOSE_BRACKET, SPECIAL_CLOSE_BRACK_1, "end_brack_1"),
    special(TOKEN_CLOSE_BRACE, SPECIAL_CLOSE_BRACK_2, "end_brack_2"),
    special(TOKEN_CLOSE_HIDDEN, SPECIAL_CLOSE_HIDDEN, "end_paren_hidden"),
    special(TOKEN_ANS, SPECIAL_ANS, "Ans"),
    special(TOKEN_M_ANS, SPECIAL_M_ANS, "matrix_ans"),
    special(TOKEN_L_ANS, SPECIAL_L_ANS, "list_ans"),
    special(TOKEN_STR_ANS, SPECIAL_STR_ANS, "string_ans"),
    special(TOKEN_PI, SPECIAL_PI, "pi"),
    special(TOKEN_I, SPECIAL_I, "imaginary"),
    special(TOKEN_RAND, SPECIAL_RAND, "rand_num"),
    special(TOKEN_E, SPECIAL_E, "e_constant"),
};

constexpr int SINGLE_COUNT = sizeof(single_rows) / sizeof(single_rows[0]);
constexpr int SINGLE_TOKEN_LIMIT = TOKEN_STR_ANS + 1;

// Row number plus 1 of a single token, 0 for others.
struct TSingleMap {
  std::uint8_t row_of[SINGLE_TOKEN_LIMIT] = {};
};

constexpr TSingleMap make_single_map() {
  TSingleMap map;
  for (int row = 0; row < SINGLE_COUNT; ++row)
    map.row_of[single_rows[row].token] = static_cast<std::uint8_t>(row + 1);
  return map;
}

constexpr TSingleMap single_map = make_single_map();

TDecodedToken decoded;

void set_name(const char* name) { std::snprintf(decoded.name, sizeof decoded.name, "%s", name); }

void clear_decoded() {
  decoded.name[0] = 0;
  decoded.kind = TOKEN_NONE;
  decoded.op = OP_NONE;
  decoded.special = SPECIAL_NONE;
  decoded.stat_index = NO_STATISTIC;
  decoded.memory = 0;
  decoded.unit_from = 0;
  decoded.unit_to = 0;
  decoded.unit_by_position = false;
}

bool decode_operation(TToken token) {
  decoded.op = token_operation(token);
  if (decoded.op == OP_NONE) return false;
  decoded.kind = TOKEN_OPERATION;
  std::strcpy(decoded.name, operation_array[decoded.op].internal_name);
  return true;
}

bool decode_single(TToken token) {
  const int row = token < SINGLE_TOKEN_LIMIT ? single_map.row_of[token] : 0;
  if (row == 0) return false;
  decoded.kind = single_rows[row - 1].kind;
  decoded.special = single_rows[row - 1].special;
  std::strcpy(decoded.name, single_rows[row - 1].name);
  return true;
}

bool decode_statistic(TToken token) {
  const int index = statistics_index(token);
  if (index == NO_STATISTIC) return false;
  decoded.kind = TOKEN_STATISTIC;
  decoded.stat_index = index;
  set_name(statistics_glyph(index));
  return true;
}

// What a range of tokens stands for; `memory` of its first token.
struct TRange {
  TToken first;
  TToken last;
  TTokenKind kind;
  TSpecial special;
  int memory;
};

constexpr TRange ranges[] = {
    {FIRST_STRING_TOKEN, 799, TOKEN_SPECIAL, SPECIAL_STRING_CHARACTER, 0},
    {FIRST_RECALL, 899, TOKEN_SPECIAL, SPECIAL_RECALL, 0},
    {FIRST_STORE, 999, TOKEN_SPECIAL, SPECIAL_STORE, 0},
    {FIRST_VARIABLE_READ, 1499, TOKEN_VARIABLE, SPECIAL_NONE, 0},
    {FIRST_VARIABLE_WRITE, 1599, TOKEN_STORE_VARIABLE, SPECIAL_NONE, 0},
    {FIRST_FUNCTION_READ, 1649, TOKEN_VARIABLE, SPECIAL_NONE, FUNCTION_SLOT_OFFSET},
    {FIRST_FUNCTION_WRITE, 1699, TOKEN_STORE_VARIABLE, SPECIAL_NONE, FUNCTION_SLOT_OFFSET},
    {FIRST_RECALL_HIGH, 2109, TOKEN_SPECIAL, SPECIAL_RECALL, 0},
    {2120, 2128, TOKEN_SPECIAL, SPECIAL_RECALL, SLOT_STR1},
    {FIRST_STORE_HIGH, 3109, TOKEN_SPECIAL, SPECIAL_STORE, 0},
    {3120, 3128, TOKEN_SPECIAL, SPECIAL_STORE, SLOT_STR1},
};

const TRange* range_of(TToken token) {
  for (const TRange& range : ranges)
    if (token >= range.first && token <= range.last) return &range;
  return nullptr;
}

void name_of_range(TToken token) {
  if (decoded.special == SPECIAL_STRING_CHARACTER) {
    decoded.name[0] = static_cast<char>(token - STRING_TOKEN_OFFSET);
    decoded.name[1] = 0;
  } else if (decoded.kind == TOKEN_SPECIAL) {
    set_name(slot_name(decoded.memory, false));
  } else {
    set_name(variable_name(decoded.memory));
  }
}

bool decode_range(TToken token) {
  const TRange* range = range_of(token);
  if (!range) return false;
  decoded.kind = range->kind;
  decoded.special = range->special;
  if (range->special != SPECIAL_STRING_CHARACTER) decoded.memory = range->memory + token - range->first;
  name_of_range(token);
  return true;
}

bool decode_conversion(TToken token) {
  if (!is_conversion_token(token)) return false;
  decoded.kind = TOKEN_CONVERSION;
  decoded.unit_by_position = token >= FIRST_CONVERSION;
  if (decoded.unit_by_position) {
    decoded.unit_from = (token >> 6) - (FIRST_CONVERSION >> 6);
    decoded.unit_to = token & 0x3F;
  } else {
    decoded.unit_from = token & 0x7F;
    decoded.unit_to = (token >> 7) & 0x7F;
  }
  constexpr char conversion_arrow = static_cast<char>(128);
  conversion_name(decoded, conversion_arrow, decoded.name, sizeof decoded.name);
  return true;
}

bool string_token_at(const TExpression& expression, int index) {
  return index >= 0 && index < expression.count && is_string_token(expression.tokens[index]);
}

void quote_name(const TExpression& expression, int index) {
  const char character[2] = {decoded.name[0], 0};
  std::snprintf(decoded.name, sizeof decoded.name, "%s%s%s",
                string_token_at(expression, index - 1) ? "" : "\"", character,
                string_token_at(expression, index + 1) ? "" : "\"");
}

const char* unit_name(int code) {
  const TUnit* unit = hooks.unit_by_code(code);
  return unit ? unit->short_name : "?";
}

}  // namespace

const TDecodedToken& decode_token(TToken token) {
  clear_decoded();
  if (decode_operation(token) || decode_single(token) || decode_range(token) || decode_statistic(token))
    return decoded;
  decode_conversion(token);
  return decoded;
}

const TDecodedToken& decode_token(const TExpression& expression, int index) {
  if (index < 0 || index >= expression.count) {
    clear_decoded();
    return decoded;
  }
  const TToken token = expression.tokens[index];
  decode_token(token);
  if (decoded.special == SPECIAL_STRING_CHARACTER) quote_name(expression, index);
  if (token == TOKEN_FUNC1 || token == TOKEN_FUNC2)
    call_name(expression, index, decoded.name, sizeof decoded.name);
  return decoded;
}

TOp_Code token_operation(TToken token) {
  return token < OPERATION_TOKEN_LIMIT ? operation_map.op_of[token] : OP_NONE;
}

TToken operation_token(TOp_Code op) {
  return op >= 0 && op < OPERATION_COUNT ? operation_map.token_of[op] : TToken{0};
}

TToken closing_token(TToken token) {
  const TOp_Code op = token_operation(token);
  if (op != OP_NONE) {
    const int kind = operation_array[op].arg_kind;
    const bool opens = is_function_kind(kind) && kind != KIND_NO_ARGUMENT && kind != KIND_CALL;
    return static_cast<TToken>(opens ? TOKEN_CLOSE : 0);
  }
  switch (decode_token(token).special) {
    case SPECIAL_OPEN_PAREN:
    case SPECIAL_OPEN_HIDDEN:
      return TOKEN_CLOSE;
    case SPECIAL_OPEN_BRACK_1:
      return TOKEN_CLOSE_BRACKET;
    case SPECIAL_OPEN_BRACK_2:
      return TOKEN_CLOSE_BRACE;
    default:
      return 0;
  }
}

bool closes_group(TToken token) {
  switch (decode_token(token).special) {
    case SPECIAL_CLOSE_PAREN:
    case SPECIAL_CLOSE_BRACK_1:
    case SPECIAL_CLOSE_BRACK_2:
    case SPECIAL_CLOSE_HIDDEN:
      return true;
    default:
      return false;
  }
}

TToken recall_token(int slot) { return static_cast<TToken>(FIRST_RECALL_HIGH + slot); }
TToken store_token(int slot) { return static_cast<TToken>(FIRST_STORE_HIGH + slot); }

const char* variable_name(int memory) {
  if (memory >= FUNCTION_SLOT_OFFSET) return function_slot_name(memory - FUNCTION_SLOT_OFFSET);
  return memory >= 0 && memory < SYSTEM_VARIABLE_COUNT ? system_variables[memory].name : "";
}

void conversion_name(const TDecodedToken& conversion, char arrow, char* out, int size) {
  const int to = conversion.unit_by_position
                     ? hooks.unit_at_position(conversion.unit_from, conversion.unit_to)
                     : conversion.unit_to;
  std::snprintf(out, static_cast<std::size_t>(size), "(%s%c%s)", unit_name(conversion.unit_from), arrow,
                unit_name(to));
}

void call_name(const TExpression& expression, int index, char* out, int size) {
  int length = 0;
  for (int i = index + 1; i < expression.count && is_name_token(expression.tokens[i]) && length < size - 1;
       ++i)
    out[length++] = static_cast<char>(expression.tokens[i] - FIRST_NAME_TOKEN);
  out[length] = 0;
}

}  // namespace zephyl
