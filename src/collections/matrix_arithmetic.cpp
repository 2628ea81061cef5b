// Arithmetic with whole matrices.

#include <algorithm>

#include "collections/decompositions/lu.h"
#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"

namespace zephyl {

namespace {

constexpr int largest_exponent = 1000;

// Operations that no row of the table allows, as matrix plus number.
bool wrong_operands() { return matrix_failed(ERR_DATA_TYPE); }

bool same_size(const MatrixRecord& a, const MatrixRecord& b) {
  return a.last_row == b.last_row && a.last_col == b.last_col;
}

// Sums in plain order. False for sizes that don't go together; result is another record than both.
bool multiply(MatrixRecord& result, const MatrixRecord& a, const MatrixRecord& b) {
  if (a.last_col != b.last_row) return matrix_failed(ERR_MATRIX_MISMATCH);
  set_shape(result, row_count(a), column_count(b));
  for (int i = 0; i <= a.last_row; ++i) {
    double sums[MATRIX_LIMIT] = {};
    for (int k = 0; k <= a.last_col; ++k) {
      const double factor = a.cells[i][k];
      for (int j = 0; j <= b.last_col; ++j) sums[j] += factor * b.cells[k][j];
    }
    std::copy(sums, sums + column_count(b), result.cells[i]);
  }
  return true;
}

bool scale(MatrixRecord& result, const MatrixRecord& matrix, double factor) {
  set_shape(result, row_count(matrix), column_count(matrix));
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) result.cells[i][j] = factor * matrix.cells[i][j];
  return true;
}

bool product(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  if (operands.both()) return multiply(result, *operands.first, *operands.second);
  return operands.first ? scale(result, *operands.first, call.numbers[1].re)
                        : scale(result, *operands.second, call.numbers[0].re);
}

bool inverse_of(MatrixRecord& result, const MatrixRecord& matrix) {
  if (!is_square(matrix)) return matrix_failed(ERR_NOT_SQUARE);
  return invert(result, matrix) || method_failed(ERR_SINGULAR);
}

// A / B is the inverse of B times A, in this order: programs in circulation solve B X = A with it.
bool quotient(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  static MatrixRecord inverse;
  if (!operands.first) return wrong_operands();
  if (operands.second)
    return inverse_of(inverse, *operands.second) && multiply(result, inverse, *operands.first);
  const double divisor = call.numbers[1].re;
  if (divisor == 0.0) return matrix_failed(ERR_ZERO_DIVIDE);
  return scale(result, *operands.first, 1.0 / divisor);
}

template <int sign>
bool sum(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  if (!operands.both()) return wrong_operands();
  const MatrixRecord &a = *operands.first, &b = *operands.second;
  if (!same_size(a, b)) return matrix_failed(ERR_MATRIX_MISMATCH);
  set_shape(result, row_count(a), column_count(a));
  for (int i = 0; i <= a.last_row; ++i)
    for (int j = 0; j <= a.last_col; ++j) result.cells[i][j] = a.cells[i][j] + sign * b.cells[i][j];
  return true;
}

bool negated(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  return scale(result, *operands.first, -1.0);
}

bool transposed(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  const MatrixRecord& matrix = *operands.first;
  set_shape(result, column_count(matrix), row_count(matrix));
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) result.cells[j][i] = matrix.cells[i][j];
  return true;
}

bool inverted(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  return inverse_of(result, *operands.first);
}

// result is the base: makes it the base to the power `exponent`, 1 or above, by one product after the other.
bool raise(MatrixRecord& result, int exponent) {
  static MatrixRecord base, next;
  copy_matrix(base, result);
  for (int i = 1; i < exponent; ++i) {
    multiply(next, result, base);
    copy_matrix(result, next);
  }
  return true;
}

bool power_of(MatrixRecord& result, const MatrixRecord& matrix, int exponent) {
  if (!is_square(matrix)) return matrix_failed(ERR_NOT_SQUARE);
  if (exponent == 0) {
    make_identity(result, row_count(matrix));
    return true;
  }
  if (exponent < 0) return inverse_of(result, matrix) && raise(result, -exponent);
  copy_matrix(result, matrix);
  return raise(result, exponent);
}

bool power(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  if (!operands.first || operands.second) return wrong_operands();
  const int exponent = checked_integer(call.numbers[1].re, -largest_exponent, largest_exponent, ERR_DOMAIN);
  return !errors.error_flag && power_of(result, *operands.first, exponent);
}

template <int exponent>
bool fixed_power(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  return power_of(result, *operands.first, exponent);
}

bool are_equal(const MatrixRecord& a, const MatrixRecord& b) {
  if (!same_size(a, b)) return false;
  for (int i = 0; i <= a.last_row; ++i)
    if (!std::equal(a.cells[i], a.cells[i] + column_count(a), b.cells[i])) return false;
  return true;
}

template <bool equal>
void compare(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (!operands.both()) return report_error(ERR_DATA_TYPE);
  deliver_number(call, are_equal(*operands.first, *operands.second) == equal ? 1.0 : 0.0);
}

}  // namespace

void register_matrix_arithmetic() {
  const TMatrixRow rows[] = {{OP_TRANSPOSE, matrix_of<transposed>},
                             {OP_INVERT, matrix_of<inverted>},
                             {OP_SQUARED, matrix_of<fixed_power<2>>},
                             {OP_CUBE, matrix_of<fixed_power<3>>},
                             {OP_POWER, matrix_of<power>},
                             {OP_NEG, matrix_of<negated>},
                             {OP_MULTIPLY_OPERAND, matrix_of<product>},
                             {OP_MULTIPLY_FUNCTION, matrix_of<product>},
                             {OP_MULTIPLY, matrix_of<product>},
                             {OP_DIVIDE, matrix_of<quotient>},
                             {OP_PLUS, matrix_of<sum<1>>},
                             {OP_MINUS, matrix_of<sum<-1>>},
                             {OP_EQUAL, compare<true>},
                             {OP_NOT_EQUAL, compare<false>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
