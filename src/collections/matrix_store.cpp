// Matrices that go to the store, and to lists and back.

#include <algorithm>

#include "collections/matrix_calls.h"
#include "collections/matrix_families.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"

namespace zephyl {

namespace {

bool is_stored_matrix(int number) { return number >= 0 && number < ANSWER_RECORD; }

void store(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (slot_class(call.target) != CLASS_MATRIX) return report_error(ERR_DATA_TYPE);
  copy_matrix(matrix_result, *operands.first);
  if (!set_matrix_result(call.result_register)) return;
  hooks.about_to_store(call.target);
  copy_matrix(stores.matrices[call.target - SLOT_MATRIX_A], matrix_result);
  deliver_matrix(call, matrix_result);
}

// Writes into the store itself.
void put_element_direct(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  if (!is_stored_matrix(call.matrices[0])) return report_error(ERR_ARGUMENT_TYPE);
  MatrixRecord& matrix = stores.matrices[call.matrices[0]];
  const int row = row_index(matrix, call.numbers[0].re);
  const int column = row < 0 ? -1 : column_index(matrix, call.numbers[1].re);
  if (column < 0) return;
  hooks.about_to_store(SLOT_MATRIX_A + call.matrices[0]);
  matrix.cells[row][column] = call.numbers[2].re;
  deliver_number(call, call.numbers[2].re);
}

bool made_global(MatrixRecord& result, const TMatrixOperands& operands, const TFamilyCall& call) {
  hooks.make_global(is_stored_matrix(call.matrices[0]) ? SLOT_MATRIX_A + call.matrices[0] : NO_SLOT);
  copy_matrix(result, *operands.first);
  return true;
}

void matrix_to_list(TFamilyCall& call) {
  TMatrixOperands operands;
  if (!read_matrix_operands(call, operands)) return;
  ListRecord* list = begin_list_result(call);
  if (!list) return;
  const MatrixRecord& matrix = *operands.first;
  int size = 0;
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) list->elements[size++] = {matrix.cells[i][j], 0.0};
  end_list_result(*list, size);
}

// The shape of a matrix with this many rows that takes up the list whole.
bool take_list_shape(const ListRecord& list, double row_argument, int& rows, int& columns) {
  rows = matrix_size_of(row_argument);
  if (rows == 0) return false;
  columns = list_size(list) / rows;
  if (columns * rows != list_size(list) || columns > MATRIX_LIMIT) return matrix_failed(ERR_MATRIX_SIZE);
  return !is_complex_list(list) || matrix_failed(ERR_DATA_TYPE);
}

void list_to_matrix(TFamilyCall& call) {
  TListOperands operands;
  int rows = 0, columns = 0;
  if (!read_list_operands(call, operands)) return;
  if (!take_list_shape(*operands.first, call.numbers[0].re, rows, columns)) return;
  set_shape(matrix_result, rows, columns);
  const TValue* element = operands.first->elements;
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j) matrix_result.cells[i][j] = (element++)->re;
  deliver_matrix(call, matrix_result);
}

}  // namespace

void register_matrix_store() {
  const TMatrixRow rows[] = {{OP_SAVE_MEMORY, store},
                             {OP_PUT_ELEM_DIRECT, put_element_direct},
                             {OP_OUT_MATRIX, matrix_of<made_global>},
                             {OP_MATRIX_TO_LIST, matrix_to_list}};
  register_matrix_rows(rows);
  operations[OP_LIST_TO_MATRIX].list = list_to_matrix;
}

}  // namespace zephyl
