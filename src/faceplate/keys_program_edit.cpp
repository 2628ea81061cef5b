// The key map of program edit. The numbers that its keys give are statement codes (programs/editor.h), not
// tokens.

#include <iterator>

#include "engine/expression.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/statement_operands.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "platform/platform.h"
#include "programs/editor.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

constexpr int PAGE = 10;  // lines that the shifted cursor keys move by

int repainted(int result) {
  platform().invalidate(false);
  return result;
}

int press_program_tab(int key) {
  save_program();
  press_tab(key - 18);
  return KEY_DONE;
}

int line_up(int) {
  move_statement_cursor(-1);
  return repainted(KEY_DONE);
}

int line_down(int) {
  move_statement_cursor(1);
  return repainted(KEY_DONE);
}

int page_up(int) {
  move_statement_cursor(-PAGE);
  return repainted(KEY_CONSUMED);
}

int page_down(int) {
  move_statement_cursor(PAGE);
  return repainted(KEY_CONSUMED);
}

int delete_line(int) {
  if (can_edit_program()) delete_statement();
  return repainted(KEY_DONE);
}

int describe(int) {
  if (can_add_statement(CODE_DESCRIPTION)) edit_description();
  return repainted(KEY_DONE);
}

// The statement of a code, once its dialog has brought the operands.
int with_operands(int code, bool (*ask)()) { return can_add_statement(code) && ask() ? code : KEY_DONE; }

int condition(int key) { return with_operands(key, ask_condition); }
int loop(int) { return with_operands(CODE_LOOP, ask_loop_variable); }
int arguments(int) { return with_operands(CODE_FUNC, ask_arguments); }
int file_output(int) { return with_operands(CODE_FOUT, ask_file_variable); }
int label(int) { return with_operands(CODE_LABEL, ask_label); }
int jump(int key) { return with_operands(key, ask_label); }
int subroutine(int) { return with_operands(CODE_GOSUB, ask_label); }
int call(int) { return with_operands(CODE_CALL, ask_called_program); }
int function(int) { return with_operands(CODE_FUNCTION, ask_function); }

// A statement whose words the user writes: alpha entry adds it.
int with_text(int code, TAlphaPrompt prompt) {
  if (can_add_statement(code)) start_alpha_entry(prompt);
  return KEY_DONE;
}

// The same, where the words are wanted only if the dialog says so.
int with_wanted_text(int code, TAlphaPrompt prompt, bool (*ask)(bool& text_wanted)) {
  bool text_wanted = false;
  if (!can_add_statement(code) || !ask(text_wanted)) return KEY_DONE;
  return text_wanted ? with_text(code, prompt) : code;
}

int error_text(int) { return with_text(CODE_ERROR, ALPHA_PROGRAM_ERROR); }
int text(int) { return with_text(CODE_TEXT, ALPHA_OUTPUT_TEXT); }
int input(int) { return with_wanted_text(CODE_IN, ALPHA_INPUT_PROMPT, ask_input_variable); }
int output(int) { return with_wanted_text(CODE_OUT, ALPHA_OUTPUT_LABEL, ask_output_variable); }
int input_function(int) {
  return with_wanted_text(CODE_IN_FUNCTION, ALPHA_FUNCTION_PROMPT, ask_input_function);
}

int expression(int) { return entry_line.expression.count > 0 ? CODE_EXPRESS : KEY_DONE; }

int bring_expression_back(int) {
  take_expression_back();
  return repainted(KEY_DONE);
}

int menu_statement(int) {
  if (!can_add_statement(CODE_MENU_DISPLAY)) return KEY_DONE;  // where one may stand, all of them may
  switch (ask_menu_function()) {
    case MENU_DISPLAY:
      return CODE_MENU_DISPLAY;
    case MENU_ITEM:
      return ask_label() ? with_text(CODE_MENU_ITEM, ALPHA_MENU_ITEM) : KEY_DONE;
    case MENU_TITLE:
      return with_text(CODE_MENU_TITLE, ALPHA_MENU_TITLE);
    case MENU_CLEAR:
      return CODE_MENU_CLEAR;
    default:
      return KEY_DONE;
  }
}

// first and last key, plain, blue
constexpr TKeyRow rows[] = {
    {0, 0, action(run_or_stop_program)},
    {1, 1, action(toggle_blue)},
    {2, 2, action(line_up), action(page_up)},
    {3, 3, action(line_down), action(page_down)},
    {4, 4, action(delete_line)},
    {5, 5, action(describe)},
    {6, 6, action(condition), token(CODE_ELSE)},
    {7, 7, action(loop), action(arguments)},
    {8, 8, action(condition), action(error_text)},
    {9, 9, token(CODE_END), token(CODE_BREAK)},
    {10, 10, action(input), action(text)},
    {11, 11, action(output), action(file_output)},
    {12, 12, action(label), token(CODE_RETURN_SUB)},
    {13, 13, action(jump), action(subroutine)},
    {14, 14, action(call), token(CODE_RETURN_CALL)},
    {15, 15, action(input_function), action(function)},
    {16, 16, action(expression), action(bring_expression_back)},
    {17, 17, token(CODE_STOP), action(menu_statement)},
    {18, 23, action(press_program_tab)},
};
static_assert(names_each_key(rows, 24));

}  // namespace

const TKeyMap program_key_map = {rows, std::size(rows)};

}  // namespace zephyl
