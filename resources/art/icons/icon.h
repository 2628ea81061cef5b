// The program's icon: the calculator's front, simplified for each size. Keys and display lie on whole pixels
// at every size; smooth are only corners and the curve.
#pragma once

#include <cstdint>
#include <vector>

namespace art {

// size by size pixels; red, green, blue and opacity of each, row by row from the top left. size: from 16 on.
std::vector<std::uint8_t> icon(int size);

}  // namespace art
