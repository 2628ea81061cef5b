// The PNG files and the number of a picture, read back with zlib and compared with known values.

#include <gtest/gtest.h>
#include <zlib.h>

#include <string>
#include <vector>

#include "platform/script/png_writer.h"
#include "platform/surface.h"

namespace zephyl {
namespace {

using TBytes = std::vector<std::uint8_t>;

std::uint32_t word_at(const TBytes& bytes, std::size_t at) {
  return static_cast<std::uint32_t>(bytes[at] << 24 | bytes[at + 1] << 16 | bytes[at + 2] << 8 |
                                    bytes[at + 3]);
}

struct TChunk {
  std::string type;
  TBytes data;
  std::uint32_t stated_crc = 0;
  std::uint32_t actual_crc = 0;
};

std::vector<TChunk> chunks_of(const TBytes& png) {
  std::vector<TChunk> chunks;
  for (std::size_t at = 8; at + 12 <= png.size();) {
    const std::size_t size = word_at(png, at);
    TChunk chunk;
    chunk.type.assign(png.begin() + static_cast<long>(at) + 4, png.begin() + static_cast<long>(at) + 8);
    chunk.data.assign(png.begin() + static_cast<long>(at) + 8,
                      png.begin() + static_cast<long>(at + 8 + size));
    chunk.stated_crc = word_at(png, at + 8 + size);
    chunk.actual_crc = static_cast<std::uint32_t>(crc32(0, png.data() + at + 4, static_cast<uInt>(size + 4)));
    chunks.push_back(chunk);
    at += size + 12;
  }
  return chunks;
}

// Two rows: red, green; blue, white.
TSurface four_colours() {
  TSurface surface(2, 2);
  surface.set_pixel(0, 0, rgb(255, 0, 0));
  surface.set_pixel(1, 0, rgb(0, 255, 0));
  surface.set_pixel(0, 1, rgb(0, 0, 255));
  return surface;
}

TEST(png, begins_with_the_signature) {
  const TBytes png = encode_png(four_colours());
  EXPECT_EQ(TBytes(png.begin(), png.begin() + 8), (TBytes{0x89, 'P', 'N', 'G', 13, 10, 26, 10}));
}

TEST(png, has_header_data_and_end_with_true_checksums) {
  const std::vector<TChunk> chunks = chunks_of(encode_png(four_colours()));
  ASSERT_EQ(chunks.size(), 3u);
  EXPECT_EQ(chunks[0].type, "IHDR");
  EXPECT_EQ(chunks[1].type, "IDAT");
  EXPECT_EQ(chunks[2].type, "IEND");
  for (const TChunk& chunk : chunks) EXPECT_EQ(chunk.stated_crc, chunk.actual_crc) << chunk.type;
}

TEST(png, header_states_size_and_format) {
  const TBytes header = chunks_of(encode_png(TSurface(240, 294))).at(0).data;
  EXPECT_EQ(header, (TBytes{0, 0, 0, 240, 0, 0, 1, 38, 8, 2, 0, 0, 0}));
}

TEST(png, data_holds_the_rows_in_red_green_blue) {
  const TBytes packed = chunks_of(encode_png(four_colours())).at(1).data;
  TBytes rows(100);
  uLongf size = rows.size();
  ASSERT_EQ(uncompress(rows.data(), &size, packed.data(), packed.size()), Z_OK);
  rows.resize(size);
  EXPECT_EQ(rows, (TBytes{0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 255, 255, 255, 255}));
}

TEST(png, is_not_written_into_a_folder_that_is_not_there) {
  EXPECT_FALSE(write_png(four_colours(), "/no/such/folder/picture.png"));
}

TEST(picture_hash, is_the_crc_32_of_the_colour_bytes) {
  // "123456789" as three pixels: the check value that every description of this CRC gives.
  TSurface surface(3, 1);
  surface.set_pixel(0, 0, rgb('1', '2', '3'));
  surface.set_pixel(1, 0, rgb('4', '5', '6'));
  surface.set_pixel(2, 0, rgb('7', '8', '9'));
  EXPECT_EQ(picture_hash(surface), 0xCBF43926u);
}

TEST(picture_hash, goes_row_by_row) {
  TSurface row(3, 1), column(1, 3);
  for (int i = 0; i < 3; ++i) {
    row.set_pixel(i, 0, rgb(i, i, i));
    column.set_pixel(0, i, rgb(i, i, i));
  }
  EXPECT_EQ(picture_hash(row), picture_hash(column));
}

TEST(picture_hash, changes_with_one_pixel) {
  TSurface surface = four_colours();
  const std::uint32_t before = picture_hash(surface);
  surface.set_pixel(1, 1, rgb(255, 255, 254));
  EXPECT_NE(picture_hash(surface), before);
}

}  // namespace
}  // namespace zephyl
