#include "faceplate/program_edit.h"

#include <cstdio>
#include <string>

#include "engine/errors.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/edit_program.h"
#include "faceplate/dialogs/statement_rows.h"
#include "faceplate/modes.h"
#include "faceplate/program_list.h"
#include "platform/platform.h"
#include "programs/editor.h"
#include "programs/open_program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

TEditChoice copied;  // what a copy under a new name is made of

void name_program(const char* name) {
  std::snprintf(program.name, sizeof program.name, "%s", name);
  program.built_in = false;
}

void show_editor() {
  follow_cursor();
  show_mode(PROGRAM_EDIT_MODE);
}

// False where the program can't be read: a box has told it, and no error is left to shut the keys.
bool opened(const TEditChoice& choice) {
  if (open_program(choice)) return true;
  clear_error();
  platform().invalidate(false);
  return false;
}

void edit(const TEditChoice& choice) {
  if (!opened(choice)) return;
  return_to_place();
  show_editor();
}

void start_entry(int kind) {
  if (state.calcMode == PLOT_MODE) set_mode(COMP_MODE, false);
  start_alpha_entry(kind);
}

bool is_open(const std::string& name) {
  return state.calcMode == PROGRAM_EDIT_MODE && !program.built_in && name == program.name;
}

void remove(const TEditChoice& choice) {
  if (choice.built_in) return platform().show_message("A built-in program can't be deleted", "Note");
  const std::string question = "Delete program: " + choice.name + "?";
  if (!platform().ask_question(question.c_str(), "Delete Program?")) return;
  delete_program(choice.name);
  forget_programs();
  if (!is_open(choice.name)) return;
  clear_program();
  name_program("");
  set_mode(COMP_MODE, false);
}

bool name_in_use(const char* name) {
  if (!program_exists(name)) return false;
  platform().show_message("Program name in use", "Error");
  return true;
}

// Of ALPHA_NEW_PROGRAM.
bool make_program(int, const char* name) {
  if (name_in_use(name)) return false;
  clear_program();
  name_program(name);
  program_edited();
  save_program();
  show_editor();
  return true;
}

// Of ALPHA_COPY_PROGRAM. The copy of a built-in program is one that can be edited.
bool copy_program(int, const char* name) {
  if (name_in_use(name)) return false;
  const TProgram before = program;
  if (!opened(copied)) return true;
  name_program(name);
  program_edited();
  save_program();
  if (state.calcMode == PROGRAM_EDIT_MODE)
    show_editor();
  else
    program = before;
  return true;
}

// Of the kinds that belong to a statement.
bool add_text_statement(int kind, const char* text) {
  set_statement_text(text);
  add_edited_statement(alpha_statement_code(kind));
  return true;
}

}  // namespace

void enter_program_edit() {
  if (state.program_running) return;
  TEditChoice choice;
  if (!select_program_to_edit(choice)) return;
  if (choice.action == NEW_PROGRAM) return start_entry(ALPHA_NEW_PROGRAM);
  if (choice.name.empty()) return;
  switch (choice.action) {
    case EDIT_PROGRAM:
      return edit(choice);
    case COPY_PROGRAM:
      copied = choice;
      return start_entry(ALPHA_COPY_PROGRAM);
    default:
      return remove(choice);
  }
}

void add_edited_statement(int code) {
  add_statement(code);
  platform().invalidate(false);
}

void register_program_edit() {
  set_alpha_taker(ALPHA_NEW_PROGRAM, make_program);
  set_alpha_taker(ALPHA_COPY_PROGRAM, copy_program);
  for (const int kind : {ALPHA_INPUT_PROMPT, ALPHA_OUTPUT_LABEL, ALPHA_OUTPUT_TEXT, ALPHA_FUNCTION_PROMPT,
                         ALPHA_MENU_ITEM, ALPHA_MENU_TITLE, ALPHA_PROGRAM_ERROR})
    set_alpha_taker(kind, add_text_statement);
  register_program_list();
}

}  // namespace zephyl
