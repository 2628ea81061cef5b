// Dialog 218, "Select Items to Clear".
#pragma once

namespace zephyl {

// Clears what the user checks, at once.
void show_items_to_clear();

}  // namespace zephyl
