// From token codes to steps, in eight passes without allocation. There is no tree and no operand stack: a
// position key stands for the parenthesis path of every operator, and key, priority and scan direction order
// the steps. One expression at a time: the working tables are shared.
#pragma once

#include "engine/compiled.h"
#include "engine/expression.h"

namespace zephyl {

constexpr int ITEM_LIMIT = 100;

enum TItemKind {
  ITEM_NUMBER = 0,
  ITEM_OPERAND = 1,
  ITEM_OPERATOR = 2,
  ITEM_OPEN = 3,
  ITEM_CLOSE = 4,
  ITEM_CHARACTER = 6
};
enum TBracket { BRACKET_NONE = 0, BRACKET_PAREN = 1, BRACKET_SQUARE = 2, BRACKET_BRACE = 3 };

// What pass 0 makes of a token.
struct TItem {
  TItemKind kind = ITEM_NUMBER;
  TOperandClass sub = OPERAND_NONE;  // of numbers, operands and characters
  TOp_Code op = OP_NONE;
  double value = 0.0;  // the number, or the code of a string character
  int memory = 0;      // memory slot, system variable, FUNCTION_SLOT_OFFSET + function slot
  int stat = 21;
  int unit_from = 0;
  int unit_to = 0;
  bool unit_by_position = false;
  TBracket paren = BRACKET_NONE;
  char name[PROGRAM_NAME_SIZE] = "";  // of a custom function call
};

struct TItemList {
  TItem items[ITEM_LIMIT];
  int count = 0;
};
extern TItemList item_list;

// Which kinds of function slot an expression stores into.
struct TStoredSlots {
  bool plot_function = false;
  bool program_function = false;
};

// Pass 0: the tokens of an expression as items, function slots that it reads in their place. Reports what is
// wrong with them:
// ERR_SYNTAX, ERR_OVERFLOW  a number that can't be read
// ERR_MEMORY_LIMIT          more than ITEM_LIMIT items, function slots nested too deep
// ERR_UNDEFINED_FUNCTION    an empty function slot is read
// ERR_NESTED_FUNCTION       a function slot is stored into that the expression has read
void tokens_to_items(const TExpression& expression, TStoredSlots* stored = nullptr);

// Passes 1 to 7 over item_list. Leaves `out` ready to walk, or with its error, which is also reported; an
// error that stands already is taken as that of pass 0. The stores into function slots happen here, when
// everything compiled. Returns whether an error stands. ERR_SYNTAX, ERR_PARENTHESIS_UNBALANCED,
// ERR_PARENTHESIS_LEVEL ERR_MEMORY_LIMIT    too many items, operators or calls by name ERR_FUNCTION_NEST
// NUMERIC_NEST_LIMIT numeric operators within one
bool compile_items(TCompiled& out);

// All passes. Clears the standing error first. Returns true if `out` can be walked.
bool compile_expression(const TExpression& expression, TCompiled& out);

// The steps as text, one a line, for whoever debugs: "r0 = x * 2". Cut to the size.
void describe_steps(const TCompiled& compiled, char* out, int size);

}  // namespace zephyl
