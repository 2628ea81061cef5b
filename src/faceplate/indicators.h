// The indicators of the faceplate: keys and marks whose look follows the state, each of which can be
// repainted by itself.
#pragma once

#include "engine/hooks.h"
#include "platform/surface.h"

namespace zephyl {

// Paints an indicator onto a surface; nothing in a mode whose screen doesn't hold it.
void paint_indicator(TSurface& surface, TScreenPart part);

// Repaints one on the screen at once. A pressed key under it stays pressed.
void redraw_part(TScreenPart part);

}  // namespace zephyl
