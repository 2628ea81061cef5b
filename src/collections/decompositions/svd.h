// The singular value decomposition: A = U diag(w) V'.
#pragma once

#include "engine/records.h"

namespace zephyl {

struct TSvd {
  MatrixRecord u;          // as large as A
  MatrixRecord v;          // square, as many columns as A
  double w[MATRIX_LIMIT];  // not negative, in the order in which they fell
};

// Golub and Kahan's bidiagonalisation with the implicit QR steps of Golub and Reinsch (1970), of the first
// `columns` columns. A value that hasn't converged after 30 rounds is taken as it stands.
void decompose_svd(TSvd& svd, const MatrixRecord& matrix, int columns);

// The solution of least length of the least squares problem A x = b: x gets as many numbers as A has columns.
// Only values of exactly 0 are left out.
void solve_by_svd(const TSvd& svd, const double* b, double* x);

}  // namespace zephyl
