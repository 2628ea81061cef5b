#include "programs/editor.h"

#include <algorithm>
#include <cstring>

#include "engine/state.h"
#include "platform/platform.h"

namespace zephyl {

ProgramStatement new_statement;
int (*rows_of_statement)(int index) = [](int) { return 1; };

namespace {

struct TCodeRow {
  int code;
  int statement;
};

constexpr TCodeRow codes[] = {
    {CODE_IF, STATEMENT_IF},
    {CODE_ELSE, STATEMENT_ELSE},
    {CODE_LOOP, STATEMENT_LOOP},
    {CODE_FUNC, STATEMENT_FUNC},
    {CODE_WHILE, STATEMENT_WHILE},
    {CODE_ERROR, STATEMENT_ERROR},
    {CODE_END, STATEMENT_END},
    {CODE_BREAK, STATEMENT_BREAK},
    {CODE_IN, STATEMENT_IN},
    {CODE_TEXT, STATEMENT_TEXT},
    {CODE_OUT, STATEMENT_OUT},
    {CODE_FOUT, STATEMENT_FOUT},
    {CODE_LABEL, STATEMENT_LABEL},
    {CODE_RETURN_SUB, STATEMENT_RETURN_SUB},
    {CODE_GOTO, STATEMENT_GOTO},
    {CODE_GOSUB, STATEMENT_GOSUB},
    {CODE_CALL, STATEMENT_CALL},
    {CODE_RETURN_CALL, STATEMENT_RETURN_CALL},
    {CODE_IN_FUNCTION, STATEMENT_IN_FUNCTION},
    {CODE_FUNCTION, STATEMENT_FUNCTION},
    {CODE_EXPRESS, STATEMENT_EXPRESS},
    {CODE_STOP, STATEMENT_STOP},
    {CODE_MENU_CLEAR, STATEMENT_MENU_CLEAR},
    {CODE_MENU_TITLE, STATEMENT_MENU_TITLE},
    {CODE_MENU_ITEM, STATEMENT_MENU_ITEM},
    {CODE_MENU_DISPLAY, STATEMENT_MENU_DISPLAY},
    {CODE_DESCRIPTION, STATEMENT_DESCRIPTION},
};

bool refuse(const char* text, const char* title = "Error") {
  platform().show_message(text, title);
  return false;
}

bool stands(int index, int number) {
  return index < program.statement_count && program.statements[index].number == number;
}

// --- Where a statement may stand

bool description_may_stand() {
  const bool first = program.cursor == 0;
  const bool behind_func = program.cursor == 1 && stands(0, STATEMENT_FUNC);
  if (first || behind_func) return true;
  return refuse(
      "A program description statement must appear on the first line of a program or the second line of a "
      "program if a function statement is on the first line.");
}

bool func_may_stand() {
  return program.cursor == 0 || refuse("A function statement must appear on the first line of a program.");
}

bool other_may_stand() {
  if (program.cursor == 0 && stands(0, STATEMENT_DESCRIPTION))
    return refuse(
        "Can't add statement here. The program description statement must appear on the first line of a "
        "program.");
  if (program.cursor == 1 && stands(0, STATEMENT_FUNC) && stands(1, STATEMENT_DESCRIPTION))
    return refuse(
        "Can't add statement here. The function statement and program description statement must appear on "
        "the first two lines of a program.");
  return true;
}

bool may_stand(int code) {
  if (program.cursor == 0 && code != CODE_FUNC && stands(0, STATEMENT_FUNC))
    return refuse(
        "Can't add statement here. The function statement must appear on the first line of a program.");
  if (code == CODE_FUNC) return (program.cursor != 1 || other_may_stand()) && func_may_stand();
  return code == CODE_DESCRIPTION ? description_may_stand() : other_may_stand();
}

bool replaces_func(int code) { return code == CODE_FUNC && stands(0, STATEMENT_FUNC); }

// --- Adding

void insert_statement(const ProgramStatement& statement) {
  ProgramStatement* const at = program.statements + program.cursor;
  std::copy_backward(at, program.statements + program.statement_count,
                     program.statements + program.statement_count + 1);
  *at = statement;
  ++program.statement_count;
  ++program.cursor;
}

void take_entry_line(ProgramStatement& statement) {
  statement.key_count = entry_line.expression.count;
  std::copy_n(entry_line.expression.tokens, statement.key_count, statement.keys);
  state.fresh_flag = true;  // the next token begins a new expression
  entry_line.cursor_shown = false;
}

// Only the operands that the statement has: files hold no others.
ProgramStatement statement_from(int code) {
  ProgramStatement statement;
  statement.number = statement_of_code(code);
  const auto uses = [&](std::initializer_list<int> numbers) {
    return std::find(numbers.begin(), numbers.end(), statement.number) != numbers.end();
  };
  if (uses({STATEMENT_IF, STATEMENT_WHILE})) {
    statement.compare = new_statement.compare;
    statement.var1 = new_statement.var1;
  }
  if (uses({STATEMENT_IF, STATEMENT_WHILE, STATEMENT_LOOP, STATEMENT_IN, STATEMENT_OUT, STATEMENT_FOUT}))
    statement.var0 = new_statement.var0;
  if (uses({STATEMENT_LABEL, STATEMENT_GOTO, STATEMENT_GOSUB, STATEMENT_MENU_ITEM}))
    statement.label = new_statement.label;
  if (uses({STATEMENT_IN_FUNCTION, STATEMENT_FUNCTION})) statement.func = new_statement.func;
  if (uses({STATEMENT_OUT})) statement.pause = new_statement.pause;
  if (uses({STATEMENT_CALL, STATEMENT_IN, STATEMENT_OUT, STATEMENT_TEXT, STATEMENT_IN_FUNCTION,
            STATEMENT_FUNC, STATEMENT_ERROR, STATEMENT_MENU_ITEM, STATEMENT_MENU_TITLE}))
    std::memcpy(statement.text, new_statement.text, sizeof statement.text);
  if (code == CODE_EXPRESS) take_entry_line(statement);
  return statement;
}

bool holds_description() {
  const ProgramStatement* const first = program.statements;
  return std::any_of(first, first + program.statement_count, [](const ProgramStatement& statement) {
    return statement.number == STATEMENT_DESCRIPTION;
  });
}

// A line break, two "~", is kept whole or not at all.
std::size_t fitting_length(const std::string& stored) {
  if (stored.size() <= STORED_DESCRIPTION_LIMIT) return stored.size();
  std::size_t text_end = STORED_DESCRIPTION_LIMIT;
  while (text_end > 0 && stored[text_end - 1] == '~') --text_end;
  return STORED_DESCRIPTION_LIMIT - (STORED_DESCRIPTION_LIMIT - text_end) % 2;
}

bool unsupported_in_functions(const ProgramStatement& statement) {
  switch (statement.number) {
    case STATEMENT_CALL:
    case STATEMENT_RETURN_CALL:
    case STATEMENT_IN:
    case STATEMENT_TEXT:
    case STATEMENT_IN_FUNCTION:
    case STATEMENT_MENU_ITEM:
    case STATEMENT_MENU_DISPLAY:
    case STATEMENT_MENU_TITLE:
    case STATEMENT_MENU_CLEAR:
      return true;
    default:
      return false;
  }
}

void note_unsupported_statements() {
  const ProgramStatement* const first = program.statements;
  if (!is_function_program() ||
      std::none_of(first, first + program.statement_count, unsupported_in_functions))
    return;
  platform().show_message(
      "The program statements Call, In, In f(), Rtn call, Text, and Menu statements are not supported in a "
      "custom function. The Out statement is supported for saving values globally but the 'Pause?' and Text "
      "'Label?' options are ignored.",
      "Program Note");
}

int rows_to_cursor() {
  int rows = 0;
  for (int index = program.top; index <= program.cursor; ++index)
    rows += index < program.statement_count ? rows_of_statement(index) : 1;
  return rows;
}

}  // namespace

int statement_of_code(int code) {
  for (const TCodeRow& row : codes)
    if (row.code == code) return row.statement;
  return -1;
}

bool can_edit_program() { return !program.built_in || refuse("A built-in program can't be edited", "Note"); }

bool can_add_statement(int code) {
  if (!can_edit_program()) return false;
  const bool full = program.statement_count >= STATEMENT_LIMIT;
  const bool only_words = code == CODE_DESCRIPTION && has_description();
  if (full && !only_words) return refuse("Reached program size limit", "Limit");
  return may_stand(code);
}

void add_statement(int code) {
  if (statement_of_code(code) < 0 || !can_add_statement(code)) return;
  if (code == CODE_EXPRESS && entry_line.expression.count == 0) return;
  if (code == CODE_DESCRIPTION && has_description()) return;
  const ProgramStatement statement = statement_from(code);
  if (replaces_func(code))
    program.statements[0] = statement;
  else
    insert_statement(statement);
  program_edited();
  follow_cursor();
  note_unsupported_statements();
}

void delete_statement() {
  if (program.cursor >= program.statement_count) return;
  ProgramStatement* const at = program.statements + program.cursor;
  std::copy(at + 1, program.statements + program.statement_count, at);
  --program.statement_count;
  if (!holds_description()) program.description[0] = 0;  // a new one begins without the old words
  if (program.cursor == program.statement_count && program.cursor > 0) --program.cursor;
  program_edited();
  follow_cursor();
}

void move_statement_cursor(int lines) { select_statement(program.cursor + lines); }

void select_statement(int index) {
  program.cursor = std::clamp(index, 0, program.statement_count);
  follow_cursor();
}

void take_expression_back() {
  if (program.cursor >= program.statement_count) return;
  const ProgramStatement& statement = program.statements[program.cursor];
  if (statement.number != STATEMENT_EXPRESS) return;
  statement_expression(statement, entry_line.expression);
  entry_line.cursor = entry_line.expression.count;
  entry_line.cursor_shown = true;
  state.fresh_flag = false;
  state.result_text[0] = 0;  // it belongs to another expression
  state.result_shown = false;
}

bool has_description() {
  return stands(0, STATEMENT_DESCRIPTION) || (stands(0, STATEMENT_FUNC) && stands(1, STATEMENT_DESCRIPTION));
}

void set_description(const std::string& stored) {
  const std::size_t length = fitting_length(stored);
  std::memcpy(program.description, stored.data(), length);
  program.description[length] = 0;
  if (has_description())
    program_edited();
  else
    add_statement(CODE_DESCRIPTION);
}

void follow_cursor() {
  program.top = std::min(program.top, program.cursor);
  while (program.top < program.cursor && rows_to_cursor() > LISTED_ROWS) ++program.top;
}

void reset_editor() { new_statement = {}; }

}  // namespace zephyl
