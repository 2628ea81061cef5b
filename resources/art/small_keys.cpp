// The pictures of 36 by 18: caps, and what is laid over them. Those without a skin print in the legend
// colour.

#include <string>

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "signs.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr TBox KEY = {0, 0, SMALL_KEY_WIDTH - 1, SMALL_KEY_HEIGHT - 1};

TCanvas blank() { return TCanvas(SMALL_KEY_WIDTH, SMALL_KEY_HEIGHT); }

// A full cap of the skin; in the light one the outline below belongs to the cap under it.
TCanvas small_cap(const TCapColours& colours, int skin_number) {
  const TBox box = cap_box(KEY, skin_number);
  TCanvas out = blank();
  out.draw(cap_picture(box.width(), box.height(), colours), 0, 0);
  return out;
}

TCanvas printed(const char* text) {
  TCanvas canvas = blank();
  canvas.stamp_centred(cap_label(text, SMALL_KEY_WIDTH), KEY, LEGEND);
  return canvas;
}

// The number in the bold face and its unit in the light one, on one line.
TCanvas bits_key(const char* number) {
  const TTypeface &bold = typefaces().label, &light = typefaces().legend;
  const TMask count = bold.text(number), unit = light.text("bit");
  const int x = (SMALL_KEY_WIDTH - count.width() - 2 - unit.width()) / 2, baseline = 12;
  TCanvas canvas = blank();
  canvas.stamp(count, x, baseline - bold.baseline(), LEGEND);
  canvas.stamp(unit, x + count.width() + 2, baseline - light.baseline(), LEGEND);
  return canvas;
}

// An arrow head in the middle.
TCanvas arrow(bool to_left, TColour colour) {
  TCanvas canvas = blank();
  canvas.stamp_centred(to_left ? left_triangle() : left_triangle().flipped(), KEY, colour);
  return canvas;
}

TCanvas shift_key(const TCapColours& colours, int skin_number, bool on) {
  const TCapColours cap = on ? glowing(colours) : colours;
  TCanvas canvas = small_cap(cap, skin_number);
  print_shift(canvas, "SHIFT", on, cap.print);
  return canvas;
}

// When on, the word is cut out of a field in the legend colour, so that it stands out on light and dark caps.
TCanvas hyp_key(bool on) {
  TCanvas canvas = blank();
  if (on)
    for (int y = 3; y < SMALL_KEY_HEIGHT - 3; ++y)
      for (int x = 3; x < SMALL_KEY_WIDTH - 3; ++x)
        if (rounded_cover({3, 3, SMALL_KEY_WIDTH - 4, SMALL_KEY_HEIGHT - 4}, 3, x, y) > 0.5)
          canvas.set(x, y, LEGEND);
  print_shift(canvas, "HYP", on, on ? CLEAR : LEGEND);
  return canvas;
}

constexpr TColour ERROR_RED = 0xE02818;

void add_skinned_keys(TProduct& product, int number) {
  const TSkin& colours = skin(number);
  const TBox box = cap_box(KEY, number);
  product.add_skinned("SMALL_BUTTON_GIF", number, cap_picture(box.width(), box.height(), colours.plain));
  product.add_skinned("SMALL_LIGHT_BUTTON_GIF", number, cap_picture(box.width(), box.height(), colours.pale));
  product.add_skinned("BLUE_SHIFT_BUTTON_GIF", number, shift_key(colours.blue_shift, number, false));
  product.add_skinned("BLUE_DOT_BUTTON_GIF", number, shift_key(colours.blue_shift, number, true));
  product.add_skinned("ORANGE_SHIFT_BUTTON_GIF", number, shift_key(colours.orange_shift, number, false));
  product.add_skinned("ORANGE_DOT_BUTTON_GIF", number, shift_key(colours.orange_shift, number, true));
  TCanvas stop = small_cap(colours.stop, number);
  print_with_sign(stop, KEY, stop_square(), colours.stop.print, "STOP", colours.stop.print);
  product.add_skinned("STOP_BUTTON_GIF", number, stop);
}

struct TPrintedKey {
  const char* name;
  const char* text;
};

constexpr TPrintedKey printed_keys[] = {
    {"SMALL_DOT_BUTTON_GIF", "."},
    {"BIN_GIF", "BIN"},
    {"OCT_GIF", "OCT"},
    {"DEC_GIF", "DEC"},
    {"HEX_GIF", "HEX"},
    {"RAD_GIF", "RAD"},
    {"DEG_GIF", "DEG"},
    {"GRAD_GIF", "GRAD"},
    {"LINR_GIF", "LINR"},
    {"LOGR_GIF", "LOGR"},
    {"EXPR_GIF", "EXPR"},
    {"POWR_GIF", "POWR"},
    {"1_VAR_GIF", "1 VAR"},
    {"2_VAR_GIF", "2 VAR"},
};

}  // namespace

void add_small_keys(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) add_skinned_keys(product, number);
  for (const TPrintedKey& key : printed_keys) product.add_image(key.name, printed(key.text));
  for (const char* number : {"8", "16", "32"})
    product.add_image(std::string(number) + "_BIT_GIF", bits_key(number));
  product.add_image("HYP_BUTTON_GIF", hyp_key(false));
  product.add_image("WHITE_DOT_BUTTON_GIF", hyp_key(true));
  product.add_image("LEFT_ARROW_BUTTON_GIF", arrow(true, LEGEND));
  product.add_image("RIGHT_ARROW_BUTTON_GIF", arrow(false, LEGEND));
  product.add_image("LEFT_ARROW_BUTTON_RED_GIF", arrow(true, ERROR_RED));
  product.add_image("RIGHT_ARROW_BUTTON_RED_GIF", arrow(false, ERROR_RED));
  TCanvas run = blank();
  print_with_sign(run, KEY, run_triangle(), RUN_GREEN, "RUN", LEGEND);
  product.add_image("RUN_BUTTON_GIF", run);
}

}  // namespace art
