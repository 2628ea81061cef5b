#include "plot/fractals/palette.h"

#include "plot/drawing_colours.h"

namespace zephyl {

TColour hsv_to_rgb(double hue, double saturation, double value) {
  if (saturation == 0.0) return colour_of_parts(value, value, value);
  const double place = hue * 6.0;
  const int sector = static_cast<int>(place);
  const double rest = place - sector;
  const double a = value * (1.0 - saturation);
  const double b = value * (1.0 - saturation * rest);
  const double c = value * (1.0 - saturation * (1.0 - rest));
  switch (sector) {
    case 0:
      return colour_of_parts(value, c, a);
    case 1:
      return colour_of_parts(b, value, a);
    case 2:
      return colour_of_parts(a, value, c);
    case 3:
      return colour_of_parts(a, b, value);
    case 4:
      return colour_of_parts(c, a, value);
    default:
      return colour_of_parts(value, a, b);
  }
}

const TColour* escape_palette() {
  struct TPalette {
    TColour entries[PALETTE_SIZE];
    TPalette() {
      for (int i = 0; i < PALETTE_SIZE; ++i) {
        const double part = (PALETTE_SIZE - i) * 0.0078125;
        entries[i] = hsv_to_rgb(part, 0.8, 1.1 - part * part * part);
      }
    }
  };
  static const TPalette palette;
  return palette.entries;
}

}  // namespace zephyl
