// The 21 statistics values and the four regression models, computed from the data at every request.
#pragma once

namespace zephyl {

enum TStatisticsValue {
  STAT_SUM_XY = 0,
  STAT_WEIGHTED_MEAN,
  STAT_WEIGHTED_MEAN_Y,
  STAT_MEAN_X,
  STAT_SUM_X,
  STAT_SUM2_X,
  STAT_STD_DEV_X,
  STAT_STD_DEV_1_X,
  STAT_MEAN_Y,
  STAT_SUM_Y,
  STAT_SUM2_Y,
  STAT_STD_DEV_Y,
  STAT_STD_DEV_1_Y,
  STAT_X_MIN,
  STAT_X_MAX,
  STAT_Y_MIN,
  STAT_Y_MAX,
  STAT_SLOPE,
  STAT_INTERCEPT,
  STAT_CORRELATION,
  STAT_COUNT,
  STATISTICS_VALUE_COUNT
};

// Value 0 to 20. ERR_NO_STATS_DATA on an empty store (the count is 0 there, without an error),
// ERR_NO_STATS_Y_DATA for one that needs y in one-variable mode; a fault of its arithmetic is reported by
// name. 0 with an error.
double stats_value(int index);
bool needs_y(int index);

// y = a x + b in the current model, over ln x, ln y or both where it says so; b is always that of the shown
// equation.
double regression_slope();
double regression_intercept();
double correlation();
// ERR_NO_STATS_DATA, ERR_NO_STATS_Y_DATA.
double predict_x(double y);
double predict_y(double x);

// "y=(a*x)+b" and its siblings, by TRegression.
const char* regression_equation(int model);

}  // namespace zephyl
