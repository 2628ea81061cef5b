// Sorting: against the standard library by keys, and element by element against the selection sort written
// out.

#include "collections/list_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "engine/polar.h"
#include "support/lists.h"

namespace zephyl {
namespace {

double key_of(const TValue& element, bool complex) {
  return complex ? complex_magnitude(element.re, element.im) : element.re;
}

bool has_complex(const TElements& list) {
  return std::any_of(list.begin(), list.end(), [](const TValue& element) { return element.im != 0.0; });
}

// The sort as it is told: scan for the element that beats the best so far, then one exchange.
TElements selection_sorted(TElements list, bool descending) {
  const bool complex = has_complex(list);
  const std::size_t size = list.size();
  for (std::size_t i = 0; i + 1 < size; ++i) {
    std::size_t best = i;
    for (std::size_t j = i + 1; j < size; ++j) {
      const double candidate = key_of(list[j], complex), record = key_of(list[best], complex);
      if (descending ? candidate > record : candidate < record) best = j;
    }
    const TValue kept = list[i];
    list[i] = list[best];
    list[best] = kept;
  }
  return list;
}

// With keys: indexes are exchanged, and the element at i only overwrites the least one's place.
std::vector<int> selection_keys(TElements list) {
  const bool complex = has_complex(list);
  std::vector<int> keys;
  for (std::size_t i = 0; i < list.size(); ++i) keys.push_back(static_cast<int>(i) + 1);
  for (std::size_t i = 0; i + 1 < list.size(); ++i) {
    std::size_t least = i;
    for (std::size_t j = i + 1; j < list.size(); ++j)
      if (key_of(list[j], complex) < key_of(list[least], complex)) least = j;
    const int kept = keys[i];
    keys[i] = keys[least];
    keys[least] = kept;
    list[least] = list[i];
  }
  return keys;
}

// The keys in the order of std::stable_sort, and the elements as a multiset.
void expect_sorted_as_standard(const TElements& before, const TElements& after, bool descending) {
  const bool complex = has_complex(before);
  const auto in_order = [&](const TValue& a, const TValue& b) {
    return descending ? key_of(a, complex) > key_of(b, complex) : key_of(a, complex) < key_of(b, complex);
  };
  TElements expected = before;
  std::stable_sort(expected.begin(), expected.end(), in_order);
  ASSERT_EQ(after.size(), expected.size());
  for (std::size_t i = 0; i < after.size(); ++i)
    EXPECT_EQ(key_of(after[i], complex), key_of(expected[i], complex)) << i;
  EXPECT_TRUE(std::is_permutation(after.begin(), after.end(), before.begin()));
}

// Random lists in which many keys are equal.
std::vector<TElements> samples() {
  std::vector<TElements> lists;
  unsigned seed = 1;
  for (int size : {1, 2, 3, 4, 5, 7, 10, 30, 100, 333, 999})
    for (bool complex : {false, true})
      for (int round = 0; round < 4; ++round) lists.push_back(random_elements(size, complex, ++seed));
  return lists;
}

TEST(list_sort, orders_as_the_standard_sort_does_by_keys) {
  static ListRecord list;
  for (const TElements& sample : samples())
    for (bool descending : {false, true}) {
      define_list(list, sample);
      sort_list(list, descending);
      expect_sorted_as_standard(sample, elements_of(list), descending);
    }
}

TEST(list_sort, leaves_equal_elements_where_the_selection_sort_leaves_them) {
  static ListRecord list;
  for (const TElements& sample : samples())
    for (bool descending : {false, true}) {
      define_list(list, sample);
      sort_list(list, descending);
      EXPECT_EQ(elements_of(list), selection_sorted(sample, descending)) << sample.size();
    }
}

TEST(list_sort, keys_are_those_of_the_selection_sort) {
  static ListRecord list;
  for (const TElements& sample : samples()) {
    define_list(list, sample);
    std::vector<short> indexes(sample.size());
    sorting_indexes(list, indexes.data());
    std::vector<int> keys(indexes.begin(), indexes.end());
    for (int& key : keys) ++key;
    EXPECT_EQ(keys, selection_keys(sample)) << sample.size();
    EXPECT_EQ(elements_of(list), sample) << "the list itself stays";
  }
}

TEST_F(list_calculator, sorts_in_both_directions) {
  EXPECT_EQ(list("sortA({3,-1,2})"), "-1 2 3");
  EXPECT_EQ(list("sortD({3,-1,2})"), "3 2 -1");
  EXPECT_EQ(list("sortA({,3})"), "3");
  EXPECT_EQ(list("sortD({,3})"), "3");
}

TEST_F(list_calculator, one_imaginary_part_makes_all_elements_sort_by_modulus) {
  EXPECT_EQ(list("sortA({-5,4,3(i)})"), "0+3i 4 -5");
  EXPECT_EQ(list("sortD({-5,4,3(i)})"), "-5 4 0+3i");
  EXPECT_EQ(list("sortA({-5,4,3})"), "-5 3 4");
}

TEST_F(list_calculator, equal_elements_fall_where_exchanges_leave_them) {
  // 3i and -3 and 3 are of one modulus: 1 comes forward by an exchange with 3i.
  EXPECT_EQ(list("sortA({3(i),-3,1,3})"), "1 -3 0+3i 3");
}

TEST_F(list_calculator, a_single_element_is_not_even_compared) {
  EXPECT_EQ(list("sortA({,1.7e308+1.7e308(i)})"), "1.7e+308+1.7e+308i");
  EXPECT_EQ(list("sortKeyInit({,1.7e308+1.7e308(i)})"), "1");
  EXPECT_EQ(list("sortA({1,1.7e308+1.7e308(i)})"), "Overflow");
}

TEST_F(list_calculator, a_sort_leaves_its_list_alone) {
  define('A', std::vector<double>{3, 1, 2});
  EXPECT_EQ(list("sortA({A})"), "1 2 3");
  EXPECT_EQ(list("sortKeyInit({A})"), "2 3 1");
  EXPECT_EQ(list_text(stored('A')), "3 1 2");
}

TEST_F(list_calculator, keys_are_the_positions_in_ascending_order) {
  EXPECT_EQ(list("sortKeyInit({30,10,20})"), "2 3 1");
  EXPECT_EQ(list("sortKeyInit({-5,4,3(i)})"), "3 2 1");
  EXPECT_EQ(list("sortKeyInit({,8})"), "1");
}

TEST_F(list_calculator, orders_data_by_keys) {
  EXPECT_EQ(list("sortKey({3,1,2},{10,20,30(i)})"), "0+30i 10 20");
  EXPECT_EQ(list("sortKey({2,2,2,1},{10,20})"), "20 20 20 10");
  EXPECT_EQ(list("sortKey({,2},{10,20,30})"), "20");
}

TEST_F(list_calculator, keys_sort_the_list_that_they_come_from) {
  for (int size : {2, 3, 10, 100, 999}) {
    define('A', random_elements(size, false, 77));
    EXPECT_EQ(eval("sortKey(sortKeyInit({A}),{A})=sortA({A})"), "1") << size;
  }
}

TEST_F(list_calculator, a_key_that_is_no_position_of_the_data_is_an_index_error) {
  for (const std::string key : {"0", "3", "1.5", "-1"})
    EXPECT_EQ(list("sortKey({1," + key + "},{10,20})"), "List Index Range") << key;
}

TEST_F(list_calculator, complex_keys_are_of_the_wrong_type) {
  EXPECT_EQ(list("sortKey({1,2(i)},{10,20})"), "Data Type Error");
}

}  // namespace
}  // namespace zephyl
