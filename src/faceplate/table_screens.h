// The table on the screens of LIST_MODE and MATRIX_MODE: title and size, the cells in view, the cursor, the
// value at the cursor in full, and the lit tab of the variable that shows.
#pragma once

#include "platform/surface.h"

namespace zephyl {

void paint_list_table(TSurface& surface);
void paint_matrix_table(TSurface& surface);

}  // namespace zephyl
