// The grid of a flat plot and its axes.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// How many grid lines there are to a unit of a range, so that 5 to 13 of them fit in: 5, 2 or 1 times a power
// of 10 for ranges up to 2.5, 5 and 10. 0 for a range that no double can be such a number for.
double nice_step(double range);
// From one grid line to the next.
double grid_spacing(double range);

// Grid and axes of the view, only with displayGrid.
void draw_grid(TSurface& surface);

}  // namespace zephyl
