// Work on single rows and columns.

#include "collections/matrices.h"
#include "engine/memory.h"

namespace zephyl {

TEST_F(matrices, lines_are_exchanged) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  EXPECT_EQ(matrix("rowSwap([A],1,3)"), "7 8 9; 4 5 6; 1 2 3");
  EXPECT_EQ(matrix("colSwap([A],2,1)"), "2 1 3; 5 4 6; 8 7 9");
  EXPECT_EQ(matrix("rowSwap([A],2,2)"), "1 2 3; 4 5 6; 7 8 9");
}

TEST_F(matrices, lines_are_scaled) {
  define('A', "1 2; 3 4; 5 6");
  EXPECT_EQ(matrix("rowScale([A],3,10)"), "1 2; 3 4; 50 60");
  EXPECT_EQ(matrix("colScale([A],2,-1)"), "1 -2; 3 -4; 5 -6");
}

TEST_F(matrices, multiple_of_a_line_is_added_to_another) {
  define('A', "1 2; 3 4; 5 6");
  EXPECT_EQ(matrix("rowScaleAdd([A],1,3,10)"), "1 2; 3 4; 15 26");
  EXPECT_EQ(matrix("colScaleAdd([A],2,1,10)"), "21 2; 43 4; 65 6");
  EXPECT_EQ(matrix("rowScaleAdd([A],1,1,2)"), "3 6; 3 4; 5 6");
}

TEST_F(matrices, lines_are_deleted) {
  define('A', "1 2 3; 4 5 6; 7 8 9");
  EXPECT_EQ(matrix("rowDel([A],1)"), "4 5 6; 7 8 9");
  EXPECT_EQ(matrix("rowDel([A],3)"), "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("colDel([A],2)"), "1 3; 4 6; 7 9");
}

TEST_F(matrices, without_their_last_line_are_undefined) {
  define('A', "1 2 3");
  define('B', "1; 2");
  EXPECT_EQ(matrix("rowDel([A],1)+[A]"), "Matrix Size Not Defined");
  EXPECT_EQ(matrix("colDel([B],1)*2"), "Matrix Size Not Defined");
  EXPECT_EQ(matrix("rowDel([A],1) -> [C]"), "Matrix Size Not Defined");
  EXPECT_EQ(stored('C'), "undefined");
}

TEST_F(matrices, a_result_without_a_size_leaves_the_answers_as_they_were) {
  define('A', "1 2 3");
  eval("42");
  EXPECT_EQ(error_of("rowDel([A],1)"), "Matrix Size Not Defined");
  EXPECT_FALSE(answers.m_ans_valid);
  EXPECT_EQ(answers.ans.re, 42.0);
  matrix("[A]");
  EXPECT_EQ(error_of("solveQR(initMatrix(2,1,5))"), "Matrix Size Not Defined");
  EXPECT_EQ(text_of_matrix(stores.matrices[ANSWER_RECORD]), "1 2 3");
}

TEST_F(matrices, lines_outside_are_refused) {
  define('A', "1 2 3; 4 5 6");
  for (const char* text : {"rowSwap([A],0,1)", "rowSwap([A],1,3)", "rowSwap([A],1.5,1)", "colSwap([A],4,1)",
                           "colSwap([A],1,0)", "rowScale([A],3,1)", "colScale([A],4,1)", "colScale([A],-1,1)",
                           "rowScaleAdd([A],3,1,1)", "rowScaleAdd([A],1,3,1)", "colScaleAdd([A],4,1,1)",
                           "colScaleAdd([A],1,1e10,1)", "rowDel([A],3)", "rowDel([A],0)", "colDel([A],4)"})
    EXPECT_EQ(matrix(text), "Matrix Index Range") << text;
}

TEST_F(matrices, last_lines_are_within_range) {
  define('A', "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("colSwap([A],3,1)"), "3 2 1; 6 5 4");
  EXPECT_EQ(matrix("rowScale([A],2,0)"), "1 2 3; 0 0 0");
}

TEST_F(matrices, operand_stays_as_it_was) {
  define('A', "1 2; 3 4");
  for (const char* text :
       {"rowSwap([A],1,2)", "rowDel([A],1)", "colScale([A],1,9)", "putElem([A],1,1,9)", "rref([A])",
        "LU_L([A])", "QR_R([A])", "SVD_U([A])", "eigenVec([A])", "[A]^3", "-[A]"}) {
    matrix(text);
    EXPECT_EQ(stored('A'), "1 2; 3 4") << text;
  }
}

}  // namespace zephyl
