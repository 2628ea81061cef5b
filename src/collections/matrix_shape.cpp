#include "collections/matrix_shape.h"

#include <algorithm>

namespace zephyl {

void set_shape(MatrixRecord& matrix, int rows, int columns) {
  matrix.defined = rows > 0 && columns > 0;
  matrix.last_row = matrix.defined ? rows - 1 : 0;
  matrix.last_col = matrix.defined ? columns - 1 : 0;
}

void fill_matrix(MatrixRecord& matrix, int rows, int columns, double value) {
  set_shape(matrix, rows, columns);
  for (int row = 0; row < rows; ++row) std::fill(matrix.cells[row], matrix.cells[row] + columns, value);
}

void make_identity(MatrixRecord& matrix, int size) {
  fill_matrix(matrix, size, size, 0.0);
  for (int i = 0; i < size; ++i) matrix.cells[i][i] = 1.0;
}

bool is_symmetric(const MatrixRecord& matrix, int size) {
  for (int row = 0; row < size; ++row)
    for (int column = 0; column < row; ++column)
      if (matrix.cells[row][column] != matrix.cells[column][row]) return false;
  return true;
}

}  // namespace zephyl
