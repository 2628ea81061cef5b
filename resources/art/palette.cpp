#include "palette.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>

#include "faceplate/gif_writer.h"

namespace art {

namespace {

constexpr std::size_t MAX_COLOURS = 256;

bool has_meaning(TColour colour) { return colour == CLEAR || colour == LEGEND; }

struct TCount {
  TColour colour;
  int count;
};

// Most used first; the colours with a meaning before all others.
std::vector<TCount> counted(const TCanvas& canvas) {
  std::map<TColour, int> counts;
  for (int y = 0; y < canvas.height(); ++y)
    for (int x = 0; x < canvas.width(); ++x) ++counts[canvas.at(x, y)];
  std::vector<TCount> out;
  for (const auto& [colour, count] : counts) out.push_back({colour, count});
  std::stable_sort(out.begin(), out.end(), [](const TCount& a, const TCount& b) {
    if (has_meaning(a.colour) != has_meaning(b.colour)) return has_meaning(a.colour);
    return a.count > b.count;
  });
  return out;
}

int distance(TColour a, TColour b) {
  int sum = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    const int difference = static_cast<int>(a >> shift & 255u) - static_cast<int>(b >> shift & 255u);
    sum += difference * difference;
  }
  return sum;
}

int nearest(const std::vector<TColour>& table, TColour colour) {
  int best = 0, least = std::numeric_limits<int>::max();
  for (std::size_t i = 0; i < table.size(); ++i) {
    const int d = has_meaning(table[i]) ? least : distance(table[i], colour);
    if (d >= least) continue;
    least = d;
    best = static_cast<int>(i);
  }
  return best;
}

struct TPixels {
  const TCanvas& canvas;
  const std::map<TColour, int>& index_of;
  int at = 0;
};

int next_pixel(void* context) {
  TPixels& pixels = *static_cast<TPixels*>(context);
  const int x = pixels.at % pixels.canvas.width(), y = pixels.at / pixels.canvas.width();
  ++pixels.at;
  return pixels.index_of.at(pixels.canvas.at(x, y));
}

int component(TColour colour, int shift) { return static_cast<int>(colour >> shift & 255u); }

}  // namespace

std::vector<std::uint8_t> make_gif(const TCanvas& canvas) {
  std::vector<TColour> table;
  std::map<TColour, int> index_of;
  for (const TCount& row : counted(canvas)) {
    if (table.size() < MAX_COLOURS) {
      index_of[row.colour] = static_cast<int>(table.size());
      table.push_back(row.colour);
    } else {
      index_of[row.colour] = nearest(table, row.colour);
    }
  }
  // From 4 colours on the code size of the stream is the colour bits of the table, as the decoder wants it.
  int size = 4;
  while (size < static_cast<int>(table.size())) size *= 2;

  std::vector<std::uint8_t> bytes;
  zephyl::gif_open_in_memory(bytes, canvas.width(), canvas.height(), size, 8);
  for (std::size_t i = 0; i < table.size(); ++i)
    zephyl::gif_set_colour(static_cast<int>(i), component(table[i], 16), component(table[i], 8),
                           component(table[i], 0));
  TPixels pixels{canvas, index_of};
  zephyl::gif_write_image(next_pixel, &pixels);
  zephyl::gif_close();
  return bytes;
}

}  // namespace art
