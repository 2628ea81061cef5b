#include "collections/decompositions/lu.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

constexpr double smallest_determinant = 1e-14;

double scales[MATRIX_LIMIT];  // 1 / largest magnitude of each row

// False for a row of zeros.
bool find_scales(const MatrixRecord& matrix, int n) {
  for (int row = 0; row < n; ++row) {
    double largest = 0.0;
    for (int column = 0; column < n; ++column)
      largest = std::max(largest, std::fabs(matrix.cells[row][column]));
    if (largest == 0.0) return false;
    scales[row] = 1.0 / largest;
  }
  return true;
}

// Column j of both factors: each cell less the products of the columns before.
void reduce_column(MatrixRecord& packed, int n, int j) {
  double column[MATRIX_LIMIT] = {};
  for (int i = 0; i < n; ++i) {
    const double* row = packed.cells[i];
    const int terms = std::min(i, j);
    double sum = row[j];
    for (int k = 0; k < terms; ++k) sum -= row[k] * column[k];
    packed.cells[i][j] = column[i] = sum;
  }
}

int find_pivot(const MatrixRecord& packed, int n, int j) {
  int pivot = j;
  double best = 0.0;
  for (int i = j; i < n; ++i) {
    const double size = scales[i] * std::fabs(packed.cells[i][j]);
    if (!(size >= best)) continue;
    best = size;
    pivot = i;
  }
  return pivot;
}

void exchange_rows(TLuFactors& lu, int n, int j) {
  const int pivot = lu.pivots[j];
  if (pivot == j) return;
  std::swap_ranges(lu.packed.cells[j], lu.packed.cells[j] + n, lu.packed.cells[pivot]);
  lu.determinant = -lu.determinant;
  scales[pivot] = scales[j];
}

// False for a zero on the diagonal.
bool factor_column(TLuFactors& lu, int n, int j) {
  reduce_column(lu.packed, n, j);
  lu.pivots[j] = find_pivot(lu.packed, n, j);
  exchange_rows(lu, n, j);
  const double diagonal = lu.packed.cells[j][j];
  if (diagonal == 0.0) return false;
  if (j == n - 1) return true;
  const double inverse = 1.0 / diagonal;
  for (int i = j + 1; i < n; ++i) lu.packed.cells[i][j] *= inverse;
  return true;
}

bool factor_columns(TLuFactors& lu, int n) {
  if (!find_scales(lu.packed, n)) return false;
  lu.determinant = 1.0;
  for (int j = 0; j < n; ++j)
    if (!factor_column(lu, n, j)) return false;
  for (int j = 0; j < n; ++j) lu.determinant *= lu.packed.cells[j][j];
  return !(std::fabs(lu.determinant) < smallest_determinant);
}

// Solves L y = P b; the sums start where b starts to differ from 0.
void substitute_forward(const TLuFactors& lu, int n, double* b) {
  int first = n;
  for (int i = 0; i < n; ++i) {
    double sum = b[lu.pivots[i]];
    b[lu.pivots[i]] = b[i];
    for (int k = first; k < i; ++k) sum -= lu.packed.cells[i][k] * b[k];
    if (first == n && sum != 0.0) first = i;
    b[i] = sum;
  }
}

void substitute_back(const TLuFactors& lu, int n, double* b) {
  for (int i = n - 1; i >= 0; --i) {
    double sum = b[i];
    for (int k = i + 1; k < n; ++k) sum -= lu.packed.cells[i][k] * b[k];
    b[i] = sum / lu.packed.cells[i][i];
  }
}

}  // namespace

bool factor_lu(TLuFactors& lu, const MatrixRecord& matrix) {
  const int n = row_count(matrix);
  copy_matrix(lu.packed, matrix);
  set_shape(lu.packed, n, n);
  if (factor_columns(lu, n)) return true;
  lu.determinant = 0.0;
  return false;
}

void take_lower(MatrixRecord& result, const TLuFactors& lu) {
  const int n = row_count(lu.packed);
  make_identity(result, n);
  for (int i = 0; i < n; ++i) std::copy(lu.packed.cells[i], lu.packed.cells[i] + i, result.cells[i]);
}

void take_upper(MatrixRecord& result, const TLuFactors& lu) {
  const int n = row_count(lu.packed);
  fill_matrix(result, n, n, 0.0);
  for (int i = 0; i < n; ++i) std::copy(lu.packed.cells[i] + i, lu.packed.cells[i] + n, result.cells[i] + i);
}

void take_permutation(MatrixRecord& result, const TLuFactors& lu) {
  const int n = row_count(lu.packed);
  make_identity(result, n);
  for (int i = 0; i < n; ++i)
    if (lu.pivots[i] != i) std::swap_ranges(result.cells[i], result.cells[i] + n, result.cells[lu.pivots[i]]);
}

void substitute_lu(const TLuFactors& lu, double* b) {
  const int n = row_count(lu.packed);
  substitute_forward(lu, n, b);
  substitute_back(lu, n, b);
}

bool invert(MatrixRecord& result, const MatrixRecord& matrix) {
  static TLuFactors lu;
  if (!factor_lu(lu, matrix)) return false;
  const int n = row_count(matrix);
  set_shape(result, n, n);
  for (int j = 0; j < n; ++j) {
    double column[MATRIX_LIMIT] = {};
    column[j] = 1.0;
    substitute_lu(lu, column);
    for (int i = 0; i < n; ++i) result.cells[i][j] = column[i];
  }
  return true;
}

}  // namespace zephyl
