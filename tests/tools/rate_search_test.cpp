#include "tools/rate_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/values.h"

namespace zephyl {
namespace {

double call_function(double rate, const void* data) {
  return (*static_cast<const std::function<double(double)>*>(data))(rate);
}

class rate_search : public ::testing::Test {
 protected:
  rate_search() { reset_errors(); }
  static double search(const std::function<double(double)>& residual) {
    return search_rate(call_function, &residual);
  }
  static void expect_failure(const std::function<double(double)>& residual, int error) {
    reset_errors();
    EXPECT_EQ(search(residual), undefined_value);
    EXPECT_TRUE(errors.error_flag);
    EXPECT_EQ(errors.error_code, error);
  }
};

TEST_F(rate_search, finds_a_root_on_either_side_of_zero) {
  for (const double root : {0.0005, 0.005, 0.05, 0.5, 5.0, 50.0, -0.0005, -0.05, -0.9})
    EXPECT_NEAR(search([=](double r) { return r - root; }), root, 1e-13) << root;
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(rate_search, finds_a_root_of_a_curve) {
  EXPECT_NEAR(search([](double r) { return std::pow(1 + r, 10) - 2; }), std::pow(2, 0.1) - 1, 1e-13);
  EXPECT_NEAR(search([](double r) { return std::exp(-20 * r) - 0.25; }), std::log(4.0) / 20, 1e-13);
}

TEST_F(rate_search, of_two_roots_the_one_nearer_to_zero) {
  EXPECT_NEAR(search([](double r) { return (r - 0.02) * (r + 0.5); }), 0.02, 1e-12);
  EXPECT_NEAR(search([](double r) { return (r - 0.5) * (r + 0.02); }), -0.02, 1e-12);
}

TEST_F(rate_search, of_two_roots_as_near_the_positive_one) {
  EXPECT_NEAR(search([](double r) { return (r - 0.25) * (r + 0.25); }), 0.25, 1e-12);
}

TEST_F(rate_search, a_residual_that_only_touches_zero_has_no_root) {
  expect_failure([](double r) { return (r - 0.1) * (r - 0.1); }, ERR_ITERATIONS);
}

TEST_F(rate_search, a_pole_is_no_root) {
  expect_failure([](double r) { return 1 / (r - 0.1); }, ERR_ITERATIONS);
}

TEST_F(rate_search, a_residual_without_a_root) {
  expect_failure([](double r) { return r * r + 1; }, ERR_ITERATIONS);
  expect_failure([](double) { return 3.0; }, ERR_ITERATIONS);
}

TEST_F(rate_search, the_last_error_of_the_residual_is_reported) {
  expect_failure(
      [](double) {
        report_error(ERR_DATA_TYPE);
        return 0.0;
      },
      ERR_DATA_TYPE);
  volatile double zero = 0.0;
  expect_failure([&](double) { return 1.0 / zero; }, ERR_ZERO_DIVIDE);
}

TEST_F(rate_search, a_start_that_can_not_be_computed_moves_towards_zero) {
  const double root = search([](double r) {
    if (std::fabs(r) > 0.0005) report_error(ERR_DOMAIN);
    return r - 0.0003;
  });
  EXPECT_NEAR(root, 0.0003, 1e-13);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(rate_search, a_step_into_nowhere_is_shortened) {
  // Defined to just above its root.
  EXPECT_NEAR(search([](double r) {
                if (r > 0.2000001) report_error(ERR_DOMAIN);
                return std::sqrt(std::fabs(r)) - std::sqrt(0.2);
              }),
              0.2, 1e-12);
  EXPECT_FALSE(errors.error_flag);
}

TEST_F(rate_search, the_faults_of_its_trials_are_dealt_with) {
  clear_faults();
  search([](double r) { return r > 0.5 ? 1e308 * r * 1e10 : r - 0.3; });
  EXPECT_FALSE(fault_raised());
  EXPECT_FALSE(errors.error_flag);
}

}  // namespace
}  // namespace zephyl
