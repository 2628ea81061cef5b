// All functions of lists alike: results in the register of an operand, lists without a size, registers that
// hold no list.

#include <gtest/gtest.h>

#include <string>

#include "engine/evaluator.h"
#include "engine/memory.h"
#include "support/lists.h"

namespace zephyl {
namespace {

struct TFunction {
  TOp_Code op;
  int list_count;
  TElements numbers;
  bool gives_list;
};

const TFunction functions[] = {{OP_EQUAL, 2, {}, false},
                               {OP_NOT_EQUAL, 2, {}, false},
                               {OP_LIST_MAX, 1, {}, false},
                               {OP_LIST_MIN, 1, {}, false},
                               {OP_LIST_MEAN, 1, {}, false},
                               {OP_LIST_PROD, 1, {}, false},
                               {OP_LIST_SUM, 1, {}, false},
                               {OP_LIST_MEDIAN, 1, {}, false},
                               {OP_LIST_VARIANCE, 1, {}, false},
                               {OP_LIST_STD_DEV, 1, {}, false},
                               {OP_LIST_SIZE, 1, {}, false},
                               {OP_LIST_TYPE, 1, {}, false},
                               {OP_LIST_POS, 1, {{2, 0}}, false},
                               {OP_GET_LIST_ELEM, 1, {{2, 0}}, false},
                               {OP_CUM_SUM, 1, {}, true},
                               {OP_DELTA_LIST, 1, {}, true},
                               {OP_DFT, 1, {}, true},
                               {OP_IDFT, 1, {}, true},
                               {OP_SORT_A, 1, {}, true},
                               {OP_SORT_D, 1, {}, true},
                               {OP_AUG_LIST, 2, {}, true},
                               {OP_LIST_RESIZE, 1, {{7, 0}}, true},
                               {OP_REVERSE, 1, {}, true},
                               {OP_OUT_LIST, 1, {}, true},
                               {OP_SUB_LIST, 1, {{2, 0}, {4, 0}}, true},
                               {OP_PUT_LIST_ELEM, 1, {{2, 0}, {9, 1}}, true},
                               {OP_SORT_KEY, 2, {}, true},
                               {OP_SORT_KEY_INIT, 1, {}, true},
                               {OP_DEL_SUB_LIST, 1, {{2, 0}, {4, 0}}, true},
                               {OP_SWAP_LIST_ELEM, 1, {{1, 0}, {5, 0}}, true}};

// Real, and positions of themselves, so that they are good for every function.
const std::vector<double> first = {4, 2, 5, 1, 3}, second = {5, 5, 1, 2, 4};

void define_in_register(int reg, const std::vector<double>& elements) {
  define_real_list(temporaries.lists[reg], elements);
}

std::vector<int> list_numbers(const TFunction& function, int a, int b) {
  return function.list_count == 2 ? std::vector<int>{a, b} : std::vector<int>{a};
}

// What a function leaves in register 7, its operands being in the store.
std::string plain_result(const TFunction& function) {
  EXPECT_EQ(call_list_operation(function.op, list_numbers(function, 0, 1), function.numbers, 7), "");
  EXPECT_EQ(registers[7].type, function.gives_list ? TYPE_LIST : TYPE_NUMBER) << function.op;
  return list_text(temporaries.lists[7]);
}

class list_operands : public list_calculator {
 protected:
  list_operands() {
    define('A', first);
    define('B', second);
  }
};

TEST_F(list_operands, a_result_may_take_the_register_of_its_first_operand) {
  for (const TFunction& function : functions) {
    if (!function.gives_list) continue;
    define_in_register(3, first);
    define_in_register(4, second);
    const std::string expected = plain_result(function);
    EXPECT_EQ(
        call_list_operation(function.op, list_numbers(function, REGISTER_NUMBER + 3, REGISTER_NUMBER + 4),
                            function.numbers, 3),
        "");
    EXPECT_EQ(list_text(temporaries.lists[3]), expected) << function.op;
  }
}

TEST_F(list_operands, a_result_may_take_the_register_of_its_second_operand) {
  for (const TFunction& function : functions) {
    if (!function.gives_list || function.list_count < 2) continue;
    define_in_register(3, first);
    define_in_register(4, second);
    const std::string expected = plain_result(function);
    EXPECT_EQ(call_list_operation(function.op, {REGISTER_NUMBER + 3, REGISTER_NUMBER + 4}, {}, 4), "");
    EXPECT_EQ(list_text(temporaries.lists[4]), expected) << function.op;
  }
}

TEST_F(list_operands, a_result_may_take_the_register_of_both_operands) {
  define_in_register(3, {1, 2});
  EXPECT_EQ(call_list_operation(OP_AUG_LIST, {REGISTER_NUMBER + 3, REGISTER_NUMBER + 3}, {}, 3), "");
  EXPECT_EQ(list_text(temporaries.lists[3]), "1 2 1 2");
  define_in_register(3, {3, 1, 2});
  EXPECT_EQ(call_list_operation(OP_SORT_KEY, {REGISTER_NUMBER + 3, REGISTER_NUMBER + 3}, {}, 3), "");
  EXPECT_EQ(list_text(temporaries.lists[3]), "2 3 1");
}

TEST_F(list_operands, operands_in_other_registers_stay) {
  for (const TFunction& function : functions) {
    define_in_register(3, first);
    define_in_register(4, second);
    call_list_operation(function.op, list_numbers(function, REGISTER_NUMBER + 3, REGISTER_NUMBER + 4),
                        function.numbers, 5);
    EXPECT_EQ(list_text(temporaries.lists[3]), "4 2 5 1 3") << function.op;
    EXPECT_EQ(list_text(temporaries.lists[4]), "5 5 1 2 4") << function.op;
  }
}

TEST_F(list_operands, functions_leave_stored_operands_as_they_were) {
  for (const TFunction& function : functions) {
    plain_result(function);
    EXPECT_EQ(list_text(stored('A')), "4 2 5 1 3") << function.op;
    EXPECT_EQ(list_text(stored('B')), "5 5 1 2 4") << function.op;
  }
}

TEST_F(list_operands, a_list_without_a_size_is_no_operand) {
  clear_list(temporaries.lists[3]);
  for (const TFunction& function : functions)
    for (int undefined : {2, ANSWER_RECORD, REGISTER_NUMBER + 3}) {
      EXPECT_EQ(call_list_operation(function.op, list_numbers(function, undefined, 0), function.numbers, 5),
                "List Size Not Defined")
          << function.op << " of " << undefined;
      if (function.list_count == 1) continue;
      EXPECT_EQ(call_list_operation(function.op, {0, undefined}, {}, 5), "List Size Not Defined")
          << function.op << " with " << undefined;
    }
}

TEST_F(list_operands, no_list_is_read_from_register_10_or_above) {
  for (const TFunction& function : functions)
    for (int reg : {10, 11, 99})
      EXPECT_EQ(call_list_operation(function.op, list_numbers(function, REGISTER_NUMBER + reg, 0),
                                    function.numbers, 5),
                "Memory Limit Error")
          << function.op << " of register " << reg;
}

TEST_F(list_operands, no_list_goes_to_register_10_or_above) {
  for (const TFunction& function : functions) {
    const std::string expected = function.gives_list ? "Memory Limit Error" : "";
    for (int reg : {10, 50, 99})
      EXPECT_EQ(call_list_operation(function.op, list_numbers(function, 0, 1), function.numbers, reg),
                expected)
          << function.op << " to register " << reg;
  }
  EXPECT_EQ(call_list_operation(OP_INIT_LIST, {}, {{3, 0}, {1, 0}}, 10), "Memory Limit Error");
}

TEST_F(list_operands, a_store_from_register_10_changes_nothing) {
  EXPECT_EQ(call_list_operation(OP_SAVE_MEMORY, {1}, {}, 10, SLOT_LIST_A), "Memory Limit Error");
  EXPECT_EQ(list_text(stored('A')), "4 2 5 1 3");
}

TEST_F(list_operands, a_store_fills_the_register_and_the_target) {
  EXPECT_EQ(call_list_operation(OP_SAVE_MEMORY, {1}, {}, 2, SLOT_LIST_A + 4), "");
  EXPECT_EQ(list_text(stored('E')), "5 5 1 2 4");
  EXPECT_EQ(list_text(temporaries.lists[2]), "5 5 1 2 4");
}

TEST_F(list_operands, eleven_lists_in_flight_are_one_too_many_and_stores_stay) {
  std::string text = "{1,2}";
  for (int i = 0; i < 10; ++i) text += "+{1,2}";
  EXPECT_EQ(list(text), "Memory Limit Error");
  EXPECT_EQ(list(text + "->{A}"), "Memory Limit Error");
  EXPECT_EQ(list_text(stored('A')), "4 2 5 1 3");
}

TEST_F(list_operands, ten_results_of_functions_in_flight_fit) {
  const auto joined = [](int count) {
    std::string text = "reverse({A})";
    for (int i = 1; i < count; ++i) text += "+reverse({A})";
    return text;
  };
  EXPECT_EQ(list(joined(10)), "30 10 50 20 40");
  EXPECT_EQ(list(joined(11)), "Memory Limit Error");
}

}  // namespace
}  // namespace zephyl
