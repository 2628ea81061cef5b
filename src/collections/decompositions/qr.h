// QR by Householder reflections: A = Q R with orthonormal columns in Q.
#pragma once

#include "engine/records.h"

namespace zephyl {

struct TQrFactors {
  MatrixRecord packed;          // the reflectors on and below the diagonal, R above it
  double r_diag[MATRIX_LIMIT];  // the diagonal of R
};

// Of the first `columns` columns, no more than there are rows.
void factor_qr(TQrFactors& qr, const MatrixRecord& matrix, int columns);

// Q with the size of the matrix, and R, square.
void take_q(MatrixRecord& result, const TQrFactors& qr);
void take_r(MatrixRecord& result, const TQrFactors& qr);

// Replaces the first numbers of b, one a row, by the least squares solution of A x = b, one a column. False
// if the diagonal of R has a 0: there is no test of the rank but this.
bool solve_least_squares(const TQrFactors& qr, double* b);

}  // namespace zephyl
