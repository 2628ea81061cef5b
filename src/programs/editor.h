// The program editor: what its keys do to the program in memory. The screen that lists the program is the
// faceplate's.
#pragma once

#include <string>

#include "persistence/text_file.h"
#include "programs/program.h"

namespace zephyl {

// Bytes of a description as it is stored: a longer line, "Z: " with it, would end the file.
constexpr std::size_t STORED_DESCRIPTION_LIMIT = LINE_LIMIT - 1 - 3;

// The codes that the keys of program edit give, and the statement of each; a code above 100 is that of a
// shifted key.
enum TStatementCode {
  CODE_IF = 6,
  CODE_ELSE = 106,
  CODE_LOOP = 7,
  CODE_FUNC = 107,
  CODE_WHILE = 8,
  CODE_ERROR = 108,
  CODE_END = 9,
  CODE_BREAK = 109,
  CODE_IN = 10,
  CODE_TEXT = 110,
  CODE_OUT = 11,
  CODE_FOUT = 111,
  CODE_LABEL = 12,
  CODE_RETURN_SUB = 112,
  CODE_GOTO = 13,
  CODE_GOSUB = 113,
  CODE_CALL = 14,
  CODE_RETURN_CALL = 114,
  CODE_IN_FUNCTION = 15,
  CODE_FUNCTION = 115,
  CODE_EXPRESS = 16,
  CODE_STOP = 17,
  CODE_MENU_CLEAR = 117,
  CODE_MENU_TITLE = 217,
  CODE_MENU_ITEM = 317,
  CODE_MENU_DISPLAY = 417,
  CODE_DESCRIPTION = 535
};

// The number of the statement that a code adds; -1 for a code without one.
int statement_of_code(int code);

// The operands of the statement being added; the dialogs fill them in and open on what was chosen last.
extern ProgramStatement new_statement;

// Whether a statement of that code may stand at the cursor; if not, a box has said why. Also false, with its
// box, for a built-in program and for one of 99 statements.
bool can_add_statement(int code);

// Adds the statement with the operands of new_statement in front of the cursor's, if it may stand there. An
// expression comes from the entry line. A `func(` replaces one that is there; a second description is
// dropped.
void add_statement(int code);

// "A built-in program can't be edited" for one of those; true if the program may be changed.
bool can_edit_program();

void delete_statement();
// lines: to move the cursor by, negative upwards. It stops at the first statement and behind the last.
void move_statement_cursor(int lines);
void select_statement(int index);

// The expression of an `<express>` statement at the cursor goes to the entry line; nothing for another
// statement.
void take_expression_back();

// Has the description been put in already? Then its key edits it.
bool has_description();
// Puts a stored description into the program, and its statement if it isn't there. Of a longer one than
// STORED_DESCRIPTION_LIMIT so much as fits.
void set_description(const std::string& stored);

// --- What the list shows

constexpr int LISTED_ROWS = 8;
// Screen rows that a statement takes, 1 or more; the faceplate tells, for it knows the widths.
extern int (*rows_of_statement)(int index);
// Keeps the cursor in view.
void follow_cursor();

void reset_editor();

}  // namespace zephyl
