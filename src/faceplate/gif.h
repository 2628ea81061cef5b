// The GIF decoder of the faceplate: GIF87a, one image, a global colour table, not interlaced. Decodes straight onto a
// surface in strips of 20 rows, with the colour rules of the faceplate.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/surface.h"

namespace zephyl {

enum TGifResult {
  GIF_OK = 0,
  GIF_89A = 1,
  GIF_NO_TABLE = 2,
  GIF_LOCAL_TABLE = 3,
  GIF_INTERLACED = 4,
  GIF_NOT_GIF = 5,  // signature, or an aspect byte that isn't 0
  GIF_NOT_FOUND = 6
};

// Finds the image by name and draws it at x, y. transparent: pure magenta lets through what is there. adjust: the legend
// colour, magenta and brightness rules. Shows "GIF resource not found: '%s'" or "Gif load error" where it can't.
TGifResult draw_gif_resource(TSurface& surface, const char* name, int x, int y, bool transparent, bool adjust);

// The same from bytes in memory, without messages. Bad data never writes outside of the surface.
TGifResult draw_gif(TSurface& surface, const std::uint8_t* bytes, std::size_t size, int x, int y, bool transparent,
                    bool adjust);

}  // namespace zephyl
