#include "engine/records.h"

#include <algorithm>
#include <cstring>

namespace zephyl {

TStores stores;

void copy_list(ListRecord& to, const ListRecord& from) {
  if (&to == &from) return;
  to.last = from.last;
  to.defined = from.defined;
  if (from.defined) std::copy(from.elements, from.elements + from.last + 1, to.elements);
}

void copy_matrix(MatrixRecord& to, const MatrixRecord& from) {
  if (&to == &from) return;
  to.last_row = from.last_row;
  to.last_col = from.last_col;
  to.defined = from.defined;
  if (!from.defined) return;
  for (int row = 0; row <= from.last_row; ++row)
    std::copy(from.cells[row], from.cells[row] + from.last_col + 1, to.cells[row]);
}

void copy_string(TString& to, const TString& from) {
  if (&to == &from) return;
  const std::size_t length = strnlen(from.text, STRING_LIMIT);
  std::memcpy(to.text, from.text, length);
  to.text[length] = 0;
}

void clear_list(ListRecord& list) { list = ListRecord{}; }

void clear_matrix(MatrixRecord& matrix) { matrix = MatrixRecord{}; }

bool is_complex_list(const ListRecord& list) {
  return std::any_of(list.elements, list.elements + list.last + 1, [](const TValue& v) { return !is_real(v); });
}

void reset_stores() {
  for (ListRecord& list : stores.lists) clear_list(list);
  for (MatrixRecord& matrix : stores.matrices) clear_matrix(matrix);
  for (TString& string : stores.strings) string.text[0] = 0;
}

}  // namespace zephyl
