// Random bytes as GIF pictures, in the plain form and in that of the drawing store; and as pixels, which must
// come back from the writer as they went in.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "faceplate/gif.h"
#include "faceplate/gif_writer.h"
#include "platform/surface.h"

namespace zephyl {
namespace {

constexpr TColour GROUND = rgb(1, 2, 3);
constexpr std::size_t OPTION_BYTES = 3;

// The first byte of the input.
enum TOption { TRANSPARENT = 1, ADJUSTED = 2, PAIRS = 4, FROM_FILE = 8, PIXELS = 16 };

TSurface ground() {
  TSurface surface(GIF_STRIP_WIDTH, 60);
  surface.fill({0, 0, surface.width() - 1, surface.height() - 1}, GROUND);
  return surface;
}

void must_be(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

bool is_untouched(const TSurface& surface) {
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x)
      if (surface.pixel(x, y) != GROUND) return false;
  return true;
}

void check_result(TGifResult result, const TSurface& surface) {
  must_be(result >= GIF_OK && result <= GIF_NOT_GIF, "the decoder gave a code of its own making");
  const bool refused = result >= GIF_89A && result <= GIF_INTERLACED;
  must_be(!refused || is_untouched(surface), "a refused picture was drawn");
}

TGifResult draw_from_file(TSurface& surface, int options, const std::uint8_t* bytes, std::size_t size) {
  std::FILE* file = fmemopen(const_cast<std::uint8_t*>(bytes), size, "rb");
  const TGifResult result =
      draw_gif_file(surface, file, 0, 0, (options & TRANSPARENT) != 0, (options & ADJUSTED) != 0);
  std::fclose(file);
  return result;
}

void decode(int options, int x, int y, const std::uint8_t* bytes, std::size_t size) {
  TSurface surface = ground();
  if ((options & FROM_FILE) && size > 0)
    check_result(draw_from_file(surface, options, bytes, size), surface);
  else if (options & PAIRS)
    check_result(draw_gif_pairs(surface, bytes, size), surface);
  else
    check_result(
        draw_gif(surface, bytes, size, x, y, (options & TRANSPARENT) != 0, (options & ADJUSTED) != 0),
        surface);
}

struct TPixels {
  const std::uint8_t* bytes;
  std::size_t size;
  std::size_t at = 0;
  std::uint8_t next() { return bytes[at++ % size]; }
};

// The colours are greys, the brighter the higher the pixel.
std::vector<std::uint8_t> written(TPixels pixels, int width, int height) {
  std::vector<std::uint8_t> gif;
  gif_open_in_memory(gif, width, height, 256, 8);
  for (int i = 0; i < 256; ++i) gif_set_colour(i, i, i, i);
  gif_write_image([](void* context) { return int{static_cast<TPixels*>(context)->next()}; }, &pixels);
  gif_close();
  return gif;
}

void write_and_read_back(int width, int height, const std::uint8_t* bytes, std::size_t size) {
  const std::vector<std::uint8_t> gif = written({bytes, size}, width, height);
  TSurface surface(width, height);
  must_be(draw_gif(surface, gif.data(), gif.size(), 0, 0, false, false) == GIF_OK,
          "a written picture was refused");
  TPixels pixels{bytes, size};
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      must_be(blue_of(surface.pixel(x, y)) == pixels.next(), "a pixel came back as another");
}

}  // namespace
}  // namespace zephyl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zephyl;
  if (size <= OPTION_BYTES) return 0;
  const std::uint8_t* bytes = data + OPTION_BYTES;
  size -= OPTION_BYTES;
  if (data[0] & PIXELS)
    write_and_read_back(1 + data[1] % GIF_STRIP_WIDTH, 1 + data[2] % 64, bytes, size);
  else
    decode(data[0], data[1] - 128, data[2] - 128, bytes, size);
  return 0;
}
