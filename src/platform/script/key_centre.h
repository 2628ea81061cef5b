// Keys by their number.
#pragma once

#include <cstdint>

#include "platform/geometry.h"

namespace zephyl {

// The centre of row `number` of the key table of the screen that shows; false if it has no such row.
bool centre_of_key(std::int64_t number, TPoint& centre);

}  // namespace zephyl
