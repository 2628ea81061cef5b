// The key map of MATRIX_MODE and LIST_MODE: one screen, on which a list has no use for the keys of columns.

#include <iterator>

#include "collections/list_screen.h"
#include "collections/matrix_screen.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/dialogs/table_size.h"
#include "faceplate/dialogs/table_variable.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int FIRST_CELL = 32;
constexpr int CELLS_A_LINE = 5;
constexpr int FIRST_VARIABLE = 21;
constexpr int ANSWER_KEY = 31;
constexpr int LINES = MATRIX_SCREEN_ROWS;

bool shows_matrix() { return state.calcMode == MATRIX_MODE; }

int repaint() {
  platform().invalidate(false);
  return KEY_DONE;
}

int press_table_tab(int key) {
  press_tab(key);
  return KEY_DONE;
}

// An expression can change what the table shows.
int evaluate_here(int key) {
  evaluate(key);
  return repaint();
}

int evaluate_and_enter_here(int key) {
  evaluate_and_enter(key);
  return repaint();
}

int scroll_rows(int rows) {
  shows_matrix() ? scroll_matrix_rows(rows) : scroll_list(rows);
  return repaint();
}

// A list has one column.
int scroll_columns(int columns) {
  if (!shows_matrix()) return KEY_DONE;
  scroll_matrix_columns(columns);
  return repaint();
}

int page_left(int) { return scroll_columns(-MATRIX_SCREEN_COLUMNS); }
int page_right(int) { return scroll_columns(MATRIX_SCREEN_COLUMNS); }
int page_up(int) { return scroll_rows(-LINES); }
int page_down(int) { return scroll_rows(LINES); }
int step_left(int) { return scroll_columns(-1); }
int step_right(int) { return scroll_columns(1); }
int step_up(int) { return scroll_rows(-1); }
int step_down(int) { return scroll_rows(1); }

int choose_size(int) {
  shows_matrix() ? show_matrix_size() : show_list_size();
  return repaint();
}

int enter_variable(int) {
  const int token = shows_matrix() ? choose_matrix_token() : choose_list_token();
  return token < 0 ? KEY_DONE : token;
}

int choose_variable(int key) {
  const int variable = key == ANSWER_KEY ? ANSWER_RECORD : key - FIRST_VARIABLE;
  shows_matrix() ? choose_matrix(variable) : choose_list(variable);
  return repaint();
}

int choose_cell(int key) {
  const int line = (key - FIRST_CELL) / CELLS_A_LINE, column = (key - FIRST_CELL) % CELLS_A_LINE;
  shows_matrix() ? choose_matrix_cell(line, column) : choose_list_line(line);
  return repaint();
}

constexpr TKeyRow rows[] = {
    {0, 5, action(press_table_tab)},
    {6, 6, action(enter_catalog_function, IDLE_ONLY)},
    {7, 7, action(evaluate_here, IDLE_ONLY)},
    {8, 8, action(choose_size, IDLE_ONLY)},
    {9, 9, action(enter_variable, IDLE_ONLY)},
    {10, 10, action(evaluate_and_enter_here, IDLE_ONLY)},
    {11, 11, action(page_left)},
    {12, 12, action(page_right)},
    {13, 13, action(page_up)},
    {14, 14, action(page_down)},
    {15, 15, action(step_left)},
    {16, 16, action(step_right)},
    {17, 17, action(step_up)},
    {18, 18, action(step_down)},
    {19, 19, action(scroll_left)},
    {20, 20, action(scroll_right)},
    {21, 31, action(choose_variable)},
    {32, 71, action(choose_cell)},
};
static_assert(names_each_key(rows, 72));

}  // namespace

const TKeyMap table_key_map = {rows, std::size(rows)};

}  // namespace zephyl
