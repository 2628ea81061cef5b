// The registers of the walk, the aggregates beside the first of them, and both by number.

#include "engine/errors.h"
#include "engine/evaluator.h"

namespace zephyl {

TRegister registers[REGISTER_LIMIT];
TTemporaries temporaries;

namespace {

// The record of a number: 0 to 10 in the store, from REGISTER_NUMBER on beside a register.
template <typename TRecord>
TRecord* record_by_number(int number, TRecord* store, TRecord* beside_registers) {
  if (number >= 0 && number < STORE_COUNT) return &store[number];
  const int reg = number - REGISTER_NUMBER;
  if (reg >= 0 && reg < AGGREGATE_REGISTER_LIMIT) return &beside_registers[reg];
  report_error(number < 0 ? ERR_UNEXPECTED : ERR_MEMORY_LIMIT);
  return nullptr;
}

template <typename TRecord>
TRecord* set_result(int reg, TValueType type, TRecord* beside_registers) {
  if (reg >= AGGREGATE_REGISTER_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return nullptr;
  }
  registers[reg].type = type;
  return &beside_registers[reg];
}

}  // namespace

ListRecord* list_by_number(int number) {
  ListRecord* list = record_by_number(number, stores.lists, temporaries.lists);
  if (!list || list->defined) return list;
  report_error(ERR_LIST_UNDEFINED);
  return nullptr;
}

MatrixRecord* matrix_by_number(int number) {
  MatrixRecord* matrix = record_by_number(number, stores.matrices, temporaries.matrices);
  if (!matrix || matrix->defined) return matrix;
  report_error(ERR_MATRIX_UNDEFINED);
  return nullptr;
}

TString* string_by_number(int number) {
  return record_by_number(number, stores.strings, temporaries.strings);
}

void set_number_result(int reg, const TValue& value) {
  registers[reg].value = value;
  registers[reg].type = TYPE_NUMBER;
}

ListRecord* set_list_result(int reg) { return set_result(reg, TYPE_LIST, temporaries.lists); }
MatrixRecord* set_matrix_result(int reg) { return set_result(reg, TYPE_MATRIX, temporaries.matrices); }
TString* set_string_result(int reg) { return set_result(reg, TYPE_STRING, temporaries.strings); }

}  // namespace zephyl
