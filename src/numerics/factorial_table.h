// The factorials that a double can hold, each the double next to the exact number.
#pragma once

namespace zephyl {

constexpr int FACTORIAL_LIMIT = 170;
extern const double factorial_table[FACTORIAL_LIMIT + 1];

}  // namespace zephyl
