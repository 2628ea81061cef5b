// Pictures in memory: clipping, copying within one surface, glyphs.

#include "platform/surface.h"

#include <gtest/gtest.h>

namespace zephyl {
namespace {

constexpr TColour RED = rgb(255, 0, 0);

int count(const TSurface& surface, TColour colour) {
  int found = 0;
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x) found += surface.pixel(x, y) == colour;
  return found;
}

TEST(surface, begins_white) { EXPECT_EQ(count(TSurface(4, 3), WHITE), 12); }

TEST(surface, takes_colours_apart) {
  const TColour colour = rgb(1, 2, 3);
  EXPECT_EQ(red_of(colour), 1);
  EXPECT_EQ(green_of(colour), 2);
  EXPECT_EQ(blue_of(colour), 3);
}

TEST(surface, reads_black_outside_and_drops_writes_there) {
  TSurface surface(2, 2);
  surface.set_pixel(-1, 0, RED);
  surface.set_pixel(2, 1, RED);
  EXPECT_EQ(surface.pixel(5, 5), BLACK);
  EXPECT_EQ(count(surface, RED), 0);
}

TEST(surface, fills_both_edges_of_a_rectangle) {
  TSurface surface(10, 10);
  surface.fill({2, 3, 4, 4}, RED);
  EXPECT_EQ(count(surface, RED), 6);
  EXPECT_EQ(surface.pixel(2, 3), RED);
  EXPECT_EQ(surface.pixel(4, 4), RED);
}

TEST(surface, clips_a_fill) {
  TSurface surface(3, 3);
  surface.fill({-5, -5, 100, 0}, RED);
  EXPECT_EQ(count(surface, RED), 3);
  surface.fill({5, 0, 2, 2}, RED);
  EXPECT_EQ(count(surface, RED), 3);
}

TEST(surface, copies_and_clips_on_all_sides) {
  TSurface source(4, 4), target(4, 4);
  source.fill({0, 0, 3, 3}, RED);
  target.blit(-2, -2, 4, 4, source, 0, 0);
  EXPECT_EQ(count(target, RED), 4);
  target.blit(3, 3, 4, 4, source, 0, 0);
  EXPECT_EQ(count(target, RED), 5);
  target.blit(0, 3, 4, 4, source, 3, 3);
  EXPECT_EQ(target.pixel(0, 3), RED);
}

TEST(surface, copies_within_itself_in_either_direction) {
  for (int step : {-1, 1}) {
    TSurface surface(1, 5);
    for (int y = 0; y < 5; ++y) surface.set_pixel(0, y, rgb(y, 0, 0));
    surface.blit(0, step > 0 ? 1 : 0, 1, 4, surface, 0, step > 0 ? 0 : 1);
    for (int y = 0; y < 4; ++y)
      EXPECT_EQ(surface.pixel(0, step > 0 ? y + 1 : y), rgb(step > 0 ? y : y + 1, 0, 0));
  }
}

TEST(surface, draws_only_the_ink_of_a_glyph) {
  const std::uint8_t bits[] = {0x80, 0x40};  // a diagonal of 2 by 2
  TSurface surface(3, 3);
  surface.fill({0, 0, 2, 2}, RED);
  surface.blit_glyph({2, 2, bits}, 0, 0);
  EXPECT_EQ(surface.pixel(0, 0), BLACK);
  EXPECT_EQ(surface.pixel(1, 0), RED);
  EXPECT_EQ(count(surface, BLACK), 2);
}

TEST(surface, an_inverted_glyph_is_a_whole_block) {
  const std::uint8_t bits[] = {0x80, 0x40};
  TSurface surface(3, 3);
  surface.fill({0, 0, 2, 2}, RED);
  surface.blit_glyph({2, 2, bits}, 0, 0, BLACK, true);
  EXPECT_EQ(surface.pixel(0, 0), WHITE);
  EXPECT_EQ(surface.pixel(1, 0), BLACK);
}

}  // namespace
}  // namespace zephyl
