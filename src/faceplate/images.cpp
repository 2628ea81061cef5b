#include "faceplate/images.h"

#include "faceplate/gif.h"
#include "faceplate/resources.h"

namespace zephyl {

void draw_backdrop(TSurface& surface, const char* name, int x, int y) {
  draw_gif_resource(surface, name, x, y, false, true);
}

void draw_picture(TSurface& surface, const char* name, int x, int y) {
  draw_gif_resource(surface, name, x, y, true, true);
}

void draw_key(TSurface& surface, const char* name, int x, int y, const char* cap) {
  draw_picture(surface, skinned_name(cap), x, y);
  draw_picture(surface, name, x, y);
}

void draw_skinned_key(TSurface& surface, const char* name, int x, int y) {
  draw_picture(surface, skinned_name("small_button_gif"), x, y);
  draw_picture(surface, skinned_name(name), x, y);
}

}  // namespace zephyl
