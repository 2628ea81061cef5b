// Work on single rows and columns. A line is either: each operation is written once for both.

#include <utility>

#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"

namespace zephyl {

namespace {

enum TLines { ROWS, COLUMNS };

template <TLines lines>
int line_length(const MatrixRecord& matrix) {
  return lines == ROWS ? column_count(matrix) : row_count(matrix);
}

template <TLines lines>
double& cell(MatrixRecord& matrix, int line, int at) {
  return lines == ROWS ? matrix.cells[line][at] : matrix.cells[at][line];
}

// A line as the user counts it; -1, with ERR_MATRIX_INDEX reported, where there is none.
template <TLines lines>
int line_index(const MatrixRecord& matrix, double position) {
  return lines == ROWS ? row_index(matrix, position) : column_index(matrix, position);
}

// Two lines by the first two numbers of a call.
template <TLines lines>
bool two_lines(const MatrixRecord& matrix, const TFamilyCall& call, int& a, int& b) {
  a = line_index<lines>(matrix, call.numbers[0].re);
  b = a < 0 ? -1 : line_index<lines>(matrix, call.numbers[1].re);
  return b >= 0;
}

template <TLines lines>
bool exchanged(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  int a = 0, b = 0;
  copy_matrix(result, *operands.first);
  if (!two_lines<lines>(result, call, a, b)) return false;
  for (int i = 0; i < line_length<lines>(result); ++i)
    std::swap(cell<lines>(result, a, i), cell<lines>(result, b, i));
  return true;
}

template <TLines lines>
bool scaled(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  copy_matrix(result, *operands.first);
  const int line = line_index<lines>(result, call.numbers[0].re);
  if (line < 0) return false;
  for (int i = 0; i < line_length<lines>(result); ++i) cell<lines>(result, line, i) *= call.numbers[1].re;
  return true;
}

template <TLines lines>
bool added(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  int from = 0, to = 0;
  copy_matrix(result, *operands.first);
  if (!two_lines<lines>(result, call, from, to)) return false;
  for (int i = 0; i < line_length<lines>(result); ++i)
    cell<lines>(result, to, i) += call.numbers[2].re * cell<lines>(result, from, i);
  return true;
}

template <TLines lines>
bool deleted(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  copy_matrix(result, *operands.first);
  const int line = line_index<lines>(result, call.numbers[0].re);
  if (line < 0) return false;
  const int last = lines == ROWS ? result.last_row : result.last_col;
  for (int to = line; to < last; ++to)
    for (int i = 0; i < line_length<lines>(result); ++i)
      cell<lines>(result, to, i) = cell<lines>(result, to + 1, i);
  const bool of_rows = lines == ROWS;
  set_shape(result, row_count(result) - of_rows, column_count(result) - !of_rows);
  return true;
}

}  // namespace

void register_matrix_lines() {
  const TMatrixRow rows[] = {
      {OP_ROW_SWAP, matrix_of<exchanged<ROWS>>},  {OP_COL_SWAP, matrix_of<exchanged<COLUMNS>>},
      {OP_ROW_SCALE, matrix_of<scaled<ROWS>>},    {OP_COL_SCALE, matrix_of<scaled<COLUMNS>>},
      {OP_ROW_SCALE_ADD, matrix_of<added<ROWS>>}, {OP_COL_SCALE_ADD, matrix_of<added<COLUMNS>>},
      {OP_ROW_DEL, matrix_of<deleted<ROWS>>},     {OP_COL_DEL, matrix_of<deleted<COLUMNS>>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
