// Numbers from matrices.

#include "collections/matrices.h"

namespace zephyl {

TEST_F(matrices, sizes_are_counted) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(eval("rowSize([A])"), "2");
  EXPECT_EQ(eval("colSize([A])"), "3");
}

TEST_F(matrices, element_is_read_by_row_and_column) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(eval("getElem([A],2,1)"), "4");
  EXPECT_EQ(eval("getElem([A],1,3)"), "3");
  for (const char* text :
       {"getElem([A],3,1)", "getElem([A],1,4)", "getElem([A],0,1)", "getElem([A],1,0)", "getElem([A],1.5,1)"})
    EXPECT_EQ(eval(text), "Matrix Index Range") << text;
}

TEST_F(matrices, tiny_number_results_are_zero) {
  define('A', "5e-15 2e-14");
  EXPECT_EQ(eval("getElem([A],1,1)"), "0");
  EXPECT_EQ(value("getElem([A],1,2)"), 2e-14);
}

TEST_F(matrices, trace_sums_the_diagonal) {
  define('A', "1 2; 3 4");
  define('B', "1 2 3");
  EXPECT_EQ(eval("Trace([A])"), "5");
  EXPECT_EQ(eval("Trace([B])"), "Matrix Not Square");
}

TEST_F(matrices, norms) {
  define('A', "3 -4; 0 12");
  EXPECT_EQ(eval("Norm([A])"), "13");
  EXPECT_EQ(eval("rowNorm([A])"), "12");
  EXPECT_EQ(eval("colNorm([A])"), "16");
}

TEST_F(matrices, norm_of_huge_cells_overflows) {
  define('A', "1e200 1");
  EXPECT_EQ(eval("Norm([A])"), "Overflow");
}

TEST_F(matrices, dot_product_of_two_rows) {
  define('A', "1 2 3");
  define('B', "4 5 6");
  define('C', "1 2; 3 4");
  define('D', "1 2");
  EXPECT_EQ(eval("dotP([A],[B])"), "32");
  EXPECT_EQ(eval("dotP([C],[C])"), "Matrix Size Mismatch");
  EXPECT_EQ(eval("dotP([A],[D])"), "Matrix Size Mismatch");
  EXPECT_EQ(eval("dotP([A]^T,[B]^T)"), "Matrix Size Mismatch");
}

TEST_F(matrices, cross_product_of_two_rows_of_three) {
  define('A', "1 2 3");
  define('B', "4 5 6");
  define('C', "1 2");
  EXPECT_EQ(matrix("crossP([A],[B])"), "-3 6 -3");
  EXPECT_EQ(matrix("crossP([C],[C])"), "Matrix Size Mismatch");
  EXPECT_EQ(matrix("crossP([A],[C])"), "Matrix Size Mismatch");
  EXPECT_EQ(matrix("crossP([A]^T,[B]^T)"), "Matrix Size Mismatch");
}

TEST_F(matrices, small_determinants_by_formula) {
  define('A', "-7");
  define('B', "1 2; 3 4");
  define('C', "2 0 1; 1 3 2; 1 1 1");
  EXPECT_EQ(eval("Det([A])"), "-7");
  EXPECT_EQ(eval("Det([B])"), "-2");
  EXPECT_EQ(eval("Det([C])"), "0");
  define('C', "2 0 1; 1 3 2; 1 1 4");
  EXPECT_EQ(eval("Det([C])"), "18");
}

TEST_F(matrices, determinant_of_tiny_magnitude_is_zero) {
  define('A', "1e-8 0; 0 1e-8");
  EXPECT_EQ(eval("Det([A])"), "0");
  define('A', "1e-6 0; 0 1e-6");
  EXPECT_DOUBLE_EQ(value("Det([A])"), 1e-12);
}

TEST_F(matrices, larger_determinants_by_factors) {
  define('A', "0 2 0 0; 1 0 0 0; 0 0 0 3; 0 0 5 0");
  EXPECT_EQ(eval("Det([A])"), "30");
  EXPECT_EQ(eval("Det(Iden(30)*2)"), "1073741824");
}

TEST_F(matrices, determinant_of_a_singular_one_is_zero_without_an_error) {
  define('A', "1 2 3 4; 2 4 6 8; 1 0 1 0; 0 1 0 1");
  define('B', "1 2 3 4; 0 0 0 0; 1 0 1 0; 0 1 0 1");
  EXPECT_EQ(eval("Det([A])"), "0");
  EXPECT_EQ(eval("Det([B])"), "0");
  EXPECT_EQ(matrix("[A]^(-1)"), "Matrix is Singular");
  EXPECT_EQ(matrix("[B]^(-1)"), "Matrix is Singular");
}

TEST_F(matrices, determinant_needs_a_square) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(eval("Det([A])"), "Matrix Not Square");
}

TEST_F(matrices, with_a_determinant_of_tiny_magnitude_count_as_singular) {
  EXPECT_EQ(matrix("(Iden(4)*0.0001)^(-1)"), "Matrix is Singular");
  EXPECT_EQ(eval("Det(Iden(4)*0.0001)"), "0");
  EXPECT_EQ(matrix("(Iden(2)*0.001)^(-1)"), "1000 0; 0 1000");
}

}  // namespace zephyl
