// The screens of all modes, painted from images, indicators and lines.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// Paints all of the screen of the current mode. What an unknown mode shows is left as it is.
void paint_screen(TSurface& surface);

}  // namespace zephyl
