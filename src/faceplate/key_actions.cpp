#include "faceplate/key_actions.h"

#include "collections/list_screen.h"
#include "collections/matrix_screen.h"
#include "engine/calculator.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/catalog/function_catalog.h"
#include "faceplate/catalog/variable_catalog.h"
#include "faceplate/dialogs/clear_items.h"
#include "faceplate/dialogs/select_variable.h"
#include "faceplate/indicators.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "faceplate/result_line_view.h"
#include "programs/programs.h"
#include "stats/stats.h"

namespace zephyl {

int enter_key_number(int key) { return key; }

int do_nothing(int) { return KEY_DONE; }

int toggle_orange(int) {
  state.orange_shift = !state.orange_shift;
  state.blue_shift = false;
  redraw_part(PART_ORANGE);
  redraw_part(PART_BLUE);
  return KEY_CONSUMED;
}

int toggle_blue(int) {
  state.blue_shift = !state.blue_shift;
  state.orange_shift = false;
  redraw_part(PART_ORANGE);
  redraw_part(PART_BLUE);
  return KEY_CONSUMED;
}

int delete_at_cursor(int) {
  delete_token();
  return KEY_DONE;
}

int move_left(int) {
  cursor_left(state.blue_shift);
  return KEY_DONE;
}

int move_right(int) {
  cursor_right(state.blue_shift);
  return KEY_DONE;
}

int evaluate(int) {
  evaluate_expression(false);
  return KEY_DONE;
}

namespace {

// A table takes the expression with its value: the next one begins on an empty line.
void end_entry(bool entered) {
  if (!entered) return;
  clear_entry_line();
  hooks.draw_expression(true);
}

void enter_answer() {
  switch (state.calcMode == COMP_MODE ? state.dynamic_mode : state.calcMode) {
    case MATRIX_MODE:
      return end_entry(enter_answer_into_matrix());
    case LIST_MODE:
      return end_entry(enter_answer_into_list());
    default:
      enter_answer_into_stats();
  }
}

}  // namespace

int evaluate_and_enter(int) {
  if (evaluate_expression(false)) enter_answer();
  return KEY_DONE;
}

int all_clear(int) {
  clear_calculator(true);
  return KEY_DONE;
}

int scroll_left(int) {
  scroll_result_left();
  return KEY_DONE;
}

int scroll_right(int) {
  scroll_result_right();
  return KEY_DONE;
}

int remove_last_stats_entry(int) {
  delete_last_stats_row();
  return KEY_DONE;
}

int recall_variable(int) {
  bool by_value = false;
  const int chosen = choose_recall_variable(by_value);
  if (chosen == NO_VARIABLE) return KEY_DONE;
  if (by_value && chosen < SLOT_MATRIX_A) {
    insert_variable_value(chosen);
    return KEY_DONE;
  }
  return chosen < SLOT_COUNT ? recall_token(chosen) : chosen;
}

int store_variable(int) {
  const int slot = choose_store_variable();
  return slot == NO_VARIABLE ? KEY_DONE : store_token(slot);
}

int choose_items_to_clear(int) {
  show_items_to_clear();
  return KEY_DONE;
}

int run_or_stop_program(int) {
  run_key_pressed();
  return KEY_DONE;
}

int press_calculator_tab(int key) {
  press_tab(key - 43);
  return KEY_DONE;
}

int enter_catalog_function(int) {
  const int token = select_function();
  return token == NO_FUNCTION_TOKEN ? KEY_DONE : token;
}

int enter_system_variable(int) {
  const int token = select_system_variable();
  return token == NO_VARIABLE_TOKEN ? KEY_DONE : token;
}

}  // namespace zephyl
