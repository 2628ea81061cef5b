// New matrices, parts and joins.

#include <set>

#include "collections/matrices.h"

namespace zephyl {

TEST_F(matrices, are_initialized_with_one_value) {
  EXPECT_EQ(matrix("initMatrix(2,3,-1.5)"), "-1.5 -1.5 -1.5; -1.5 -1.5 -1.5");
  EXPECT_EQ(matrix("initMatrix(1,1,7)"), "7");
}

TEST_F(matrices, have_1_to_30_rows_and_columns) {
  define('A', "1");
  for (const char* text :
       {"initMatrix(31,1,0)", "initMatrix(1,31,0)", "initMatrix(0,1,0)", "initMatrix(1,0,0)",
        "initMatrix(1.5,1,0)", "initMatrix(-1,1,0)", "randMatrix(31,1)", "randMatrix(1,0)",
        "Resize([A],31,1)", "Resize([A],1,31)", "Resize([A],0,1)"})
    EXPECT_EQ(matrix(text), "Matrix Size Error") << text;
  for (const char* text : {"initMatrix(30,30,0)", "randMatrix(30,30)", "Resize([A],30,30)"}) {
    matrix(text);
    EXPECT_EQ(stores.matrices[ANSWER_RECORD].last_row, 29) << text;
    EXPECT_EQ(stores.matrices[ANSWER_RECORD].last_col, 29) << text;
  }
}

TEST_F(matrices, random_cells_are_integers_from_minus_9_to_9) {
  std::set<double> seen;
  matrix("randMatrix(30,30)");
  for (int i = 0; i < 30; ++i)
    for (int j = 0; j < 30; ++j) seen.insert(stores.matrices[ANSWER_RECORD].cells[i][j]);
  EXPECT_EQ(seen.size(), 19u);
  EXPECT_EQ(*seen.begin(), -9.0);
  EXPECT_EQ(*seen.rbegin(), 9.0);
}

TEST_F(matrices, random_cells_come_row_by_row_from_the_one_generator) {
  eval("randSeed(0.25)");
  matrix("randMatrix(2,3)");
  const MatrixRecord made = stores.matrices[ANSWER_RECORD];
  eval("randSeed(0.25)");
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(made.cells[i / 3][i % 3], static_cast<int>(19.0 * value("(Rand)")) - 9) << i;
}

TEST_F(matrices, identity_of_a_size) {
  EXPECT_EQ(matrix("Iden(3)"), "1 0 0; 0 1 0; 0 0 1");
  EXPECT_EQ(matrix("Iden(0)"), "Matrix Index Range");
  EXPECT_EQ(matrix("Iden(31)"), "Matrix Index Range");
  EXPECT_EQ(matrix("Iden(2.5)"), "Matrix Index Range");
  EXPECT_EQ(eval("Trace(Iden(30))"), "30");
}

TEST_F(matrices, resized_are_padded_with_zeros) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("Resize([A],3,1)"), "1; 3; 0");
  EXPECT_EQ(matrix("Resize([A],1,3)"), "1 2 0");
  EXPECT_EQ(matrix("Resize(Resize([A],1,1),2,2)"), "1 0; 0 0");
}

TEST_F(matrices, augmented_get_the_second_on_their_right) {
  define('A', "1 2; 3 4");
  define('B', "5; 6");
  define('C', "1 2");
  EXPECT_EQ(matrix("Augment([A],[B])"), "1 2 5; 3 4 6");
  EXPECT_EQ(matrix("Augment([A],[C])"), "Matrix Size Mismatch");
}

TEST_F(matrices, augmented_have_up_to_30_columns) {
  EXPECT_EQ(matrix("Augment(initMatrix(2,15,1),initMatrix(2,16,1))"), "Matrix Size Error");
  EXPECT_EQ(matrix("Augment(initMatrix(1,15,1),initMatrix(2,16,1))"), "Matrix Size Error");
  EXPECT_EQ(eval("colSize(Augment(initMatrix(2,15,1),initMatrix(2,15,1)))"), "30");
}

TEST_F(matrices, stacked_get_the_second_below) {
  define('A', "1 2; 3 4");
  define('B', "5 6");
  define('C', "1; 2");
  EXPECT_EQ(matrix("Stack([A],[B])"), "1 2; 3 4; 5 6");
  EXPECT_EQ(matrix("Stack([A],[C])"), "Matrix Size Mismatch");
}

TEST_F(matrices, stacked_have_up_to_30_rows) {
  EXPECT_EQ(matrix("Stack(initMatrix(16,2,1),initMatrix(15,2,1))"), "Matrix Size Error");
  EXPECT_EQ(matrix("Stack(initMatrix(16,2,1),initMatrix(15,3,1))"), "Matrix Size Error");
  EXPECT_EQ(eval("rowSize(Stack(initMatrix(15,2,1),initMatrix(15,2,1)))"), "30");
}

TEST_F(matrices, part_lies_between_two_corners) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  EXPECT_EQ(matrix("subMatrix([A],1,2,2,3)"), "2 3; 5 6");
  EXPECT_EQ(matrix("subMatrix([A],2,2,2,2)"), "5");
  EXPECT_EQ(matrix("subMatrix([A],1,1,3,3)"), "1 2 3; 4 5 6; 7 8 9");
}

TEST_F(matrices, part_swaps_rows_and_columns_each_on_their_own) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  EXPECT_EQ(matrix("subMatrix([A],2,2,1,3)"), "2 3; 5 6");
  EXPECT_EQ(matrix("subMatrix([A],1,3,2,2)"), "2 3; 5 6");
  EXPECT_EQ(matrix("subMatrix([A],2,3,1,2)"), "2 3; 5 6");
}

TEST_F(matrices, part_outside_is_refused) {
  define('A', "1 2 3; 4 5 6");
  for (const char* text : {"subMatrix([A],0,1,1,1)", "subMatrix([A],1,4,1,1)", "subMatrix([A],1,1,3,1)",
                           "subMatrix([A],1,1,1,0)", "subMatrix([A],1,1,1.5,1)"})
    EXPECT_EQ(matrix(text), "Matrix Index Range") << text;
}

TEST_F(matrices, replacement_is_written_over_from_a_position_on) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  define('B', "10 20; 30 40");
  EXPECT_EQ(matrix("Replace([A],[B],2,2)"), "1 2 3; 4 10 20; 7 30 40");
  EXPECT_EQ(matrix("Replace([A],[A],1,1)"), "1 2 3; 4 5 6; 7 8 9");
}

TEST_F(matrices, replacement_has_to_start_inside_and_to_fit) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  define('B', "10 20; 30 40");
  EXPECT_EQ(matrix("Replace([A],[B],3,1)"), "Matrix Size Error");
  EXPECT_EQ(matrix("Replace([A],[B],1,3)"), "Matrix Size Error");
  EXPECT_EQ(matrix("Replace([B],[A],1,1)"), "Matrix Size Error");
  EXPECT_EQ(matrix("Replace([A],[B],4,1)"), "Matrix Index Range");
  EXPECT_EQ(matrix("Replace([A],[B],1,0)"), "Matrix Index Range");
}

TEST_F(matrices, element_is_put_into_a_copy) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("putElem([A],2,1,-7)"), "1 2; -7 4");
  EXPECT_EQ(stored('A'), "1 2; 3 4");
  EXPECT_EQ(matrix("putElem([A],3,1,0)"), "Matrix Index Range");
  EXPECT_EQ(matrix("putElem([A],1,0,0)"), "Matrix Index Range");
}

TEST_F(matrices, diagonal_is_one_row) {
  define('A', "1 2; 3 4");
  define('B', "1 2 3");
  EXPECT_EQ(matrix("Diag([A])"), "1 4");
  EXPECT_EQ(matrix("Diag([B])"), "Matrix Not Square");
}

TEST_F(matrices, complex_arguments_of_functions_are_of_the_wrong_type) {
  define('A', "1 2; 3 4");
  for (const char* text : {"initMatrix(2,2,(i))", "putElem([A],1,1,(i))", "rowScale([A],1,(i))", "Iden((i))"})
    EXPECT_EQ(matrix(text), "Function Argument Type") << text;
}

}  // namespace zephyl
