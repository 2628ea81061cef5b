// How alpha entry looks: its text in place of the entry line, and the overlay with its keys.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// The text with its cursor.
void paint_alpha_text(TSurface& surface);
// The overlay with its page of characters, its shift key and the label of its kind. A kind without a label is
// reported.
void paint_alpha_overlay(TSurface& surface);
void paint_alpha_shift(TSurface& surface);

// The same on the screen at once.
void redraw_alpha_text();
void redraw_alpha_overlay();

// Where the shift key is.
constexpr TRect ALPHA_SHIFT_RECT = {185, 152, 220, 169};

}  // namespace zephyl
