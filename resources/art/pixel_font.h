// Bitmap fonts of the build machine, read through FreeType, as masks.
#pragma once

#include <map>
#include <string>

#include "mask.h"

namespace art {

class TPixelFont {
 public:
  // file: a name in the folder of X11's bitmap fonts, "6x13.pcf.gz". Throws std::runtime_error where it can't
  // be read.
  explicit TPixelFont(const std::string& file);
  ~TPixelFont();
  TPixelFont(const TPixelFont&) = delete;
  TPixelFont& operator=(const TPixelFont&) = delete;

  int ascent() const { return ascent_; }
  int height() const { return height_; }
  // The character's cell, as wide as it advances and height() high, with its baseline below row ascent() - 1.
  // An empty mask for a character that the font lacks.
  const TMask& cell(char32_t character);

 private:
  void* face_ = nullptr;
  int ascent_ = 0;
  int height_ = 0;
  std::map<char32_t, TMask> cells_;
};

// The characters of UTF-8 text.
std::u32string decode_utf8(const std::string& text);

}  // namespace art
