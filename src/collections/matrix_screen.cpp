#include "collections/matrix_screen.h"

#include <algorithm>

#include "collections/matrix_view.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int LAST_TOP_ROW = MATRIX_LIMIT - MATRIX_SCREEN_ROWS;
constexpr int LAST_LEFT_COLUMN = MATRIX_LIMIT - MATRIX_SCREEN_COLUMNS;

MatrixRecord& shown_matrix() { return stores.matrices[matrix_view.current_matrix]; }
int& top_row() { return matrix_view.top_row[matrix_view.current_matrix]; }
int& left_column() { return matrix_view.left_col[matrix_view.current_matrix]; }
int& cursor_row() { return matrix_view.cursor_row[matrix_view.current_matrix]; }
int& cursor_column() { return matrix_view.cursor_col[matrix_view.current_matrix]; }

// The answer's own record is no variable that a program could roll back.
void about_to_change() {
  if (matrix_view.current_matrix != ANSWER_RECORD)
    hooks.about_to_store(SLOT_MATRIX_A + matrix_view.current_matrix);
}

void show_cursor() {
  top_row() = std::max(0, std::clamp(top_row(), cursor_row() - MATRIX_SCREEN_ROWS + 1, cursor_row()));
  left_column() =
      std::max(0, std::clamp(left_column(), cursor_column() - MATRIX_SCREEN_COLUMNS + 1, cursor_column()));
}

void begin_next_row() {
  ++cursor_row();
  cursor_column() = 0;
  left_column() = 0;
}

void move_on(const MatrixRecord& matrix) {
  if (cursor_column() < matrix.last_col)
    ++cursor_column();
  else if (cursor_row() < matrix.last_row)
    begin_next_row();
  show_cursor();
}

bool accepts_answer() { return !aggregate_answer() && is_real(answers.ans); }

}  // namespace

void scroll_matrix_rows(int rows) { top_row() = std::clamp(top_row() + rows, 0, LAST_TOP_ROW); }

void scroll_matrix_columns(int columns) {
  left_column() = std::clamp(left_column() + columns, 0, LAST_LEFT_COLUMN);
}

void matrix_cursor(int& row, int& column) {
  const MatrixRecord& matrix = shown_matrix();
  if (cursor_row() > matrix.last_row || cursor_column() > matrix.last_col) cursor_row() = cursor_column() = 0;
  row = cursor_row();
  column = cursor_column();
}

void choose_matrix_cell(int line, int column) {
  const MatrixRecord& matrix = shown_matrix();
  const int row = top_row() + line, col = left_column() + column;
  if (!matrix.defined || row > matrix.last_row || col > matrix.last_col) return;
  cursor_row() = row;
  cursor_column() = col;
}

void choose_matrix(int matrix) { matrix_view.current_matrix = matrix; }

void set_matrix_size(int rows, int columns) {
  about_to_change();
  MatrixRecord& matrix = shown_matrix();
  MatrixRecord sized;
  for (int row = 0; matrix.defined && row <= std::min(rows - 1, matrix.last_row); ++row)
    std::copy(matrix.cells[row], matrix.cells[row] + std::min(columns - 1, matrix.last_col) + 1,
              sized.cells[row]);
  matrix = sized;
  matrix.last_row = rows - 1;
  matrix.last_col = columns - 1;
  matrix.defined = true;
}

bool enter_answer_into_matrix() {
  if (errors.error_flag) return false;
  if (!accepts_answer()) {
    platform().show_message("Data type can't be inserted into a matrix.", "Matrix");
    return false;
  }
  MatrixRecord& matrix = shown_matrix();
  if (!matrix.defined) return false;
  int row, column;
  matrix_cursor(row, column);
  about_to_change();
  matrix.cells[row][column] = answers.ans.re;
  move_on(matrix);
  return true;
}

}  // namespace zephyl
