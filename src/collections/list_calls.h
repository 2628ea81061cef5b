// What the operations on lists share: operands by number, aliasing, positions as the user counts them.
#pragma once

#include "engine/operations.h"
#include "engine/records.h"

namespace zephyl {

// The first and second list of a call, read by number. An operand that is also the call's result register is
// copied aside first, so that a function may write its result while it reads.
struct TListOperands {
  const ListRecord* first = nullptr;
  const ListRecord* second = nullptr;
};

// False, with ERR_LIST_UNDEFINED or ERR_MEMORY_LIMIT, if one can't be read.
bool read_list_operands(const TFamilyCall& call, TListOperands& operands);

inline int list_size(const ListRecord& list) { return list.last + 1; }

// The result list of a call; null, with ERR_MEMORY_LIMIT, for a register without one.
ListRecord* begin_list_result(const TFamilyCall& call);
// To be called when it is filled; size 0 leaves an undefined list.
void end_list_result(ListRecord& list, int size);

// A 1-based position as an index 0 to size - 1; -1, with `error` reported, for anything else.
int index_of(double position, int size, TError error = ERR_LIST_INDEX);
// Two positions in either order.
bool index_range(const TFamilyCall& call, int size, int& from, int& to);

}  // namespace zephyl
