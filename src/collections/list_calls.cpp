#include "collections/list_calls.h"

#include <utility>

#include "engine/evaluator.h"

namespace zephyl {

namespace {

ListRecord aside[2];

// The list of a number, or its copy where it stands in the result register.
const ListRecord* read_operand_list(const TFamilyCall& call, int number, ListRecord& scratch) {
  const ListRecord* list = list_by_number(number);
  if (!list || number != call.result_register + REGISTER_NUMBER) return list;
  copy_list(scratch, *list);
  return &scratch;
}

}  // namespace

bool read_list_operands(const TFamilyCall& call, TListOperands& operands) {
  if (call.lists[0] >= 0 && !(operands.first = read_operand_list(call, call.lists[0], aside[0])))
    return false;
  if (call.lists[1] >= 0 && !(operands.second = read_operand_list(call, call.lists[1], aside[1])))
    return false;
  return true;
}

ListRecord* begin_list_result(const TFamilyCall& call) { return set_list_result(call.result_register); }

void end_list_result(ListRecord& list, int size) {
  list.defined = size > 0;
  list.last = size > 0 ? size - 1 : 0;
}

int index_of(double position, int size, TError error) {
  const int index = checked_integer(position - 1.0, 0, size - 1, error);
  return errors.error_flag ? -1 : index;
}

bool index_range(const TFamilyCall& call, int size, int& from, int& to) {
  from = index_of(call.numbers[0].re, size);
  to = from < 0 ? -1 : index_of(call.numbers[1].re, size);
  if (to < 0) return false;
  if (from > to) std::swap(from, to);
  return true;
}

}  // namespace zephyl
