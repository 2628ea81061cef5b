#include "platform/script/png_bytes.h"

#include <zlib.h>

namespace zephyl {

namespace {

using TBytes = std::vector<std::uint8_t>;

void append_word(TBytes& bytes, std::uint32_t word) {
  for (int shift = 24; shift >= 0; shift -= 8) bytes.push_back(static_cast<std::uint8_t>(word >> shift));
}

void append_chunk(TBytes& png, const char* type, const TBytes& data) {
  append_word(png, static_cast<std::uint32_t>(data.size()));
  const std::size_t checked_from = png.size();
  png.insert(png.end(), type, type + 4);
  png.insert(png.end(), data.begin(), data.end());
  append_word(png, crc_of(png.data() + checked_from, png.size() - checked_from));
}

TBytes header_of(int width, int height, TPngColours colours) {
  TBytes header;
  append_word(header, static_cast<std::uint32_t>(width));
  append_word(header, static_cast<std::uint32_t>(height));
  // 8 bits, the channels, deflate, the five filters, not interlaced.
  header.insert(header.end(), {8, static_cast<std::uint8_t>(colours), 0, 0, 0});
  return header;
}

// Each row as its filter, none, and its colours.
TBytes filtered_rows(int height, const TBytes& bytes) {
  const std::size_t row_size = bytes.size() / static_cast<std::size_t>(height);
  TBytes rows;
  rows.reserve(bytes.size() + static_cast<std::size_t>(height));
  for (auto row = bytes.begin(); row != bytes.end(); row += static_cast<std::ptrdiff_t>(row_size)) {
    rows.push_back(0);
    rows.insert(rows.end(), row, row + static_cast<std::ptrdiff_t>(row_size));
  }
  return rows;
}

TBytes compressed(const TBytes& bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  TBytes packed(size);
  compress2(packed.data(), &size, bytes.data(), static_cast<uLong>(bytes.size()), Z_BEST_COMPRESSION);
  packed.resize(size);
  return packed;
}

}  // namespace

std::uint32_t crc_of(const std::uint8_t* bytes, std::size_t size) {
  return static_cast<std::uint32_t>(crc32(crc32(0, nullptr, 0), bytes, static_cast<uInt>(size)));
}

std::vector<std::uint8_t> png_of(int width, int height, TPngColours colours, const TBytes& bytes) {
  TBytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  append_chunk(png, "IHDR", header_of(width, height, colours));
  append_chunk(png, "IDAT", compressed(filtered_rows(height, bytes)));
  append_chunk(png, "IEND", {});
  return png;
}

}  // namespace zephyl
