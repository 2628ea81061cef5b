// The dialogs that ask for the operands of a statement. Each fills them into new_statement (editor.h) and opens on what
// was chosen last; all return false on Cancel, with nothing changed.
#pragma once

namespace zephyl {

// "Select Label", of `label`, `goto`, `gosub` and menu items.
bool ask_label();
// "Select Conditional", of `if` and `while`.
bool ask_condition();
// "Select Variable", of `in`; custom_prompt: a text is wanted too. Without one the text is empty.
bool ask_input_variable(bool& custom_prompt);
// Of `out`: the answer or a variable, and whether to pause; text_label: a text is wanted too.
bool ask_output_variable(bool& text_label);
// Of `fout`: the answer or a variable.
bool ask_file_variable();
// Of `loop`.
bool ask_loop_variable();
// "Select Function", of `f()`; and of `in f()`, with its prompt.
bool ask_function();
bool ask_input_function(bool& custom_prompt);
// "Select Program to Call".
bool ask_called_program();
// "Custom Function Arguments", of `func(`.
bool ask_arguments();

// "Select Menu Function": the row, by TMenuFunction; -1 on Cancel.
enum TMenuFunction { MENU_DISPLAY = 0, MENU_ITEM, MENU_TITLE, MENU_CLEAR };
int ask_menu_function();

// "Program Description": edits the description of the program in memory and adds its statement.
void edit_description();

void reset_statement_dialogs();

}  // namespace zephyl
