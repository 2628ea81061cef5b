#include "collections/string_calls.h"

#include <cstring>

#include "engine/evaluator.h"

namespace zephyl {

namespace {

TString aside[2];

// The string of a number, or its copy where it stands in the result register.
const TString* read_operand_string(const TFamilyCall& call, int number, TString& scratch) {
  const TString* string = string_by_number(number);
  if (!string || number != call.result_register + REGISTER_NUMBER) return string;
  copy_string(scratch, *string);
  return &scratch;
}

}  // namespace

bool read_string_operands(const TFamilyCall& call, int count, TStringOperands& operands) {
  if (call.strings[0] < 0 || (count == 2 && call.strings[1] < 0)) {
    report_error(ERR_DATA_TYPE);
    return false;
  }
  operands.first = read_operand_string(call, call.strings[0], aside[0]);
  if (count == 2) operands.second = read_operand_string(call, call.strings[1], aside[1]);
  return operands.first && (count < 2 || operands.second);
}

TString* string_result(const TFamilyCall& call) { return set_string_result(call.result_register); }

std::size_t string_length(const TString& string) { return strnlen(string.text, STRING_LIMIT); }

}  // namespace zephyl
