// Scalar functions on each cell of a matrix: the rules of the numbers, taken from their rows of the operation
// table.

#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"

namespace zephyl {

namespace {

// second: the second argument of the rule, as Round( and Trunc( have one.
bool map_cells(MatrixRecord& result, const MatrixRecord& matrix, TOp_Code op, double second) {
  const TRealRule rule = operations[op].real;
  if (!rule) return matrix_failed(ERR_UNEXPECTED);
  set_shape(result, row_count(matrix), column_count(matrix));
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) result.cells[i][j] = rule(matrix.cells[i][j], second);
  return !errors.error_flag;
}

bool mapped(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  return map_cells(result, *operands.first, call.op, 0.0);
}

template <int fewest, int most>
bool mapped_with_digits(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  const double digits = checked_integer(call.numbers[0].re, fewest, most, ERR_DOMAIN);
  return !errors.error_flag && map_cells(result, *operands.first, call.op, digits);
}

}  // namespace

void register_matrix_cells() {
  const TMatrixRow rows[] = {{OP_ROUND, matrix_of<mapped_with_digits<0, 10>>},
                             {OP_TRUNC, matrix_of<mapped_with_digits<-99, 100>>},
                             {OP_MANT, matrix_of<mapped>},
                             {OP_XPON, matrix_of<mapped>},
                             {OP_SIGN, matrix_of<mapped>},
                             {OP_INT_PART, matrix_of<mapped>},
                             {OP_FRAC_PART, matrix_of<mapped>},
                             {OP_FLOOR, matrix_of<mapped>},
                             {OP_CEIL, matrix_of<mapped>},
                             {OP_ABS, matrix_of<mapped>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
