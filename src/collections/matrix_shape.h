// Sizes and simple contents of matrix records, for the operations on matrices and the decompositions alike.
#pragma once

#include "engine/records.h"

namespace zephyl {

inline int row_count(const MatrixRecord& matrix) { return matrix.last_row + 1; }
inline int column_count(const MatrixRecord& matrix) { return matrix.last_col + 1; }
inline bool is_square(const MatrixRecord& matrix) { return matrix.last_row == matrix.last_col; }

// Sets the size and leaves the cells. Without rows or columns the matrix is undefined.
void set_shape(MatrixRecord& matrix, int rows, int columns);

// A matrix of this size with one value in all cells.
void fill_matrix(MatrixRecord& matrix, int rows, int columns, double value);

void make_identity(MatrixRecord& matrix, int size);

// True if the first `size` columns of the first `size` rows are symmetric, cell against cell exactly.
bool is_symmetric(const MatrixRecord& matrix, int size);

}  // namespace zephyl
