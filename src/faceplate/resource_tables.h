// The tables that the art generator writes: every image, glyph and picture of the program, each table sorted
// by its upper-case names.
#pragma once

#include "faceplate/resources.h"

namespace zephyl {

struct TGlyphResource {
  const char* name;
  TBitmap bitmap;
};

struct TPictureResource {
  const char* name;
  TPicture picture;
};

extern const TImageResource image_resources[];
extern const int image_resource_count;
extern const TGlyphResource glyph_resources[];
extern const int glyph_resource_count;
extern const TPictureResource picture_resources[];
extern const int picture_resource_count;

}  // namespace zephyl
