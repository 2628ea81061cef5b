// The GIF decoder of the faceplate: GIF87a, one image, a global colour table, not interlaced. Decodes
// straight onto a surface in strips of 20 rows, with the colour rules of the faceplate.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "platform/surface.h"

namespace zephyl {

enum TGifResult {
  GIF_OK = 0,
  GIF_89A = 1,
  GIF_NO_TABLE = 2,
  GIF_LOCAL_TABLE = 3,
  GIF_INTERLACED = 4,
  GIF_NOT_GIF = 5,  // signature, an aspect byte that isn't 0, too wide, or cut off in its middle
  GIF_NOT_FOUND = 6
};

// Widest picture that is drawn; in the 16-bit form the width of the surface's picture, half of what the file
// says.
constexpr int GIF_STRIP_WIDTH = 240;
constexpr int GIF_STRIP_ROWS = 20;

// Finds the image by name and draws it at x, y. transparent: pure magenta lets through what is there. adjust:
// the legend colour, magenta and brightness rules. Shows "GIF resource not found: '%s'" or "Gif load error"
// where it can't.
TGifResult draw_gif_resource(TSurface& surface, const char* name, int x, int y, bool transparent,
                             bool adjust);

// The same from bytes in memory, without messages. Bad data never writes outside of the surface; what stops
// in the middle leaves the strips done.
TGifResult draw_gif(TSurface& surface, const std::uint8_t* bytes, std::size_t size, int x, int y,
                    bool transparent, bool adjust);

// From an open file at its current position, in the form of the drawing store: each pair of pixels of a row
// is one 16-bit colour, low byte first, blue in bits 15 to 11, green in 10 to 5, red in 4 to 0. Reads in
// blocks, so the position afterwards lies at or behind the picture's end. Shows "Gif load error" where it
// can't.
TGifResult draw_gif_file(TSurface& surface, std::FILE* file, int x, int y, bool transparent, bool adjust);

// The same from bytes in memory, onto the surface's upper left corner, with the colours as they are.
TGifResult draw_gif_pairs(TSurface& surface, const std::uint8_t* bytes, std::size_t size);

// What `adjust` makes of a colour: magenta is white, green the legend colour (white in skin 1, else black),
// and everything but magenta is moved by half of what the brightness differs from 128.
TColour adjusted_colour(TColour colour);

}  // namespace zephyl
