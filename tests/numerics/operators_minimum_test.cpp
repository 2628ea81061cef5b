// fnMin( and fnMax(.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "numerics/operators/minimum.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

// All places that the method looks at.
std::vector<double> places(const std::function<double(double)>& function, double lower, double upper,
                           int scan = TMinimum::FULL_SCAN) {
  TMinimum minimum;
  std::vector<double> all{minimum.start(lower, upper, scan)};
  double x = all.front();
  while (minimum.next(function(x), x)) all.push_back(x);
  return all;
}

class minimum_operators : public calculator {};

TEST_F(minimum_operators, the_least_value_of_a_sine) {
  EXPECT_NEAR(value("fnMin(sin(x),x,-3.14,3.14)"), -1.5707963268, 1e-7);
  EXPECT_NEAR(value("fnMax(sin(x),x,-3.14,3.14)"), 1.5707963268, 1e-7);
}

TEST_F(minimum_operators, bounds_in_either_order) {
  EXPECT_EQ(value("fnMin((x-1)^2,x,3,-3)"), value("fnMin((x-1)^2,x,-3,3)"));
  EXPECT_EQ(value("fnMax(cos(x),x,1,-2)"), value("fnMax(cos(x),x,-2,1)"));
}

TEST_F(minimum_operators, at_a_bound) {
  EXPECT_EQ(value("fnMin(x,x,2,5)"), 2.0);
  EXPECT_EQ(value("fnMax(x,x,2,5)"), 5.0);
}

TEST_F(minimum_operators, between_equal_bounds) {
  EXPECT_EQ(value("fnMin(x,x,3,3)"), 3.0);
  EXPECT_EQ(value("fnMax(x^2,x,3,3)"), 3.0);
}

TEST_F(minimum_operators, the_scan_takes_2001_samples_or_1001) {
  for (const int scan : {2000, 1000}) {
    const std::vector<double> all = places([](double x) { return x * x; }, -1, 3, scan);
    for (int k = 0; k <= scan; ++k) ASSERT_EQ(all[static_cast<std::size_t>(k)], -1 + k * 4.0 / scan) << k;
  }
}

TEST_F(minimum_operators, the_search_ends_after_2000_rounds_at_most) {
  for (const auto& function : std::vector<std::function<double(double)>>{
           [](double x) { return x * x; }, [](double x) { return std::fabs(x - 0.3); },
           [](double) { return 1.0; }, [](double x) { return std::cos(20 * x); },
           [](double x) { return -x; }})
    EXPECT_LE(places(function, -1, 2).size(), 4001u);
}

TEST_F(minimum_operators, of_several_minima_the_deepest) {
  EXPECT_NEAR(value("fnMin(cos(3*x)+x/10,x,-5,5)"), -3.1527, 1e-3);
}

TEST_F(minimum_operators, of_equal_samples_the_first_begins_the_search) {
  // Two minima of exactly the same value: the left one.
  EXPECT_NEAR(value("fnMin((x^2-1)^2,x,-2,2)"), -1.0, 1e-7);
}

TEST_F(minimum_operators, near_zero_is_zero) {
  EXPECT_EQ(value("fnMin(abs(x),x,-1,2)"), 0.0);
  EXPECT_EQ(value("fnMax(-abs(x),x,-1,2)"), 0.0);
}

TEST_F(minimum_operators, a_sample_out_of_the_domain_is_its_error) {
  EXPECT_EQ(error_of("fnMin(1/x,x,-1,1)"), "Division by Zero");
  EXPECT_EQ(error_of("fnMax(ln(x),x,0,1)"), "Domain Error");
  EXPECT_EQ(error_of("fnMax(ln(x),x,-1,1)"), "Domain Error");
}

TEST_F(minimum_operators, bounds_too_far_apart_overflow) {
  EXPECT_EQ(error_of("fnMin(x,x,-1e308,1e308)"), "Overflow");
  EXPECT_EQ(error_of("fnMin(x,x,0,1e308)"), "Overflow");
  EXPECT_EQ(value("fnMin(x,x,0,1e90)"), 0.0);
}

TEST_F(minimum_operators, samples_are_real) {
  EXPECT_EQ(error_of("fnMin((i)*x,x,1,2)"), "Function Argument Type");
  EXPECT_EQ(error_of("fnMax(x,x,1,(i))"), "Function Argument Type");
  eval("2->complexFormat");
  EXPECT_EQ(error_of("fnMin(sqRt x,x,-1,1)"), "Function Argument Type");
}

}  // namespace
}  // namespace zephyl
