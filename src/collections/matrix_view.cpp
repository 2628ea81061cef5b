#include "collections/matrix_view.h"

#include "engine/backup.h"
#include "engine/hooks.h"
#include "engine/memory.h"

namespace zephyl {

TMatrixView matrix_view;

void clear_stored_matrix(int matrix) {
  matrix_view.top_row[matrix] = matrix_view.left_col[matrix] = 0;
  matrix_view.cursor_row[matrix] = matrix_view.cursor_col[matrix] = 0;
  clear_matrix(stores.matrices[matrix]);
}

namespace {

// Takes its place in front of the owners of other items.
void (*clear_other_item)(int item) = nullptr;

void clear_matrix_item(int item) {
  if (item == CLEAR_MATRICES)
    for (int matrix = 0; matrix < STORE_COUNT; ++matrix) clear_stored_matrix(matrix);
  clear_other_item(item);
}

}  // namespace

void register_matrix_views() {
  register_backup_of<&matrix_view>();
  if (clear_other_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_matrix_item;
}

}  // namespace zephyl
