// Operations on lists whose result is a number: extremes, means, sums, deviations, sizes and positions.

#include "collections/list_families.h"

#include <cmath>

#include "collections/list_calls.h"
#include "collections/list_sort.h"
#include "collections/list_view.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "numerics/complex_functions.h"
#include "numerics/real_functions.h"

namespace zephyl {

namespace {

// A handler for a function of one list that gives a number.
template <TValue (*function)(const ListRecord&)>
void number_of_list(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  const TValue value = function(*operands.first);
  if (!errors.error_flag) set_number_result(call.result_register, value);
}

TValue sum_of(const ListRecord& list) {
  TValue sum;
  for (int i = 0; i <= list.last; ++i) sum = sum + list.elements[i];
  return sum;
}

TValue product_of(const ListRecord& list) {
  TValue product = real_value(1.0);
  for (int i = 0; i <= list.last; ++i) product = product * list.elements[i];
  return product;
}

TValue divided(TValue z, double divisor) { return {z.re / divisor, z.im / divisor}; }

TValue mean_of(const ListRecord& list) { return divided(sum_of(list), list_size(list)); }

// The first element that none beats; a complex list is compared by moduli.
template <int sign>
TValue extreme_of(const ListRecord& list) {
  const bool by_modulus = is_complex_list(list);
  const auto key = [&](const TValue& z) { return sign * (by_modulus ? complex_magnitude(z) : z.re); };
  int best = 0;
  for (int i = 1; i <= list.last; ++i)
    if (key(list.elements[i]) > key(list.elements[best])) best = i;
  return list.elements[best];
}

TValue median_of(const ListRecord& list) {
  static ListRecord sorted;
  copy_list(sorted, list);
  sort_list(sorted, false);
  const int middle = sorted.last / 2;
  if (list_size(sorted) % 2 == 1) return sorted.elements[middle];
  return 0.5 * (sorted.elements[middle] + sorted.elements[middle + 1]);
}

bool is_finite(TValue z) { return std::isfinite(z.re) && std::isfinite(z.im); }

// One element has no variance: ERR_ZERO_DIVIDE, unless its square has overflowed before.
TValue variance_of(const ListRecord& list) {
  TValue sum, squares;
  for (int i = 0; i <= list.last; ++i) {
    sum = sum + list.elements[i];
    squares = squares + list.elements[i] * list.elements[i];
  }
  if (list.last == 0) {
    report_error(is_finite(squares) ? ERR_ZERO_DIVIDE : ERR_OVERFLOW);
    return {};
  }
  return divided(squares - divided(sum * sum, list_size(list)), list.last);
}

// A variance that rounding made negative counts as 0 in a real list.
TValue deviation_of(const ListRecord& list) {
  const TValue variance = variance_of(list);
  if (!is_real(variance)) return complex_power(variance, real_value(0.5));
  const bool rounded_below_zero = variance.re < 0.0 && !is_complex_list(list);
  return real_value(rounded_below_zero ? 0.0 : real_power(variance.re, 0.5));
}

TValue size_of(const ListRecord& list) { return real_value(list_size(list)); }
TValue type_of(const ListRecord& list) { return real_value(is_complex_list(list) ? 1.0 : 0.0); }

void position_of(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  int position = 0;
  for (int i = 0; i <= operands.first->last && position == 0; ++i)
    if (operands.first->elements[i] == call.numbers[0]) position = i + 1;
  set_number_result(call.result_register, real_value(position));
}

void element_at(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  const int index = index_of(call.numbers[0].re, list_size(*operands.first));
  if (index >= 0) set_number_result(call.result_register, operands.first->elements[index]);
}

bool lists_are_equal(const ListRecord& a, const ListRecord& b) {
  if (a.last != b.last) return false;
  for (int i = 0; i <= a.last; ++i)
    if (a.elements[i] != b.elements[i]) return false;
  return true;
}

template <bool equal>
void compare_lists(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  const bool holds = lists_are_equal(*operands.first, *operands.second) == equal;
  set_number_result(call.result_register, real_value(holds ? 1.0 : 0.0));
}

bool is_stored_list(int number) { return number >= 0 && number < ANSWER_RECORD; }

// Writes into the store itself.
void put_element_direct(TFamilyCall& call) {
  ListRecord* list = list_by_number(call.lists[0]);
  if (!list) return;
  if (!is_stored_list(call.lists[0])) return report_error(ERR_ARGUMENT_TYPE);
  const int index = index_of(call.numbers[0].re, list_size(*list));
  if (index < 0) return;
  hooks.about_to_store(SLOT_LIST_A + call.lists[0]);
  list->elements[index] = call.numbers[1];
  set_number_result(call.result_register, call.numbers[1]);
}

void set_top_row(TFamilyCall& call) {
  if (!list_by_number(call.lists[0])) return;
  if (call.lists[0] < 0 || call.lists[0] > ANSWER_RECORD) return report_error(ERR_ARGUMENT_TYPE);
  const int row = index_of(call.numbers[0].re, LIST_LIMIT);
  if (row >= 0) set_number_result(call.result_register, real_value(set_list_top_row(call.lists[0], row) + 1));
}

}  // namespace

void register_list_values() {
  const struct {
    TOp_Code op;
    TFamilyHandler handler;
  } rows[] = {{OP_EQUAL, compare_lists<true>},
              {OP_NOT_EQUAL, compare_lists<false>},
              {OP_LIST_MAX, number_of_list<extreme_of<1>>},
              {OP_LIST_MIN, number_of_list<extreme_of<-1>>},
              {OP_LIST_MEAN, number_of_list<mean_of>},
              {OP_LIST_MEDIAN, number_of_list<median_of>},
              {OP_LIST_PROD, number_of_list<product_of>},
              {OP_LIST_SUM, number_of_list<sum_of>},
              {OP_LIST_VARIANCE, number_of_list<variance_of>},
              {OP_LIST_STD_DEV, number_of_list<deviation_of>},
              {OP_LIST_SIZE, number_of_list<size_of>},
              {OP_LIST_TYPE, number_of_list<type_of>},
              {OP_LIST_POS, position_of},
              {OP_GET_LIST_ELEM, element_at},
              {OP_PUT_LIST_ELEM_DIR, put_element_direct},
              {OP_SET_LIST_TOP_ROW, set_top_row}};
  for (const auto& row : rows) operations[row.op].list = row.handler;
}

}  // namespace zephyl
