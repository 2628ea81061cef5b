#include "support/png_reader.h"

#include <png.h>

#include <cstdint>
#include <vector>

namespace zephyl {

namespace {

TSurface surface_of(const png_image& image, const std::vector<std::uint8_t>& bytes) {
  TSurface surface(static_cast<int>(image.width), static_cast<int>(image.height));
  const std::uint8_t* at = bytes.data();
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x, at += 3) surface.row(y)[x] = rgb(at[0], at[1], at[2]);
  return surface;
}

}  // namespace

std::optional<TSurface> read_png(const char* path) {
  png_image image = {};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&image, path)) return std::nullopt;
  image.format = PNG_FORMAT_RGB;
  std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
  const png_color black = {0, 0, 0};
  if (!png_image_finish_read(&image, &black, bytes.data(), 0, nullptr)) return std::nullopt;
  return surface_of(image, bytes);
}

}  // namespace zephyl
