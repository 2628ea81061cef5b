#include "pixel_font.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <stdexcept>

#ifndef FONT_FOLDER
#define FONT_FOLDER "/usr/share/fonts/X11/misc"
#endif

namespace art {

namespace {

FT_Library library() {
  static FT_Library instance = nullptr;
  if (!instance && FT_Init_FreeType(&instance) != 0) throw std::runtime_error("FreeType does not start");
  return instance;
}

FT_Face face_of(void* face) { return static_cast<FT_Face>(face); }

int pixels(FT_Pos units) { return static_cast<int>(units >> 6); }

bool bit(const FT_Bitmap& bitmap, int x, int y) {
  return (bitmap.buffer[y * bitmap.pitch + x / 8] >> (7 - x % 8) & 1) != 0;
}

}  // namespace

TPixelFont::TPixelFont(const std::string& file) {
  const std::string path = std::string(FONT_FOLDER) + "/" + file;
  FT_Face face = nullptr;
  if (FT_New_Face(library(), path.c_str(), 0, &face) != 0 || FT_Select_Size(face, 0) != 0)
    throw std::runtime_error("can't read the font " + path);
  face_ = face;
  ascent_ = pixels(face->size->metrics.ascender);
  height_ = ascent_ - pixels(face->size->metrics.descender);
}

TPixelFont::~TPixelFont() { FT_Done_Face(face_of(face_)); }

const TMask& TPixelFont::cell(char32_t character) {
  const auto known = cells_.find(character);
  if (known != cells_.end()) return known->second;
  TMask mask;
  FT_Face face = face_of(face_);
  const FT_UInt index = FT_Get_Char_Index(face, character);
  if (index != 0 && FT_Load_Glyph(face, index, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) == 0) {
    const FT_GlyphSlot slot = face->glyph;
    mask = TMask(pixels(slot->advance.x), height_);
    for (int y = 0; y < static_cast<int>(slot->bitmap.rows); ++y)
      for (int x = 0; x < static_cast<int>(slot->bitmap.width); ++x)
        if (bit(slot->bitmap, x, y)) mask.set(slot->bitmap_left + x, ascent_ - slot->bitmap_top + y);
  }
  return cells_.emplace(character, mask).first->second;
}

std::u32string decode_utf8(const std::string& text) {
  std::u32string out;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) == 0x80)
      out.back() = out.back() << 6 | (byte & 0x3F);
    else
      out.push_back(byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1F : byte < 0xF0 ? byte & 0x0F : byte & 0x07);
  }
  return out;
}

}  // namespace art
