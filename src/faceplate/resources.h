// The named resources of the program, found without regard to case: GIF images, 1-bit glyphs and bitmaps, texts. They are
// made from resources/ at build time and linked in. Images and glyphs are two name spaces.
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

// Null where there is none; no message.
const TImageResource* find_image(const char* name);
const TBitmap* find_glyph(const char* name);

// The name with the suffix of the skin that is set: "_0", "_1" or "_2". One shared buffer.
const char* skinned_name(const char* name);

// The glyph of that name, or, with the message "Bitmap not found: '%s'" under "Bitmap Error", null.
const TBitmap* load_bitmap(const char* name);

// Name of the glyph of a character of text: "U_ASCII_%d"; with `numeric` the special names of numbers. One shared buffer.
const char* glyph_name_of_char(unsigned char character, bool numeric);
// Width in pixels through the cache; 0 for an empty or unknown name.
int glyph_width(const char* name);
// The glyph of a character, that of code 255 for one without a glyph, in silence.
const TBitmap& character_glyph(unsigned char character);

}  // namespace zephyl
