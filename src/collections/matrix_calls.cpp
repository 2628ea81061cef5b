#include "collections/matrix_calls.h"

#include <cmath>

#include "collections/matrix_families.h"
#include "collections/matrix_view.h"
#include "engine/evaluator.h"
#include "engine/faults.h"
#include "engine/operation_table.h"

namespace zephyl {

MatrixRecord matrix_result;

namespace {

double tidied(double x) { return std::fabs(x) < near_zero_limit ? 0.0 : x; }

bool has_other_aggregate(const TFamilyCall& call) {
  return call.lists[0] >= 0 || call.lists[1] >= 0 || call.strings[0] >= 0 || call.strings[1] >= 0;
}

}  // namespace

bool read_matrix_operands(const TFamilyCall& call, TMatrixOperands& operands) {
  if (call.matrices[0] >= 0 && !(operands.first = matrix_by_number(call.matrices[0]))) return false;
  if (call.matrices[1] >= 0 && !(operands.second = matrix_by_number(call.matrices[1]))) return false;
  return !has_other_aggregate(call) || matrix_failed(ERR_DATA_TYPE);
}

void deliver_matrix(const TFamilyCall& call, const MatrixRecord& result) {
  MatrixRecord* to = set_matrix_result(call.result_register);
  if (!to) return;
  set_shape(*to, row_count(result), column_count(result));
  to->defined = result.defined;
  if (!result.defined) return;
  for (int row = 0; row <= result.last_row; ++row)
    for (int column = 0; column <= result.last_col; ++column)
      to->cells[row][column] = tidied(result.cells[row][column]);
}

void deliver_number(const TFamilyCall& call, double value) {
  set_number_result(call.result_register, {tidied(value), 0.0});
}

bool matrix_failed(TError error) {
  report_error(error);
  return false;
}

bool method_failed(TError error) {
  report_fault();
  return matrix_failed(error);
}

void register_matrix_operations() {
  register_matrix_arithmetic();
  register_matrix_cells();
  register_matrix_lines();
  register_matrix_building();
  register_matrix_store();
  register_matrix_values();
  register_matrix_decompositions();
  register_matrix_views();
}

}  // namespace zephyl
