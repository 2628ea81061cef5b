#include "platform/script/png_writer.h"

#include <zlib.h>

#include <cstdio>

#include "platform/surface.h"

namespace zephyl {

namespace {

using TBytes = std::vector<std::uint8_t>;

void append_colour(TBytes& bytes, TColour colour) {
  bytes.push_back(static_cast<std::uint8_t>(red_of(colour)));
  bytes.push_back(static_cast<std::uint8_t>(green_of(colour)));
  bytes.push_back(static_cast<std::uint8_t>(blue_of(colour)));
}

void append_word(TBytes& bytes, std::uint32_t word) {
  for (int shift = 24; shift >= 0; shift -= 8) bytes.push_back(static_cast<std::uint8_t>(word >> shift));
}

std::uint32_t crc_of(const std::uint8_t* bytes, std::size_t size) {
  return static_cast<std::uint32_t>(crc32(crc32(0, nullptr, 0), bytes, static_cast<uInt>(size)));
}

void append_chunk(TBytes& png, const char* type, const TBytes& data) {
  append_word(png, static_cast<std::uint32_t>(data.size()));
  const std::size_t checked_from = png.size();
  png.insert(png.end(), type, type + 4);
  png.insert(png.end(), data.begin(), data.end());
  append_word(png, crc_of(png.data() + checked_from, png.size() - checked_from));
}

TBytes header_of(const TSurface& surface) {
  TBytes header;
  append_word(header, static_cast<std::uint32_t>(surface.width()));
  append_word(header, static_cast<std::uint32_t>(surface.height()));
  // 8 bits, red green blue, deflate, the five filters, not interlaced.
  header.insert(header.end(), {8, 2, 0, 0, 0});
  return header;
}

// Each row as its filter, none, and its colours.
TBytes rows_of(const TSurface& surface) {
  TBytes rows;
  rows.reserve(static_cast<std::size_t>(surface.height()) *
               (static_cast<std::size_t>(surface.width()) * 3 + 1));
  for (int y = 0; y < surface.height(); ++y) {
    rows.push_back(0);
    for (int x = 0; x < surface.width(); ++x) append_colour(rows, surface.row(y)[x]);
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

std::vector<std::uint8_t> encode_png(const TSurface& surface) {
  TBytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  append_chunk(png, "IHDR", header_of(surface));
  append_chunk(png, "IDAT", compressed(rows_of(surface)));
  append_chunk(png, "IEND", {});
  return png;
}

bool write_png(const TSurface& surface, const char* path) {
  const TBytes png = encode_png(surface);
  std::FILE* file = std::fopen(path, "wb");
  if (!file) return false;
  const bool written = std::fwrite(png.data(), 1, png.size(), file) == png.size();
  return (std::fclose(file) == 0) && written;
}

std::uint32_t picture_hash(const TSurface& surface) {
  TBytes bytes;
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x) append_colour(bytes, surface.row(y)[x]);
  return crc_of(bytes.data(), bytes.size());
}

}  // namespace zephyl
