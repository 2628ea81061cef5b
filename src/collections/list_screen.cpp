#include "collections/list_screen.h"

#include <algorithm>

#include "collections/list_view.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int LAST_TOP_ROW = LIST_LIMIT - LIST_SCREEN_ROWS;

ListRecord& shown_list() { return stores.lists[list_view.current_list]; }
int& top_row() { return list_view.top_row[list_view.current_list]; }
int& cursor() { return list_view.cursor[list_view.current_list]; }

// The answer's own record is no variable that a program could roll back.
void about_to_change() {
  if (list_view.current_list != ANSWER_RECORD) hooks.about_to_store(SLOT_LIST_A + list_view.current_list);
}

void move_on(const ListRecord& list) {
  if (cursor() < list.last) ++cursor();
  top_row() = std::clamp(top_row(), cursor() - LIST_SCREEN_ROWS + 1, cursor());
  top_row() = std::max(top_row(), 0);
}

}  // namespace

void scroll_list(int rows) { top_row() = std::clamp(top_row() + rows, 0, LAST_TOP_ROW); }

int list_cursor() {
  if (cursor() > shown_list().last) cursor() = 0;
  return cursor();
}

void choose_list_line(int line) {
  const int row = top_row() + line;
  if (shown_list().defined && row <= shown_list().last) cursor() = row;
}

void choose_list(int list) { list_view.current_list = list; }

void set_list_size(int size) {
  about_to_change();
  ListRecord& list = shown_list();
  if (!list.defined) clear_list(list);
  const int old_size = list.defined ? list.last + 1 : 0;
  for (int i = old_size; i < size; ++i) list.elements[i] = {};
  list.last = size - 1;
  list.defined = true;
}

bool enter_answer_into_list() {
  if (errors.error_flag) return false;
  if (aggregate_answer()) {
    platform().show_message("Data type can't be inserted into a list.", "List");
    return false;
  }
  ListRecord& list = shown_list();
  if (!list.defined) return false;
  about_to_change();
  list.elements[list_cursor()] = answers.ans;
  move_on(list);
  return true;
}

}  // namespace zephyl
