#include "faceplate/dialogs/clear_items.h"

#include <algorithm>
#include <iterator>

#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "faceplate/dialogs/running.h"
#include "plot/drawing.h"
#include "programs/program_input.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

bool any_variable() {
  return std::any_of(std::begin(memory_array), std::end(memory_array),
                     [](const TValue& value) { return value.re != 0.0 || value.im != 0.0; });
}

bool any_statistics() { return stats.count > 0 || !stats.next_is_x; }

bool any_list() {
  return std::any_of(std::begin(stores.lists), std::end(stores.lists),
                     [](const ListRecord& list) { return list.defined; });
}

bool any_matrix() {
  return std::any_of(std::begin(stores.matrices), std::end(stores.matrices),
                     [](const MatrixRecord& matrix) { return matrix.defined; });
}

bool any_string() {
  return std::any_of(std::begin(stores.strings), std::end(stores.strings),
                     [](const TString& string) { return string.text[0] != 0; });
}

bool any_function(int first, int last) {
  return std::any_of(function_slots + first, function_slots + last + 1,
                     [](const TExpression& slot) { return slot.count > 0; });
}

bool any_plot_function() {
  return any_function(0, FIRST_PROGRAM_FUNCTION - 1) ||
         any_function(FIRST_SURFACE_FUNCTION, FIRST_SURFACE_FUNCTION + SURFACE_FUNCTION_COUNT - 1);
}
bool any_program_function() { return any_function(FIRST_PROGRAM_FUNCTION, FIRST_PROGRAM_FUNCTION + 8); }
bool any_history() { return history.count > 0; }
bool any_drawing() { return drawing.drawing_used; }

// Whether there is something to clear, by TClearItem from CLEAR_VARIABLES on.
constexpr bool (*holds_data[])() = {any_variable,      any_statistics, any_list,    any_matrix,
                                    any_plot_function, any_drawing,    any_history, any_program_function,
                                    has_last_answers,  any_string};
static_assert(std::size(holds_data) == CLEAR_ALL_ITEMS - 1);

void add_boxes(TDialog& dialog) {
  bool any = false;
  for (int item = CLEAR_VARIABLES; item <= CLEAR_ALL_ITEMS; ++item) {
    TControl box = check_control(clear_item_label(item), false);
    box.enabled = item == CLEAR_ALL_ITEMS ? any : holds_data[item - CLEAR_VARIABLES]();
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
