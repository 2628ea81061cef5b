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

// Clears a stored matrix, 0 to 10, and its place on the screen.
void clear_stored_matrix(int matrix);

// From then on clrMem( of the matrices clears their places too.
void register_matrix_views();

}  // namespace zephyl
