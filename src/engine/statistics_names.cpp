// The 21 statistics values: their tokens and their names. The numbers are those that programs carry in their
// tokens.

#include "engine/tokens.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

struct TStatisticRow {
  TToken token;
  const char* glyph;
  const char* text;
};

constexpr TStatisticRow statistics[] = {
    {1005, "sum_xy", " xySum "},
    {1006, "weighted_mean", " xMeanw "},
    {1106, "weighted_mean_y", " yMeanw "},
    {1011, "mean_x", " xMean "},
    {1012, "sum_x", " xSum "},
    {1013, "sum2_x", " xSumSq "},
    {1014, "std_dev_x", " xSD "},
    {1015, "std_dev-1_x", " xSD-1 "},
    {1111, "mean_y", " yMean "},
    {1112, "sum_y", " ySum "},
    {1113, "sum2_y", " ySumSq "},
    {1114, "std_dev_y", " ySD "},
    {1115, "std_dev-1_y", " ySD-1 "},
    {1116, "xmin", " xMin "},
    {1117, "xmax", " xMax "},
    {1118, "ymin", " yMin "},
    {1119, "ymax", " yMax "},
    {1107, "slope", " slope "},
    {1108, "intercept", " intercept "},
    {1109, "corr_coef", " correlation "},
    {1016, "stats_count", " count "},
};
static_assert(sizeof(statistics) / sizeof(statistics[0]) == NO_STATISTIC);

bool is_statistic(int index) { return index >= 0 && index < NO_STATISTIC; }

}  // namespace

TToken statistics_token(int index) { return is_statistic(index) ? statistics[index].token : TToken{0}; }

int statistics_index(TToken token) {
  for (int index = 0; index < NO_STATISTIC; ++index)
    if (statistics[index].token == token) return index;
  return NO_STATISTIC;
}

const char* statistics_glyph(int index) { return is_statistic(index) ? statistics[index].glyph : ""; }

const char* get_stats_string(int index) {
  if (is_statistic(index)) return statistics[index].text;
  if (index == NO_STATISTIC) return "";
  platform().show_message("Stats string not defined", "get_stats_string");
  return "Not Defined ";
}

}  // namespace zephyl
