// The letters at the ends of the axes of a 3D plot.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// axis: 0 x, 1 y, 2 z. The letter and a plus sign beside the pixel at which the axis ends, on a white ground
// of their own; on its other side where the edge of the plot is near.
void draw_axis_letter(TSurface& surface, int axis, TPoint end, TColour colour);

}  // namespace zephyl
