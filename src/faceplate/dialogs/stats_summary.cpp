#include "faceplate/dialogs/stats_summary.h"

#include "engine/errors.h"
#include "engine/format.h"
#include "engine/state.h"
#include "faceplate/dialogs/running.h"
#include "stats/stats.h"
#include "stats/stats_values.h"

namespace zephyl {

namespace {

struct TSummaryRow {
  const char* name;
  int value;  // TStatisticsValue
};

constexpr TSummaryRow rows_of_one[] = {{"n", STAT_COUNT},
                                       {"x mean", STAT_MEAN_X},
                                       {"x min", STAT_X_MIN},
                                       {"x max", STAT_X_MAX},
                                       {"x sum", STAT_SUM_X},
                                       {"x sum of squares", STAT_SUM2_X},
                                       {"x std dev", STAT_STD_DEV_X},
                                       {"x std dev(n-1)", STAT_STD_DEV_1_X}};

constexpr TSummaryRow rows_of_two[] = {{"n", STAT_COUNT},
                                       {"x mean", STAT_MEAN_X},
                                       {"x weighted mean", STAT_WEIGHTED_MEAN},
                                       {"x min", STAT_X_MIN},
                                       {"x max", STAT_X_MAX},
                                       {"x sum", STAT_SUM_X},
                                       {"x sum of squares", STAT_SUM2_X},
                                       {"x std dev", STAT_STD_DEV_X},
                                       {"x std dev(n-1)", STAT_STD_DEV_1_X},
                                       {"y mean", STAT_MEAN_Y},
                                       {"y weighted mean", STAT_WEIGHTED_MEAN_Y},
                                       {"y min", STAT_Y_MIN},
                                       {"y max", STAT_Y_MAX},
                                       {"y sum", STAT_SUM_Y},
                                       {"y sum of squares", STAT_SUM2_Y},
                                       {"y std dev", STAT_STD_DEV_Y},
                                       {"y std dev(n-1)", STAT_STD_DEV_1_Y},
                                       {"xy sum", STAT_SUM_XY}};

constexpr TSummaryRow rows_of_fit[] = {{"a", STAT_SLOPE}, {"b", STAT_INTERCEPT}, {"r", STAT_CORRELATION}};

// A value that can't be computed leaves no error behind.
std::string value_text(int index) {
  const double value = stats_value(index);
  if (!errors.error_flag)
    return format_number(value, settings.numberFormat, settings.decimalDigits, settings.baseType, false,
                         false);
  clear_error();
  return "Error";
}

template <int COUNT>
void add_rows(std::vector<std::string>& texts, const TSummaryRow (&rows)[COUNT]) {
  for (const TSummaryRow& row : rows) texts.push_back(std::string(row.name) + " = " + value_text(row.value));
}

std::vector<std::string> summary() {
  if (stats.count == 0) return {"No Stats Data"};
  std::vector<std::string> texts;
  if (!two_variable_stats()) {
    add_rows(texts, rows_of_one);
    return texts;
  }
  add_rows(texts, rows_of_two);
  texts.emplace_back(regression_equation(settings.statsRegress));
  add_rows(texts, rows_of_fit);
  return texts;
}

}  // namespace

void show_stats_summary() {
  TDialog dialog(188, "Stats Summary");
  const int list = dialog.add(list_control("", summary()));
  dialog[list].lines = 12;
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
