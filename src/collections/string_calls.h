// What the operations on strings share: operands by number, aliasing, results.
#pragma once

#include <cstddef>

#include "engine/operations.h"
#include "engine/records.h"

namespace zephyl {

// The strings of a call, read by number. An operand that is also the call's result register is copied aside
// first.
struct TStringOperands {
  const TString* first = nullptr;
  const TString* second = nullptr;
};

// count: how many strings the operation needs. False, with ERR_DATA_TYPE, where an operand is something else.
bool read_string_operands(const TFamilyCall& call, int count, TStringOperands& operands);

// The result string of a call; null, with ERR_MEMORY_LIMIT, for a register without one.
TString* string_result(const TFamilyCall& call);

std::size_t string_length(const TString& string);

}  // namespace zephyl
