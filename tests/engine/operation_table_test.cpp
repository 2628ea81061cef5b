// The constant tables of operations and argument lists, and their check at start.

#include "engine/operation_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "support/calculator.h"

namespace zephyl {
namespace {

std::vector<TOperationRow> table_copy() { return {operation_array, operation_array + OPERATION_COUNT}; }

TEST_F(calculator, starts_without_an_alarm) { EXPECT_EQ(message(), "none"); }

TEST_F(calculator, a_row_out_of_order_raises_the_alarm) {
  std::vector<TOperationRow> rows = table_copy();
  std::swap(rows[3], rows[4]);
  EXPECT_EQ(check_operation_array(rows.data()), 2);
  EXPECT_EQ(message(), "Opps | operation_array is not in order with the enumeration TOp_Code");
  check_operation_array();
  check_function_arguments();
}

TEST_F(calculator, a_wrong_argument_count_raises_the_alarm) {
  const TFunctionArguments row{
      OP_FMOD,
      3,
      {ARGUMENT_REAL, ARGUMENT_REAL, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE},
      0};
  EXPECT_EQ(check_function_arguments(&row, 1), 1);
  EXPECT_EQ(message(), "Opps | Function Argument Count is Incorrect");
}

TEST_F(calculator, a_row_for_no_operation_raises_the_alarm) {
  const TFunctionArguments row{
      OP_NONE,
      0,
      {ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE},
      0};
  EXPECT_EQ(check_function_arguments(&row, 1), 1);
  EXPECT_EQ(message(), "Opps | Function argument for function op-code could not be found");
}

TEST_F(calculator, a_short_function_with_two_arguments_raises_the_alarm) {
  const TFunctionArguments row{
      OP_SIN,
      2,
      {ARGUMENT_REAL, ARGUMENT_REAL, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE, ARGUMENT_NONE},
      0};
  EXPECT_EQ(check_function_arguments(&row, 1), 1);
  EXPECT_EQ(
      message(),
      "Opps | A short function needs an argument count of 1 and a function needs an argument count > 1");
}

TEST_F(calculator, every_function_has_an_argument_list_and_nothing_else_has) {
  for (int op = 0; op < OPERATION_COUNT; ++op)
    EXPECT_EQ(function_arguments(static_cast<TOp_Code>(op)) != nullptr, op >= OP_LOGIC_NOT) << op;
}

TEST_F(calculator, levels_scan_in_the_direction_of_their_last_row) {
  for (int level = 0; level < PRIORITY_COUNT; ++level)
    EXPECT_EQ(scans_right_to_left(level), level == 0 || level == 14) << level;
  EXPECT_EQ(highest_priority(), 15);
}

// The bounds of each level, by operation code.
TEST_F(calculator, every_operation_stands_on_its_level) {
  const struct {
    int last_op, level;
  } levels[] = {{3, 0},  {14, 1},  {16, 2},  {18, 3},  {26, 5},  {28, 6},  {30, 7},  {31, 8},
                {34, 9}, {40, 10}, {41, 11}, {43, 12}, {45, 13}, {51, 14}, {288, 15}};
  int op = 0;
  for (const auto& level : levels)
    for (; op <= level.last_op; ++op) EXPECT_EQ(operation_array[op].priority, level.level) << op;
}

TEST_F(calculator, operations_belong_to_their_families) {
  const auto family = [](int op) {
    if (op == 4 || op == 91 || (op >= 145 && op <= 193)) return MATRIX_FAMILY;
    if ((op >= 194 && op <= 231) || op == 236 || (op >= 250 && op <= 255)) return LIST_FAMILY;
    if ((op >= 232 && op <= 235) || op == 237 || (op >= 239 && op <= 242)) return STRING_FAMILY;
    return SCALAR_FAMILY;
  };
  for (int op = 0; op < OPERATION_COUNT; ++op) EXPECT_EQ(operation_array[op].family, family(op)) << op;
}

TEST_F(calculator, base_n_operations_carry_their_mark) {
  for (int op = 0; op < OPERATION_COUNT; ++op) {
    const bool base_n = op == 15 || op == 16 || op == 25 || (op >= 29 && op <= 34);
    EXPECT_EQ((operation_array[op].assoc & ASSOC_BASE_N) != 0, base_n) << op;
  }
}

TEST_F(calculator, kinds_follow_the_number_of_arguments) {
  for (int op = OP_LOGIC_NOT; op < OPERATION_COUNT; ++op) {
    const int kind = operation_array[op].arg_kind;
    const TFunctionArguments* row = function_arguments(static_cast<TOp_Code>(op));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(kind == KIND_NO_ARGUMENT, std::strstr(operation_array[op].display_text, "()") != nullptr) << op;
    const int least = kind == KIND_FUNCTION ? 2 : 1;
    EXPECT_GE(row->count, least) << op;
    EXPECT_TRUE(kind != KIND_SHORT_FUNCTION || row->count == 1) << op;
  }
}

TEST_F(calculator, texts_that_are_misspelled_on_purpose_stay) {
  EXPECT_STREQ(operation_array[OP_SINGULAR_VALUES].display_text, "SVL(");
  EXPECT_STREQ(operation_array[OP_SINGULAR_VALUES].internal_name, "SLV");
  EXPECT_STREQ(operation_array[OP_BALANCE].display_text, "Balancee(");
  EXPECT_STREQ(operation_array[OP_MATRIX_TO_LIST].internal_name, "matixToList");
}

TEST_F(calculator, some_texts_have_blanks_around_them) {
  const struct {
    TOp_Code op;
    const char* text;
  } texts[] = {
      {OP_SQUARE_ROOT, "sqRt "},   {OP_CUBE_ROOT, "cubeRt "}, {OP_BASE_NOT, "not "},   {OP_INV_POWER, " Rt "},
      {OP_PERCENT_CHANGE, " d% "}, {OP_BASE_MOD, " mod "},    {OP_BASE_AND, " and "},  {OP_BASE_XOR, " xor "},
      {OP_BASE_XNOR, " xnor "},    {OP_BASE_OR, " or "},      {OP_SAVE_MEMORY, " > "}, {OP_REGRESS_X, " rx "},
      {OP_REGRESS_Y, " ry "},      {OP_LOGIC_AND, "AND"},     {OP_LOGIC_XOR, "XOR"},   {OP_LOGIC_OR, "OR"}};
  for (const auto& row : texts) EXPECT_STREQ(operation_array[row.op].display_text, row.text);
}

}  // namespace
}  // namespace zephyl
