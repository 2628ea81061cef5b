// The operations that rest on a decomposition: which sizes each takes, and what it reports where its method
// fails.

#include <algorithm>
#include <cmath>

#include "collections/decompositions/cholesky.h"
#include "collections/decompositions/eigen.h"
#include "collections/decompositions/lu.h"
#include "collections/decompositions/qr.h"
#include "collections/decompositions/rref.h"
#include "collections/decompositions/solvers.h"
#include "collections/decompositions/svd.h"
#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"

namespace zephyl {

namespace {

// What a matrix must be; each reports its error and is false where it isn't.
using TRequirement = bool (*)(const MatrixRecord& matrix);

bool square(const MatrixRecord& matrix) { return is_square(matrix) || matrix_failed(ERR_NOT_SQUARE); }

bool size_holds(bool holds) { return holds || matrix_failed(ERR_MATRIX_SIZE); }
bool no_taller(const MatrixRecord& matrix) { return size_holds(matrix.last_row <= matrix.last_col); }
bool no_wider(const MatrixRecord& matrix) { return size_holds(matrix.last_row >= matrix.last_col); }
bool augmented_square(const MatrixRecord& matrix) {
  return size_holds(matrix.last_row + 1 == matrix.last_col);
}
bool augmented_no_wider(const MatrixRecord& matrix) {
  return size_holds(matrix.last_row + 1 >= matrix.last_col);
}

bool symmetric_part(const MatrixRecord& matrix) {
  return is_symmetric(matrix, row_count(matrix)) || matrix_failed(ERR_NOT_SYMMETRIC);
}
bool square_and_symmetric(const MatrixRecord& matrix) { return square(matrix) && symmetric_part(matrix); }
bool augmented_symmetric(const MatrixRecord& matrix) {
  return augmented_square(matrix) && symmetric_part(matrix);
}

// A method: false where it fails.
using TMethod = bool (*)(MatrixRecord& result, const MatrixRecord& matrix);

// An operation on one matrix: a requirement, a method, and the error of its failure.
template <TRequirement requirement, TMethod method, TError failure = ERR_UNEXPECTED>
bool result_of(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  if (!requirement(*operands.first)) return false;
  return method(result, *operands.first) || method_failed(failure);
}

// --- LU

template <void (*take)(MatrixRecord& result, const TLuFactors& lu)>
bool lu_factor(MatrixRecord& result, const MatrixRecord& matrix) {
  static TLuFactors lu;
  if (!factor_lu(lu, matrix)) return false;
  take(result, lu);
  return true;
}

double cofactor_sum(const MatrixRecord& matrix) {
  const auto& a = matrix.cells;
  return a[0][0] * (a[1][1] * a[2][2] - a[1][2] * a[2][1]) -
         a[0][1] * (a[1][0] * a[2][2] - a[1][2] * a[2][0]) +
         a[0][2] * (a[1][0] * a[2][1] - a[1][1] * a[2][0]);
}

double determinant_of(const MatrixRecord& matrix) {
  static TLuFactors lu;
  const auto& a = matrix.cells;
  switch (row_count(matrix)) {
    case 1:
      return a[0][0];
    case 2:
      return a[0][0] * a[1][1] - a[0][1] * a[1][0];
    case 3:
      return cofactor_sum(matrix);
    default:
      return factor_lu(lu, matrix) ? lu.determinant : 0.0;
  }
}

void determinant(TFamilyCall& call) {
  TMatrixOperands operands;
  if (read_matrix_operands(call, operands) && square(*operands.first))
    deliver_number(call, determinant_of(*operands.first));
}

// --- QR

template <void (*take)(MatrixRecord& result, const TQrFactors& qr)>
bool qr_factor(MatrixRecord& result, const MatrixRecord& matrix) {
  static TQrFactors qr;
  factor_qr(qr, matrix, column_count(matrix));
  take(result, qr);
  return true;
}

// --- Singular values

// The decomposition with its values as they are shown: tiny ones are 0.
const TSvd& svd_of(const MatrixRecord& matrix) {
  static TSvd svd;
  const int n = column_count(matrix);
  decompose_svd(svd, matrix, n);
  for (int i = 0; i < n; ++i)
    if (std::fabs(svd.w[i]) < near_zero_limit) svd.w[i] = 0.0;
  return svd;
}

bool singular_values(MatrixRecord& result, const MatrixRecord& matrix) {
  const int n = column_count(matrix);
  const TSvd& svd = svd_of(matrix);
  fill_matrix(result, n, n, 0.0);
  for (int i = 0; i < n; ++i) result.cells[i][i] = svd.w[i];
  return true;
}

template <MatrixRecord TSvd::*part>
bool svd_factor(MatrixRecord& result, const MatrixRecord& matrix) {
  copy_matrix(result, svd_of(matrix).*part);
  return true;
}

// The tolerance hangs on the first value, which needn't be the largest. Of a matrix with more columns than
// rows one value more is looked at than there are rows. Programs in circulation know both.
double rank_of(const MatrixRecord& matrix) {
  const int rows = row_count(matrix), columns = column_count(matrix);
  const TSvd& svd = svd_of(matrix);
  const double tolerance = std::max(rows, columns) * svd.w[0] * 0x1p-52;
  return static_cast<double>(std::count_if(svd.w, svd.w + std::min(rows + 1, columns),
                                           [tolerance](double value) { return value > tolerance; }));
}

void rank(TFamilyCall& call) {
  TMatrixOperands operands;
  if (read_matrix_operands(call, operands)) deliver_number(call, rank_of(*operands.first));
}

void condition(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands) || !no_wider(*operands.first)) return;
  const TSvd& svd = svd_of(*operands.first);
  const auto [smallest, largest] = std::minmax_element(svd.w, svd.w + column_count(*operands.first));
  if (*smallest == 0.0)
    method_failed(ERR_ZERO_DIVIDE);
  else
    deliver_number(call, *largest / *smallest);
}

// --- Eigenvalues

bool eigenvalues(MatrixRecord& result, const MatrixRecord& matrix) {
  static TEigen eigen;
  if (!decompose_eigen(eigen, matrix)) return false;
  take_eigenvalues(result, eigen);
  return true;
}

bool eigenvectors(MatrixRecord& result, const MatrixRecord& matrix) {
  static TEigen eigen;
  if (!decompose_eigen(eigen, matrix)) return false;
  copy_matrix(result, eigen.vectors);
  return true;
}

// --- Rows

bool row_echelon_form(MatrixRecord& result, const MatrixRecord& matrix) {
  copy_matrix(result, matrix);
  reduce_rows(result);
  return true;
}

}  // namespace

void register_matrix_decompositions() {
  const TMatrixRow rows[] = {
      {OP_RREF, matrix_of<result_of<no_taller, row_echelon_form>>},
      {OP_DET, determinant},
      {OP_LU_L, matrix_of<result_of<square, lu_factor<take_lower>, ERR_SINGULAR>>},
      {OP_LU_U, matrix_of<result_of<square, lu_factor<take_upper>, ERR_SINGULAR>>},
      {OP_LU_P, matrix_of<result_of<square, lu_factor<take_permutation>, ERR_SINGULAR>>},
      {OP_CHOLESKY, matrix_of<result_of<square_and_symmetric, factor_cholesky, ERR_NOT_POSITIVE_DEFINITE>>},
      {OP_QR_Q, matrix_of<result_of<no_wider, qr_factor<take_q>>>},
      {OP_QR_R, matrix_of<result_of<no_wider, qr_factor<take_r>>>},
      {OP_SVD_U, matrix_of<result_of<no_wider, svd_factor<&TSvd::u>>>},
      {OP_SVD_V, matrix_of<result_of<no_wider, svd_factor<&TSvd::v>>>},
      {OP_SINGULAR_VALUES, matrix_of<result_of<no_wider, singular_values>>},
      {OP_RANK, rank},
      {OP_COND, condition},
      {OP_EIGEN_VAL, matrix_of<result_of<square, eigenvalues, ERR_OVERFLOW>>},
      {OP_EIGEN_VEC, matrix_of<result_of<square, eigenvectors, ERR_OVERFLOW>>},
      {OP_SOLVE_LU, matrix_of<result_of<augmented_square, solve_lu, ERR_SINGULAR>>},
      {OP_SOLVE_QR, matrix_of<result_of<augmented_no_wider, solve_qr, ERR_ZERO_DIVIDE>>},
      {OP_SOLVE_CH, matrix_of<result_of<augmented_symmetric, solve_cholesky, ERR_NOT_POSITIVE_DEFINITE>>},
      {OP_SOLVE_SV, matrix_of<result_of<augmented_no_wider, solve_svd>>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
