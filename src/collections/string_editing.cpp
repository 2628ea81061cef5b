// Strings joined, cut, searched, compared and stored.

#include <algorithm>
#include <cstring>

#include "collections/string_calls.h"
#include "collections/string_families.h"
#include "engine/evaluator.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/operation_table.h"

namespace zephyl {

namespace {

constexpr int position_limit = 1000000000;

void set_text(TString& to, const char* text, std::size_t length) {
  std::memmove(to.text, text, length);
  to.text[length] = 0;
}

void join(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 2, operands)) return;
  TString* result = string_result(call);
  if (!result) return;
  const std::size_t first = string_length(*operands.first), second = string_length(*operands.second);
  if (first + second >= STRING_LIMIT) return report_error(ERR_STRING_SIZE);
  set_text(*result, operands.first->text, first);
  std::memcpy(result->text + first, operands.second->text, second);
  result->text[first + second] = 0;
}

// Of = and of <> alike: 1 where both strings are the same. Programs in circulation depend on this <>.
void compare(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 2, operands)) return;
  const bool same = std::strcmp(operands.first->text, operands.second->text) == 0;
  set_number_result(call.result_register, {same ? 1.0 : 0.0, 0.0});
}

void take_part(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  TString* result = string_result(call);
  if (!result) return;
  const int start = checked_integer(call.numbers[0].re, 1, position_limit, ERR_DOMAIN);
  const int count = checked_integer(call.numbers[1].re, 0, position_limit, ERR_DOMAIN);
  if (errors.error_flag) return;
  const int length = static_cast<int>(string_length(*operands.first));
  const int from = std::min(start - 1, length);
  set_text(*result, operands.first->text + from, static_cast<std::size_t>(std::min(count, length - from)));
}

void take_length(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  set_number_result(call.result_register, {static_cast<double>(string_length(*operands.first)), 0.0});
}

// 0 where the second doesn't occur, and in an empty first, where even an empty second doesn't.
double position_of(const char* wanted, const char* text) {
  const char* found = text[0] ? std::strstr(text, wanted) : nullptr;
  return found ? static_cast<double>(found - text + 1) : 0.0;
}

void find(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 2, operands)) return;
  const double position = position_of(operands.second->text, operands.first->text);
  set_number_result(call.result_register, {position, 0.0});
}

void store(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  if (slot_class(call.target) != CLASS_STRING) return report_error(ERR_DATA_TYPE);
  TString* result = string_result(call);
  if (!result) return;
  copy_string(*result, *operands.first);
  hooks.about_to_store(call.target);
  copy_string(stores.strings[call.target - SLOT_STR1], *result);
}

void make_global(TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  TString* result = string_result(call);
  if (!result) return;
  hooks.make_global(call.strings[0] < ANSWER_RECORD ? SLOT_STR1 + call.strings[0] : NO_SLOT);
  copy_string(*result, *operands.first);
}

}  // namespace

void register_string_editing() {
  const struct {
    TOp_Code op;
    TFamilyHandler handler;
  } rows[] = {{OP_PLUS, join},         {OP_EQUAL, compare},         {OP_NOT_EQUAL, compare},
              {OP_STR_SUB, take_part}, {OP_STR_LEN, take_length},   {OP_STR_POS, find},
              {OP_SAVE_MEMORY, store}, {OP_OUT_STRING, make_global}};
  for (const auto& row : rows) operations[row.op].string = row.handler;
}

void register_string_operations() {
  register_string_editing();
  register_string_conversions();
}

}  // namespace zephyl
