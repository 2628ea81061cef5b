// The reduced row echelon form.
#pragma once

#include "engine/records.h"

namespace zephyl {

// Gauss-Jordan elimination in place. The pivot is the first nonzero cell of its column, whatever its size,
// and nothing is taken for 0 that isn't exactly 0: residues of rounding stay, and can become pivots.
void reduce_rows(MatrixRecord& matrix);

}  // namespace zephyl
