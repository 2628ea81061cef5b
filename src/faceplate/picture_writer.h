// Pictures as the files of the drawing store have them: a GIF twice as wide, in which each pair of grey
// pixels is one colour of sixteen bits. GIF tools open it, draw_gif_file and draw_gif_pairs read it.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/surface.h"

namespace zephyl {

void write_picture(const TSurface& picture, std::vector<std::uint8_t>& bytes);

}  // namespace zephyl
