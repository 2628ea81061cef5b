// LU factors with row exchanges: P A = L U.
#pragma once

#include "engine/records.h"

namespace zephyl {

struct TLuFactors {
  MatrixRecord packed;       // U on and above the diagonal, the unit lower L below it, of the exchanged rows
  int pivots[MATRIX_LIMIT];  // step i exchanged row i with row pivots[i]
  double determinant = 0.0;
};

// Crout's method with implicit scaling of the rows: each row counts relative to its largest cell, and the
// last of equal candidates becomes the pivot. Only the first n columns of the n rows are looked at. False,
// with determinant 0, for a singular matrix; a determinant of magnitude below 1e-14 counts as one.
bool factor_lu(TLuFactors& lu, const MatrixRecord& matrix);

// The factors one by one, n by n: L and U belong to the exchanged rows.
void take_lower(MatrixRecord& result, const TLuFactors& lu);
void take_upper(MatrixRecord& result, const TLuFactors& lu);
void take_permutation(MatrixRecord& result, const TLuFactors& lu);

// Replaces b, n numbers, by the solution of A x = b.
void substitute_lu(const TLuFactors& lu, double* b);

// The inverse of a square matrix; false for a singular one. result is another record than matrix.
bool invert(MatrixRecord& result, const MatrixRecord& matrix);

}  // namespace zephyl
