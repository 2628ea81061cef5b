// The program in memory: a list of statement records, one program at a time.
#pragma once

#include <cstdint>

#include "engine/expression.h"

namespace zephyl {

constexpr int STATEMENT_LIMIT = 99;       // the most statements of a program
constexpr int STATEMENT_TEXT_SIZE = 25;   // 24 characters and a 0
constexpr int KEY_LIMIT = 100;            // tokens of a stored expression
constexpr int PROGRAM_NAME_LENGTH = 120;  // with its 0
constexpr int DESCRIPTION_SIZE = 1061;    // 1060 characters and a 0

// Numbers that program files carry. Others up to LAST_STATEMENT_NUMBER are empty rows, which run as nothing.
enum TStatementNumber {
  STATEMENT_IF = 0,
  STATEMENT_END = 1,
  STATEMENT_ELSE = 2,
  STATEMENT_WHILE = 3,
  STATEMENT_LOOP = 4,
  STATEMENT_CALL = 5,
  STATEMENT_RETURN_CALL = 6,
  STATEMENT_LABEL = 7,
  STATEMENT_GOTO = 8,
  STATEMENT_IN = 9,
  STATEMENT_OUT = 10,
  STATEMENT_EXPRESS = 11,
  STATEMENT_STOP = 12,
  STATEMENT_TEXT = 13,
  STATEMENT_FOUT = 14,
  STATEMENT_IN_FUNCTION = 15,
  STATEMENT_FUNCTION = 16,
  STATEMENT_FUNC = 17,
  STATEMENT_ERROR = 18,
  STATEMENT_BREAK = 40,
  STATEMENT_GOSUB = 41,
  STATEMENT_RETURN_SUB = 42,
  STATEMENT_MENU_ITEM = 51,
  STATEMENT_MENU_DISPLAY = 52,
  STATEMENT_MENU_TITLE = 53,
  STATEMENT_MENU_CLEAR = 54,
  STATEMENT_DESCRIPTION = 59
};
constexpr int LAST_STATEMENT_NUMBER = 67;

enum TCompare {
  COMPARE_EQUAL = 0,
  COMPARE_NOT_EQUAL,
  COMPARE_LESS,
  COMPARE_GREATER,
  COMPARE_GREATER_EQUAL,
  COMPARE_LESS_EQUAL,
  COMPARE_COUNT
};

// What the operands mean depends on `number`; the functions below read them.
struct ProgramStatement {
  TToken keys[KEY_LIMIT] = {};
  int key_count = 0;
  char text[STATEMENT_TEXT_SIZE] = "";
  int number = 0;
  std::int16_t compare = 0;
  std::int16_t var0 = 0;
  std::int16_t var1 = 0;
  std::int16_t label = 0;  // names the memory slot label + FIRST_LABEL_SLOT
  std::int16_t func = 0;   // 0 to 8 for f1() to f9()
  std::uint8_t pause = 0;
};

struct TProgram {
  ProgramStatement statements[STATEMENT_LIMIT + 1];
  int statement_count = 0;
  int cursor = 0;  // the selected statement; statement_count is the empty line behind the last one
  int top = 0;     // the first one shown
  char name[PROGRAM_NAME_LENGTH] = "";
  char description[DESCRIPTION_SIZE] = "";
  bool built_in = false;
};
extern TProgram program;

constexpr int FIRST_LABEL_SLOT = 10;
constexpr int FUNC_SLOT_OFFSET = 14;  // a character of a `func(` statement's text minus this is a memory slot
constexpr int OPERAND_ZERO = -2;      // operand_slot's word for the constant 0
constexpr int OPERAND_ANSWER = -1;    // and for Ans

// The memory slot that an operand names, OPERAND_ANSWER, or OPERAND_ZERO (only var1). Numbers from files may
// lead anywhere: the slot is not checked.
int left_operand(const ProgramStatement& statement);   // var0 of if, while, out, fout
int right_operand(const ProgramStatement& statement);  // var1 of if, while
inline int label_slot(const ProgramStatement& statement) { return statement.label + FIRST_LABEL_SLOT; }

// The stored expression as one that can be compiled.
void statement_expression(const ProgramStatement& statement, TExpression& out);

// The first statement is `func(`.
bool is_function_program();

// No statements, cursor and top at 0, no description; the name stays.
void clear_program();

// Where the user was in the program edited or stopped by an error last; it is there again when that program
// loads.
void remember_place(const char* name, int cursor, int top);
// Puts cursor and top where they were, if `program` is the remembered one.
void return_to_place();

// To be called after statements in memory were changed by other means than loading: caches of them are void.
void program_edited();

void reset_program();

}  // namespace zephyl
