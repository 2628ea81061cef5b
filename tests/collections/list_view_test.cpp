// Where the list screen stands in each list.

#include "collections/list_view.h"

#include <gtest/gtest.h>

#include "engine/memory.h"
#include "support/lists.h"

namespace zephyl {
namespace {

TEST(list_view, the_top_row_leaves_a_full_screen_below_it) {
  EXPECT_EQ(set_list_top_row(3, 0), 0);
  EXPECT_EQ(set_list_top_row(3, 990), 990);
  EXPECT_EQ(set_list_top_row(3, 991), 991);
  EXPECT_EQ(list_view.top_row[3], 991);
  EXPECT_EQ(set_list_top_row(3, 992), 991);
  EXPECT_EQ(set_list_top_row(3, 998), 991);
  EXPECT_EQ(list_view.top_row[3], 991);
}

TEST(list_view, each_list_has_a_place_of_its_own) {
  set_list_top_row(0, 5);
  set_list_top_row(10, 6);
  EXPECT_EQ(list_view.top_row[0], 5);
  EXPECT_EQ(list_view.top_row[10], 6);
  EXPECT_EQ(list_view.top_row[1], 0);
}

TEST(list_view, clearing_a_list_clears_its_place_and_all_its_elements) {
  ListRecord& list = stores.lists[2];
  define_list(list, random_elements(LIST_LIMIT, true, 5));
  set_list_top_row(2, 40);
  set_list_top_row(3, 41);
  list_view.cursor[2] = 44;
  clear_stored_list(2);
  EXPECT_FALSE(list.defined);
  EXPECT_EQ(list.last, 0);
  for (const TValue& element : list.elements) ASSERT_EQ(element, TValue{});
  EXPECT_EQ(list_view.top_row[2], 0);
  EXPECT_EQ(list_view.cursor[2], 0);
  EXPECT_EQ(list_view.top_row[3], 41);
}

TEST_F(list_calculator, clearing_the_lists_clears_their_places) {
  define('B', {1.0, 2.0});
  eval("setListTopRow({B},9)");
  list_view.cursor[1] = 3;
  eval("clrMem(3)");
  EXPECT_FALSE(stored('B').defined);
  EXPECT_EQ(list_view.top_row[1], 0);
  EXPECT_EQ(list_view.cursor[1], 0);
}

TEST_F(list_calculator, clearing_other_items_leaves_the_lists) {
  define('B', {1.0, 2.0});
  eval("setListTopRow({B},9)");
  for (const char* text : {"clrMem(1)", "clrMem(2)", "clrMem(4)", "clrMem(10)"}) eval(text);
  EXPECT_EQ(list_text(stored('B')), "1 2");
  EXPECT_EQ(list_view.top_row[1], 8);
}

TEST(list_records, copying_an_undefined_list_copies_that_it_is_undefined) {
  static ListRecord from, to;
  define_real_list(to, {1, 2, 3});
  copy_list(to, from);
  EXPECT_FALSE(to.defined);
  EXPECT_EQ(to.last, 0);
  EXPECT_EQ(to.elements[0].re, 1.0) << "elements are copied only from a defined list";
}

TEST(list_records, copying_copies_the_used_elements_only) {
  static ListRecord from, to;
  define_real_list(to, {1, 2, 3});
  define_list(from, {{7, 1}, {8, 0}});
  copy_list(to, from);
  EXPECT_EQ(list_text(to), "7+1i 8");
  EXPECT_EQ(to.elements[2].re, 3.0);
  copy_list(to, to);
  EXPECT_EQ(list_text(to), "7+1i 8");
}

TEST(list_records, an_imaginary_part_behind_the_last_element_does_not_count) {
  static ListRecord list;
  define_list(list, {{1, 0}, {2, 0}, {3, 1}});
  EXPECT_TRUE(is_complex_list(list));
  list.last = 1;
  EXPECT_FALSE(is_complex_list(list));
}

}  // namespace
}  // namespace zephyl
