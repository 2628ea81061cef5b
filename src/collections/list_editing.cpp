// Operations on lists whose result is a list: parts, joins, orders, transforms, the store.

#include <algorithm>

#include "collections/fourier.h"
#include "collections/list_calls.h"
#include "collections/list_families.h"
#include "collections/list_sort.h"
#include "collections/list_view.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"
#include "numerics/complex_functions.h"

namespace zephyl {

namespace {

using TListFunction = int (*)(ListRecord& result, const TListOperands& operands, const TFamilyCall& call);
constexpr int FAILED = -1;

// A handler for a function that fills a list and returns its size, or FAILED with an error reported.
template <TListFunction function>
void list_of(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  ListRecord* result = begin_list_result(call);
  if (!result) return;
  const int size = function(*result, operands, call);
  end_list_result(*result, size);
}

int failed(TError error) {
  report_error(error);
  return FAILED;
}

int copied(ListRecord& result, const ListRecord& list) {
  copy_list(result, list);
  return list_size(list);
}

int cumulative_sum(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  TValue sum;
  for (int i = 0; i <= operands.first->last; ++i)
    result.elements[i] = sum = sum + operands.first->elements[i];
  return list_size(*operands.first);
}

int differences(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  const ListRecord& list = *operands.first;
  if (list_size(list) < 2) return failed(ERR_LIST_SIZE);
  for (int i = 1; i <= list.last; ++i) result.elements[i - 1] = list.elements[i] - list.elements[i - 1];
  return list.last;
}

template <bool inverse>
int transformed(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  fourier_transform(result, *operands.first, inverse);
  return list_size(*operands.first);
}

template <bool descending>
int sorted(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  copy_list(result, *operands.first);
  sort_list(result, descending);
  return list_size(*operands.first);
}

int joined(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  const ListRecord &a = *operands.first, &b = *operands.second;
  const int size = list_size(a) + list_size(b);
  if (size > LIST_LIMIT) return failed(ERR_LIST_SIZE);
  std::copy(a.elements, a.elements + list_size(a), result.elements);
  std::copy(b.elements, b.elements + list_size(b), result.elements + list_size(a));
  return size;
}

// A size as the user gives it; 0, with the error reported, for one out of range.
int size_argument(double size) { return index_of(size, LIST_LIMIT, ERR_LIST_SIZE) + 1; }

int initialized(ListRecord& result, const TListOperands&, const TFamilyCall& call) {
  const int size = size_argument(call.numbers[0].re);
  std::fill(result.elements, result.elements + size, call.numbers[1]);
  return size > 0 ? size : FAILED;
}

int resized(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  const int size = size_argument(call.numbers[0].re);
  const int kept = std::min(size, list_size(*operands.first));
  std::copy(operands.first->elements, operands.first->elements + kept, result.elements);
  std::fill(result.elements + kept, result.elements + size, TValue{});
  return size > 0 ? size : FAILED;
}

int reversed(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  const ListRecord& list = *operands.first;
  std::reverse_copy(list.elements, list.elements + list_size(list), result.elements);
  return list_size(list);
}

int made_global(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  const bool stored = call.lists[0] >= 0 && call.lists[0] < ANSWER_RECORD;
  hooks.make_global(stored ? SLOT_LIST_A + call.lists[0] : NO_SLOT);
  return copied(result, *operands.first);
}

int part_of(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  int from = 0, to = 0;
  if (!index_range(call, list_size(*operands.first), from, to)) return FAILED;
  std::copy(operands.first->elements + from, operands.first->elements + to + 1, result.elements);
  return to - from + 1;
}

int without_part(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  const ListRecord& list = *operands.first;
  int from = 0, to = 0;
  if (!index_range(call, list_size(list), from, to)) return FAILED;
  TValue* end = std::copy(list.elements, list.elements + from, result.elements);
  end = std::copy(list.elements + to + 1, list.elements + list_size(list), end);
  return static_cast<int>(end - result.elements);
}

int with_element(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  const int index = index_of(call.numbers[0].re, list_size(*operands.first));
  if (index < 0) return FAILED;
  copy_list(result, *operands.first);
  result.elements[index] = call.numbers[1];
  return list_size(*operands.first);
}

int with_exchange(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  int a = 0, b = 0;
  if (!index_range(call, list_size(*operands.first), a, b)) return FAILED;
  copy_list(result, *operands.first);
  std::swap(result.elements[a], result.elements[b]);
  return list_size(*operands.first);
}

int by_keys(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  const ListRecord &keys = *operands.first, &data = *operands.second;
  if (is_complex_list(keys)) return failed(ERR_DATA_TYPE);
  for (int i = 0; i <= keys.last; ++i) {
    const int index = index_of(keys.elements[i].re, list_size(data));
    if (index < 0) return FAILED;
    result.elements[i] = data.elements[index];
  }
  return list_size(keys);
}

int sorting_keys(ListRecord& result, const TListOperands& operands, const TFamilyCall&) {
  short indexes[LIST_LIMIT];
  sorting_indexes(*operands.first, indexes);
  for (int i = 0; i <= operands.first->last; ++i) result.elements[i] = real_value(indexes[i] + 1);
  return list_size(*operands.first);
}

int stored(ListRecord& result, const TListOperands& operands, const TFamilyCall& call) {
  hooks.about_to_store(call.target);
  copy_list(stores.lists[call.target - SLOT_LIST_A], *operands.first);
  return copied(result, *operands.first);
}

}  // namespace

void register_list_editing() {
  const struct {
    TOp_Code op;
    TFamilyHandler handler;
  } rows[] = {{OP_CUM_SUM, list_of<cumulative_sum>},
              {OP_DELTA_LIST, list_of<differences>},
              {OP_DFT, list_of<transformed<false>>},
              {OP_IDFT, list_of<transformed<true>>},
              {OP_SORT_A, list_of<sorted<false>>},
              {OP_SORT_D, list_of<sorted<true>>},
              {OP_AUG_LIST, list_of<joined>},
              {OP_INIT_LIST, list_of<initialized>},
              {OP_LIST_RESIZE, list_of<resized>},
              {OP_REVERSE, list_of<reversed>},
              {OP_OUT_LIST, list_of<made_global>},
              {OP_SUB_LIST, list_of<part_of>},
              {OP_DEL_SUB_LIST, list_of<without_part>},
              {OP_PUT_LIST_ELEM, list_of<with_element>},
              {OP_SWAP_LIST_ELEM, list_of<with_exchange>},
              {OP_SORT_KEY, list_of<by_keys>},
              {OP_SORT_KEY_INIT, list_of<sorting_keys>},
              {OP_SAVE_MEMORY, list_of<stored>}};
  for (const auto& row : rows) operations[row.op].list = row.handler;
}

void register_list_operations() {
  register_list_values();
  register_list_editing();
  register_list_views();
}

}  // namespace zephyl
