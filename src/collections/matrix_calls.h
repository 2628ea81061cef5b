// What the operations on matrices share: operands by number, the one work record that every result goes
// through, positions as the user counts them.
#pragma once

#include "collections/list_calls.h"
#include "collections/matrix_shape.h"
#include "engine/operations.h"

namespace zephyl {

// The matrices of a call, read by number. Of an infix operation each stands at its side, and is null where
// that side is a number; of a function they are the first and the second.
struct TMatrixOperands {
  const MatrixRecord* first = nullptr;
  const MatrixRecord* second = nullptr;

  bool both() const { return first && second; }
};

// False, with ERR_MATRIX_UNDEFINED or ERR_MEMORY_LIMIT, if one can't be read, and with ERR_DATA_TYPE if an
// operand is a list or a string.
bool read_matrix_operands(const TFamilyCall& call, TMatrixOperands& operands);

// Hands a result over to the register of the call: cells of magnitude below 1e-14 become 0. ERR_MEMORY_LIMIT
// for a register without a matrix.
void deliver_matrix(const TFamilyCall& call, const MatrixRecord& result);
// The same for a number.
void deliver_number(const TFamilyCall& call, double value);

// Report `error` and give false.
bool matrix_failed(TError error);
// The same for a method that gave up: a floating-point fault on the way to there came first.
bool method_failed(TError error);

// A 1-based row or column as an index; -1, with ERR_MATRIX_INDEX reported, where the matrix has none.
inline int row_index(const MatrixRecord& matrix, double row) {
  return index_of(row, row_count(matrix), ERR_MATRIX_INDEX);
}
inline int column_index(const MatrixRecord& matrix, double column) {
  return index_of(column, column_count(matrix), ERR_MATRIX_INDEX);
}
// A number of rows or columns; 0, with ERR_MATRIX_SIZE reported, for one that isn't from 1 to 30.
inline int matrix_size_of(double size) { return index_of(size, MATRIX_LIMIT, ERR_MATRIX_SIZE) + 1; }

// What all results are written into, so that an operand may be the result register's own matrix.
extern MatrixRecord matrix_result;

// Fills `result`; false, with the error reported, where it can't.
using TMatrixFunction = bool (*)(MatrixRecord& result, const TMatrixOperands& operands,
                                 const TFamilyCall& call);

// Such a function as a handler.
template <TMatrixFunction function>
void matrix_of(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (function(matrix_result, operands, call)) deliver_matrix(call, matrix_result);
}

// One row of the table that a file registers.
struct TMatrixRow {
  TOp_Code op;
  TFamilyHandler handler;
};
template <int count>
void register_matrix_rows(const TMatrixRow (&rows)[count]) {
  for (const TMatrixRow& row : rows) operations[row.op].matrix = row.handler;
}

}  // namespace zephyl
