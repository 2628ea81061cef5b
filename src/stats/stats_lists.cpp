// The statistics columns from lists and as lists: listToX(, listToY(, XtoList(), YtoList().

#include "stats/stats_lists.h"

#include "collections/list_calls.h"
#include "engine/evaluator.h"
#include "engine/operations.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

static_assert(LIST_LIMIT <= STATS_LIMIT);

// Fills a column and with it the number of rows; rows that are new have 0 in the other column.
void fill_column(const ListRecord& list, double* column, double* other) {
  const int size = list_size(list);
  for (int row = 0; row < size; ++row) {
    column[row] = list.elements[row].re;
    if (row >= stats.count) other[row] = 0.0;
  }
  set_stats_count(size);
}

void list_to_column(TFamilyCall& call, double* column, double* other) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  if (is_complex_list(*operands.first)) return report_error(ERR_DATA_TYPE);
  if (column == stats.y && !two_variable_stats()) return report_error(ERR_NOT_TWO_VARIABLE);
  fill_column(*operands.first, column, other);
  set_number_result(call.result_register, {});
}

void column_to_list(TFamilyCall& call, const double* column) {
  ListRecord* list = begin_list_result(call);
  if (!list) return;
  for (int row = 0; row < stats.count; ++row) list->elements[row] = {column[row], 0.0};
  end_list_result(*list, stats.count);
}

void list_to_x(TFamilyCall& call) { list_to_column(call, stats.x, stats.y); }
void list_to_y(TFamilyCall& call) { list_to_column(call, stats.y, stats.x); }

void x_to_list(TFamilyCall& call) {
  if (stats.count < 1) return report_error(ERR_NO_STATS_DATA);
  column_to_list(call, stats.x);
}

void y_to_list(TFamilyCall& call) {
  if (stats.count < 1 || !two_variable_stats()) return report_error(ERR_NO_STATS_Y_DATA);
  column_to_list(call, stats.y);
}

}  // namespace

void register_stats_lists() {
  operations[OP_LIST_TO_X].list = list_to_x;
  operations[OP_LIST_TO_Y].list = list_to_y;
  operations[OP_X_TO_LIST].list = x_to_list;
  operations[OP_Y_TO_LIST].list = y_to_list;
}

}  // namespace zephyl
