// Which list the list screen shows, and where in it.
#pragma once

#include "engine/records.h"

namespace zephyl {

constexpr int LIST_SCREEN_ROWS = 8;

struct TListView {
  int top_row[STORE_COUNT] = {};  // first element shown
  int cursor[STORE_COUNT] = {};
  int current_list = 0;
};
extern TListView list_view;

// Rows beyond the last screenful become its first. Returns the row that is set.
int set_list_top_row(int list, int row);

// Clears a stored list, by its index, and its place on the screen.
void clear_stored_list(int list);

// From then on clrMem( of the lists clears their places too.
void register_list_views();

}  // namespace zephyl
