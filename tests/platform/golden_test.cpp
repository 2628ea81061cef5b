// The comparison with golden pictures tells what differs, and stays silent where nothing does.

#include "support/golden.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "platform/surface.h"

namespace zephyl {
namespace {

// As tests/pictures/golden_check.png has it.
TSurface check_picture() {
  TSurface surface(4, 3);
  surface.fill({1, 1, 3, 2}, rgb(10, 200, 30));
  return surface;
}

TEST(golden, accepts_the_same_picture) { expect_picture("golden_check", check_picture()); }

TEST(golden, tells_how_many_pixels_differ_and_where) {
  TSurface surface = check_picture();
  surface.set_pixel(2, 1, WHITE);
  surface.set_pixel(3, 2, WHITE);
  EXPECT_NONFATAL_FAILURE(expect_picture("golden_check", surface), "2 pixels differ, within 2, 1 to 3, 2");
  forget_painted_picture("golden_check");
}

TEST(golden, tells_of_another_size) {
  EXPECT_NONFATAL_FAILURE(expect_picture("golden_check", TSurface(5, 3)),
                          "it is 5 by 3, the golden one 4 by 3");
  forget_painted_picture("golden_check");
}

TEST(golden, tells_of_a_missing_picture) {
  EXPECT_NONFATAL_FAILURE(expect_picture("no such picture", check_picture()), "there is no golden picture");
  forget_painted_picture("no such picture");
}

}  // namespace
}  // namespace zephyl
