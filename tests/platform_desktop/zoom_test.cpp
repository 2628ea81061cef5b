#include "platform/desktop/zoom.h"

#include <gtest/gtest.h>

#include <QPointF>

#include "platform/events.h"

using namespace zephyl;

namespace {

constexpr double SCALES[] = {1.0, 1.1, 1.25, 1.3, 1.5, 1.75, 2.0, 2.5, 3.0};

}  // namespace

TEST(zoom, an_ordinary_screen_shows_one_device_pixel_a_picture_pixel) {
  EXPECT_EQ(zoom_for_density(72), 1);
  EXPECT_EQ(zoom_for_density(96), 1);
}

TEST(zoom, follows_the_density_of_the_screen) {
  EXPECT_EQ(zoom_for_density(110), 2);
  EXPECT_EQ(zoom_for_density(120), 2);
  EXPECT_EQ(zoom_for_density(163), 2);
  EXPECT_EQ(zoom_for_density(192), 3);
  EXPECT_EQ(zoom_for_density(288), 4);
}

TEST(zoom, is_never_below_one_nor_beyond_its_limit) {
  EXPECT_EQ(zoom_for_density(0), 1);
  EXPECT_EQ(zoom_for_density(1e9), LARGEST_ZOOM);
  EXPECT_EQ(zoom_that_fits({100, 100}), 1);
  EXPECT_EQ(zoom_that_fits({100000, 100000}), LARGEST_ZOOM);
}

TEST(zoom, fits_both_ways) {
  EXPECT_EQ(zoom_that_fits({720, 882}), 3);
  EXPECT_EQ(zoom_that_fits({719, 882}), 2);
  EXPECT_EQ(zoom_that_fits({720, 881}), 2);
}

TEST(zoom, the_widget_is_the_smallest_that_holds_the_picture_at_any_scale_factor) {
  for (const double scale : SCALES) {
    for (int zoom = 1; zoom <= 8; ++zoom) {
      const QSize size = widget_size(zoom, scale);
      EXPECT_GE(size.width() * scale, SCREEN_WIDTH * zoom - 1e-3) << scale << " " << zoom;
      EXPECT_GE(size.height() * scale, SCREEN_HEIGHT * zoom - 1e-3) << scale << " " << zoom;
      EXPECT_LT((size.width() - 1) * scale, SCREEN_WIDTH * zoom) << scale << " " << zoom;
      EXPECT_LT((size.height() - 1) * scale, SCREEN_HEIGHT * zoom) << scale << " " << zoom;
    }
  }
}

TEST(zoom, every_device_pixel_belongs_to_the_picture_pixel_it_shows) {
  for (const double scale : SCALES) {
    for (int device = 0; device < SCREEN_HEIGHT * 3; ++device) {
      const TPoint at = picture_point(QPointF(device / scale, device / scale), 3, scale);
      ASSERT_EQ(at.x, device / 3) << scale << " " << device;
      ASSERT_EQ(at.y, device / 3) << scale << " " << device;
    }
  }
}

TEST(zoom, points_beside_the_picture_lie_beside_it) {
  EXPECT_EQ(picture_point(QPointF(-1, -3), 2, 1.0).x, -1);
  EXPECT_EQ(picture_point(QPointF(-1, -3), 2, 1.0).y, -2);
  EXPECT_EQ(picture_point(QPointF(480, 600), 2, 1.0).x, 240);
}
