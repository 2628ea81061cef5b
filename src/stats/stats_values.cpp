#include "stats/stats_values.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/state.h"
#include "numerics/real_functions.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

// Which columns a sum reads through their logarithm.
struct TLogarithms {
  bool x = false;
  bool y = false;
};

TLogarithms model_logarithms() {
  const int model = settings.statsRegress;
  return {model == R_LOGARITHMIC || model == R_POWER, model == R_EXPON || model == R_POWER};
}

enum TSumKind { SUM_X, SUM_Y, SUM_XY, SUM_XX, SUM_YY };

// Each sum is made by itself: a value must not end in the overflow of a sum that it doesn't need.
double sum_of(TSumKind kind, TLogarithms logarithms = {}) {
  double sum = 0.0;
  for (int i = 0; i < stats.count; ++i) {
    const auto x = [&] { return logarithms.x ? std::log(stats.x[i]) : stats.x[i]; };
    const auto y = [&] { return logarithms.y ? std::log(stats.y[i]) : stats.y[i]; };
    switch (kind) {
      case SUM_X:
        sum += x();
        break;
      case SUM_Y:
        sum += y();
        break;
      case SUM_XY:
        sum += x() * y();
        break;
      case SUM_XX:
        sum += x() * x();
        break;
      case SUM_YY:
        sum += y() * y();
        break;
    }
  }
  return sum;
}

// Sums of the squared distances from the means and of their products.
double spread_of_x(TLogarithms logarithms = {}) {
  const double x = sum_of(SUM_X, logarithms);
  return sum_of(SUM_XX, logarithms) - x * x / stats.count;
}

double spread_of_y(TLogarithms logarithms = {}) {
  const double y = sum_of(SUM_Y, logarithms);
  return sum_of(SUM_YY, logarithms) - y * y / stats.count;
}

double common_spread(TLogarithms logarithms) {
  return sum_of(SUM_XY, logarithms) - sum_of(SUM_X, logarithms) * sum_of(SUM_Y, logarithms) / stats.count;
}

// The standard deviation; a spread that rounding made negative counts as 0.
double deviation(double spread, double divisor) {
  return square_root_real((spread < 0.0 ? 0.0 : spread) / divisor);
}

double least(const double* column) { return *std::min_element(column, column + stats.count); }
double greatest(const double* column) { return *std::max_element(column, column + stats.count); }

using TFunction = double (*)();

struct TRow {
  bool needs_y;
  TFunction value;
};

const TRow rows[STATISTICS_VALUE_COUNT] = {
    {true, [] { return sum_of(SUM_XY); }},
    {true, [] { return sum_of(SUM_XY) / sum_of(SUM_Y); }},
    {true, [] { return sum_of(SUM_XY) / sum_of(SUM_X); }},
    {false, [] { return sum_of(SUM_X) / stats.count; }},
    {false, [] { return sum_of(SUM_X); }},
    {false, [] { return sum_of(SUM_XX); }},
    {false, [] { return deviation(spread_of_x(), stats.count); }},
    {false, [] { return deviation(spread_of_x(), stats.count - 1.0); }},
    {true, [] { return sum_of(SUM_Y) / stats.count; }},
    {true, [] { return sum_of(SUM_Y); }},
    {true, [] { return sum_of(SUM_YY); }},
    {true, [] { return deviation(spread_of_y(), stats.count); }},
    {true, [] { return deviation(spread_of_y(), stats.count - 1.0); }},
    {false, [] { return least(stats.x); }},
    {false, [] { return greatest(stats.x); }},
    {true, [] { return least(stats.y); }},
    {true, [] { return greatest(stats.y); }},
    {true, regression_slope},
    {true, regression_intercept},
    {true, correlation},
    {false, [] { return static_cast<double>(stats.count); }},
};

// The data that a prediction needs.
bool has_regression_data() {
  if (stats.count == 0) {
    report_error(ERR_NO_STATS_DATA);
  } else if (!two_variable_stats()) {
    report_error(ERR_NO_STATS_Y_DATA);
  }
  return !errors.error_flag;
}

double without_fault(TFunction function) {
  const double value = reporting_faults(function);
  return errors.error_flag ? 0.0 : value;
}

}  // namespace

bool needs_y(int index) { return rows[index].needs_y; }

double stats_value(int index) {
  if (index < 0 || index >= STATISTICS_VALUE_COUNT) {
    report_error(ERR_UNEXPECTED);
    return 0.0;
  }
  if (stats.count == 0 && index != STAT_COUNT) {
    report_error(ERR_NO_STATS_DATA);
    return 0.0;
  }
  if (needs_y(index) && !two_variable_stats()) {
    report_error(ERR_NO_STATS_Y_DATA);
    return 0.0;
  }
  return without_fault(rows[index].value);
}

double regression_slope() {
  const TLogarithms logarithms = model_logarithms();
  return common_spread(logarithms) / spread_of_x(logarithms);
}

double regression_intercept() {
  const TLogarithms logarithms = model_logarithms();
  const double through_origin = regression_slope() * sum_of(SUM_X, logarithms) / stats.count;
  const double b = sum_of(SUM_Y, logarithms) / stats.count - through_origin;
  return logarithms.y ? std::exp(b) : b;
}

double correlation() {
  const TLogarithms logarithms = model_logarithms();
  return common_spread(logarithms) / square_root_real(spread_of_x(logarithms) * spread_of_y(logarithms));
}

double predict_y(double x) {
  if (!has_regression_data()) return 0.0;
  const double a = regression_slope(), b = regression_intercept();
  switch (settings.statsRegress) {
    case R_LINEAR:
      return a * x + b;
    case R_LOGARITHMIC:
      return a * std::log(x) + b;
    case R_EXPON:
      return b * std::exp(a * x);
    default:
      return b * real_power(x, a);
  }
}

double predict_x(double y) {
  if (!has_regression_data()) return 0.0;
  const double a = regression_slope(), b = regression_intercept();
  switch (settings.statsRegress) {
    case R_LINEAR:
      return (y - b) / a;
    case R_LOGARITHMIC:
      return std::exp((y - b) / a);
    case R_EXPON:
      return std::log(y / b) / a;
    default:
      return real_power(y / b, 1.0 / a);
  }
}

const char* regression_equation(int model) {
  constexpr const char* equations[] = {"y=(a*x)+b", "y=a*(ln x)+b", "y=(e^(a*x))*b", "y=(x^a)*b"};
  return model >= R_LINEAR && model <= R_POWER ? equations[model] : "";
}

}  // namespace zephyl
