// Key caps: rounded, with a face that darkens downwards, an edge of light on top and one of shade below.
#pragma once

#include <initializer_list>

#include "canvas.h"
#include "skins.h"

namespace art {

// On a shell: with smooth corners and a shadow.
void draw_cap(TCanvas& canvas, const TBox& box, const TCapColours& colours, const TSkin& skin);
// As a picture of its own that is laid over such a cap: what isn't wholly cap is CLEAR.
TCanvas cap_picture(int width, int height, const TCapColours& colours);

// The cap of a key in a skin: one column narrower than large keys in the colourful one, one row higher than
// small keys in the light one.
TBox cap_box(const TBox& key, int skin_number);

// A whole front without keys: the shell, and on it the panel with the displays and the line of tabs at
// tab_top.
TCanvas shell(const TSkin& skin, int tab_top, std::initializer_list<TBox> displays);

// A filled box with smooth round corners, over what is there.
void draw_rounded(TCanvas& canvas, const TBox& box, double radius, TColour colour);
// How much of a pixel lies in such a box, 0 to 1.
double rounded_cover(const TBox& box, double radius, int x, int y);

}  // namespace art
