#include "faceplate/dialogs/table_size.h"

#include "collections/list_screen.h"
#include "collections/list_view.h"
#include "collections/matrix_screen.h"
#include "collections/matrix_view.h"
#include "faceplate/dialogs/running.h"

namespace zephyl {

namespace {

// A combo of the sizes 1 to limit, on `size`.
TControl size_control(const char* label, int limit, int size) {
  std::vector<std::string> sizes;
  for (int i = 1; i <= limit; ++i) sizes.push_back(std::to_string(i));
  return combo_control(label, sizes, size - 1);
}

int size_in(const TControl& combo) { return combo.selected + 1; }

}  // namespace

void show_list_size() {
  const ListRecord& list = stores.lists[list_view.current_list];
  TDialog dialog(210, "Select List Size");
  const int rows = dialog.add(size_control("Rows:", LIST_LIMIT, list.defined ? list.last + 1 : 1));
  add_ok_cancel(dialog);
  if (confirmed(dialog)) set_list_size(size_in(dialog[rows]));
}

void show_matrix_size() {
  const MatrixRecord& matrix = stores.matrices[matrix_view.current_matrix];
  TDialog dialog(198, "Select Matrix Size");
  const int rows = dialog.add(size_control("Rows:", MATRIX_LIMIT, matrix.defined ? matrix.last_row + 1 : 1));
  const int columns =
      dialog.add(size_control("Columns:", MATRIX_LIMIT, matrix.defined ? matrix.last_col + 1 : 1));
  add_ok_cancel(dialog);
  if (confirmed(dialog)) set_matrix_size(size_in(dialog[rows]), size_in(dialog[columns]));
}

}  // namespace zephyl
