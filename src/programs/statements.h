// What each statement does. A handler gets the statement at run.part.pc and gives the index of the next one:
// that may lie outside of the program, which ends it, as END_OF_PROGRAM does.
#pragma once

#include "engine/errors.h"
#include "programs/program.h"

namespace zephyl {

constexpr int END_OF_PROGRAM = -1;

using TStatementHandler = int (*)(const ProgramStatement& statement);

// The handler of a statement number; that of the empty rows for all numbers without one.
TStatementHandler statement_handler(int number);

// Blocks.
int run_if(const ProgramStatement& statement);
int run_else(const ProgramStatement& statement);
int run_while(const ProgramStatement& statement);
int run_loop(const ProgramStatement& statement);
int run_end(const ProgramStatement& statement);
int run_break(const ProgramStatement& statement);

// Jumps, subroutines and calls.
int run_goto(const ProgramStatement& statement);
int run_gosub(const ProgramStatement& statement);
int run_return_sub(const ProgramStatement& statement);
int run_call(const ProgramStatement& statement);
int run_return_call(const ProgramStatement& statement);
int run_stop(const ProgramStatement& statement);
// By the rule of `goto`: to the first label of the number.
int jump_to_label(int label);
// Back to the caller; there must be one.
int return_to_caller();

// Expressions.
int run_express(const ProgramStatement& statement);
int run_function_statement(const ProgramStatement& statement);
int run_error(const ProgramStatement& statement);

// Input and output.
int run_in(const ProgramStatement& statement);
int run_in_function(const ProgramStatement& statement);
int run_out(const ProgramStatement& statement);
int run_fout(const ProgramStatement& statement);
int run_text(const ProgramStatement& statement);

// Menus and the description.
int run_menu_item(const ProgramStatement& statement);
int run_menu_title(const ProgramStatement& statement);
int run_menu_clear(const ProgramStatement& statement);
int run_menu_display(const ProgramStatement& statement);
int run_description(const ProgramStatement& statement);

// The statement after the current one.
int next_statement();
// Reports the error of a statement that can't go on, with a box where somebody sees it. Gives END_OF_PROGRAM.
int fail_statement(const char* box_text, const char* box_title, TError error);
int fail_in_code(const char* box_text);   // ERR_PROGRAM_CODE, under "Program Error"
int fail_at_limit(const char* box_text);  // ERR_MEMORY_LIMIT, under "Limit"

}  // namespace zephyl
