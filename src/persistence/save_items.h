// What a state file keeps beside the settings that are always in it: nine items, each a box in the dialog
// "Select Items to Save".
#pragma once

namespace zephyl {

// By position in the dialog. A file names an item by this number, and loading gives it to clear_items, where
// the last one is another thing (see clear_items): programs and files in circulation depend on both orders.
enum TSaveItem {
  SAVE_ALWAYS = 0,
  SAVE_VARIABLES,
  SAVE_STATS,
  SAVE_LISTS,
  SAVE_MATRICES,
  SAVE_PLOT,
  SAVE_DRAWING,
  SAVE_HISTORY,
  SAVE_PROGRAM_FUNCTIONS,
  SAVE_STRINGS
};
constexpr int SAVE_ITEM_COUNT = 9;

// The boxes that are checked.
struct TSaveItems {
  bool checked[SAVE_ITEM_COUNT + 1] = {};  // by TSaveItem
};
extern TSaveItems save_items;

inline bool is_saved(int item) { return item == SAVE_ALWAYS || save_items.checked[item]; }

// True if there is anything in an item.
bool holds_data(int item);
// Checks the boxes of the items that hold data.
void check_filled_items();

// Dialog 217: the boxes as check_filled_items sets them. True if the user pressed OK; only then do save_items
// change.
bool select_items_to_save();

}  // namespace zephyl
