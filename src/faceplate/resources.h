// The named resources of the program, found without regard to case: GIF images, glyphs and other bitmaps.
// They are made from resources/ at build time and linked in. Images and glyphs are two name spaces.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/surface.h"

namespace zephyl {

struct TImageResource {
  const char* name;
  const std::uint8_t* bytes;  // a GIF87a file
  std::size_t size;
};

// A small coloured bitmap: trace LEDs and colour swatches. Rows of `width` pixels from the top.
struct TPicture {
  int width = 0;
  int height = 0;
  const TColour* pixels = nullptr;
};

// Null where there is none; no message.
const TImageResource* find_image(const char* name);
const TBitmap* find_glyph(const char* name);
const TPicture* find_picture(const char* name);

// The name with the suffix of the skin that is set: "_0", "_1" or "_2". One shared buffer.
const char* skinned_name(const char* name);

// The glyph of that name, or, with the message "Bitmap not found: '%s'" under "Bitmap Error", null.
const TBitmap* load_bitmap(const char* name);
// Draws a bitmap or a picture without transparency: ink black, paper white. inverted: every colour is
// inverted. Shows the message of `load_bitmap` where there is none.
void blit_bitmap(TSurface& surface, const char* name, int x, int y, bool inverted = false);

// Name of the glyph of a character: "U_ASCII_%d", that of code 255 for a character without a glyph. With
// `numeric` the special names of numbers on the entry line. One shared buffer.
const char* glyph_name_of_char(unsigned char character, bool numeric);
// The special names as the result line has them: not those of hexadecimal letters and radix suffixes.
const char* glyph_name_of_result_char(unsigned char character);
// The same for a name of several characters, which passes through as it is.
const char* glyph_name(const char* name, bool numeric);

// Width in pixels through the cache; 0 for an empty name and, with the message of `load_bitmap`, an unknown
// one.
int glyph_width(const char* name);
// The glyph of a character, that of code 255 for one without a glyph, in silence.
const TBitmap& character_glyph(unsigned char character);

}  // namespace zephyl
