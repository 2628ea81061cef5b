#include "faceplate/display.h"

#include "engine/state.h"
#include "platform/events.h"

namespace zephyl {

TSurface& screen_surface() {
  static TSurface surface(SCREEN_WIDTH, SCREEN_HEIGHT);
  return surface;
}

TColour display_colour() {
  const int held = settings.display_color;
  return rgb(held & 255, (held >> 8) & 255, (held >> 16) & 255);
}

void clear_line(TSurface& surface, int y) {
  surface.fill({LINE_LEFT, y, LINE_RIGHT, y + LINE_HEIGHT - 1}, display_colour());
}

}  // namespace zephyl
