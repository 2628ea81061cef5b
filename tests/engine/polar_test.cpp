#include "engine/polar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "engine/errors.h"
#include "engine/faults.h"

namespace zephyl {
namespace {

TEST(polar, magnitude_of_axes_is_the_other_part) {
  EXPECT_EQ(complex_magnitude(0, 0), 0.0);
  EXPECT_EQ(complex_magnitude(-3, 0), 3.0);
  EXPECT_EQ(complex_magnitude(0, -4), 4.0);
}

TEST(polar, magnitude_is_the_same_for_both_orders) {
  EXPECT_DOUBLE_EQ(complex_magnitude(3, 4), 5.0);
  EXPECT_DOUBLE_EQ(complex_magnitude(-4, 3), 5.0);
  EXPECT_DOUBLE_EQ(complex_magnitude(7, -7), 7 * std::sqrt(2.0));
}

TEST(polar, magnitude_has_no_intermediate_overflow) {
  clear_faults();
  EXPECT_DOUBLE_EQ(complex_magnitude(3e300, 4e300), 5e300);
  EXPECT_DOUBLE_EQ(complex_magnitude(3e-300, 4e-300), 5e-300);
  EXPECT_FALSE(fault_raised());
}

TEST(polar, the_angle_lies_in_the_quadrant_of_the_number) {
  EXPECT_DOUBLE_EQ(complex_angle(1, 1), half_turn / 4);
  EXPECT_DOUBLE_EQ(complex_angle(-1, 1), half_turn * 3 / 4);
  EXPECT_DOUBLE_EQ(complex_angle(-1, -1), -half_turn * 3 / 4);
  EXPECT_DOUBLE_EQ(complex_angle(1, -1), -half_turn / 4);
}

TEST(polar, the_angles_of_the_axes_are_exact) {
  EXPECT_EQ(complex_angle(5, 0), 0.0);
  EXPECT_EQ(complex_angle(-5, 0), 3.141592653589793);
  EXPECT_EQ(complex_angle(-5, -0.0), 3.141592653589793);
  EXPECT_EQ(complex_angle(0, 5), 1.5707963267948966);
  EXPECT_EQ(complex_angle(0, -5), -1.5707963267948966);
  EXPECT_EQ(complex_angle(0, 0), 0.0);
}

TEST(polar, angles_are_read_in_the_angle_mode) {
  EXPECT_EQ(to_radians(2), 2.0);
  settings.angleMode = DEGREES;
  EXPECT_EQ(to_radians(2), 2 * 0.017453292519943295);
  settings.angleMode = GRADS;
  EXPECT_EQ(to_radians(2), 2 * 0.015707963267948967);
  settings.angleMode = 3;
  EXPECT_EQ(to_radians(2), 0.0);
}

TEST(polar, angles_are_given_in_the_angle_mode) {
  double re = 2, im = -3;
  from_radians_pair(re, im);
  EXPECT_EQ(re, 2.0);
  EXPECT_EQ(im, -3.0);
  settings.angleMode = DEGREES;
  from_radians_pair(re, im);
  EXPECT_EQ(re, 2 * 57.29577951308232);
  EXPECT_EQ(im, -3 * 57.29577951308232);
  settings.angleMode = GRADS;
  EXPECT_EQ(radians_to_mode(2), 2 * 63.66197723675814);
}

TEST(polar, the_polar_form_of_a_number_follows_the_angle_mode) {
  double modulus, angle;
  settings.angleMode = DEGREES;
  rect_to_polar(0, -2, modulus, angle);
  EXPECT_EQ(modulus, 2.0);
  EXPECT_DOUBLE_EQ(angle, -90.0);
}

TEST(polar, the_polar_form_of_zero_is_zero_without_a_report) {
  double modulus = 1, angle = 1;
  rect_to_polar(0, 0, modulus, angle);
  EXPECT_EQ(modulus, 0.0);
  EXPECT_EQ(angle, 0.0);
  EXPECT_FALSE(errors.error_flag);
}

TEST(polar, no_fault_escapes_from_the_polar_form) {
  double modulus, angle;
  clear_faults();
  rect_to_polar(1.5e308, 1.5e308, modulus, angle);
  EXPECT_TRUE(std::isinf(modulus));
  EXPECT_DOUBLE_EQ(angle, half_turn / 4);
  rect_to_polar(1e-300, -1e300, modulus, angle);
  EXPECT_DOUBLE_EQ(angle, -quarter_turn);
  EXPECT_FALSE(fault_raised());
}

TEST(polar, a_fault_raised_before_stays_raised) {
  clear_faults();
  volatile double zero = 0.0;
  volatile double quotient = 1.0 / zero;
  (void)quotient;
  double modulus, angle;
  rect_to_polar(3, 4, modulus, angle);
  EXPECT_TRUE(fault_raised());
}

}  // namespace
}  // namespace zephyl
