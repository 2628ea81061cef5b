// Lines, frames, patterns and ellipses, compared as small drawings: a # is ink.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>
#include <string>

#include "platform/surface.h"

namespace zephyl {
namespace {

constexpr TColour RED = rgb(255, 0, 0);

std::string drawing(const TSurface& surface) {
  std::string text;
  for (int y = 0; y < surface.height(); ++y) {
    for (int x = 0; x < surface.width(); ++x) text += surface.pixel(x, y) == RED ? '#' : '.';
    text += '\n';
  }
  return text;
}

int ink_count(const TSurface& surface) {
  const std::string text = drawing(surface);
  return static_cast<int>(std::count(text.begin(), text.end(), '#'));
}

TEST(surface_shapes, a_line_paints_both_ends) {
  TSurface surface(6, 3);
  surface.line({0, 0}, {5, 2}, RED);
  EXPECT_EQ(drawing(surface), "##....\n..##..\n....##\n");
}

TEST(surface_shapes, a_line_of_one_point_is_a_pixel) {
  TSurface surface(3, 1);
  surface.line({1, 0}, {1, 0}, RED);
  EXPECT_EQ(drawing(surface), ".#.\n");
}

TEST(surface_shapes, a_line_is_the_same_in_both_directions) {
  std::mt19937 random(1);
  std::uniform_int_distribution<int> coordinate(-15, 35);
  for (int i = 0; i < 2000; ++i) {
    const TPoint a{coordinate(random), coordinate(random)}, b{coordinate(random), coordinate(random)};
    TSurface there(20, 20), back(20, 20);
    there.line(a, b, RED);
    back.line(b, a, RED);
    ASSERT_EQ(drawing(there), drawing(back)) << a.x << ' ' << a.y << ' ' << b.x << ' ' << b.y;
  }
}

TEST(surface_shapes, a_clipped_line_keeps_the_pixels_of_the_whole_one) {
  std::mt19937 random(2);
  std::uniform_int_distribution<int> coordinate(0, 59);
  for (int i = 0; i < 500; ++i) {
    const TPoint a{coordinate(random), coordinate(random)}, b{coordinate(random), coordinate(random)};
    TSurface whole(60, 60), part(20, 20), clipped(60, 60);
    whole.line(a, b, RED);
    part.line({a.x - 20, a.y - 20}, {b.x - 20, b.y - 20}, RED);
    clipped.line(a, b, RED, {20, 20, 39, 39});
    TSurface window(20, 20);
    window.blit(0, 0, 20, 20, whole, 20, 20);
    ASSERT_EQ(drawing(part), drawing(window));
    EXPECT_EQ(ink_count(clipped), ink_count(window));
  }
}

TEST(surface_shapes, a_line_has_one_pixel_a_step_of_its_longer_side) {
  TSurface surface(100, 100);
  surface.line({3, 90}, {80, 10}, RED);
  EXPECT_EQ(ink_count(surface), 81);
}

TEST(surface_shapes, ends_at_any_distance_are_taken) {
  TSurface surface(5, 5);
  surface.line({INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, RED);
  EXPECT_EQ(drawing(surface), "#....\n.#...\n..#..\n...#.\n....#\n");
  surface.line({INT_MIN, 2}, {INT_MAX, 2}, RED);
  EXPECT_EQ(ink_count(surface), 9);
  surface.line({INT_MAX, -1}, {INT_MIN, -1}, RED);
  EXPECT_EQ(ink_count(surface), 9);
}

TEST(surface_shapes, a_polyline_joins_its_points) {
  TSurface surface(5, 3);
  const TPoint points[] = {{0, 2}, {2, 0}, {4, 2}};
  surface.polyline(points, 3, RED);
  EXPECT_EQ(drawing(surface), "..#..\n.#.#.\n#...#\n");
  surface.polyline(points, 0, RED);
  EXPECT_EQ(ink_count(surface), 5);
  const TPoint alone{4, 0};
  surface.polyline(&alone, 1, RED);
  EXPECT_EQ(ink_count(surface), 6);
}

TEST(surface_shapes, a_frame_is_one_pixel_thick) {
  TSurface surface(5, 4);
  surface.frame({0, 0, 3, 3}, RED);
  EXPECT_EQ(drawing(surface), "####.\n#..#.\n#..#.\n####.\n");
  surface.frame({4, 2, 4, 2}, RED);
  EXPECT_EQ(ink_count(surface), 13);
  surface.frame({2, 2, 1, 1}, RED);
  EXPECT_EQ(ink_count(surface), 13);
}

TEST(surface_shapes, a_pattern_is_tied_to_the_surface) {
  const std::uint8_t bits[] = {0x80, 0x40};
  TSurface surface(5, 3);
  surface.fill_pattern({1, 0, 9, 9}, {2, 2, bits}, RED, BLACK);
  EXPECT_EQ(drawing(surface), "..#.#\n.#.#.\n..#.#\n");
  EXPECT_EQ(surface.pixel(0, 0), WHITE);
  EXPECT_EQ(surface.pixel(1, 0), BLACK);
}

TEST(surface_shapes, small_circles_are_round) {
  TSurface surface(21, 7);
  surface.ellipse({0, 0, 6, 6}, RED);
  surface.ellipse({8, 0, 12, 4}, RED);
  surface.ellipse({14, 0, 17, 3}, RED);
  surface.ellipse({19, 0, 20, 1}, RED);
  EXPECT_EQ(drawing(surface),
            "..###....###...##..##\n"
            ".#...#..#...#.#..#.##\n"
            "#.....#.#...#.#..#...\n"
            "#.....#.#...#..##....\n"
            "#.....#..###.........\n"
            ".#...#...............\n"
            "..###................\n");
}

TEST(surface_shapes, a_filled_ellipse_has_the_outline_of_the_hollow_one) {
  for (int width = 1; width < 40; ++width)
    for (int height = 1; height < 30; ++height) {
      TSurface hollow(40, 30), filled(40, 30), both(40, 30);
      const TRect box{0, 0, width - 1, height - 1};
      hollow.ellipse(box, RED);
      filled.fill_ellipse(box, RED);
      both.fill_ellipse(box, RED);
      both.ellipse(box, RED);
      ASSERT_EQ(drawing(both), drawing(filled)) << width << " by " << height;
      // All that is within the outline, and nothing else, is missing in the hollow one.
      for (int y = 1; y + 1 < 30; ++y)
        for (int x = 1; x + 1 < 40; ++x) {
          if (filled.pixel(x, y) != RED || hollow.pixel(x, y) == RED) continue;
          ASSERT_TRUE(filled.pixel(x - 1, y) == RED && filled.pixel(x + 1, y) == RED &&
                      filled.pixel(x, y - 1) == RED && filled.pixel(x, y + 1) == RED);
        }
    }
}

TEST(surface_shapes, an_ellipse_fills_its_box_and_is_symmetrical) {
  TSurface surface(40, 30);
  surface.ellipse({3, 2, 36, 27}, RED);
  const std::string text = drawing(surface);
  EXPECT_EQ(text.substr(0, 82).find('#'), std::string::npos);
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x) {
      ASSERT_EQ(surface.pixel(x, y), surface.pixel(39 - x, y));
      ASSERT_EQ(surface.pixel(x, y), surface.pixel(x, y == 0 ? 0 : 29 - y));
    }
  EXPECT_EQ(surface.pixel(3, 14), RED);
  EXPECT_EQ(surface.pixel(36, 15), RED);
  EXPECT_EQ(surface.pixel(19, 2), RED);
  EXPECT_EQ(surface.pixel(20, 27), RED);
}

TEST(surface_shapes, an_empty_box_has_no_ellipse) {
  TSurface surface(5, 5);
  surface.ellipse({2, 2, 1, 4}, RED);
  surface.fill_ellipse({2, 3, 4, 2}, RED);
  EXPECT_EQ(ink_count(surface), 0);
}

TEST(surface_shapes, an_ellipse_of_any_size_is_clipped) {
  TSurface surface(5, 5);
  surface.ellipse({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RED);
  EXPECT_EQ(ink_count(surface), 0);
  surface.fill_ellipse({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RED);
  EXPECT_EQ(ink_count(surface), 25);
}

TEST(surface_shapes, colours_are_packed_into_sixteen_bits) {
  EXPECT_EQ(pack_565(WHITE), 0xFFFF);
  EXPECT_EQ(pack_565(RED), 0xF800);
  EXPECT_EQ(pack_565(rgb(0, 255, 0)), 0x07E0);
  EXPECT_EQ(pack_565(rgb(7, 3, 255)), 0x001F);
  EXPECT_EQ(pack_565(rgb(248, 252, 248)), 0xFFFF);
}

}  // namespace
}  // namespace zephyl
