// From a true-colour picture to the GIF that the decoder takes: at most 256 colours, a table of a power of
// two.
#pragma once

#include <cstdint>
#include <vector>

#include "canvas.h"

namespace art {

// Where a picture has more than 256 colours the rarest are replaced by the nearest of the others; CLEAR and
// LEGEND stay exact and stand for nothing else.
std::vector<std::uint8_t> make_gif(const TCanvas& canvas);

}  // namespace art
