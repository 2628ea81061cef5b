// What the faceplate hands to the engine.
#pragma once

namespace zephyl {

// Puts the drawing of lines, indicators and title, changes of mode and the hit test into the engine's hooks.
void register_faceplate_hooks();

}  // namespace zephyl
