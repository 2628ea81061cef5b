// fnRoot(.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "numerics/operators/root.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

struct TSearched {
  TRootOutcome outcome = ROOT_SEARCHING;
  double root = 0.0;
  std::vector<double> places;
};

TSearched search(const std::function<double(double)>& function, double lower, double upper) {
  TRoot root;
  TSearched searched;
  double x = root.start(lower, upper);
  do {
    searched.places.push_back(x);
    searched.outcome = root.next(function(x), x);
  } while (searched.outcome == ROOT_SEARCHING);
  searched.root = root.result();
  return searched;
}

class root_operator : public calculator {};

TEST_F(root_operator, of_an_exponential) {
  EXPECT_NEAR(value("fnRoot(e^x-x-2,x,1,2)"), 1.146193220620583, 1e-12);
}

TEST_F(root_operator, bounds_in_either_order) {
  EXPECT_NEAR(value("fnRoot(x^2-2,x,2,0)"), std::sqrt(2.0), 1e-12);
}

TEST_F(root_operator, roots_are_found_to_their_last_digits) {
  for (double target = 0.05; target < 0.99; target += 0.0137)
    EXPECT_NEAR(search([=](double x) { return std::tan(x) - std::tan(target); }, 0, 1).root, target, 1e-13);
}

TEST_F(root_operator, of_several_roots_the_first) {
  EXPECT_NEAR(value("fnRoot(sin(x),x,1,20)"), 3.141592653589793, 1e-12);
}

TEST_F(root_operator, the_scan_adds_its_step_1996_times) {
  const TSearched searched = search([](double) { return 1.0; }, 2, 5);
  ASSERT_EQ(searched.outcome, ROOT_NOT_FOUND);
  ASSERT_EQ(searched.places.size(), 1997u);
  double x = 2;
  for (const double place : searched.places) {
    ASSERT_EQ(place, x);
    x = x + 3 * 0.0005;
  }
}

TEST_F(root_operator, the_last_steps_of_the_interval_are_not_looked_at) {
  EXPECT_EQ(error_of("fnRoot(x-1,x,0,1)"), "No Root Found");
  EXPECT_EQ(error_of("fnRoot(x-0.9985,x,0,1)"), "No Root Found");
  EXPECT_NEAR(value("fnRoot(x-0.9979,x,0,1)"), 0.9979, 1e-12);
}

TEST_F(root_operator, a_zero_at_the_lower_bound_is_the_root) {
  EXPECT_EQ(value("fnRoot(x-2,x,2,5)"), 2.0);
  EXPECT_EQ(search([](double x) { return x - 2; }, 2, 5).places.size(), 1u);
  EXPECT_EQ(value("fnRoot(0,x,3,5)"), 3.0);
}

TEST_F(root_operator, a_zero_at_a_sample_is_the_root) {
  const TSearched searched = search([](double x) { return (x - 0.5) * (x - 0.5); }, 0, 1000);
  EXPECT_EQ(searched.outcome, ROOT_FOUND);
  EXPECT_EQ(searched.root, 0.5);
  EXPECT_EQ(searched.places.size(), 2u);
}

TEST_F(root_operator, a_root_that_only_touches_is_not_seen) {
  EXPECT_EQ(error_of("fnRoot((x-0.12345)^2,x,0,1)"), "No Root Found");
}

TEST_F(root_operator, no_change_of_sign) { EXPECT_EQ(error_of("fnRoot(x^2+1,x,-5,5)"), "No Root Found"); }

TEST_F(root_operator, between_equal_bounds) {
  EXPECT_EQ(error_of("fnRoot(x,x,1,1)"), "No Root Found");
  EXPECT_EQ(value("fnRoot(x-1,x,1,1)"), 1.0);
}

TEST_F(root_operator, a_pole_is_no_root) {
  EXPECT_EQ(error_of("fnRoot(tan(x),x,1,2)"), "No Root Found");
  EXPECT_EQ(error_of("fnRoot(1/(x-0.12345),x,0,1)"), "No Root Found");
}

// The sum of 2000 steps just misses 0, so the sign changes across the pole.
TEST_F(root_operator, a_pole_at_zero_is_no_root) {
  EXPECT_EQ(error_of("fnRoot(1/x,x,-1,1)"), "No Root Found");
}

TEST_F(root_operator, a_jump_of_less_than_one_counts_as_a_root) {
  EXPECT_NEAR(value("fnRoot(Sign(x-0.3)*0.4,x,0,1)"), 0.3, 1e-12);
  EXPECT_EQ(error_of("fnRoot(Sign(x-0.3)*1,x,0,1)"), "No Root Found");
}

TEST_F(root_operator, near_zero_is_zero) { EXPECT_EQ(value("fnRoot(x^3+x,x,-1,2)"), 0.0); }

TEST_F(root_operator, a_sample_out_of_the_domain_is_its_error) {
  EXPECT_EQ(error_of("fnRoot(ln(x)-1,x,-1,5)"), "Domain Error");
  EXPECT_EQ(error_of("fnRoot(1/x-1,x,0,5)"), "Division by Zero");
}

TEST_F(root_operator, bounds_too_far_apart_overflow) {
  EXPECT_EQ(error_of("fnRoot(x-5,x,-1e308,1e308)"), "Overflow");
  EXPECT_NEAR(value("fnRoot(x-5,x,0,1e308)"), 5.0, 1e-12);
}

TEST_F(root_operator, samples_are_real) {
  EXPECT_EQ(error_of("fnRoot((i)*x,x,1,2)"), "Function Argument Type");
  EXPECT_EQ(error_of("fnRoot(x,x,(i),2)"), "Function Argument Type");
  eval("2->complexFormat");
  EXPECT_EQ(error_of("fnRoot(sqRt x-2,x,-1,9)"), "Function Argument Type");
}

}  // namespace
}  // namespace zephyl
