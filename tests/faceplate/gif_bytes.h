// GIF streams made by hand for the tests of the decoder: every field of the header can be set, and the codes
// are given one by one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace zephyl {

struct TGifText {
  std::string signature = "GIF87a";
  int flags = 0x80;  // the table's size is added
  int aspect = 0;
  int colour_bits = 2;
  std::vector<TColour> colours = {rgb(255, 0, 0), rgb(0, 0, 255), rgb(255, 0, 255),
                                  rgb(0, 255, 0)};  // padded with black
  int left = 0;
  int width = 4;
  int height = 1;
  int image_flags = 0;
  int code_size = 2;
  std::vector<int> codes;  // without the end code
  bool ends = true;        // an end code, the empty block and the trailer follow
  int block_size = 255;

  std::vector<std::uint8_t> bytes() const;

  int clear_code() const { return 1 << code_size; }
  int first_free_code() const { return clear_code() + 2; }
};

// A picture that takes each pixel as a literal code: a clear code first and whenever the codes would widen.
TGifText literal_picture(int width, int height, const std::vector<int>& pixels);

}  // namespace zephyl
