// Sorting of lists by value, by modulus where an element is complex: a selection sort, so that equal elements
// fall where programs in circulation have always seen them.
#pragma once

#include "engine/records.h"

namespace zephyl {

void sort_list(ListRecord& list, bool descending);
// indexes[i], from 0: the element that stands at place i in ascending order. Room for the list's size.
void sorting_indexes(const ListRecord& list, short* indexes);

}  // namespace zephyl
