// What the keys of the matrix screen do to the matrix it shows and to the place in it.
#pragma once

namespace zephyl {

constexpr int MATRIX_SCREEN_ROWS = 8;
constexpr int MATRIX_SCREEN_COLUMNS = 5;

// Moves the view by rows or columns, down and to the right if positive; it ends at the edges of the largest
// matrix.
void scroll_matrix_rows(int rows);
void scroll_matrix_columns(int columns);

// The cell at the cursor; one past the edge of the matrix goes back to the first.
void matrix_cursor(int& row, int& column);

// A tap on a cell of the screen, from 0: the cursor goes there if the matrix reaches so far.
void choose_matrix_cell(int line, int column);

// Shows another matrix, 0 to ANSWER_RECORD.
void choose_matrix(int matrix);

// Gives the matrix that shows these sizes, 1 to MATRIX_LIMIT each; new cells are 0.
void set_matrix_size(int rows, int columns);

// The current answer goes to the cell at the cursor, which moves on along the row and then to the next one.
// A box says why where it can't. Nothing while an error stands or the matrix is undefined. Returns whether
// it was entered.
bool enter_answer_into_matrix();

}  // namespace zephyl
