// Colours as drawing commands take them.
#pragma once

#include <algorithm>

#include "platform/surface.h"

namespace zephyl {

// Parts below 0 count as 0, above 1 as 1; 0.5 is 127 of 255.
inline TColour colour_of_parts(double red, double green, double blue) {
  const auto component = [](double part) { return static_cast<int>(std::clamp(part, 0.0, 1.0) * 255.0); };
  return rgb(component(red), component(green), component(blue));
}

}  // namespace zephyl
