// Base-n arithmetic on the rows themselves, in each width.
#include <gtest/gtest.h>

#include "engine/base_integer.h"
#include "engine/state.h"
#include "numerics/operation_call.h"

namespace zephyl {
namespace {

class base_operations : public ::testing::Test {
 protected:
  base_operations() { reset_settings(); }
  static void use(TBaseBits bits) { settings.baseBits = bits; }
  static int error_of(TOp_Code op, double left, double right = 0.0) { return operate(op, left, right).error; }
};

TEST_F(base_operations, numbers_are_cut_to_the_width_with_their_sign) {
  use(BITS_8);
  EXPECT_EQ(cut_to_base_bits(127.9), 127);
  EXPECT_EQ(cut_to_base_bits(128.0), -128);
  EXPECT_EQ(cut_to_base_bits(-129.0), 127);
  EXPECT_EQ(cut_to_base_bits(255.0), -1);
  use(BITS_16);
  EXPECT_EQ(cut_to_base_bits(32768.0), -32768);
  EXPECT_EQ(cut_to_base_bits(65535.0), -1);
  EXPECT_EQ(cut_to_base_bits(65536.0), 0);
  use(BITS_32);
  EXPECT_EQ(cut_to_base_bits(65536.0), 65536);
  EXPECT_EQ(cut_to_base_bits(-1.0), -1);
}

TEST_F(base_operations, fractions_are_cut_towards_zero) {
  EXPECT_EQ(cut_to_base_bits(2.99999999999), 2);
  EXPECT_EQ(cut_to_base_bits(-2.9), -2);
}

TEST_F(base_operations, numbers_beyond_32_bits_are_clamped_first) {
  use(BITS_32);
  EXPECT_EQ(cut_to_base_bits(1e20), 2147483647);
  EXPECT_EQ(cut_to_base_bits(-1e20), -2147483648);
  use(BITS_16);
  EXPECT_EQ(cut_to_base_bits(1e20), -1);
  EXPECT_EQ(cut_to_base_bits(-1e20), 0);
}

TEST_F(base_operations, not_turns_every_bit) {
  EXPECT_EQ(real_result_of(OP_BASE_NOT, 0.0), -1.0);
  EXPECT_EQ(real_result_of(OP_BASE_NOT, 5.0), -6.0);
  EXPECT_EQ(real_result_of(OP_BASE_NOT, -32768.0), 32767.0);
}

TEST_F(base_operations, neg_wraps_around_at_the_smallest_number) {
  EXPECT_EQ(real_result_of(OP_BASE_NEG, 5.0), -5.0);
  EXPECT_EQ(real_result_of(OP_BASE_NEG, -32768.0), -32768.0);
  use(BITS_32);
  EXPECT_EQ(real_result_of(OP_BASE_NEG, -2147483648.0), -2147483648.0);
}

TEST_F(base_operations, bits_are_combined_in_twos_complement) {
  EXPECT_EQ(real_result_of(OP_BASE_AND, 12.0, 10.0), 8.0);
  EXPECT_EQ(real_result_of(OP_BASE_OR, 12.0, 10.0), 14.0);
  EXPECT_EQ(real_result_of(OP_BASE_XOR, 12.0, 10.0), 6.0);
  EXPECT_EQ(real_result_of(OP_BASE_XNOR, 12.0, 10.0), -7.0);
  EXPECT_EQ(real_result_of(OP_BASE_AND, -1.0, 255.0), 255.0);
  EXPECT_EQ(real_result_of(OP_BASE_OR, -256.0, 255.0), -1.0);
}

TEST_F(base_operations, operands_are_cut_before_they_are_combined) {
  use(BITS_8);
  EXPECT_EQ(real_result_of(OP_BASE_AND, 255.9, 127.9), 127.0);
  EXPECT_EQ(real_result_of(OP_BASE_MOD, 200.0, 100.0), -56.0);
}

TEST_F(base_operations, mod_has_the_sign_of_its_left_operand) {
  EXPECT_EQ(real_result_of(OP_BASE_MOD, 17.0, 5.0), 2.0);
  EXPECT_EQ(real_result_of(OP_BASE_MOD, -17.0, 5.0), -2.0);
  EXPECT_EQ(real_result_of(OP_BASE_MOD, 17.0, -5.0), 2.0);
}

TEST_F(base_operations, mod_minus_one_is_zero_even_of_the_smallest_number) {
  use(BITS_32);
  EXPECT_EQ(real_result_of(OP_BASE_MOD, -2147483648.0, -1.0), 0.0);
}

TEST_F(base_operations, mod_zero_is_a_division_by_zero) {
  EXPECT_EQ(error_of(OP_BASE_MOD, 17.0, 0.0), ERR_ZERO_DIVIDE);
  EXPECT_EQ(error_of(OP_BASE_MOD, 17.0, 0.5), ERR_ZERO_DIVIDE);
}

TEST_F(base_operations, shifts_to_the_left_drop_bits_beyond_the_width) {
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 1.0, 14.0), 16384.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 1.0, 15.0), -32768.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 3.0, 15.0), -32768.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 1.0, 16.0), 0.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, -1.0, 4.0), -16.0);
  use(BITS_32);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 1.0, 31.0), -2147483648.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, -1.0, 32.0), 0.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_LEFT, 1.0, 1e9), 0.0);
}

TEST_F(base_operations, shifts_to_the_right_move_the_sign_in) {
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, 256.0, 4.0), 16.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, -256.0, 4.0), -16.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, 256.0, 16.0), 0.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, -256.0, 16.0), -1.0);
  use(BITS_8);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, -128.0, 7.0), -1.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, 127.0, 8.0), 0.0);
  EXPECT_EQ(real_result_of(OP_SHIFT_RIGHT, -2.0, 100.0), -1.0);
}

TEST_F(base_operations, negative_shift_counts_are_a_domain_error) {
  EXPECT_EQ(error_of(OP_SHIFT_LEFT, 1.0, -1.0), ERR_DOMAIN);
  EXPECT_EQ(error_of(OP_SHIFT_RIGHT, 1.0, -1.0), ERR_DOMAIN);
}

TEST_F(base_operations, complex_operands_are_a_domain_error) {
  for (TOp_Code op : {OP_BASE_NOT, OP_BASE_NEG, OP_BASE_MOD, OP_SHIFT_LEFT, OP_SHIFT_RIGHT, OP_BASE_AND,
                      OP_BASE_XOR, OP_BASE_XNOR, OP_BASE_OR})
    EXPECT_EQ(operate(op, TValue{1, 1}, TValue{1, 0}).error, ERR_DOMAIN) << op;
  EXPECT_EQ(operate(OP_BASE_AND, TValue{1, 0}, TValue{1, 1}).error, ERR_DOMAIN);
}

}  // namespace
}  // namespace zephyl
