// Everything that the generator makes, by name, and its two outputs: a C++ source of named bytes for the
// program, and files to look at.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "canvas.h"
#include "mask.h"

namespace art {

class TProduct {
 public:
  // Names are kept in capitals; a name given twice throws.
  void add_image(const std::string& name, const TCanvas& canvas);
  // "NAME_0" to "NAME_2".
  void add_skinned(const std::string& name, int skin, const TCanvas& canvas);
  void add_glyph(const std::string& name, const TMask& mask);
  void add_picture(const std::string& name, const TCanvas& canvas);

  // Both throw std::runtime_error where they can't write.
  void write_source(const std::string& path) const;
  // One GIF an image, and one text file in which every glyph is drawn in characters.
  void write_files(const std::string& folder) const;

 private:
  std::map<std::string, std::vector<std::uint8_t>> images_;
  std::map<std::string, TMask> glyphs_;
  std::map<std::string, TCanvas> pictures_;
};

}  // namespace art
