// The Cholesky factor of a positive definite matrix: A = L L'.
#pragma once

#include "engine/records.h"

namespace zephyl {

// The lower triangle with its diagonal, zeros above. Only the first n columns of the n rows are looked at,
// and of these the upper triangle. False for a matrix that isn't positive definite. result is another record
// than matrix.
bool factor_cholesky(MatrixRecord& result, const MatrixRecord& matrix);

// Replaces b, as many numbers as L has rows, by the solution of L L' x = b.
void substitute_cholesky(const MatrixRecord& lower, double* b);

}  // namespace zephyl
