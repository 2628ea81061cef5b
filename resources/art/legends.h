// What is printed on a front: a row a key.
#pragma once

#include <initializer_list>

#include "canvas.h"
#include "skins.h"

namespace art {

// plain: on the cap; blue, orange: over the key, or, where `beside` is set, on the cap to the right of the
// plain one.
struct TKeyLegend {
  int key;
  const char* plain;
  const char* blue = "";
  const char* orange = "";
  bool beside = false;
};

// One key's legends. print: the colour on the cap. Large keys take the large digits for labels of one
// character.
void draw_legend(TCanvas& canvas, const TBox& box, const TKeyLegend& legend, const TSkin& skin,
                 TColour print);

// A sign and a small word beside it, together in the middle of a box.
void print_with_sign(TCanvas& canvas, const TBox& box, const TMask& sign, TColour sign_colour,
                     const char* word, TColour colour);
constexpr TColour RUN_GREEN = 0x1FA648;

// The word of a shift key with its lamp, hollow or filled, on a picture of a small key.
void print_shift(TCanvas& canvas, const char* word, bool on, TColour colour);
// The cap of a shift that is on: it glows, and what is printed on it is dark.
TCapColours glowing(const TCapColours& colours);

// A label in the middle of a cap, in the widest face in which it fits.
TMask cap_label(const char* text, int width);

}  // namespace art
