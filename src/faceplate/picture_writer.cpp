#include "faceplate/picture_writer.h"

#include "faceplate/gif_writer.h"

namespace zephyl {

namespace {

constexpr int GREYS = 256;
constexpr int GREY_BITS = 8;

// As draw_gif_file takes it apart: five bits of blue in the highest places, six of green, five of red.
int colour_word(TColour colour) {
  return (blue_of(colour) >> 3) << 11 | (green_of(colour) >> 2) << 5 | red_of(colour) >> 3;
}

// Goes over a picture and gives two bytes for each pixel, the low one first.
struct TPairSource {
  const TColour* next;
  int colour = 0;
  bool high = false;

  int next_byte() {
    if (!high) colour = colour_word(*next++);
    const int byte = high ? colour >> 8 : colour & 255;
    high = !high;
    return byte;
  }
};

}  // namespace

void write_picture(const TSurface& picture, std::vector<std::uint8_t>& bytes) {
  gif_open_in_memory(bytes, 2 * picture.width(), picture.height(), GREYS, GREY_BITS);
  for (int grey = 0; grey < GREYS; ++grey) gif_set_colour(grey, grey, grey, grey);
  TPairSource source{picture.pixels()};
  gif_write_image([](void* context) { return static_cast<TPairSource*>(context)->next_byte(); }, &source);
  gif_close();
}

}  // namespace zephyl
