#include "platform/script/png_writer.h"

#include <cstdio>

#include "platform/script/png_bytes.h"
#include "platform/surface.h"

namespace zephyl {

namespace {

std::vector<std::uint8_t> colours_of(const TSurface& surface) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(static_cast<std::size_t>(surface.width()) * static_cast<std::size_t>(surface.height()) * 3);
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x) {
      const TColour colour = surface.row(y)[x];
      for (const int channel : {red_of(colour), green_of(colour), blue_of(colour)})
        bytes.push_back(static_cast<std::uint8_t>(channel));
    }
  return bytes;
}

}  // namespace

std::vector<std::uint8_t> encode_png(const TSurface& surface) {
  return png_of(surface.width(), surface.height(), PNG_RGB, colours_of(surface));
}

bool write_png(const TSurface& surface, const char* path) {
  const std::vector<std::uint8_t> png = encode_png(surface);
  std::FILE* file = std::fopen(path, "wb");
  if (!file) return false;
  const bool written = std::fwrite(png.data(), 1, png.size(), file) == png.size();
  return (std::fclose(file) == 0) && written;
}

std::uint32_t picture_hash(const TSurface& surface) {
  const std::vector<std::uint8_t> bytes = colours_of(surface);
  return crc_of(bytes.data(), bytes.size());
}

}  // namespace zephyl
