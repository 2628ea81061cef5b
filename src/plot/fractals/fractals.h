// The fractals of the drawing layer. All of them draw in the current view, show themselves as they grow, and
// stop at a cancel with what is drawn.
#pragma once

#include <cstdint>

#include "engine/values.h"

namespace zephyl {

// What a picture of a Mandelbrot or Julia set shows. A pixel is the point (column dx + left, row dy + top).
struct TEscapePicture {
  double left, top, dx, dy;
  bool is_julia = false;
  TValue c;                  // of a Julia set
  bool bounded = true;       // a point with a part of magnitude 3 or more counts as escaped at once
  bool all_outside = false;  // all points count so
};

// Of the current view.
TEscapePicture mandelbrot_picture();
TEscapePicture julia_picture(const TValue& c);

// The palette entries (palette.h) of a row's PLOT_WIDTH pixels.
void scan_escape_row(const TEscapePicture& picture, int row, std::uint8_t* entries);

void register_escape_fractals();
void register_iterated_functions();
void register_l_systems();

}  // namespace zephyl
