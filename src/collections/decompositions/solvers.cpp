#include "collections/decompositions/solvers.h"

#include "collections/decompositions/cholesky.h"
#include "collections/decompositions/lu.h"
#include "collections/decompositions/qr.h"
#include "collections/decompositions/svd.h"
#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

void take_right_side(const MatrixRecord& augmented, double* b) {
  for (int i = 0; i <= augmented.last_row; ++i) b[i] = augmented.cells[i][augmented.last_col];
}

void set_column(MatrixRecord& result, const double* x, int size) {
  set_shape(result, size, 1);
  for (int i = 0; i < size; ++i) result.cells[i][0] = x[i];
}

// Subtracts from x what the residual A x - b says that it's off.
void refine(const TLuFactors& lu, const MatrixRecord& augmented, double* x) {
  const int n = row_count(augmented);
  double residual[MATRIX_LIMIT];
  for (int i = 0; i < n; ++i) {
    double sum = -augmented.cells[i][n];
    for (int j = 0; j < n; ++j) sum += augmented.cells[i][j] * x[j];
    residual[i] = sum;
  }
  substitute_lu(lu, residual);
  for (int i = 0; i < n; ++i) x[i] -= residual[i];
}

}  // namespace

bool solve_lu(MatrixRecord& result, const MatrixRecord& augmented) {
  static TLuFactors lu;
  if (!factor_lu(lu, augmented)) return false;
  double x[MATRIX_LIMIT];
  take_right_side(augmented, x);
  substitute_lu(lu, x);
  refine(lu, augmented, x);
  set_column(result, x, row_count(augmented));
  return true;
}

bool solve_qr(MatrixRecord& result, const MatrixRecord& augmented) {
  static TQrFactors qr;
  const int columns = augmented.last_col;
  double x[MATRIX_LIMIT];
  take_right_side(augmented, x);
  if (columns > 0) {
    factor_qr(qr, augmented, columns);
    if (!solve_least_squares(qr, x)) return false;
  }
  set_column(result, x, columns);
  return true;
}

bool solve_cholesky(MatrixRecord& result, const MatrixRecord& augmented) {
  static MatrixRecord lower;
  if (!factor_cholesky(lower, augmented)) return false;
  double x[MATRIX_LIMIT];
  take_right_side(augmented, x);
  substitute_cholesky(lower, x);
  set_column(result, x, row_count(augmented));
  return true;
}

bool solve_svd(MatrixRecord& result, const MatrixRecord& augmented) {
  static TSvd svd;
  const int columns = augmented.last_col;
  double b[MATRIX_LIMIT], x[MATRIX_LIMIT];
  take_right_side(augmented, b);
  if (columns > 0) {
    decompose_svd(svd, augmented, columns);
    solve_by_svd(svd, b, x);
  }
  set_column(result, x, columns);
  return true;
}

}  // namespace zephyl
