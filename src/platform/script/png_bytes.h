// PNG files of rows of bytes.
#pragma once

#include <cstdint>
#include <vector>

namespace zephyl {

enum TPngColours { PNG_RGB = 2, PNG_RGBA = 6 };  // the numbers that the format has for them

// A PNG of 8 bits a channel, as large as its file may be small. bytes: the channels of each pixel, row by row
// from the top left.
std::vector<std::uint8_t> png_of(int width, int height, TPngColours colours,
                                 const std::vector<std::uint8_t>& bytes);

// The CRC-32 of PNG and zip.
std::uint32_t crc_of(const std::uint8_t* bytes, std::size_t size);

}  // namespace zephyl
