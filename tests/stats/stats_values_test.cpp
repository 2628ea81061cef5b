// The 21 statistics values, the four models and their predictions.
#include "stats/stats_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/errors.h"
#include "engine/state.h"
#include "stats/stats.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

using TColumn = std::vector<long double>;

const TColumn x_column = {1.5L, 2.25L, 3.0L, 4.75L, 8.5L, 9.0L, 11.25L};
const TColumn y_column = {2.0L, 3.5L, 3.25L, 6.0L, 9.75L, 12.5L, 14.0L};

long double sum(const TColumn& a) {
  long double s = 0;
  for (const long double v : a) s += v;
  return s;
}
long double sum(const TColumn& a, const TColumn& b) {
  long double s = 0;
  for (std::size_t i = 0; i < a.size(); ++i) s += a[i] * b[i];
  return s;
}
long double mean(const TColumn& a) { return sum(a) / static_cast<long double>(a.size()); }
// Sum of the products of the distances from the means, in two passes.
long double spread(const TColumn& a, const TColumn& b) {
  long double s = 0;
  for (std::size_t i = 0; i < a.size(); ++i) s += (a[i] - mean(a)) * (b[i] - mean(b));
  return s;
}
TColumn logarithms(TColumn a) {
  for (long double& v : a) v = std::log(v);
  return a;
}

class stats_values : public calculator {
 protected:
  stats_values() {
    clear_stats();
    set_stats_variables(1);
    settings.statsRegress = R_LINEAR;
  }
  static void enter(const TColumn& x, const TColumn& y) {
    clear_error();
    for (std::size_t i = 0; i < x.size(); ++i) {
      add_stats_value(static_cast<double>(x[i]));
      add_stats_value(static_cast<double>(y[i]));
    }
  }
  static void enter_one_variable(std::initializer_list<double> values) {
    set_stats_variables(0);
    for (const double value : values) add_stats_value(value);
  }
  void expect(int index, long double expected) {
    EXPECT_NEAR(stats_value(index), static_cast<double>(expected),
                1e-12 * std::fabs(static_cast<double>(expected)))
        << "value " << index;
    EXPECT_FALSE(errors.error_flag) << errors.error_text;
    EXPECT_EQ(value("(stat " + std::to_string(index) + ")"), stats_value(index));
  }
  int error_of_value(int index) {
    reset_errors();
    EXPECT_EQ(stats_value(index), 0.0);
    return errors.error_flag ? errors.error_code : -1;
  }
};

TEST_F(stats_values, every_value) {
  enter(x_column, y_column);
  const TColumn &x = x_column, &y = y_column;
  const long double n = 7;
  const long double a = spread(x, y) / spread(x, x);
  const long double expected[] = {sum(x, y),
                                  sum(x, y) / sum(y),
                                  sum(x, y) / sum(x),
                                  mean(x),
                                  sum(x),
                                  sum(x, x),
                                  std::sqrt(spread(x, x) / n),
                                  std::sqrt(spread(x, x) / (n - 1)),
                                  mean(y),
                                  sum(y),
                                  sum(y, y),
                                  std::sqrt(spread(y, y) / n),
                                  std::sqrt(spread(y, y) / (n - 1)),
                                  1.5L,
                                  11.25L,
                                  2.0L,
                                  14.0L,
                                  a,
                                  mean(y) - a * mean(x),
                                  spread(x, y) / std::sqrt(spread(x, x) * spread(y, y)),
                                  n};
  for (int i = 0; i < STATISTICS_VALUE_COUNT; ++i) expect(i, expected[i]);
}

TEST_F(stats_values, their_names_in_expressions) {
  enter(x_column, y_column);
  const struct {
    const char* text;
    int index;
  } names[] = {{"(xMean)", 3}, {"(xSum)", 4},   {"(xSumSq)", 5}, {"(xSD)", 6},
               {"(xSD-1)", 7}, {"(yMean)", 8},  {"(ySum)", 9},   {"(ySumSq)", 10},
               {"(ySD)", 11},  {"(ySD-1)", 12}, {"(slope)", 17}};
  for (const auto& name : names) EXPECT_EQ(value(name.text), stats_value(name.index)) << name.text;
}

TEST_F(stats_values, the_extremes_may_stand_in_any_row) {
  enter({3, -7, 5, -7, 5}, {0, 2, -1, 2, 9});
  expect(STAT_X_MIN, -7);
  expect(STAT_X_MAX, 5);
  expect(STAT_Y_MIN, -1);
  expect(STAT_Y_MAX, 9);
}

TEST_F(stats_values, a_pending_x_does_not_count) {
  enter({1, 2}, {3, 4});
  add_stats_value(1000);
  expect(STAT_COUNT, 2);
  expect(STAT_X_MAX, 2);
}

TEST_F(stats_values, an_empty_store_has_a_count_and_nothing_else) {
  EXPECT_EQ(error_of_value(STAT_COUNT), -1);
  for (int i = 0; i < STAT_COUNT; ++i) EXPECT_EQ(error_of_value(i), ERR_NO_STATS_DATA) << i;
}

TEST_F(stats_values, one_variable_has_no_values_of_y) {
  enter_one_variable({1, 2, 4});
  const std::vector<int> of_y = {0, 1, 2, 8, 9, 10, 11, 12, 15, 16, 17, 18, 19};
  for (const int index : of_y) EXPECT_EQ(error_of_value(index), ERR_NO_STATS_Y_DATA) << index;
  for (const int index : {3, 4, 5, 6, 7, 13, 14})
    EXPECT_EQ((reset_errors(), stats_value(index), errors.error_flag), false);
  EXPECT_EQ(error_of("(slope)"), "No Stats y Data");
}

TEST_F(stats_values, a_number_of_no_value_is_unexpected) {
  EXPECT_EQ(error_of_value(-1), ERR_UNEXPECTED);
  EXPECT_EQ(error_of_value(21), ERR_UNEXPECTED);
}

TEST_F(stats_values, one_row_has_a_deviation_of_zero_and_no_estimate_of_it) {
  enter_one_variable({5});
  EXPECT_EQ(value("(xSD)"), 0.0);
  EXPECT_EQ(error_of("(xSD-1)"), "Domain Error");
}

TEST_F(stats_values, a_spread_that_rounding_makes_negative_is_zero) {
  enter({0.1L, 0.1L, 0.1L}, {0.1L, 0.1L, 0.1L});
  const double x = 0.1 + 0.1 + 0.1, xx = 0.1 * 0.1 + 0.1 * 0.1 + 0.1 * 0.1;
  ASSERT_LT(xx - x * x / 3, 0.0) << "the example shows nothing";
  for (const int index : {STAT_STD_DEV_X, STAT_STD_DEV_1_X, STAT_STD_DEV_Y, STAT_STD_DEV_1_Y})
    EXPECT_EQ(value("(stat " + std::to_string(index) + ")"), 0.0) << index;
}

TEST_F(stats_values, a_mean_weighted_by_nothing_divides_by_zero) {
  enter({1, 2}, {3, -3});
  EXPECT_EQ(error_of_value(STAT_WEIGHTED_MEAN), ERR_ZERO_DIVIDE);
  clear_stats();
  enter({0, 0}, {0, 0});
  EXPECT_EQ(error_of_value(STAT_WEIGHTED_MEAN_Y), ERR_DOMAIN);
}

TEST_F(stats_values, a_sum_that_is_not_needed_can_not_overflow) {
  enter({1e200L, 1}, {1, 2});
  expect(STAT_SUM_XY, 1e200L);
  expect(STAT_MEAN_X, 5e199L);
  expect(STAT_SUM2_Y, 5);
  EXPECT_EQ(error_of_value(STAT_SUM2_X), ERR_OVERFLOW);
  EXPECT_EQ(error_of_value(STAT_STD_DEV_X), ERR_OVERFLOW);
}

// --- Models

class regression : public stats_values {
 protected:
  // Fills in y = f(x) and expects the model to find a, b and a correlation of 1.
  void expect_model(int model, double (*f)(double), double a, double b) {
    clear_stats();
    settings.statsRegress = model;
    for (const double x : {0.5, 1.0, 2.5, 4.0, 7.0}) {
      add_stats_value(x);
      add_stats_value(f(x));
    }
    EXPECT_NEAR(stats_value(STAT_SLOPE), a, 1e-12);
    EXPECT_NEAR(stats_value(STAT_INTERCEPT), b, 1e-12);
    EXPECT_NEAR(std::fabs(stats_value(STAT_CORRELATION)), 1.0, 1e-12);
    EXPECT_NEAR(value("3ry"), f(3), 1e-11);
    char text[60];
    std::snprintf(text, sizeof text, "(%.17g)rx", f(3));
    EXPECT_NEAR(value(text), 3.0, 1e-11);
  }
};

TEST_F(regression, linear) {
  expect_model(
      R_LINEAR, [](double x) { return 2.5 * x - 4; }, 2.5, -4);
  EXPECT_STREQ(regression_equation(R_LINEAR), "y=(a*x)+b");
}

TEST_F(regression, logarithmic) {
  expect_model(
      R_LOGARITHMIC, [](double x) { return 2.5 * std::log(x) - 4; }, 2.5, -4);
  EXPECT_STREQ(regression_equation(R_LOGARITHMIC), "y=a*(ln x)+b");
}

TEST_F(regression, exponential) {
  expect_model(
      R_EXPON, [](double x) { return 3 * std::exp(-0.5 * x); }, -0.5, 3);
  EXPECT_STREQ(regression_equation(R_EXPON), "y=(e^(a*x))*b");
}

TEST_F(regression, power) {
  expect_model(
      R_POWER, [](double x) { return 3 * std::pow(x, 1.5); }, 1.5, 3);
  EXPECT_STREQ(regression_equation(R_POWER), "y=(x^a)*b");
}

TEST_F(regression, of_scattered_data_by_the_transformed_columns) {
  enter(x_column, y_column);
  const TColumn lx = logarithms(x_column), ly = logarithms(y_column);
  const struct {
    int model;
    const TColumn &x, &y;
    bool exponential;
  } models[] = {{R_LINEAR, x_column, y_column, false},
                {R_LOGARITHMIC, lx, y_column, false},
                {R_EXPON, x_column, ly, true},
                {R_POWER, lx, ly, true}};
  for (const auto& row : models) {
    settings.statsRegress = row.model;
    const long double a = spread(row.x, row.y) / spread(row.x, row.x), b = mean(row.y) - a * mean(row.x);
    expect(STAT_SLOPE, a);
    expect(STAT_INTERCEPT, row.exponential ? std::exp(b) : b);
    expect(STAT_CORRELATION, spread(row.x, row.y) / std::sqrt(spread(row.x, row.x) * spread(row.y, row.y)));
  }
}

TEST_F(regression, summary_values_are_those_of_the_raw_data_in_every_model) {
  enter(x_column, y_column);
  settings.statsRegress = R_POWER;
  expect(STAT_MEAN_X, mean(x_column));
  expect(STAT_SUM_XY, sum(x_column, y_column));
  expect(STAT_STD_DEV_Y, std::sqrt(spread(y_column, y_column) / 7));
  expect(STAT_X_MIN, 1.5L);
}

TEST_F(regression, an_x_of_zero_has_no_logarithm) {
  enter({0, 1}, {1, 2});
  for (const int model : {R_LOGARITHMIC, R_POWER}) {
    settings.statsRegress = model;
    EXPECT_EQ(error_of("(slope)"), "Division by Zero") << model;
  }
  settings.statsRegress = R_EXPON;
  EXPECT_EQ(error_of("(slope)"), "");
}

TEST_F(regression, a_negative_x_has_no_logarithm) {
  enter({-1, 1}, {1, 2});
  for (const int model : {R_LOGARITHMIC, R_POWER}) {
    settings.statsRegress = model;
    EXPECT_EQ(error_of("(slope)"), "Domain Error") << model;
    EXPECT_EQ(error_of("2ry"), "Domain Error") << model;
  }
}

TEST_F(regression, a_y_of_zero_or_below_has_no_logarithm) {
  enter({1, 2}, {0, 2});
  for (const int model : {R_EXPON, R_POWER}) {
    settings.statsRegress = model;
    EXPECT_EQ(error_of("(slope)"), "Division by Zero") << model;
  }
  stats.y[0] = -1;
  for (const int model : {R_EXPON, R_POWER}) {
    settings.statsRegress = model;
    EXPECT_EQ(error_of("(slope)"), "Domain Error") << model;
  }
}

TEST_F(regression, rows_of_one_x_have_no_slope) {
  enter({2, 2}, {1, 3});
  EXPECT_EQ(error_of_value(STAT_SLOPE), ERR_DOMAIN);
  clear_stats();
  enter({2}, {1});
  EXPECT_EQ(error_of("(slope)"), "Domain Error");
}

TEST_F(regression, a_slope_of_zero_has_no_inverse) {
  enter({1, 2, 3}, {5, 5, 5});
  EXPECT_EQ(value("(slope)"), 0.0);
  EXPECT_EQ(value("9ry"), 5.0);
  EXPECT_EQ(error_of("6rx"), "Division by Zero");
  EXPECT_EQ(error_of("5rx"), "Domain Error");
}

TEST_F(regression, a_prediction_out_of_the_domain_is_an_error) {
  enter({1, 2, 3}, {5, 7, 8});
  settings.statsRegress = R_LOGARITHMIC;
  EXPECT_EQ(error_of("0ry"), "Division by Zero");
  EXPECT_EQ(error_of("(-1)ry"), "Domain Error");
  settings.statsRegress = R_EXPON;
  EXPECT_EQ(error_of("(-1)rx"), "Domain Error");
}

TEST_F(regression, no_model_has_no_equation) { EXPECT_STREQ(regression_equation(4), ""); }

}  // namespace
}  // namespace zephyl
