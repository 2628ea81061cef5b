// Strings from lists and numbers, and lists from strings.

#include <cstdio>

#include "collections/list_calls.h"
#include "collections/string_calls.h"
#include "collections/string_families.h"
#include "engine/evaluator.h"
#include "engine/format.h"

namespace zephyl {

namespace {

constexpr int largest_byte = 255;

// The list's elements are character codes; a code of 0 ends the string, whatever follows.
void list_to_string(TFamilyCall& call) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return;
  if (is_complex_list(*operands.first)) return report_error(ERR_DATA_TYPE);
  TString* result = string_result(call);
  if (!result) return;
  int length = 0;
  for (int i = 0; i <= operands.first->last; ++i) {
    const int code = checked_integer(operands.first->elements[i].re, 0, largest_byte, ERR_DOMAIN);
    if (code == 0) break;
    result->text[length++] = static_cast<char>(code);
  }
  result->text[length] = 0;
}

// A string of 1000 characters has one more than a list takes.
void string_to_list(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  const int length = static_cast<int>(string_length(*operands.first));
  if (length > LIST_LIMIT) return report_error(ERR_LIST_SIZE);
  ListRecord* list = begin_list_result(call);
  if (!list) return;
  for (int i = 0; i < length; ++i)
    list->elements[i] = {static_cast<double>(static_cast<unsigned char>(operands.first->text[i])), 0.0};
  end_list_result(*list, length);
}

// The text of the result line. A list isn't mapped: it is refused at its first element.
void number_to_string(TScalarCall& call) {
  if (func_frames[call.frame].arguments[0].list >= 0) return report_error(ERR_ARGUMENT_TYPE);
  TString* result = set_string_result(call.result_register);
  if (!result) return;
  const TValue& z = call.args[0];
  std::snprintf(result->text, sizeof result->text, "%s", format_result(z.re, z.im, false, true));
  call.keeps_register = true;
}

}  // namespace

void register_string_conversions() {
  operations[OP_LIST_TO_STRING].list = list_to_string;
  operations[OP_STRING_TO_LIST].string = string_to_list;
  operations[OP_NUM_TO_STRING].scalar = number_to_string;
}

}  // namespace zephyl
