// What must never end in anything but a matrix, a number or an error by its name: extreme cells and sizes,
// operands that are results, registers without a matrix.

#include <cmath>
#include <set>

#include "collections/matrices.h"
#include "engine/errors.h"
#include "engine/memory.h"

namespace zephyl {

namespace {

MatrixRecord filled(int rows, int columns, double value) {
  MatrixRecord matrix;
  matrix.last_row = rows - 1;
  matrix.last_col = columns - 1;
  matrix.defined = true;
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j) matrix.cells[i][j] = value;
  return matrix;
}

// Every operation that computes with [A], and with a second matrix [B] of another shape.
const char* const computations[] = {"[A]+[A]",         "[A]-[B]",       "[A]*[A]",
                                    "[A]/[A]",         "[A]/[B]",       "[A]*1e10",
                                    "[A]/1e-10",       "[A]^5",         "[A]^-3",
                                    "[A]^(-1)",        "-[A]",          "[A]^T",
                                    "Round([A],10)",   "Trunc([A],50)", "Mant([A])",
                                    "Xpon([A])",       "abs([A])",      "Sign([A])",
                                    "fPart([A])",      "Floor([A])",    "rref([A])",
                                    "solveLU([B])",    "solveQR([B])",  "solveCH([B])",
                                    "solveSV([B])",    "LU_L([A])",     "LU_U([A])",
                                    "LU_P([A])",       "QR_Q([A])",     "QR_R([A])",
                                    "Cholesky([A])",   "SVD_U([A])",    "SVD_V([A])",
                                    "SVL([A])",        "eigenVal([A])", "eigenVec([A])",
                                    "eigenVal([C])",   "eigenVec([C])", "Det([A])",
                                    "Trace([A])",      "Rank([A])",     "Rank([B])",
                                    "Norm([A])",       "rowNorm([A])",  "colNorm([A])",
                                    "Cond([A])",       "Diag([A])",     "matixToList([A])",
                                    "crossP([A],[A])", "dotP([A],[A])", "rowScaleAdd([A],1,1,1e10)"};

bool is_finite(const MatrixRecord& matrix) {
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j)
      if (!std::isfinite(matrix.cells[i][j])) return false;
  return true;
}

// The errors that wild numbers may end in.
const std::set<std::string> named_errors = {
    "Overflow",           "Division by Zero",         "Domain Error",
    "Matrix is Singular", "Matrix Not Positive Def.", "Matrix Not Symmetric",
    "Matrix Not Square",  "Matrix Size Mismatch",     "Matrix Size Error"};

}  // namespace

class extreme_matrices : public matrices, public ::testing::WithParamInterface<double> {};

TEST_P(extreme_matrices, end_in_finite_results_or_named_errors) {
  for (int n : {1, 2, 5, 29}) {
    define('A', filled(n, n, GetParam()));
    define('B', filled(n, n + 1, GetParam()));
    define('C', filled(n, n, GetParam()));
    stores.matrices[2].cells[0][n - 1] *= -0.5;  // not symmetric
    const std::string before = stored('A') + stored('B') + stored('C');
    for (const char* text : computations) {
      const std::string result = eval(text);
      if (errors.error_flag)
        EXPECT_EQ(named_errors.count(result), 1u) << n << ": " << text << ": " << result;
      else if (answers.m_ans_valid)
        EXPECT_TRUE(is_finite(stores.matrices[ANSWER_RECORD])) << n << ": " << text;
      else
        EXPECT_TRUE(std::isfinite(answers.ans.re)) << n << ": " << text;
      EXPECT_EQ(stored('A') + stored('B') + stored('C'), before) << n << ": " << text;
    }
    EXPECT_EQ(eval("2+2"), "4");
  }
}

INSTANTIATE_TEST_SUITE_P(of, extreme_matrices,
                         ::testing::Values(0.0, 1.0, -1.0, 1e300, -1e300, 1e154, 1e-154, 1e-300, 4.9e-324));

TEST_F(matrices, huge_products_overflow) {
  define('A', filled(30, 30, 1e300));
  EXPECT_EQ(matrix("[A]*[A]"), "Overflow");
  EXPECT_EQ(matrix("[A]*[A] -> [B]"), "Overflow");
  EXPECT_EQ(stored('B'), "undefined");
}

TEST_F(matrices, operand_may_be_the_result_register) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("(([A]*2)^T)*([A]*2)"), "40 56; 56 80");
  EXPECT_EQ(matrix("rowSwap(colSwap([A]*2,1,2),1,2)"), "8 6; 4 2");
  EXPECT_EQ(matrix("Stack([A]*2,[A]*3)*[A]"), "14 20; 30 44; 21 30; 45 66");
  EXPECT_EQ(matrix("Augment([A]*2,[A]*2)"), "2 4 2 4; 6 8 6 8");
  EXPECT_EQ(matrix("Replace([A]*2,subMatrix([A]*2,1,1,1,1),2,2)"), "2 4; 6 2");
  EXPECT_EQ(matrix("([A]*2)/([A]*2)"), "1 0; 0 1");
  EXPECT_EQ(matrix("(([A]*2)^(-1))^(-1)"), "2 4; 6 8");
}

TEST_F(matrices, fill_only_the_first_ten_registers) {
  std::string text = "Iden(1)";
  for (int i = 1; i < 10; ++i) text += "+Iden(1)";
  EXPECT_EQ(matrix(text), "10");
  EXPECT_EQ(matrix(text + "+Iden(1)"), "Memory Limit Error");
}

TEST_F(matrices, tap_on_a_key_cancels_a_long_expression_of_eigenvalues) {
  define('A', filled(30, 30, 1.0));
  for (int i = 0; i < 30; ++i)
    for (int j = 0; j < 30; ++j) stores.matrices[0].cells[i][j] = std::sin(31.0 * i * i + 7.0 * j);
  platform_.ticks_per_look = 600;
  platform_.pen_downs.push_back({20, 200});
  EXPECT_EQ(matrix("eigenVal([A])"), "Operation Canceled");
}

}  // namespace zephyl
