#include "collections/decompositions/cholesky.h"

#include <cmath>

#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

// Cell (i, j) less the products of the columns of L before i.
double reduced_cell(const MatrixRecord& lower, double cell, int i, int j) {
  for (int k = 0; k < i; ++k) cell -= lower.cells[i][k] * lower.cells[j][k];
  return cell;
}

}  // namespace

bool factor_cholesky(MatrixRecord& result, const MatrixRecord& matrix) {
  const int n = row_count(matrix);
  fill_matrix(result, n, n, 0.0);
  for (int i = 0; i < n; ++i) {
    const double square = reduced_cell(result, matrix.cells[i][i], i, i);
    if (!(square > 0.0)) return false;
    const double diagonal = result.cells[i][i] = std::sqrt(square);
    for (int j = i + 1; j < n; ++j)
      result.cells[j][i] = reduced_cell(result, matrix.cells[i][j], i, j) / diagonal;
  }
  return true;
}

void substitute_cholesky(const MatrixRecord& lower, double* b) {
  const int n = row_count(lower);
  for (int i = 0; i < n; ++i) {
    for (int k = 0; k < i; ++k) b[i] -= lower.cells[i][k] * b[k];
    b[i] /= lower.cells[i][i];
  }
  for (int i = n - 1; i >= 0; --i) {
    for (int k = i + 1; k < n; ++k) b[i] -= lower.cells[k][i] * b[k];
    b[i] /= lower.cells[i][i];
  }
}

}  // namespace zephyl
