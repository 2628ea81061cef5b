#include "programs/statement_text.h"

#include "engine/errors.h"
#include "engine/memory.h"
#include "engine/tokens.h"
#include "programs/function_header.h"
#include "programs/program.h"

namespace zephyl {

namespace {

struct TWordRow {
  int number;
  const char* word;
};

constexpr TWordRow word_rows[] = {{STATEMENT_IF, "if"},
                                  {STATEMENT_END, "end"},
                                  {STATEMENT_ELSE, "else"},
                                  {STATEMENT_WHILE, "while"},
                                  {STATEMENT_LOOP, "loop"},
                                  {STATEMENT_CALL, "call"},
                                  {STATEMENT_RETURN_CALL, "return call"},
                                  {STATEMENT_LABEL, "label"},
                                  {STATEMENT_GOTO, "goto"},
                                  {STATEMENT_IN, "in"},
                                  {STATEMENT_OUT, "out"},
                                  {STATEMENT_STOP, "stop"},
                                  {STATEMENT_TEXT, "text"},
                                  {STATEMENT_FOUT, "fout"},
                                  {STATEMENT_FUNC, "func("},
                                  {STATEMENT_ERROR, "error"},
                                  {STATEMENT_BREAK, "break"},
                                  {STATEMENT_GOSUB, "gosub"},
                                  {STATEMENT_RETURN_SUB, "return sub"},
                                  {STATEMENT_MENU_ITEM, "Menu"},
                                  {STATEMENT_MENU_DISPLAY, "Menu Display"},
                                  {STATEMENT_MENU_TITLE, "Menu"},
                                  {STATEMENT_MENU_CLEAR, "Menu Clear"},
                                  {STATEMENT_DESCRIPTION, "Program Description"}};

std::string word_of(int number) {
  for (const TWordRow& row : word_rows)
    if (row.number == number) return row.word;
  return "";
}

constexpr const char* compare_words[] = {"=", "<>", "<", ">", ">=", "<="};
static_assert(sizeof compare_words / sizeof compare_words[0] == COMPARE_COUNT);

std::string compare_word(int compare) {
  return compare >= 0 && compare < COMPARE_COUNT ? compare_words[compare] : "?";
}

std::string quoted_text(const ProgramStatement& statement) {
  return std::string("\"") + statement.text + '"';
}

std::string with_text(const std::string& words, const ProgramStatement& statement) {
  return statement.text[0] ? words + ", " + quoted_text(statement) : words;
}

// A slot from a file may be none: the listing says so, and reports nothing.
std::string name_of(int slot, TNameForm form) {
  return slot_class(slot) == CLASS_NONE ? "Error" : slot_name(slot, form == NAMES_IN_WORDS);
}

std::string operand_name(int slot, TNameForm form) {
  if (slot == OPERAND_ZERO) return "0";
  return slot == OPERAND_ANSWER ? "Ans" : name_of(slot, form);
}

std::string condition_text(const ProgramStatement& statement, TNameForm form) {
  return word_of(statement.number) + " (" + operand_name(left_operand(statement), form) + ' ' +
         compare_word(statement.compare) + ' ' + operand_name(right_operand(statement), form) + ')';
}

bool opens_block(int number) {
  return number == STATEMENT_IF || number == STATEMENT_WHILE || number == STATEMENT_LOOP;
}

// The statement that the `end` at an index closes; null for none.
const ProgramStatement* opener_of(int index) {
  int depth = 0;
  for (int i = index - 1; i >= 0; --i) {
    const int number = program.statements[i].number;
    if (number == STATEMENT_END) ++depth;
    if (opens_block(number) && depth-- == 0) return &program.statements[i];
  }
  return nullptr;
}

std::string loop_text(const ProgramStatement& statement, TNameForm form) {
  return word_of(STATEMENT_LOOP) + ' ' + name_of(statement.var0, form);
}

std::string end_text(int index, TNameForm form) {
  const ProgramStatement* const opener = opener_of(index);
  const std::string head = word_of(STATEMENT_END) + ' ';
  if (!opener) return head + '?';
  return head + (opener->number == STATEMENT_LOOP ? loop_text(*opener, form) : word_of(opener->number));
}

std::string out_text(const ProgramStatement& statement, TNameForm form) {
  const std::string words = word_of(statement.number) + ' ' + operand_name(left_operand(statement), form);
  return with_text(statement.pause ? words + " (p)" : words, statement);
}

std::string function_name(const ProgramStatement& statement) {
  return 'f' + std::to_string(statement.func + 1) + "()";
}

std::string func_text(const ProgramStatement& statement, TNameForm form) {
  TFunctionHeader header;
  read_argument_slots(statement.text, header);
  std::string text = word_of(STATEMENT_FUNC);
  if (header.count == 0) return text + "no arguments)";
  for (int i = 0; i < header.count; ++i) text += (i ? "," : "") + name_of(header.slots[i], form);
  return text + ')';
}

std::string express_text(const ProgramStatement& statement) {
  constexpr int text_size = 4000;
  static char text[text_size];
  TExpression expression;
  statement_expression(statement, expression);
  expression_text(expression, text, text_size);
  return text;
}

std::string words_of_statement(int index, TNameForm form) {
  const ProgramStatement& statement = program.statements[index];
  const std::string word = word_of(statement.number);
  switch (statement.number) {
    case STATEMENT_IF:
    case STATEMENT_WHILE:
      return condition_text(statement, form);
    case STATEMENT_END:
      return end_text(index, form);
    case STATEMENT_LOOP:
      return loop_text(statement, form);
    case STATEMENT_CALL:
      return word + ' ' + statement.text;
    case STATEMENT_LABEL:
      return word + ' ' + name_of(label_slot(statement), form);
    case STATEMENT_GOTO:
    case STATEMENT_GOSUB:
      return word + " label " + name_of(label_slot(statement), form);
    case STATEMENT_IN:
      return with_text(word + ' ' + name_of(statement.var0, form), statement);
    case STATEMENT_OUT:
      return out_text(statement, form);
    case STATEMENT_FOUT:
      return word + ' ' + operand_name(left_operand(statement), form);
    case STATEMENT_IN_FUNCTION:
      return with_text("in " + function_name(statement), statement);
    case STATEMENT_FUNCTION:
      return function_name(statement);
    case STATEMENT_FUNC:
      return func_text(statement, form);
    case STATEMENT_TEXT:
    case STATEMENT_ERROR:
    case STATEMENT_MENU_TITLE:
      return word + ' ' + quoted_text(statement);
    case STATEMENT_MENU_ITEM:
      return word + ' ' + name_of(label_slot(statement), form) + ", " + quoted_text(statement);
    case STATEMENT_EXPRESS:
      return express_text(statement);
    default:
      return word;
  }
}

}  // namespace

std::string statement_number_text(int index) { return std::to_string(index + 1) + ": "; }

std::string statement_text(int index, TNameForm form) {
  if (index < 0 || index >= program.statement_count) return "";
  return statement_number_text(index) + words_of_statement(index, form);
}

}  // namespace zephyl
