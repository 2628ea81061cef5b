#include "collections/list_view.h"

#include "engine/backup.h"
#include "engine/hooks.h"
#include "engine/memory.h"

namespace zephyl {

TListView list_view;

int set_list_top_row(int list, int row) {
  if (row + LIST_SCREEN_ROWS > LIST_LIMIT) row = LIST_LIMIT - LIST_SCREEN_ROWS;
  return list_view.top_row[list] = row;
}

void clear_stored_list(int list) {
  list_view.top_row[list] = list_view.cursor[list] = 0;
  clear_list(stores.lists[list]);
}

namespace {

// Takes its place in front of the owners of other items.
void (*clear_other_item)(int item) = nullptr;

void clear_list_item(int item) {
  if (item == CLEAR_LISTS)
    for (int list = 0; list < STORE_COUNT; ++list) clear_stored_list(list);
  clear_other_item(item);
}

}  // namespace

void register_list_views() {
  register_backup_of<&list_view>();
  if (clear_other_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_list_item;
}

}  // namespace zephyl
