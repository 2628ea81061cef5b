#include "engine/memory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/hooks.h"
#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class memory : public ::testing::Test {
 protected:
  memory() { set_platform(&platform_); }
  ~memory() override { set_platform(nullptr); }
  TTestPlatform platform_;
};

TEST_F(memory, every_slot_starts_at_zero) {
  for (const TValue& value : memory_array) EXPECT_EQ(value, TValue{});
}

TEST_F(memory, parts_are_stored_and_read_by_themselves) {
  memory_set(SLOT_X, 0, 2.5);
  memory_set(SLOT_X, 1, -3.5);
  EXPECT_EQ(memory_get(SLOT_X, 0), 2.5);
  EXPECT_EQ(memory_get(SLOT_X, 1), -3.5);
  double re, im;
  memory_get_both(SLOT_X, re, im);
  EXPECT_EQ(re, 2.5);
  EXPECT_EQ(im, -3.5);
}

TEST_F(memory, both_parts_are_stored_at_once) {
  memory_set_both(SLOT_T, 1, 2);
  EXPECT_EQ(memory_array[SLOT_T], (TValue{1, 2}));
  memory_copy_in(94, {3, 4});
  EXPECT_EQ(memory_array[94], (TValue{3, 4}));
}

TEST_F(memory, a_part_that_is_none_shows_a_note) {
  memory_set(SLOT_X, 0, 5);
  EXPECT_EQ(memory_get(SLOT_X, 2), 0.0);
  memory_set(SLOT_X, 2, 9);
  EXPECT_EQ(memory_array[SLOT_X], (TValue{5, 0}));
  ASSERT_EQ(platform_.messages.size(), 2u);
  EXPECT_NE(platform_.messages[0].find("Memory constant type not defined"), std::string::npos);
}

TEST_F(memory, all_are_saved_and_restored_together) {
  memory_set_both(0, 1, 2);
  memory_set_both(94, 3, 4);
  std::vector<TValue> saved(MEMORY_COUNT);
  memory_save_all(saved.data());
  memory_clear_all();
  EXPECT_EQ(memory_array[94], TValue{});
  memory_restore_all(saved.data());
  EXPECT_EQ(memory_array[0], (TValue{1, 2}));
  EXPECT_EQ(memory_array[94], (TValue{3, 4}));
}

TEST_F(memory, the_plot_variables_have_their_slots) {
  EXPECT_STREQ(slot_name(SLOT_X, true), "x");
  EXPECT_STREQ(slot_name(SLOT_T, true), "t");
  EXPECT_STREQ(slot_name(SLOT_THETA, true), "theta");
}

TEST_F(memory, every_slot_has_its_class) {
  const struct {
    int first, last;
    TSlotClass slot_class;
  } classes[] = {
      {0, 9, CLASS_R},        {10, 35, CLASS_CAPITAL}, {36, 61, CLASS_SMALL},      {62, 89, CLASS_GREEK},
      {90, 99, CLASS_MATRIX}, {100, 109, CLASS_LIST},  {110, 119, CLASS_FUNCTION}, {120, 129, CLASS_STRING}};
  for (const auto& range : classes)
    for (int slot = range.first; slot <= range.last; ++slot)
      EXPECT_EQ(slot_class(slot), range.slot_class) << slot;
  EXPECT_EQ(slot_class(-1), CLASS_NONE);
  EXPECT_EQ(slot_class(130), CLASS_NONE);
  EXPECT_EQ(CLASS_R, 1);
  EXPECT_EQ(CLASS_STRING, 8);
}

TEST_F(memory, numbered_slots_are_named_by_their_number) {
  for (int i = 0; i < 10; ++i) EXPECT_EQ(slot_name(i, false), "R" + std::to_string(i));
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(slot_name(SLOT_F1 + i, false), "f" + std::to_string(i + 1) + "()");
    EXPECT_EQ(slot_name(SLOT_STR1 + i, false), "str" + std::to_string(i + 1));
  }
}

TEST_F(memory, the_tenth_string_is_named_with_a_colon) { EXPECT_STREQ(slot_name(129, false), "str:"); }

TEST_F(memory, lettered_slots_are_named_by_their_letter) {
  for (int i = 0; i < 26; ++i) {
    EXPECT_EQ(slot_name(SLOT_CAPITAL_A + i, true), std::string(1, static_cast<char>('A' + i)));
    EXPECT_EQ(slot_name(SLOT_SMALL_A + i, true), std::string(1, static_cast<char>('a' + i)));
  }
  for (int i = 0; i < 10; ++i) {
    const std::string letter(1, static_cast<char>('A' + i));
    EXPECT_EQ(slot_name(SLOT_MATRIX_A + i, true), "[" + letter + "]");
    EXPECT_EQ(slot_name(SLOT_LIST_A + i, true), "{" + letter + "}");
  }
}

TEST_F(memory, greek_slots_have_words_and_one_character) {
  const char* const names[] = {"alpha",   "beta",    "gamma",  "delta",   "epsilon", "zeta", "eta",
                               "theta",   "kappa",   "lambda", "mu",      "nu",      "xi",   "rho",
                               "sigma 0", "sigma 1", "tau",    "upsilon", "phi",     "psi",  "omega",
                               "Gamma",   "Delta",   "Lambda", "Pi",      "Phi",     "Psi",  "Omega"};
  for (int i = 0; i < GREEK_COUNT; ++i) {
    EXPECT_STREQ(slot_name(SLOT_ALPHA + i, true), names[i]);
    EXPECT_STREQ(greek_name(i), names[i]);
    EXPECT_EQ(slot_name(SLOT_ALPHA + i, false), std::string(1, static_cast<char>(SLOT_ALPHA + i + 82)));
  }
}

TEST_F(memory, a_slot_out_of_range_is_an_error) {
  EXPECT_STREQ(slot_name(130, true), "Error");
  EXPECT_EQ(errors.error_code, ERR_UNEXPECTED);
  EXPECT_TRUE(errors.error_flag);
}

TEST_F(memory, the_items_to_clear_have_their_labels) {
  const char* const labels[] = {"Real/Complex Variables", "Stats Data",        "List Variables",
                                "Matrix Variables",       "Plot Functions",    "Drawing Data",
                                "Expression Entries",     "Program Functions", "Program Input Buffer",
                                "String Variables",       "Clear All Items"};
  for (int n = 1; n <= 11; ++n) EXPECT_STREQ(clear_item_label(n), labels[n - 1]);
  EXPECT_STREQ(clear_item_label(0), "");
  EXPECT_STREQ(clear_item_label(12), "");
}

// A calculator with something in every store; what the engine does not hold is seen through the hook.
class filled_memory : public memory {
 protected:
  filled_memory() { fill(); }

  static void fill() {
    memory_set_both(10, 1, 2);
    memory_set_both(94, 3, 4);
    for (ListRecord& list : stores.lists) list.defined = true;
    for (MatrixRecord& matrix : stores.matrices) matrix.defined = true;
    for (TString& string : stores.strings) std::strcpy(string.text, "text");
    answers = {{7, 8}, true, true, true, true};
    for (TExpression& function : function_slots) function.count = 1;
    history.count = 3;
    owners().clear();
    hooks.clear_item = [](int n) { owners().push_back(n); };
  }

  static std::vector<int>& owners() {
    static std::vector<int> numbers;
    return numbers;
  }

  // Which stores are empty now, by the numbers of items.
  static std::vector<int> empty_items() {
    std::vector<int> items;
    if (memory_array[10] == TValue{} && memory_array[94] == TValue{}) items.push_back(CLEAR_VARIABLES);
    if (!stores.lists[0].defined && !stores.lists[10].defined && !answers.l_ans_valid)
      items.push_back(CLEAR_LISTS);
    if (!stores.matrices[0].defined && !stores.matrices[10].defined && !answers.m_ans_valid)
      items.push_back(CLEAR_MATRICES);
    if (function_slots[0].count == 0 && function_slots[17].count == 0) items.push_back(CLEAR_PLOT_FUNCTIONS);
    if (history.count == 0) items.push_back(CLEAR_HISTORY);
    if (function_slots[21].count == 0 && function_slots[29].count == 0)
      items.push_back(CLEAR_PROGRAM_FUNCTIONS);
    if (stores.strings[0].text[0] == 0 && stores.strings[10].text[0] == 0 && !answers.str_ans_valid)
      items.push_back(CLEAR_STRINGS);
    return items;
  }
};

TEST_F(filled_memory, each_item_clears_its_store_and_no_other) {
  for (const int item : {CLEAR_VARIABLES, CLEAR_LISTS, CLEAR_MATRICES, CLEAR_PLOT_FUNCTIONS, CLEAR_HISTORY,
                         CLEAR_PROGRAM_FUNCTIONS, CLEAR_STRINGS}) {
    fill();
    clear_items(item);
    EXPECT_EQ(empty_items(), std::vector<int>{item});
    EXPECT_EQ(owners(), std::vector<int>{item});
  }
}

TEST_F(filled_memory, items_of_other_owners_are_handed_on) {
  for (const int item : {CLEAR_STATS, CLEAR_DRAWING, CLEAR_PROGRAM_INPUT}) {
    owners().clear();
    clear_items(item);
    EXPECT_EQ(empty_items(), std::vector<int>{});
    EXPECT_EQ(owners(), std::vector<int>{item});
  }
}

TEST_F(filled_memory, eleven_clears_all_ten_in_order) {
  clear_items(11);
  EXPECT_EQ(empty_items().size(), 7u);
  EXPECT_EQ(owners(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(filled_memory, the_scalar_answer_stays) {
  clear_items(11);
  EXPECT_EQ(answers.ans, (TValue{7, 8}));
  EXPECT_TRUE(answers.ans_valid);
}

TEST_F(filled_memory, other_numbers_clear_nothing) {
  for (const double n : {0.0, 12.0, 1.5, -1.0}) {
    clear_error();
    clear_items(n);
    EXPECT_EQ(errors.error_code, ERR_DOMAIN);
    EXPECT_TRUE(errors.error_flag);
  }
  EXPECT_EQ(empty_items(), std::vector<int>{});
  EXPECT_EQ(owners(), std::vector<int>{});
}

TEST_F(calculator, a_store_keeps_both_parts) {
  eval("2+3(i)->A");
  EXPECT_EQ(memory_array[SLOT_CAPITAL_A], (TValue{2, 3}));
}

TEST_F(calculator, a_memory_never_stored_reads_zero) { EXPECT_EQ(eval("A+R0+(omega)"), "0"); }

}  // namespace
}  // namespace zephyl
