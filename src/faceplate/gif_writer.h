// The GIF writer: GIF87a, one image with a global colour table, the form that the decoder of gif.h accepts.
// It stores the drawing and makes the pictures of the faceplate. One picture at a time, not re-entrant.
#pragma once

#include <cstdint>
#include <vector>

namespace zephyl {

enum TGifWriteResult { GIF_WRITTEN = 0, GIF_OPEN_FAILED = 1, GIF_WRITE_FAILED = 2 };

// Gives the index of the next pixel, row by row from the top.
using TGifPixelSource = int (*)(void* context);

// width, height below 65536; colours 1 to 256, a power of two, or 0 for no table; bits_per_pixel 1 to 8: the
// range of a colour's components. All colours are black until `gif_set_colour`.
TGifWriteResult gif_open_for_write(const char* path, int width, int height, int colours, int bits_per_pixel);
// The same into memory; `bytes` must live until `gif_close`.
void gif_open_in_memory(std::vector<std::uint8_t>& bytes, int width, int height, int colours,
                        int bits_per_pixel);

// Components from 0 to 2^bits_per_pixel - 1. Before `gif_write_image`.
void gif_set_colour(int index, int red, int green, int blue);
TGifWriteResult gif_write_image(TGifPixelSource source, void* context);
TGifWriteResult gif_close();

}  // namespace zephyl
