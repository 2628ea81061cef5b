#include "collections/list_view.h"

namespace zephyl {

TListView list_view;

int set_list_top_row(int list, int row) {
  if (row + LIST_SCREEN_ROWS > LIST_LIMIT) row = LIST_LIMIT - LIST_SCREEN_ROWS;
  return list_view.top_row[list] = row;
}

}  // namespace zephyl
