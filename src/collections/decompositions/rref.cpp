#include "collections/decompositions/rref.h"

#include <algorithm>

#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

// Brings the first row from r on that has a nonzero cell in column c to r. False if there is none.
bool bring_pivot(MatrixRecord& matrix, int r, int c) {
  int row = r;
  while (row <= matrix.last_row && matrix.cells[row][c] == 0.0) ++row;
  if (row > matrix.last_row) return false;
  if (row != r) std::swap_ranges(matrix.cells[r], matrix.cells[r] + column_count(matrix), matrix.cells[row]);
  return true;
}

void scale_row(MatrixRecord& matrix, int r, double pivot) {
  if (pivot == 1.0) return;
  const double factor = 1.0 / pivot;
  for (int j = 0; j <= matrix.last_col; ++j) matrix.cells[r][j] *= factor;
}

void clear_column(MatrixRecord& matrix, int r, int c) {
  for (int i = 0; i <= matrix.last_row; ++i) {
    const double factor = -matrix.cells[i][c];
    if (i == r || factor == 0.0) continue;
    for (int j = 0; j <= matrix.last_col; ++j) matrix.cells[i][j] += factor * matrix.cells[r][j];
  }
}

}  // namespace

void reduce_rows(MatrixRecord& matrix) {
  int r = 0;
  for (int c = 0; r <= matrix.last_row && c <= matrix.last_col; ++c) {
    if (!bring_pivot(matrix, r, c)) continue;
    scale_row(matrix, r, matrix.cells[r][c]);
    clear_column(matrix, r, c);
    ++r;
  }
}

}  // namespace zephyl
