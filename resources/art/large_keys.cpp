// The pictures of 22 rows: AC, the decimal comma, and the key that leads to the dynamic mode.

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "typefaces.h"

namespace art {

namespace {

TCanvas large_key(const TCapColours& colours, int skin_number, const TMask& label) {
  const TBox box = cap_box({0, 0, LARGE_KEY_WIDTH - 1, LARGE_KEY_HEIGHT - 1}, skin_number);
  TCanvas canvas = cap_picture(box.width(), box.height(), colours);
  canvas.stamp_centred(label, box, colours.print);
  return canvas;
}

TMask label(const char* text) { return cap_label(text, LARGE_KEY_WIDTH); }

}  // namespace

void add_large_keys(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) {
    const TSkin& colours = skin(number);
    const auto add = [&](const char* name, const TCapColours& cap, const TMask& mask) {
      product.add_skinned(name, number, large_key(cap, number, mask));
    };
    add("AC_BUTTON_GIF", colours.clear, label("AC"));
    add("RED_AC_BUTTON_GIF", colours.alarm, label("AC"));
    add("COMMA_BUTTON_GIF", colours.digit, typefaces().digit.label(","));
    add("STATS_BUTTON_GIF", colours.mode, label("Stats"));
    add("MATRIX_BUTTON_GIF", colours.mode, label("Matrix"));
    add("LIST_BUTTON_GIF", colours.mode, label("List"));
  }
}

}  // namespace art
