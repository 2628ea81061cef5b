#include "tools/tvm_state.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/errors.h"
#include "engine/system_variables.h"
#include "engine/values.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

std::string write(int number, double re, double im = 0.0) {
  clear_error();
  write_system_variable(number, {re, im});
  return errors.error_flag ? errors.error_text : "";
}

double read(int number) { return read_system_variable(number).re; }

TEST(tvm_state, starts_with_monthly_payments_and_nothing_else) {
  const double start[] = {0, 0, 0, 0, 0, 12, 12, 0};
  for (int index = TVM_N; index <= TVM_PMT_AT; ++index) EXPECT_EQ(tvm_value(index), start[index]);
}

TEST(tvm_state, keeps_each_value) {
  for (int index = TVM_N; index <= TVM_CY; ++index) set_tvm_value(index, index + 0.5);
  for (int index = TVM_N; index <= TVM_CY; ++index) EXPECT_EQ(tvm_value(index), index + 0.5);
}

TEST(tvm_state, no_value_changes_nothing) {
  set_tvm_value(TVM_PY, undefined_value);
  EXPECT_EQ(tvm_value(TVM_PY), 12.0);
  set_tvm_value(TVM_PMT_AT, undefined_value);
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 0.0);
}

TEST(tvm_state, any_payment_time_but_zero_is_the_beginning) {
  set_tvm_value(TVM_PMT_AT, -0.25);
  EXPECT_TRUE(tvm_state.begin);
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 1.0);
  set_tvm_value(TVM_PMT_AT, 0);
  EXPECT_EQ(tvm_value(TVM_PMT_AT), 0.0);
}

TEST(tvm_state, goes_back_to_its_start) {
  set_tvm_value(TVM_N, 360);
  set_tvm_value(TVM_PMT_AT, 1);
  reset_tvm_state();
  EXPECT_EQ(tvm_value(TVM_N), 0.0);
  EXPECT_EQ(tvm_value(TVM_CY), 12.0);
  EXPECT_FALSE(tvm_state.begin);
}

TEST(tvm_state, variables_take_any_real_value) {
  register_tvm_variables();
  for (int number = VAR_TVM_N; number <= VAR_TVM_CY; ++number) {
    EXPECT_EQ(write(number, -1.5 * number), "");
    EXPECT_EQ(read(number), -1.5 * number);
    EXPECT_EQ(tvm_value(number - VAR_TVM_N), -1.5 * number);
    EXPECT_EQ(write(number, 1, 1), "Data Type Error");
    EXPECT_EQ(write(number, undefined_value), "");
    EXPECT_EQ(read(number), -1.5 * number);
  }
}

TEST(tvm_state, the_variable_of_payment_time_is_1_or_2) {
  register_tvm_variables();
  EXPECT_EQ(read(VAR_TVM_PMT_AT), 1.0);
  EXPECT_EQ(write(VAR_TVM_PMT_AT, 2), "");
  EXPECT_EQ(read(VAR_TVM_PMT_AT), 2.0);
  EXPECT_TRUE(tvm_state.begin);
  for (const double wrong : {0.0, 3.0, 1.5}) EXPECT_EQ(write(VAR_TVM_PMT_AT, wrong), "Domain Error");
  EXPECT_EQ(write(VAR_TVM_PMT_AT, 1, 1), "Data Type Error");
  EXPECT_EQ(write(VAR_TVM_PMT_AT, undefined_value), "");
  EXPECT_EQ(read(VAR_TVM_PMT_AT), 2.0);
  EXPECT_EQ(write(VAR_TVM_PMT_AT, 1), "");
  EXPECT_FALSE(tvm_state.begin);
}

TEST_F(calculator, solver_variables_are_read_and_written_by_expressions) {
  EXPECT_EQ(eval("360->tvmN"), "360");
  EXPECT_EQ(eval("(tvmN)*(tvmP/Y)"), "4320");
  EXPECT_EQ(eval("2->tvmPMT@"), "2");
  EXPECT_EQ(eval("(tvmPMT@)"), "2");
}

}  // namespace
}  // namespace zephyl
