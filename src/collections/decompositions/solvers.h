// Systems of linear equations A x = b, given as the augmented matrix (A b).
#pragma once

#include "engine/records.h"

namespace zephyl {

// Each leaves x in result, one column, and is false where the method fails. result is another record than
// augmented.

// By LU factors with one step of iterative refinement. False: singular.
bool solve_lu(MatrixRecord& result, const MatrixRecord& augmented);
// Least squares by QR. False: a 0 on the diagonal of R.
bool solve_qr(MatrixRecord& result, const MatrixRecord& augmented);
// By the Cholesky factor; A is symmetric. False: not positive definite.
bool solve_cholesky(MatrixRecord& result, const MatrixRecord& augmented);
// Least squares of least length by singular values. Doesn't fail.
bool solve_svd(MatrixRecord& result, const MatrixRecord& augmented);

}  // namespace zephyl
