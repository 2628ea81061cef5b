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

struct TSums {
  double n = 0.0, x = 0.0, y = 0.0, xy = 0.0, xx = 0.0, yy = 0.0;
};

TSums sums(TLogarithms logarithms = {}) {
  TSums sum;
  sum.n = stats.count;
  for (int i = 0; i < stats.count; ++i) {
    const double x = logarithms.x ? std::log(stats.x[i]) : stats.x[i];
    const double y = logarithms.y ? std::log(stats.y[i]) : stats.y[i];
    sum.x += x;
    sum.y += y;
    sum.xy += x * y;
    sum.xx += x * x;
    sum.yy += y * y;
  }
  return sum;
}

// Sums over one column.
TSums column_sums(const double* column) {
  TSums sum;
  sum.n = stats.count;
  for (int i = 0; i < stats.count; ++i) {
    sum.x += column[i];
    sum.xx += column[i] * column[i];
  }
  return sum;
}

// The root of a sum of squared distances over its divisor; one that rounding made negative counts as 0.
double deviation(const TSums& sum, double divisor) {
  const double squares = sum.xx - sum.x * sum.x / sum.n;
  return square_root_real((squares < 0.0 ? 0.0 : squares) / divisor);
}

double slope_of(const TSums& sum) {
  return (sum.xy - sum.x * sum.y / sum.n) / (sum.xx - sum.x * sum.x / sum.n);
}

double intercept_of(const TSums& sum) {
  const double b = sum.y / sum.n - slope_of(sum) * sum.x / sum.n;
  return model_logarithms().y ? std::exp(b) : b;
}

double least(const double* column) { return *std::min_element(column, column + stats.count); }
double greatest(const double* column) { return *std::max_element(column, column + stats.count); }

using TFunction = double (*)();

struct TRow {
  bool needs_y;
  TFunction value;
};

const TRow rows[STATISTICS_VALUE_COUNT] = {
    {true, [] { return sums().xy; }},
    {true, [] { return sums().xy / sums().y; }},
    {true, [] { return sums().xy / sums().x; }},
    {false, [] { return column_sums(stats.x).x / stats.count; }},
    {false, [] { return column_sums(stats.x).x; }},
    {false, [] { return column_sums(stats.x).xx; }},
    {false, [] { return deviation(column_sums(stats.x), stats.count); }},
    {false, [] { return deviation(column_sums(stats.x), stats.count - 1.0); }},
    {true, [] { return column_sums(stats.y).x / stats.count; }},
    {true, [] { return column_sums(stats.y).x; }},
    {true, [] { return column_sums(stats.y).xx; }},
    {true, [] { return deviation(column_sums(stats.y), stats.count); }},
    {true, [] { return deviation(column_sums(stats.y), stats.count - 1.0); }},
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

// The computation is called through a pointer that the compiler can't see into, so that its faults are read after it.
double without_fault(TFunction function) {
  clear_faults();
  volatile TFunction opaque = function;
  const double value = opaque();
  return report_fault() || errors.error_flag ? 0.0 : value;
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

double regression_slope() { return slope_of(sums(model_logarithms())); }

double regression_intercept() { return intercept_of(sums(model_logarithms())); }

double correlation() {
  const TSums sum = sums(model_logarithms());
  const double xx = sum.xx - sum.x * sum.x / sum.n;
  const double yy = sum.yy - sum.y * sum.y / sum.n;
  return (sum.xy - sum.x * sum.y / sum.n) / square_root_real(xx * yy);
}

double predict_y(double x) {
  if (!has_regression_data()) return 0.0;
  const double a = regression_slope(), b = regression_intercept();
  switch (settings.statsRegress) {
    case R_LINEAR: return a * x + b;
    case R_LOGARITHMIC: return a * std::log(x) + b;
    case R_EXPON: return b * std::exp(a * x);
    default: return b * real_power(x, a);
  }
}

double predict_x(double y) {
  if (!has_regression_data()) return 0.0;
  const double a = regression_slope(), b = regression_intercept();
  switch (settings.statsRegress) {
    case R_LINEAR: return (y - b) / a;
    case R_LOGARITHMIC: return std::exp((y - b) / a);
    case R_EXPON: return std::log(y / b) / a;
    default: return real_power(y / b, 1.0 / a);
  }
}

const char* regression_equation(int model) {
  constexpr const char* equations[] = {"y=(a*x)+b", "y=a*(ln x)+b", "y=(e^(a*x))*b", "y=(x^a)*b"};
  return model >= R_LINEAR && model <= R_POWER ? equations[model] : "";
}

}  // namespace zephyl
