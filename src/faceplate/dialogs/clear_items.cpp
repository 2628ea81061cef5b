#include "faceplate/dialogs/clear_items.h"

#include "engine/memory.h"
#include "faceplate/dialogs/running.h"
#include "persistence/save_items.h"
#include "programs/program_input.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

// The first eight items are those that a state file keeps.
static_assert(static_cast<int>(CLEAR_PROGRAM_FUNCTIONS) == static_cast<int>(SAVE_PROGRAM_FUNCTIONS));

// Whether there is something to clear. An x that waits for its y is something.
bool can_be_cleared(int item) {
  switch (item) {
    case CLEAR_STATS:
      return holds_data(SAVE_STATS) || !stats.next_is_x;
    case CLEAR_PROGRAM_INPUT:
      return has_last_answers();
    case CLEAR_STRINGS:
      return holds_data(SAVE_STRINGS);
    default:
      return holds_data(item);
  }
}

void add_boxes(TDialog& dialog) {
  bool any = false;
  for (int item = CLEAR_VARIABLES; item <= CLEAR_ALL_ITEMS; ++item) {
    TControl box = check_control(clear_item_label(item), false);
    box.enabled = item == CLEAR_ALL_ITEMS ? any : can_be_cleared(item);
    any = any || box.enabled;
    dialog.add(box);
  }
}

}  // namespace

void show_items_to_clear() {
  TDialog dialog(218, "Select Items to Clear");
  add_boxes(dialog);
  if (!confirmed_with_ok(dialog)) return;
  for (int item = CLEAR_VARIABLES; item <= CLEAR_ALL_ITEMS; ++item)
    if (dialog[item - CLEAR_VARIABLES].checked) clear_items(item);
  platform().invalidate(false);
}

}  // namespace zephyl
