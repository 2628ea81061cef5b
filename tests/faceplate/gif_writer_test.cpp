// The writer: its bytes, and that readers get back what it wrote: the decoder of the program and the tools of
// giflib.

#include "faceplate/gif_writer.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "faceplate/gif.h"
#include "faceplate/resource_tables.h"
#include "faceplate/resources.h"
#include "platform/surface.h"

namespace zephyl {
namespace {

struct TPixels {
  std::vector<int> indices;
  std::size_t at = 0;
};

int next_pixel(void* context) {
  TPixels& pixels = *static_cast<TPixels*>(context);
  return pixels.indices[pixels.at++];
}

// A table in which every index can be told from its colour.
TColour colour_of(int index) { return rgb(index, 255 - index, index * 7 & 255); }

void set_table(int colours) {
  for (int i = 0; i < colours; ++i)
    gif_set_colour(i, red_of(colour_of(i)), green_of(colour_of(i)), blue_of(colour_of(i)));
}

std::vector<std::uint8_t> written(int width, int height, int colours, const std::vector<int>& indices) {
  std::vector<std::uint8_t> bytes;
  gif_open_in_memory(bytes, width, height, colours, 8);
  set_table(colours);
  TPixels pixels{indices};
  EXPECT_EQ(gif_write_image(next_pixel, &pixels), GIF_WRITTEN);
  EXPECT_EQ(gif_close(), GIF_WRITTEN);
  return bytes;
}

std::vector<int> noise(int count, int colours, unsigned seed) {
  std::vector<int> out;
  for (int i = 0; i < count; ++i) {
    seed = seed * 1664525u + 1013904223u;
    out.push_back(static_cast<int>((seed >> 12) % static_cast<unsigned>(colours)));
  }
  return out;
}

// Runs and repeats, as drawn pictures have them.
std::vector<int> stripes(int count, int colours) {
  std::vector<int> out;
  for (int i = 0; i < count; ++i) out.push_back(i / 37 * (i / 400 % 3) % colours);
  return out;
}

int wrong_pixels(int width, int height, int colours, const std::vector<int>& indices) {
  const std::vector<std::uint8_t> bytes = written(width, height, colours, indices);
  TSurface surface(width, height);
  EXPECT_EQ(draw_gif(surface, bytes.data(), bytes.size(), 0, 0, false, false), GIF_OK);
  int wrong = 0;
  for (std::size_t i = 0; i < indices.size(); ++i)
    wrong += surface.pixel(static_cast<int>(i) % width, static_cast<int>(i) / width) != colour_of(indices[i]);
  return wrong;
}

TEST(gif_writer, begins_with_the_screen_and_the_table) {
  const std::vector<std::uint8_t> bytes = written(300, 2, 4, std::vector<int>(600, 3));
  const std::vector<std::uint8_t> screen = {
      'G', 'I', 'F', '8', '7', 'a', 300 & 255, 300 >> 8, 2, 0, 0x80 | 1 | 7 << 4, 0, 0};
  EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin(), bytes.begin() + 13), screen);
  const std::vector<std::uint8_t> second = {1, 254, 7};
  EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin() + 16, bytes.begin() + 19), second);
  const std::vector<std::uint8_t> image = {',', 0, 0, 0, 0, 300 & 255, 300 >> 8, 2, 0, 0, 2};
  EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin() + 25, bytes.begin() + 36), image);
}

TEST(gif_writer, ends_with_an_empty_block_and_the_trailer) {
  const std::vector<std::uint8_t> bytes = written(9, 9, 16, noise(81, 16, 1));
  ASSERT_GT(bytes.size(), 2u);
  EXPECT_EQ(bytes[bytes.size() - 2], 0);
  EXPECT_EQ(bytes[bytes.size() - 1], ';');
}

TEST(gif_writer, packs_blocks_of_at_most_255_bytes) {
  const std::vector<std::uint8_t> bytes = written(100, 100, 256, noise(10000, 256, 2));
  std::size_t at = 13 + 768 + 10 + 1, blocks = 0;
  for (; at < bytes.size() && bytes[at] != 0; at += std::size_t{1} + bytes[at]) {
    const bool is_last = bytes[at + 1u + bytes[at]] == 0;
    EXPECT_TRUE(is_last || bytes[at] == 255);
    ++blocks;
  }
  EXPECT_GT(blocks, 30u);
  EXPECT_EQ(at + 2, bytes.size());
}

TEST(gif_writer, scales_components_to_a_byte) {
  std::vector<std::uint8_t> bytes;
  gif_open_in_memory(bytes, 1, 1, 2, 3);
  gif_set_colour(0, 7, 3, 0);
  TPixels pixels{{0}};
  EXPECT_EQ(gif_write_image(next_pixel, &pixels), GIF_WRITTEN);
  EXPECT_EQ(gif_close(), GIF_WRITTEN);
  EXPECT_EQ(bytes[10], 0x80 | 2 << 4);
  EXPECT_EQ(bytes[13], 255);
  EXPECT_EQ(bytes[14], 109);
  EXPECT_EQ(bytes[15], 0);
}

TEST(gif_writer, starts_with_a_black_table) {
  written(1, 1, 4, {0});
  std::vector<std::uint8_t> bytes;
  gif_open_in_memory(bytes, 1, 1, 4, 8);
  TPixels pixels{{0}};
  gif_write_image(next_pixel, &pixels);
  gif_close();
  for (std::size_t i = 13; i < 25; ++i) EXPECT_EQ(bytes[i], 0) << i;
}

TEST(gif_writer, is_read_back_whatever_the_number_of_colours) {
  for (int colours = 2; colours <= 256; colours *= 2) {
    EXPECT_EQ(wrong_pixels(60, 47, colours, noise(60 * 47, colours, 3)), 0) << colours;
    EXPECT_EQ(wrong_pixels(60, 47, colours, stripes(60 * 47, colours)), 0) << colours;
  }
}

TEST(gif_writer, is_read_back_after_the_table_was_full) {
  EXPECT_EQ(wrong_pixels(240, 294, 256, noise(240 * 294, 256, 4)), 0);
  EXPECT_EQ(wrong_pixels(240, 294, 4, noise(240 * 294, 4, 5)), 0);
}

TEST(gif_writer, is_read_back_where_a_code_widens_at_the_end) {
  // Among these lengths are all at which the last string makes the end code one bit wider.
  for (int length = 1; length <= 240; ++length) {
    EXPECT_EQ(wrong_pixels(length, 1, 4, noise(length, 4, 6)), 0) << length;
    EXPECT_EQ(wrong_pixels(length, 1, 2, std::vector<int>(static_cast<std::size_t>(length), 1)), 0) << length;
  }
}

// Reads the codes as a strict reader does: true if the end code comes in the width that the reader expects,
// with less than a byte behind it.
bool ends_in_the_right_width(const std::vector<std::uint8_t>& bytes, std::size_t first_block, int code_size) {
  std::vector<bool> bits;
  for (std::size_t at = first_block; bytes[at] != 0; at += std::size_t{1} + bytes[at])
    for (std::size_t i = 1; i <= bytes[at]; ++i)
      for (int bit = 0; bit < 8; ++bit) bits.push_back((bytes[at + i] >> bit & 1) != 0);
  const int clear = 1 << code_size;
  int width = code_size + 1, next = clear + 1;
  std::size_t at = 0;
  while (at + static_cast<std::size_t>(width) <= bits.size()) {
    int code = 0;
    for (int bit = 0; bit < width; ++bit) code |= bits[at++] << bit;
    if (code == clear + 1) return bits.size() - at < 8;
    if (code == clear) {
      width = code_size + 1;
      next = clear + 1;  // the first code behind a clear code enters nothing
    } else if (++next == 1 << width && width < 12) {
      ++width;
    }
  }
  return false;
}

TEST(gif_writer, writes_the_end_code_in_the_width_of_the_reader) {
  for (int length = 1; length <= 400; ++length)
    EXPECT_TRUE(ends_in_the_right_width(written(length, 1, 4, noise(length, 4, 6)), 13 + 12 + 10 + 1, 2))
        << length;
}

TEST(gif_writer, writes_a_file) {
  const std::string path = ::testing::TempDir() + "zephyl_gif_writer_test.gif";
  const std::vector<int> indices = noise(30 * 20, 16, 7);
  ASSERT_EQ(gif_open_for_write(path.c_str(), 30, 20, 16, 8), GIF_WRITTEN);
  set_table(16);
  TPixels pixels{indices};
  EXPECT_EQ(gif_write_image(next_pixel, &pixels), GIF_WRITTEN);
  EXPECT_EQ(gif_close(), GIF_WRITTEN);
  std::FILE* file = std::fopen(path.c_str(), "rb");
  ASSERT_NE(file, nullptr);
  std::vector<std::uint8_t> bytes;
  for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file))
    bytes.push_back(static_cast<std::uint8_t>(byte));
  std::fclose(file);
  std::remove(path.c_str());
  EXPECT_EQ(bytes, written(30, 20, 16, indices));
}

TEST(gif_writer, reports_a_file_that_cannot_be_opened) {
  EXPECT_EQ(gif_open_for_write("/no/such/folder/picture.gif", 1, 1, 2, 8), GIF_OPEN_FAILED);
}

TEST(gif_writer, reports_a_full_disk) {
  std::FILE* full = std::fopen("/dev/full", "wb");
  if (!full) GTEST_SKIP() << "no /dev/full here";
  std::fclose(full);
  ASSERT_EQ(gif_open_for_write("/dev/full", 200, 200, 256, 8), GIF_WRITTEN);
  TPixels pixels{noise(40000, 256, 8)};
  const TGifWriteResult image = gif_write_image(next_pixel, &pixels);
  const TGifWriteResult end = gif_close();
  EXPECT_TRUE(image == GIF_WRITE_FAILED || end == GIF_WRITE_FAILED);
  EXPECT_EQ(end, GIF_WRITE_FAILED);
}

// giflib's gif2rgb turns a file into three bytes a pixel.
class giflib : public ::testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v gif2rgb > /dev/null") != 0)
      GTEST_SKIP() << "gif2rgb (giflib-tools) isn't installed";
  }

  // What it makes of a picture, row by row; empty where it refuses.
  static std::vector<TColour> read(const std::uint8_t* bytes, std::size_t size) {
    const std::string name = ::testing::TempDir() + "zephyl_giflib_" + std::to_string(getpid());
    const std::string gif_name = name + ".gif", rgb_name = name + ".rgb";
    std::FILE* gif = std::fopen(gif_name.c_str(), "wb");
    std::fwrite(bytes, 1, size, gif);
    std::fclose(gif);
    std::vector<TColour> colours;
    if (std::system(("gif2rgb -1 -o " + rgb_name + " " + gif_name).c_str()) == 0) colours = triples(rgb_name);
    std::remove(gif_name.c_str());
    std::remove(rgb_name.c_str());
    return colours;
  }

 private:
  static std::vector<TColour> triples(const std::string& path) {
    std::vector<TColour> colours;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    for (int red = std::fgetc(file); red != EOF; red = std::fgetc(file)) {
      const int green = std::fgetc(file), blue = std::fgetc(file);
      colours.push_back(rgb(red, green, blue));
    }
    std::fclose(file);
    return colours;
  }
};

TEST_F(giflib, reads_what_was_written) {
  for (const int height : {1, 2, 31, 180})
    for (const int colours : {4, 256}) {
      const std::vector<int> indices = noise(97 * height, colours, 9);
      const std::vector<std::uint8_t> bytes = written(97, height, colours, indices);
      std::vector<TColour> expected;
      for (const int index : indices) expected.push_back(colour_of(index));
      EXPECT_EQ(read(bytes.data(), bytes.size()), expected) << height << " rows, " << colours << " colours";
    }
}

TEST_F(giflib, reads_every_picture_of_the_face_as_the_face_does) {
  for (int i = 0; i < image_resource_count; ++i) {
    const TImageResource& image = image_resources[i];
    TSurface surface(image.bytes[6] | image.bytes[7] << 8, image.bytes[8] | image.bytes[9] << 8);
    ASSERT_EQ(draw_gif(surface, image.bytes, image.size, 0, 0, false, false), GIF_OK) << image.name;
    const std::vector<TColour> ours(surface.pixels(), surface.pixels() + surface.width() * surface.height());
    EXPECT_EQ(read(image.bytes, image.size), ours) << image.name;
  }
}

}  // namespace
}  // namespace zephyl
