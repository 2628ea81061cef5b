#include "collections/list_sort.h"

#include <utility>

#include "engine/polar.h"

namespace zephyl {

namespace {

double keys[LIST_LIMIT];

// What the elements are compared by.
void make_keys(const ListRecord& list) {
  const bool by_modulus = is_complex_list(list);
  for (int i = 0; i <= list.last; ++i) {
    const TValue& element = list.elements[i];
    keys[i] = by_modulus ? complex_magnitude(element.re, element.im) : element.re;
  }
}

// The place of the first element from `from` on that no later one beats.
int best_place(int from, int last, bool descending) {
  int best = from;
  for (int i = from + 1; i <= last; ++i)
    if (descending ? keys[i] > keys[best] : keys[i] < keys[best]) best = i;
  return best;
}

}  // namespace

void sort_list(ListRecord& list, bool descending) {
  if (list.last < 1) return;  // not even its modulus is taken, which might overflow
  make_keys(list);
  for (int i = 0; i < list.last; ++i) {
    const int best = best_place(i, list.last, descending);
    std::swap(keys[i], keys[best]);
    std::swap(list.elements[i], list.elements[best]);
  }
}

void sorting_indexes(const ListRecord& list, short* indexes) {
  for (int i = 0; i <= list.last; ++i) indexes[i] = static_cast<short>(i);
  if (list.last < 1) return;
  make_keys(list);
  for (int i = 0; i < list.last; ++i) {
    const int best = best_place(i, list.last, false);
    std::swap(indexes[i], indexes[best]);
    keys[best] = keys[i];
  }
}

}  // namespace zephyl
