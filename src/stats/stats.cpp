#include "stats/stats.h"

#include <algorithm>
#include <cstdio>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "platform/platform.h"

namespace zephyl {

TStats stats;
void (*stats_changed)() = [] {};
void (*show_stats_list)() = [] {};

namespace {

void changed() {
  stats_changed();
  hooks.redraw_title();
}

void store(double value) {
  (stats.next_is_x ? stats.x : stats.y)[stats.count] = value;
  if (two_variable_stats()) {
    if (!stats.next_is_x) ++stats.count;
    stats.next_is_x = !stats.next_is_x;
  } else {
    ++stats.count;
  }
  changed();
}

}  // namespace

bool two_variable_stats() { return settings.statsVar == 1; }

void clear_stats() {
  stats = {};
  changed();
}

void add_stats_value(double value) {
  if (errors.error_flag) return;
  if (stats.count >= STATS_LIMIT) return report_error(ERR_STATS_SIZE);
  store(value);
}

bool enter_answer_into_stats() {
  if (errors.error_flag) return false;
  if (answers.m_ans_valid || answers.l_ans_valid || answers.str_ans_valid || !is_real(answers.ans)) {
    platform().show_message("Data type can't be inserted into a stats list.", "Stats");
    return false;
  }
  if (stats.count >= STATS_LIMIT) {
    platform().show_message("Reached statistics data limit", "Limit");
    return false;
  }
  store(answers.ans.re);
  return true;
}

void delete_stats_row(int row) {
  if (row >= 0 && row < stats.count) {
    std::copy(stats.x + row + 1, stats.x + stats.count, stats.x + row);
    std::copy(stats.y + row + 1, stats.y + stats.count, stats.y + row);
    --stats.count;
  }
  stats.next_is_x = true;
  changed();
}

void delete_last_stats_row() {
  if (stats.count > 0) --stats.count;
  stats.next_is_x = true;
  changed();
}

void set_stats_variables(int statsVar) {
  settings.statsVar = statsVar;
  stats.next_is_x = true;
  changed();
}

void set_stats_count(int count) {
  stats.count = count;
  stats.next_is_x = true;
  changed();
}

void stats_title(char* out, int size, const char* program) {
  const char* expected = !two_variable_stats() ? "" : stats.next_is_x ? ", x" : ", y";
  std::snprintf(out, static_cast<std::size_t>(size), "%s (n=%d%s)", program, stats.count, expected);
}

void reset_stats() { stats = {}; }

}  // namespace zephyl
