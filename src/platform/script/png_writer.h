// The picture as a PNG file, and as one number by which two pictures can be compared.
#pragma once

#include <cstdint>
#include <vector>

namespace zephyl {

class TSurface;

// A PNG of 8 bits a channel, red, green and blue.
std::vector<std::uint8_t> encode_png(const TSurface& surface);
// Writes it to a file; false if that can't be done.
bool write_png(const TSurface& surface, const char* path);

// CRC-32 (that of PNG and zip) over the red, green and blue byte of each pixel, row by row from the top left.
std::uint32_t picture_hash(const TSurface& surface);

}  // namespace zephyl
