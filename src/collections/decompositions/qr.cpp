#include "collections/decompositions/qr.h"

#include "collections/decompositions/hypot2.h"
#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

// Makes column k the reflector that clears it below the diagonal. Returns its length, with the sign of the
// cell on the diagonal.
double make_reflector(MatrixRecord& packed, int k) {
  double length = 0.0;
  for (int i = k; i <= packed.last_row; ++i) length = hypot2(length, packed.cells[i][k]);
  if (length == 0.0) return 0.0;
  if (packed.cells[k][k] < 0.0) length = -length;
  for (int i = k; i <= packed.last_row; ++i) packed.cells[i][k] /= length;
  packed.cells[k][k] += 1.0;
  return length;
}

// Applies the reflector in column k of `packed` to the columns of `target` from `first` on.
void reflect_columns(const MatrixRecord& packed, int k, MatrixRecord& target, int first) {
  double products[MATRIX_LIMIT] = {};
  for (int i = k; i <= packed.last_row; ++i)
    for (int j = first; j <= target.last_col; ++j) products[j] += packed.cells[i][k] * target.cells[i][j];
  for (int j = first; j <= target.last_col; ++j) products[j] = -products[j] / packed.cells[k][k];
  for (int i = k; i <= packed.last_row; ++i) {
    const double factor = packed.cells[i][k];
    for (int j = first; j <= target.last_col; ++j) target.cells[i][j] += products[j] * factor;
  }
}

void reflect_vector(const MatrixRecord& packed, int k, double* b) {
  double product = 0.0;
  for (int i = k; i <= packed.last_row; ++i) product += packed.cells[i][k] * b[i];
  product = -product / packed.cells[k][k];
  for (int i = k; i <= packed.last_row; ++i) b[i] += product * packed.cells[i][k];
}

bool has_zero(const double* numbers, int count) {
  for (int i = 0; i < count; ++i)
    if (numbers[i] == 0.0) return true;
  return false;
}

}  // namespace

void factor_qr(TQrFactors& qr, const MatrixRecord& matrix, int columns) {
  copy_matrix(qr.packed, matrix);
  set_shape(qr.packed, row_count(matrix), columns);
  for (int k = 0; k < columns; ++k) {
    const double length = make_reflector(qr.packed, k);
    if (length != 0.0) reflect_columns(qr.packed, k, qr.packed, k + 1);
    qr.r_diag[k] = -length;
  }
}

void take_q(MatrixRecord& result, const TQrFactors& qr) {
  fill_matrix(result, row_count(qr.packed), column_count(qr.packed), 0.0);
  for (int k = qr.packed.last_col; k >= 0; --k) {
    result.cells[k][k] = 1.0;
    if (qr.packed.cells[k][k] != 0.0) reflect_columns(qr.packed, k, result, k);
  }
}

void take_r(MatrixRecord& result, const TQrFactors& qr) {
  const int n = column_count(qr.packed);
  fill_matrix(result, n, n, 0.0);
  for (int i = 0; i < n; ++i) {
    result.cells[i][i] = qr.r_diag[i];
    for (int j = i + 1; j < n; ++j) result.cells[i][j] = qr.packed.cells[i][j];
  }
}

bool solve_least_squares(const TQrFactors& qr, double* b) {
  const int n = column_count(qr.packed);
  if (has_zero(qr.r_diag, n)) return false;
  for (int k = 0; k < n; ++k) reflect_vector(qr.packed, k, b);
  for (int k = n - 1; k >= 0; --k) {
    b[k] /= qr.r_diag[k];
    for (int i = 0; i < k; ++i) b[i] -= b[k] * qr.packed.cells[i][k];
  }
  return true;
}

}  // namespace zephyl
