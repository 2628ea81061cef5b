// Operations on matrices whose result is a number: sizes, elements, norms, products of vectors.

#include <algorithm>
#include <cmath>

#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"

namespace zephyl {

namespace {

// A handler for a function of one matrix that gives a number.
template <double (*function)(const MatrixRecord&)>
void number_of_matrix(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  const double value = function(*operands.first);
  if (!errors.error_flag) deliver_number(call, value);
}

double rows_of(const MatrixRecord& matrix) { return row_count(matrix); }
double columns_of(const MatrixRecord& matrix) { return column_count(matrix); }

double trace_of(const MatrixRecord& matrix) {
  if (!is_square(matrix)) {
    report_error(ERR_NOT_SQUARE);
    return 0.0;
  }
  double sum = 0.0;
  for (int i = 0; i <= matrix.last_row; ++i) sum += matrix.cells[i][i];
  return sum;
}

double norm_of(const MatrixRecord& matrix) {
  double squares = 0.0;
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) squares += matrix.cells[i][j] * matrix.cells[i][j];
  return std::sqrt(squares);
}

double row_norm_of(const MatrixRecord& matrix) {
  double largest = 0.0;
  for (int i = 0; i <= matrix.last_row; ++i) {
    double sum = 0.0;
    for (int j = 0; j <= matrix.last_col; ++j) sum += std::fabs(matrix.cells[i][j]);
    largest = std::max(largest, sum);
  }
  return largest;
}

double column_norm_of(const MatrixRecord& matrix) {
  double largest = 0.0;
  for (int j = 0; j <= matrix.last_col; ++j) {
    double sum = 0.0;
    for (int i = 0; i <= matrix.last_row; ++i) sum += std::fabs(matrix.cells[i][j]);
    largest = std::max(largest, sum);
  }
  return largest;
}

void element_at(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  const int row = row_index(*operands.first, call.numbers[0].re);
  const int column = row < 0 ? -1 : column_index(*operands.first, call.numbers[1].re);
  if (column >= 0) deliver_number(call, operands.first->cells[row][column]);
}

bool are_row_vectors(const TMatrixOperands& operands) {
  const MatrixRecord &a = *operands.first, &b = *operands.second;
  return a.last_row == 0 && b.last_row == 0 && a.last_col == b.last_col;
}

void dot_product(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (!are_row_vectors(operands)) return report_error(ERR_MATRIX_MISMATCH);
  double sum = 0.0;
  for (int j = 0; j <= operands.first->last_col; ++j)
    sum += operands.first->cells[0][j] * operands.second->cells[0][j];
  deliver_number(call, sum);
}

bool cross_product(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall&) {
  if (!are_row_vectors(operands) || operands.first->last_col != 2) return matrix_failed(ERR_MATRIX_MISMATCH);
  const double *a = operands.first->cells[0], *b = operands.second->cells[0];
  set_shape(result, 1, 3);
  result.cells[0][0] = a[1] * b[2] - a[2] * b[1];
  result.cells[0][1] = a[2] * b[0] - a[0] * b[2];
  result.cells[0][2] = a[0] * b[1] - a[1] * b[0];
  return true;
}

}  // namespace

void register_matrix_values() {
  const TMatrixRow rows[] = {{OP_GET_ELEM, element_at},
                             {OP_ROW_SIZE, number_of_matrix<rows_of>},
                             {OP_COL_SIZE, number_of_matrix<columns_of>},
                             {OP_TRACE, number_of_matrix<trace_of>},
                             {OP_NORM, number_of_matrix<norm_of>},
                             {OP_ROW_NORM, number_of_matrix<row_norm_of>},
                             {OP_COL_NORM, number_of_matrix<column_norm_of>},
                             {OP_DOT_P, dot_product},
                             {OP_CROSS_P, matrix_of<cross_product>}};
  register_matrix_rows(rows);
}

}  // namespace zephyl
