// The colours of the Mandelbrot and Julia sets.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// hue, saturation and value from 0 to 1, hue once around the circle; red, green and blue are limited to 0
// to 1.
TColour hsv_to_rgb(double hue, double saturation, double value);

constexpr int PALETTE_SIZE = 129;

// Entry 128 - n is the colour of a point that escapes after n rounds; entry 0 that of one that never does,
// almost black.
const TColour* escape_palette();

}  // namespace zephyl
