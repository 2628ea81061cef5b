#include "persistence/save_items.h"

#include <algorithm>

#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/drawing.h"
#include "plot/plot_slots.h"
#include "stats/stats.h"

namespace zephyl {

TSaveItems save_items;

namespace {

constexpr int SELECT_ITEMS_DIALOG = 217;

constexpr const char* labels[SAVE_ITEM_COUNT] = {"Real/Complex Variables",
                                                 "Stats Data",
                                                 "List Variables",
                                                 "Matrix Variables",
                                                 "Plot Data (setup/functions)",
                                                 "Drawing Data",
                                                 "Expression Entries",
                                                 "Program Functions",
                                                 "String Variables"};

bool any_memory() {
  return std::any_of(memory_array, memory_array + SLOT_MATRIX_A,
                     [](const TValue& v) { return v != TValue{}; });
}

template <class TRecord>
bool any_defined(const TRecord (&records)[STORE_COUNT]) {
  return std::any_of(records, records + STORE_COUNT, [](const TRecord& record) { return record.defined; });
}

bool any_string() {
  return std::any_of(stores.strings, stores.strings + STORE_COUNT,
                     [](const TString& s) { return s.text[0] != 0; });
}

bool any_plot_function() {
  for (int type = 0; type < PLOT_TYPE_COUNT; ++type)
    for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot)
      if (slot_in_use(type, slot)) return true;
  return false;
}

bool any_program_function() {
  const TExpression* const first = function_slots + FIRST_PROGRAM_FUNCTION;
  return std::any_of(first, first + 9, [](const TExpression& function) { return function.count > 0; });
}

}  // namespace

bool holds_data(int item) {
  switch (item) {
    case SAVE_VARIABLES:
      return any_memory();
    case SAVE_STATS:
      return stats.count > 0;
    case SAVE_LISTS:
      return any_defined(stores.lists);
    case SAVE_MATRICES:
      return any_defined(stores.matrices);
    case SAVE_PLOT:
      return any_plot_function();
    case SAVE_DRAWING:
      return drawing_present();
    case SAVE_HISTORY:
      return history.count > 0;
    case SAVE_PROGRAM_FUNCTIONS:
      return any_program_function();
    case SAVE_STRINGS:
      return any_string();
    default:
      return false;
  }
}

void check_filled_items() {
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) save_items.checked[item] = holds_data(item);
}

bool select_items_to_save() {
  TDialog dialog(SELECT_ITEMS_DIALOG, "Select Items to Save");
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item)
    dialog.add(check_control(labels[item - 1], holds_data(item)));
  dialog.add(label_control("Note: checked items will write over or clear current data when loaded."));
  add_ok_cancel(dialog);
  platform().run_dialog(dialog);
  if (dialog.result() == DIALOG_CANCELLED) return false;
  for (int item = 1; item <= SAVE_ITEM_COUNT; ++item) save_items.checked[item] = dialog[item - 1].checked;
  return true;
}

}  // namespace zephyl
