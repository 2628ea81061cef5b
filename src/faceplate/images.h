// How the faceplate draws its pictures: with which transparency, with which skin, on which cap.
#pragma once

#include "platform/surface.h"

namespace zephyl {

// Covers all that lies under it: backgrounds and tabs.
void draw_backdrop(TSurface& surface, const char* name, int x, int y);

// Lets through what lies under it: fronts and the pictures on keys.
void draw_picture(TSurface& surface, const char* name, int x, int y);

// The cap of a small key and the picture on it, both at the same place.
void draw_key(TSurface& surface, const char* name, int x, int y, const char* cap = "small_button_gif");
// The same with a picture that each skin has its own of.
void draw_skinned_key(TSurface& surface, const char* name, int x, int y);

}  // namespace zephyl
