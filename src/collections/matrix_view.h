// Which matrix the matrix screen shows, and where in it.
#pragma once

#include "engine/records.h"

namespace zephyl {

struct TMatrixView {
  int top_row[STORE_COUNT] = {};   // first row shown
  int left_col[STORE_COUNT] = {};  // first column shown
  int cursor_row[STORE_COUNT] = {};
  int cursor_col[STORE_COUNT] = {};
  int current_matrix = 0;
};
extern TMatrixView matrix_view;

// Back to the first cell, as it is with every clear of that matrix.
void reset_matrix_view(int matrix);

// Clears a matrix of the store, 0 to 10, together with its view.
void clear_stored_matrix(int matrix);

}  // namespace zephyl
