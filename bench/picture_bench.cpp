// From a key press to the finished picture; a whole repaint beside what giflib takes to decode the same
// images to pixels of 32 bits; one indicator.

#include <benchmark/benchmark.h>
#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "app/start_up.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/indicators.h"
#include "faceplate/resources.h"
#include "platform/events.h"
#include "platform/platform.h"

namespace {

using namespace zephyl;

void start() {
  register_families();
  on_start();
}

void key_to_picture(benchmark::State& bench) {
  start();
  on_paint();
  int i = 0;
  for (auto _ : bench) {
    // The digits 7, 8, 9, and AC before the line is full.
    const int column = i++ % 64 == 63 ? 194 : 3 + 48 * (i % 3);
    on_pen_down(column + 20, 200);
    on_pen_up(column + 20, 200);
    benchmark::DoNotOptimize(&screen());
  }
}
BENCHMARK(key_to_picture);

void whole_repaint(benchmark::State& bench) {
  start();
  for (auto _ : bench) {
    platform().invalidate(false);
    on_paint();
    benchmark::DoNotOptimize(&screen());
  }
}
BENCHMARK(whole_repaint);

// The images of that repaint, in its order.
constexpr const char* COMP_IMAGES[] = {"BACKGROUND_GIF_0",
                                       "CALCULATOR_GIF_0",
                                       "AC_BUTTON_GIF_0",
                                       "SMALL_BUTTON_GIF_0",
                                       "LEFT_ARROW_BUTTON_GIF",
                                       "SMALL_BUTTON_GIF_0",
                                       "RIGHT_ARROW_BUTTON_GIF",
                                       "STATS_BUTTON_GIF_0",
                                       "SMALL_BUTTON_GIF_0",
                                       "RAD_GIF",
                                       "SMALL_BUTTON_GIF_0",
                                       "RUN_BUTTON_GIF",
                                       "SMALL_BUTTON_GIF_0",
                                       "ORANGE_SHIFT_BUTTON_GIF_0",
                                       "SMALL_BUTTON_GIF_0",
                                       "BLUE_SHIFT_BUTTON_GIF_0",
                                       "SMALL_BUTTON_GIF_0",
                                       "HYP_BUTTON_GIF",
                                       "ENUM_LINE",
                                       "ENUN_COMP",
                                       "ENUN_STATS_DARK"};

struct TBytes {
  const TImageResource& image;
  std::size_t at = 0;
};

int read_bytes(GifFileType* gif, GifByteType* to, int count) {
  TBytes& bytes = *static_cast<TBytes*>(gif->UserData);
  const std::size_t taken = std::min(static_cast<std::size_t>(count), bytes.image.size - bytes.at);
  std::memcpy(to, bytes.image.bytes + bytes.at, taken);
  bytes.at += taken;
  return static_cast<int>(taken);
}

// Its pixels, row by row; false where giflib refuses.
bool decode_by_giflib(const TImageResource& image, std::vector<TColour>& pixels) {
  TBytes bytes{image};
  int error = 0;
  GifFileType* gif = DGifOpen(&bytes, read_bytes, &error);
  if (!gif || DGifSlurp(gif) == GIF_ERROR) return false;
  TColour colours[256] = {};
  for (int i = 0; i < gif->SColorMap->ColorCount; ++i) {
    const GifColorType& entry = gif->SColorMap->Colors[i];
    colours[i] = rgb(entry.Red, entry.Green, entry.Blue);
  }
  const std::size_t count = static_cast<std::size_t>(gif->SWidth * gif->SHeight);
  pixels.resize(count);
  for (std::size_t i = 0; i < count; ++i) pixels[i] = colours[gif->SavedImages[0].RasterBits[i]];
  DGifCloseFile(gif, &error);
  return true;
}

void whole_repaint_images_by_giflib(benchmark::State& bench) {
  std::vector<TColour> pixels;
  for (auto _ : bench)
    for (const char* name : COMP_IMAGES) {
      if (!decode_by_giflib(*find_image(name), pixels)) bench.SkipWithError(name);
      benchmark::DoNotOptimize(pixels.data());
    }
}
BENCHMARK(whole_repaint_images_by_giflib);

// The screens one by one: the mode, and the skin in which it is painted.
void repaint_of_mode(benchmark::State& bench) {
  start();
  state.calcMode = static_cast<int>(bench.range(0));
  settings.skin = static_cast<int>(bench.range(1));
  for (auto _ : bench) {
    on_paint();
    benchmark::DoNotOptimize(&screen());
  }
  state.calcMode = COMP_MODE;
  settings.skin = 0;
}
BENCHMARK(repaint_of_mode)->ArgNames({"mode", "skin"})->ArgsProduct({{0, 1, 2, 3, 4, 5, 6, 7}, {0, 1}});

void indicator(benchmark::State& bench) {
  start();
  on_paint();
  const TScreenPart part = static_cast<TScreenPart>(bench.range(0));
  for (auto _ : bench) {
    redraw_part(part);
    benchmark::DoNotOptimize(&screen());
  }
}
BENCHMARK(indicator)
    ->ArgName("part")
    ->Arg(PART_AC_AND_ARROWS)
    ->Arg(PART_SHIFTS)
    ->Arg(PART_ANGLE)
    ->Arg(PART_RUN);

}  // namespace
