// The operations that rest on a decomposition: results known beforehand, and every refusal.

#include "collections/matrices.h"

namespace zephyl {

TEST_F(matrices, echelon_form_of_a_system) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("rref([A])"), "1 0 -1; 0 1 2");
  define('A', "2 4 6 2; 1 3 5 1; 0 1 1 4");
  EXPECT_EQ(matrix("rref([A])"), "1 0 0 -3; 0 1 0 8; 0 0 1 -4");
}

TEST_F(matrices, echelon_form_swaps_a_zero_pivot_away) {
  define('A', "0 2 4; 3 0 6");
  EXPECT_EQ(matrix("rref([A])"), "1 0 2; 0 1 2");
}

TEST_F(matrices, echelon_form_keeps_the_row_where_a_column_is_zero) {
  define('A', "0 0 5; 0 0 7");
  EXPECT_EQ(matrix("rref([A])"), "0 0 1; 0 0 0");
  define('A', "1 2 3; 2 4 8");
  EXPECT_EQ(matrix("rref([A])"), "1 2 0; 0 0 1");
}

TEST_F(matrices, echelon_form_multiplies_by_the_reciprocal_of_the_pivot) {
  define('A', "49 49");
  matrix("rref([A])");
  EXPECT_EQ(stores.matrices[ANSWER_RECORD].cells[0][0], 49.0 * (1.0 / 49.0));
  define('A', "1 49");
  EXPECT_EQ(matrix("rref([A])"), "1 49");
}

TEST_F(matrices, echelon_form_needs_as_many_columns_as_rows) {
  define('A', "1; 2");
  EXPECT_EQ(matrix("rref([A])"), "Matrix Size Error");
  EXPECT_EQ(matrix("rref(initMatrix(3,3,0))"), "0 0 0; 0 0 0; 0 0 0");
}

TEST_F(matrices, lu_factors_belong_to_the_exchanged_rows) {
  define('A', "1 2; 3 4");  // 3/4 of its row beats 1/2
  EXPECT_EQ(matrix("LU_L([A])"), "1 0; 0.333333333333 1");
  EXPECT_EQ(matrix("LU_U([A])"), "3 4; 0 0.666666666667");
  EXPECT_EQ(matrix("LU_P([A])"), "0 1; 1 0");
  EXPECT_EQ(matrix("LU_P([A])*[A]-LU_L([A])*LU_U([A])"), "0 0; 0 0");
}

TEST_F(matrices, lu_picks_pivots_relative_to_their_rows) {
  define('A', "10 1000; 1 1");
  EXPECT_EQ(matrix("LU_P([A])"), "0 1; 1 0");
}

TEST_F(matrices, lu_takes_the_last_of_equal_pivots) {
  define('A', "1 0 0; 1 1 0; 1 0 1");
  EXPECT_EQ(matrix("LU_P([A])"), "0 0 1; 0 1 0; 1 0 0");
}

TEST_F(matrices, permutation_follows_the_pivots_in_ascending_order) {
  define('A', "0 1 0 0; 0 0 1 0; 0 0 0 1; 1 0 0 0");
  EXPECT_EQ(matrix("LU_P([A])"), "0 0 0 1; 1 0 0 0; 0 1 0 0; 0 0 1 0");
  EXPECT_EQ(matrix("LU_P([A])*[A]"), "1 0 0 0; 0 1 0 0; 0 0 1 0; 0 0 0 1");
}

TEST_F(matrices, lu_reports_what_it_refuses) {
  define('A', "1 2 3; 4 5 6");
  define('B', "1 2; 2 4");
  for (const char* name : {"LU_L", "LU_U", "LU_P"}) {
    EXPECT_EQ(matrix(std::string(name) + "([A])"), "Matrix Not Square") << name;
    EXPECT_EQ(matrix(std::string(name) + "([B])"), "Matrix is Singular") << name;
    EXPECT_EQ(matrix(std::string(name) + "(Iden(4)*0.0001)"), "Matrix is Singular") << name;
  }
}

TEST_F(matrices, systems_are_solved_by_factors) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("solveLU([A])"), "-1; 2");
  EXPECT_EQ(matrix("solveQR([A])"), "-1; 2");
  EXPECT_EQ(matrix("solveSV([A])"), "-1; 2");
  define('A', "4 2 10; 2 3 9");
  EXPECT_EQ(matrix("solveCH([A])"), "1.5; 2");
}

TEST_F(matrices, systems_need_their_right_side_behind_a_square) {
  define('A', "1 2; 3 4");
  define('B', "1 2 3 4; 4 5 6 7");
  for (const char* text :
       {"solveLU([A])", "solveLU([B])", "solveCH([A])", "solveCH([B])", "solveQR([B])", "solveSV([B])"})
    EXPECT_EQ(matrix(text), "Matrix Size Error") << text;
}

TEST_F(matrices, systems_of_more_equations_are_solved_by_least_squares) {
  define('A', "1 1 1; 1 2 3; 1 3 2");
  EXPECT_EQ(matrix("solveQR([A])"), "1; 0.5");
  EXPECT_EQ(matrix("solveSV([A])"), "1; 0.5");
}

TEST_F(matrices, systems_without_unknowns_have_an_undefined_solution) {
  define('A', "1; 2");
  EXPECT_EQ(matrix("solveQR([A])+[A]"), "Matrix Size Not Defined");
  EXPECT_EQ(matrix("solveSV([A])+[A]"), "Matrix Size Not Defined");
}

TEST_F(matrices, singular_systems) {
  define('A', "1 2 3; 2 4 6");
  EXPECT_EQ(matrix("solveLU([A])"), "Matrix is Singular");
  define('A', "0 1 3; 0 2 6");
  EXPECT_EQ(matrix("solveSV([A])"), "0; 3");  // of least length
  EXPECT_EQ(matrix("solveQR([A])"), "Division by Zero");
  EXPECT_EQ(matrix("solveQR(initMatrix(2,3,0))"), "Division by Zero");
}

TEST_F(matrices, cholesky_gives_the_lower_factor) {
  define('A', "4 2; 2 5");
  EXPECT_EQ(matrix("Cholesky([A])"), "2 0; 1 2");
  define('A', "9");
  EXPECT_EQ(matrix("Cholesky([A])"), "3");
}

TEST_F(matrices, cholesky_reports_what_it_refuses) {
  define('A', "1 2 3; 4 5 6");
  define('B', "1 2; 2.0000000001 5");
  define('C', "0 0; 0 1");
  define('D', "1 2; 2 4");
  EXPECT_EQ(matrix("Cholesky([A])"), "Matrix Not Square");
  EXPECT_EQ(matrix("Cholesky([B])"), "Matrix Not Symmetric");
  EXPECT_EQ(matrix("Cholesky([C])"), "Matrix Not Positive Def.");
  EXPECT_EQ(matrix("Cholesky([D])"), "Matrix Not Positive Def.");
}

TEST_F(matrices, cholesky_solution_looks_at_the_square_part) {
  define('A', "4 2 1; 2.5 5 2");
  define('B', "1 2 7; 2 1 8");
  EXPECT_EQ(matrix("solveCH([A])"), "Matrix Not Symmetric");
  EXPECT_EQ(matrix("solveCH([B])"), "Matrix Not Positive Def.");
}

TEST_F(matrices, fault_before_a_failure_is_what_is_reported) {
  define('A', "1e-300 1e300; 1e300 1");
  EXPECT_EQ(matrix("Cholesky([A])"), "Overflow");
}

TEST_F(matrices, qr_factors_give_the_matrix_back) {
  define('A', "3 1; 4 2");
  EXPECT_EQ(matrix("QR_R([A])"), "-5 -2.2; 0 -0.4");
  EXPECT_EQ(matrix("QR_Q([A])"), "-0.6 0.8; -0.8 -0.6");
  EXPECT_EQ(matrix("QR_Q([A])*QR_R([A])"), "3 1; 4 2");
}

TEST_F(matrices, qr_of_a_tall_one) {
  define('A', "1 0; 0 1; 0 0");
  EXPECT_EQ(matrix("QR_Q([A])"), "-1 0; 0 -1; 0 0");
  EXPECT_EQ(matrix("QR_R([A])"), "-1 0; 0 -1");
}

TEST_F(matrices, qr_passes_columns_of_zeros_by) {
  EXPECT_EQ(matrix("QR_R(initMatrix(2,2,0))"), "0 0; 0 0");
  EXPECT_EQ(matrix("QR_Q(initMatrix(2,2,0))"), "1 0; 0 1");
}

TEST_F(matrices, wide_ones_have_neither_qr_nor_singular_values) {
  define('A', "1 2 3; 4 5 6");
  for (const char* name : {"QR_Q", "QR_R", "SVD_U", "SVD_V", "SVL", "Cond"})
    EXPECT_EQ(matrix(std::string(name) + "([A])"), "Matrix Size Error") << name;
}

TEST_F(matrices, singular_values_on_a_diagonal) {
  define('A', "3 0; 0 -4");
  EXPECT_EQ(matrix("SVL([A])"), "3 0; 0 4");
  define('A', "0 1; 0 0; 0 2");
  EXPECT_EQ(matrix("SVD_U([A])*SVL([A])*SVD_V([A])^T"), "0 1; 0 0; 0 2");
  EXPECT_EQ(eval("rowSize(SVL([A]))"), "2");
  EXPECT_EQ(eval("rowSize(SVD_U([A]))"), "3");
  EXPECT_EQ(eval("rowSize(SVD_V([A]))"), "2");
}

TEST_F(matrices, rank_counts_singular_values_above_the_tolerance) {
  define('A', "1 2; 2 4");
  define('B', "1 2; 3 4; 5 6");
  define('C', "1 2 3; 4 5 6");
  EXPECT_EQ(eval("Rank([A])"), "1");
  EXPECT_EQ(eval("Rank([B])"), "2");
  EXPECT_EQ(eval("Rank([C])"), "2");
  EXPECT_EQ(eval("Rank(Iden(30))"), "30");
}

TEST_F(matrices, rank_of_zeros_is_zero) {
  EXPECT_EQ(eval("Rank(initMatrix(3,3,0))"), "0");
  EXPECT_EQ(eval("Rank(initMatrix(2,5,0))"), "0");
}

TEST_F(matrices, rank_sees_tiny_singular_values_as_zero) {
  define('A', "1e-14 0; 0 2e-15");
  EXPECT_EQ(eval("Rank([A])"), "1");
  EXPECT_EQ(eval("Cond([A])"), "Division by Zero");
}

TEST_F(matrices, rank_measures_by_the_first_value_and_not_by_the_largest) {
  define('A', "0.0001 0 0; 0 1 0; 0 0 1e-13");
  EXPECT_EQ(eval("Rank([A])"), "3");
  define('A', "1000 0 0; 0 1 0; 0 0 5e-13");
  EXPECT_EQ(eval("Rank([A])"), "2");
}

TEST_F(matrices, condition_is_largest_over_smallest) {
  define('A', "2 0; 0 8");
  EXPECT_EQ(eval("Cond([A])"), "4");
  EXPECT_EQ(eval("Cond(Iden(5))"), "1");
}

TEST_F(matrices, condition_of_a_singular_one_divides_by_zero) {
  define('A', "1 2; 2 4");
  EXPECT_EQ(eval("Cond([A])"), "Division by Zero");
  EXPECT_EQ(eval("Cond(initMatrix(2,2,0))"), "Division by Zero");
}

TEST_F(matrices, symmetric_eigenvalues_ascend) {
  define('A', "2 1; 1 2");
  EXPECT_EQ(matrix("eigenVal([A])"), "1 0; 0 3");
  define('A', "5 0 0; 0 -1 0; 0 0 3");
  EXPECT_EQ(matrix("eigenVal([A])"), "-1 0 0; 0 3 0; 0 0 5");
  EXPECT_EQ(matrix("abs(eigenVec([A]))"), "0 0 1; 1 0 0; 0 1 0");
}

TEST_F(matrices, general_eigenvalues_stay_in_the_order_of_deflation) {
  define('A', "5 1 0; 0 -1 1; 0 0 3");
  EXPECT_EQ(matrix("eigenVal([A])"), "5 0 0; 0 -1 0; 0 0 3");
}

TEST_F(matrices, complex_pair_is_a_block) {
  define('A', "0 -1; 1 0");
  EXPECT_EQ(matrix("eigenVal([A])"), "0 1; -1 0");
  define('A', "2 -3 0; 3 2 0; 0 0 7");
  EXPECT_EQ(matrix("eigenVal([A])"), "2 3 0; -3 2 0; 0 0 7");
  EXPECT_EQ(matrix("[A]*eigenVec([A])-eigenVec([A])*eigenVal([A])"), "0 0 0; 0 0 0; 0 0 0");
}

TEST_F(matrices, eigenvalues_of_a_defective_one) {
  define('A', "2 1 0; 0 2 1; 0 0 2");
  EXPECT_EQ(matrix("eigenVal([A])"), "2 0 0; 0 2 0; 0 0 2");
}

TEST_F(matrices, eigenvalues_need_a_square) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("eigenVal([A])"), "Matrix Not Square");
  EXPECT_EQ(matrix("eigenVec([A])"), "Matrix Not Square");
}

TEST_F(matrices, eigenvalues_of_one_cell) {
  define('A', "-7");
  EXPECT_EQ(matrix("eigenVal([A])"), "-7");
  EXPECT_EQ(matrix("eigenVec([A])"), "1");
}

// A shift by the corner alone would run in a circle here.
TEST_F(matrices, eigenvalues_of_a_cyclic_permutation_converge) {
  define('A', "0 0 1; 1 0 0; 0 1 0");
  EXPECT_EQ(matrix("eigenVal([A])"), "-0.5 0.866025403784 0; -0.866025403784 -0.5 0; 0 0 1");
  define('A', "0 0 0 1; 1 0 0 0; 0 1 0 0; 0 0 1 0");
  EXPECT_EQ(eval("Trace(eigenVal([A]))"), "0");
}

}  // namespace zephyl
