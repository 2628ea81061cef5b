// The operations over the statistics data: rx, ry, entStats(, getStatsX( and its siblings.

#include "engine/backup.h"
#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "stats/stats.h"
#include "stats/stats_lists.h"
#include "stats/stats_values.h"

namespace zephyl {

namespace {

template <double (*predict)(double)>
void predict_operation(TScalarCall& call) {
  if (!is_real(call.args[0])) return report_error(ERR_DATA_TYPE);
  call.result = {predict(call.args[0].re), 0.0};
}

void enter_operation(TScalarCall& call) {
  add_stats_value(call.args[0].re);
  call.result = call.args[0];
}

// The row of a 1-based index; -1, with the error reported, where there is none.
int row_of(double index) {
  if (stats.count == 0) {
    report_error(ERR_NO_STATS_DATA);
    return -1;
  }
  const int row = checked_integer(index, 1, stats.count, ERR_DOMAIN);
  return errors.error_flag ? -1 : row - 1;
}

void get_value(TScalarCall& call, const double* column) {
  const int row = row_of(call.args[0].re);
  if (row >= 0) call.result = {column[row], 0.0};
}

void put_value(TScalarCall& call, double* column) {
  const int row = row_of(call.args[0].re);
  if (row < 0) return;
  column[row] = call.args[1].re;
  stats_changed();
  call.result = call.args[1];
}

void get_y_operation(TScalarCall& call) {
  if (stats.count > 0 && !two_variable_stats()) return report_error(ERR_NO_STATS_Y_DATA);
  get_value(call, stats.y);
}

void put_y_operation(TScalarCall& call) {
  if (stats.count > 0 && !two_variable_stats()) return report_error(ERR_NOT_TWO_VARIABLE);
  put_value(call, stats.y);
}

void expect_x_next() {
  stats.next_is_x = true;
  stats_changed();
}

// A plot that has it in its function shows no list for each of its samples.
void show_operation(TScalarCall& call) {
  if (!call.plotting) show_stats_list();
}

// Takes its place in front of the owners of other items.
void (*clear_other_item)(int item) = nullptr;

void clear_stats_item(int item) {
  if (item == CLEAR_STATS) clear_stats();
  clear_other_item(item);
}

void register_clearing() {
  if (clear_other_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_stats_item;
}

}  // namespace

void register_stats() {
  register_backup_of<&stats>();
  hooks.statistics_value = stats_value;
  hooks.stats_variables_changed = expect_x_next;
  register_clearing();
  operations[OP_REGRESS_X].scalar = predict_operation<predict_x>;
  operations[OP_REGRESS_Y].scalar = predict_operation<predict_y>;
  operations[OP_ENT_STATS].scalar = enter_operation;
  operations[OP_GET_STATS_X].scalar = [](TScalarCall& call) { get_value(call, stats.x); };
  operations[OP_GET_STATS_Y].scalar = get_y_operation;
  operations[OP_PUT_STATS_X].scalar = [](TScalarCall& call) { put_value(call, stats.x); };
  operations[OP_PUT_STATS_Y].scalar = put_y_operation;
  operations[OP_DISP_STATS_LIST].scalar = show_operation;
  register_stats_lists();
}

}  // namespace zephyl
