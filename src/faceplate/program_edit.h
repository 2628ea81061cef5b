// How the user gets into program edit, and the texts that its statements ask for.
#pragma once

namespace zephyl {

// Asks which program to edit, to make, to copy or to delete, and does it. Nothing while a program runs.
void enter_program_edit();

// Adds a statement (editor.h: TStatementCode) and shows the list.
void add_edited_statement(int code);

// The texts of alpha entry that become programs and statements.
void register_program_edit();

}  // namespace zephyl
