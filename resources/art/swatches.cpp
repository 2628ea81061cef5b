// Small bitmaps in colours: the swatches of the plot functions and the trace lamps.

#include "fronts.h"

namespace art {

namespace {

struct TSwatch {
  const char* name;
  TColour colour;
};

// The colours of the plotted functions.
constexpr TSwatch swatches[] = {
    {"BLUE_BOX", 0x0000FF},   {"RED_BOX", 0xFF0000},    {"GREEN_BOX", 0x00D200},
    {"PURPLE_BOX", 0xFF00FF}, {"ORANGE_BOX", 0xFFC048}, {"TEAL_BOX", 0x13C8C0},
};

TCanvas swatch(TColour colour) {
  TCanvas canvas(16, 16, colour);
  canvas.frame({0, 0, 15, 15}, 0x404040);
  return canvas;
}

}  // namespace

void add_swatches(TProduct& product) {
  for (const TSwatch& row : swatches) product.add_picture(row.name, swatch(row.colour));
  TCanvas green(3, 3, 0x20D040), grey(3, 3, 0x707070);
  green.set(0, 0, 0x90F0A0);
  grey.set(0, 0, 0x909090);
  product.add_picture("GREEN_TRACE_LED", green);
  product.add_picture("GREY_TRACE_LED", grey);
}

}  // namespace art
