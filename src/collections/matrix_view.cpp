#include "collections/matrix_view.h"

namespace zephyl {

TMatrixView matrix_view;

void reset_matrix_view(int matrix) {
  matrix_view.top_row[matrix] = 0;
  matrix_view.left_col[matrix] = 0;
  matrix_view.cursor_row[matrix] = 0;
  matrix_view.cursor_col[matrix] = 0;
}

void clear_stored_matrix(int matrix) {
  clear_matrix(stores.matrices[matrix]);
  reset_matrix_view(matrix);
}

}  // namespace zephyl
