// The trace cursor: the point of the followed plot at the pen, with its numbers.
#pragma once

#include "platform/geometry.h"

namespace zephyl {

// pen: a pixel of the plot's picture. Draws over a copy of the plot and shows it; false, and nothing drawn,
// where the followed slot is empty or no point of it is defined.
bool trace_at(TPoint pen);

}  // namespace zephyl
