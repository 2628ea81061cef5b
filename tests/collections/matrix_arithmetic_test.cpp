// Sums, products, quotients and powers of matrices.

#include "collections/matrices.h"

namespace zephyl {

TEST_F(matrices, add_and_subtract_cell_by_cell) {
  define('A', "1 2; 3 4");
  define('B', "10 20; 30 40");
  EXPECT_EQ(matrix("[A]+[B]"), "11 22; 33 44");
  EXPECT_EQ(matrix("[A]-[B]"), "-9 -18; -27 -36");
}

TEST_F(matrices, of_different_sizes_are_not_added) {
  define('A', "1 2; 3 4");
  define('B', "1 2");
  define('C', "1; 2");
  EXPECT_EQ(matrix("[A]+[B]"), "Matrix Size Mismatch");
  EXPECT_EQ(matrix("[A]-[C]"), "Matrix Size Mismatch");
}

TEST_F(matrices, multiply_rows_by_columns) {
  define('A', "1 2 3; 4 5 6");
  define('B', "7 8; 9 10; 11 12");
  EXPECT_EQ(matrix("[A]*[B]"), "58 64; 139 154");
  EXPECT_EQ(matrix("[B]*[A]"), "39 54 69; 49 68 87; 59 82 105");
}

TEST_F(matrices, multiply_without_a_sign_between_them) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("[A][A]"), "7 10; 15 22");
  EXPECT_EQ(matrix("2[A]"), "2 4; 6 8");
  EXPECT_EQ(matrix("2Iden(2)"), "2 0; 0 2");
}

TEST_F(matrices, multiply_only_where_columns_meet_as_many_rows) {
  define('A', "1 2 3");
  EXPECT_EQ(matrix("[A]*[A]"), "Matrix Size Mismatch");
}

TEST_F(matrices, multiply_with_a_number_on_either_side) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("[A]*3"), "3 6; 9 12");
  EXPECT_EQ(matrix("-0.5*[A]"), "-0.5 -1; -1.5 -2");
}

TEST_F(matrices, divide_by_a_number_through_its_reciprocal) {
  define('A', "3 6; 9 49");
  EXPECT_EQ(matrix("[A]/2"), "1.5 3; 4.5 24.5");
  matrix("[A]/49");
  EXPECT_EQ(stores.matrices[ANSWER_RECORD].cells[1][1], 49.0 * (1.0 / 49.0));
  EXPECT_NE(stores.matrices[ANSWER_RECORD].cells[1][1], 1.0);
}

TEST_F(matrices, divided_by_zero_report_it) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("[A]/0"), "Division by Zero");
}

TEST_F(matrices, quotient_is_the_inverse_of_the_divisor_on_the_left) {
  define('A', "1 2; 3 4");
  define('B', "2 1; 1 1");
  EXPECT_EQ(matrix("[A]/[B]"), "-2 -2; 5 6");  // inverse [B] * [A]
  EXPECT_EQ(matrix("[B]^(-1)*[A]"), "-2 -2; 5 6");
  EXPECT_EQ(matrix("[A]*[B]^(-1)"), "-1 3; -1 5");
}

TEST_F(matrices, quotient_takes_any_number_of_columns) {
  define('A', "5; 3");
  define('B', "2 1; 1 1");
  EXPECT_EQ(matrix("[A]/[B]"), "2; 1");
}

TEST_F(matrices, quotient_checks_square_then_singular_then_sizes) {
  define('A', "1 2 3");
  define('B', "1 2; 2 4");
  define('C', "1 2; 3 4");
  EXPECT_EQ(matrix("[C]/[A]"), "Matrix Not Square");
  EXPECT_EQ(matrix("[A]/[B]"), "Matrix is Singular");
  EXPECT_EQ(matrix("[A]/[C]"), "Matrix Size Mismatch");
}

TEST_F(matrices, power_multiplies_step_by_step) {
  define('A', "1 1; 1 0");
  EXPECT_EQ(matrix("[A]^10"), "89 55; 55 34");
  EXPECT_EQ(matrix("[A]^1"), "1 1; 1 0");
  EXPECT_EQ(matrix("[A]^(2)"), "2 1; 1 1");
  EXPECT_EQ(matrix("[A]^(3)"), "3 2; 2 1");
}

TEST_F(matrices, power_of_zero_is_the_identity) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  EXPECT_EQ(matrix("[A]^0"), "1 0 0; 0 1 0; 0 0 1");
}

TEST_F(matrices, negative_power_is_that_of_the_inverse) {
  define('A', "2 0; 0 4");
  EXPECT_EQ(matrix("[A]^-1"), "0.5 0; 0 0.25");
  EXPECT_EQ(matrix("[A]^-2"), "0.25 0; 0 0.0625");
  EXPECT_EQ(matrix("[A]^(-1)"), "0.5 0; 0 0.25");
}

TEST_F(matrices, negative_power_of_a_singular_one_reports_it) {
  define('A', "1 2; 2 4");
  EXPECT_EQ(matrix("[A]^-3"), "Matrix is Singular");
  EXPECT_EQ(matrix("[A]^(-1)"), "Matrix is Singular");
}

TEST_F(matrices, powers_need_a_square) {
  define('A', "1 2 3; 4 5 6");
  for (const char* text : {"[A]^2", "[A]^(2)", "[A]^(3)", "[A]^(-1)", "[A]^0", "[A]^-1"})
    EXPECT_EQ(matrix(text), "Matrix Not Square") << text;
}

TEST_F(matrices, exponent_is_an_integer_up_to_1000) {
  define('A', "1 2 3");
  define('B', "-1");
  EXPECT_EQ(matrix("[A]^0.5"), "Domain Error");
  EXPECT_EQ(matrix("[B]^1001"), "Domain Error");
  EXPECT_EQ(matrix("[B]^-1001"), "Domain Error");
  EXPECT_EQ(matrix("[B]^1000"), "1");
  EXPECT_EQ(matrix("[B]^-999"), "-1");
}

TEST_F(matrices, transpose_and_negate) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("[A]^T"), "1 4; 2 5; 3 6");
  EXPECT_EQ(matrix("-[A]"), "-1 -2 -3; -4 -5 -6");
}

TEST_F(matrices, are_equal_in_size_and_every_cell) {
  define('A', "1 2; 3 4");
  define('B', "1 2; 3 4");
  define('C', "1 2; 3 5");
  define('D', "1 2");
  EXPECT_EQ(eval("[A]=[B]"), "1");
  EXPECT_EQ(eval("[A]=[C]"), "0");
  EXPECT_EQ(eval("[A]=[D]"), "0");
  EXPECT_EQ(eval("[A]<>[B]"), "0");
  EXPECT_EQ(eval("[A]<>[C]"), "1");
  EXPECT_EQ(eval("[A]<>[D]"), "1");
}

TEST_F(matrices, go_with_numbers_only_in_products_quotients_and_powers) {
  define('A', "1 2; 3 4");
  for (const char* text : {"[A]+1", "1+[A]", "[A]-1", "1-[A]", "1/[A]", "2^[A]", "[A]=1", "1<>[A]", "[A]>1",
                           "1 Rt [A]", "[A]^[A]", "[A]!", "[A]%", "[A]>[A]", "sqRt [A]"})
    EXPECT_EQ(matrix(text), "Data Type Error") << text;
}

TEST_F(matrices, go_with_neither_lists_nor_strings) {
  define('A', "1 2; 3 4");
  for (const char* text : {"[A]+{1,2}", "{1,2}*[A]", "[A]*{1,2}", "[A]/{1,2}", "[A]^{1,2}", "[A]*\"a\"",
                           "\"a\"+[A]", "[A]={1,2}"})
    EXPECT_EQ(matrix(text), "Data Type Error") << text;
}

TEST_F(matrices, take_no_complex_numbers) {
  define('A', "1 2; 3 4");
  for (const char* text : {"[A]*(i)", "(i)*[A]", "[A]/(i)", "[A]^(i)"})
    EXPECT_EQ(matrix(text), "Data Type Error") << text;
}

TEST_F(matrices, results_lose_cells_of_tiny_magnitude) {
  define('A', "1 5e-15; -5e-15 2e-14");
  EXPECT_EQ(matrix("[A]*1"), "1 0; 0 2e-14");
  EXPECT_EQ(matrix("[A]+[A]"), "2 1e-14; -1e-14 4e-14");
  EXPECT_EQ(matrix("initMatrix(1,1,5e-15)"), "0");
  EXPECT_EQ(matrix("initMatrix(1,1,1e-14)"), "1e-14");
}

}  // namespace zephyl
