// The three skins: every colour of the fronts, in one place.
#pragma once

#include "canvas.h"

namespace art {

constexpr int SKIN_COUNT = 3;
enum TSkinNumber { COLOURFUL = 0, DARK = 1, LIGHT = 2 };

// A key cap: its face from top to bottom, the edges that catch the light and lie in the shade, its outline,
// and the colour of what is printed on it.
struct TCapColours {
  TColour top;
  TColour bottom;
  TColour light;
  TColour shade;
  TColour outline;
  TColour print;
};

struct TSkin {
  TColour shell_top;
  TColour shell_bottom;
  TColour shadow;  // under the caps
  double shadow_part;
  TColour blue;  // legends over the keys, by their shift
  TColour orange;
  TColour blue_on_cap;  // a shifted meaning printed on the cap itself
  TColour orange_on_cap;
  TCapColours plain;
  TCapColours pale;  // the keys under the statistics legends, and those of the plot pad
  TCapColours digit;
  TCapColours sign;  // the four operations
  TCapColours enter;
  TCapColours clear;
  TCapColours alarm;
  TCapColours mode;
  TCapColours blue_shift;
  TCapColours orange_shift;
  TCapColours stop;
};

const TSkin& skin(int number);

// The panel around the display and under the tabs, the same in all skins.
constexpr TColour PANEL = 0x23282D;
constexpr TColour PANEL_EDGE = 0x3A4249;
constexpr TColour PANEL_DEEP = 0x14171A;
// The display, where the program doesn't fill it with its own colour.
constexpr TColour DISPLAY = 0xD2CB9E;

}  // namespace art
