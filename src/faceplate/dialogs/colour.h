// Dialog 194, "Select Color and Skin". It works on the look that is pending while the Setup dialog is open;
// the face changes when Setup ends with OK.
#pragma once

#include "platform/surface.h"

namespace zephyl {

struct TDisplayLook {
  int colour = 0;      // red in the low byte, as in the setting display_color
  int brightness = 0;  // 0 to 255, 128 is neutral
  int skin = 0;
};
extern TDisplayLook pending_display;

// OK changes pending_display, Cancel leaves it as it was.
void select_colour_and_skin();

// The sample of the display: 150 by 23 pixels of the colour with "Sample Text" in the middle.
TSurface colour_sample(int colour);

}  // namespace zephyl
