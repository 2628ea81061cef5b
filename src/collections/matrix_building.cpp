// Matrices from sizes, and from parts of others.

#include <algorithm>

#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"
#include "numerics/random.h"

namespace zephyl {

namespace {

// Copies the whole of `from` into `to` with its first cell at (row, column); the shape of `to` is not
// touched.
void place(MatrixRecord& to, const MatrixRecord& from, int row, int column) {
  for (int i = 0; i <= from.last_row; ++i)
    std::copy(from.cells[i], from.cells[i] + column_count(from), to.cells[row + i] + column);
}

// Rows and columns from two numbers of a call.
bool take_size(const TFamilyCall& call, int& rows, int& columns) {
  rows = matrix_size_of(call.numbers[0].re);
  columns = rows == 0 ? 0 : matrix_size_of(call.numbers[1].re);
  return columns > 0;
}

// Row and column of a cell from two numbers of a call, from `first` on.
bool take_position(const MatrixRecord& matrix, const TFamilyCall& call, int first, int& row, int& column) {
  row = row_index(matrix, call.numbers[first].re);
  column = row < 0 ? -1 : column_index(matrix, call.numbers[first + 1].re);
  return column >= 0;
}

bool initialized(MatrixRecord& result, const TMatrixOperands&, const TFamilyCall& call) {
  int rows = 0, columns = 0;
  if (!take_size(call, rows, columns)) return false;
  fill_matrix(result, rows, columns, call.numbers[2].re);
  return true;
}

bool random(MatrixRecord& result, const TMatrixOperands&, const TFamilyCall& call) {
  int rows = 0, columns = 0;
  if (!take_size(call, rows, columns)) return false;
  set_shape(result, rows, columns);
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j) result.cells[i][j] = static_cast<int>(19.0 * next_random()) - 9;
  return true;
}

bool identity(MatrixRecord& result, const TMatrixOperands&, const TFamilyCall& call) {
  const int size = index_of(call.numbers[0].re, MATRIX_LIMIT, ERR_MATRIX_INDEX) + 1;
  if (size == 0) return false;
  make_identity(result, size);
  return true;
}

bool resized(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  int rows = 0, columns = 0;
  if (!take_size(call, rows, columns)) return false;
  const MatrixRecord& matrix = *operands.first;
  fill_matrix(result, rows, columns, 0.0);
  for (int i = 0; i < std::min(rows, row_count(matrix)); ++i)
    std::copy(matrix.cells[i], matrix.cells[i] + std::min(columns, column_count(matrix)), result.cells[i]);
  return true;
}

bool augmented(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  const MatrixRecord &a = *operands.first, &b = *operands.second;
  const int columns = column_count(a) + column_count(b);
  if (columns > MATRIX_LIMIT) return matrix_failed(ERR_MATRIX_SIZE);
  if (a.last_row != b.last_row) return matrix_failed(ERR_MATRIX_MISMATCH);
  place(result, a, 0, 0);
  place(result, b, 0, column_count(a));
  set_shape(result, row_count(a), columns);
  return true;
}

bool stacked(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  const MatrixRecord &a = *operands.first, &b = *operands.second;
  const int rows = row_count(a) + row_count(b);
  if (rows > MATRIX_LIMIT) return matrix_failed(ERR_MATRIX_SIZE);
  if (a.last_col != b.last_col) return matrix_failed(ERR_MATRIX_MISMATCH);
  place(result, a, 0, 0);
  place(result, b, row_count(a), 0);
  set_shape(result, rows, column_count(a));
  return true;
}

bool part_of(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  const MatrixRecord& matrix = *operands.first;
  int top = 0, left = 0, bottom = 0, right = 0;
  if (!take_position(matrix, call, 0, top, left) || !take_position(matrix, call, 2, bottom, right))
    return false;
  if (top > bottom) std::swap(top, bottom);
  if (left > right) std::swap(left, right);
  set_shape(result, bottom - top + 1, right - left + 1);
  for (int i = top; i <= bottom; ++i)
    std::copy(matrix.cells[i] + left, matrix.cells[i] + right + 1, result.cells[i - top]);
  return true;
}

bool replaced(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  const MatrixRecord& inner = *operands.second;
  int row = 0, column = 0;
  copy_matrix(result, *operands.first);
  if (!take_position(result, call, 0, row, column)) return false;
  if (row + inner.last_row > result.last_row || column + inner.last_col > result.last_col)
    return matrix_failed(ERR_MATRIX_SIZE);
  place(result, inner, row, column);
  return true;
}

bool with_element(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  int row = 0, column = 0;
  copy_matrix(result, *operands.first);
  if (!take_position(result, call, 0, row, column)) return false;
  result.cells[row][column] = call.numbers[2].re;
  return true;
}

bool diagonal(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  const MatrixRecord& matrix = *operands.first;
  if (!is_square(matrix)) return matrix_failed(ERR_NOT_SQUARE);
  set_shape(result, 1, column_count(matrix));
  for (int i = 0; i <= matrix.last_row; ++i) result.cells[0][i] = matrix.cells[i][i];
  return true;
}

}  // namespace

void register_matrix_building() {
  const TMatrixRow rows[] = {{OP_INIT_MATRIX, matrix_of<initialized>}, {OP_RAND_MATRIX, matrix_of<random>},
                             {OP_IDEN, matrix_of<identity>},           {OP_RESIZE, matrix_of<resized>},
                             {OP_AUGMENT, matrix_of<augmented>},       {OP_STACK, matrix_of<stacked>},
                             {OP_SUB_MATRIX, matrix_of<part_of>},      {OP_REPLACE, matrix_of<replaced>},
                             {OP_PUT_ELEM, matrix_of<with_element>},   {OP_DIAG, matrix_of<diagonal>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
