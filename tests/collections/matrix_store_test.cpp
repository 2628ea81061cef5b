// The store of matrices, the answer, and matrices as lists.

#include "collections/matrices.h"
#include "collections/matrix_view.h"
#include "engine/hooks.h"
#include "engine/memory.h"

namespace zephyl {

namespace {

// What the hooks were told; a store's contents when it was announced.
int announced = -1;
double cell_when_announced = 0.0;
int globalized = -1;

void watch_stores() {
  hooks.about_to_store = [](int slot) {
    announced = slot;
    cell_when_announced = stores.matrices[slot - SLOT_MATRIX_A].cells[0][0];
  };
  hooks.make_global = [](int slot) { globalized = slot; };
}

}  // namespace

TEST_F(matrices, are_stored_and_are_the_answer) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("2*[A] -> [J]"), "2 4; 6 8");
  EXPECT_EQ(stored('J'), "2 4; 6 8");
  EXPECT_EQ(matrix("(M_Ans)+[J]"), "4 8; 12 16");
}

TEST_F(matrices, copy_onto_themselves_and_each_other) {
  define('A', "1 2; 3 4");
  EXPECT_EQ(matrix("[A] -> [A]"), "1 2; 3 4");
  EXPECT_EQ(matrix("[A] -> [B] -> [C]"), "1 2; 3 4");
  EXPECT_EQ(stored('B'), "1 2; 3 4");
  EXPECT_EQ(stored('C'), "1 2; 3 4");
}

TEST_F(matrices, store_copies_tiny_cells_as_they_stand) {
  define('A', "1 5e-15");
  matrix("[A] -> [B]");
  EXPECT_EQ(stored('B'), "1 5e-15");
  EXPECT_EQ(text_of_matrix(stores.matrices[ANSWER_RECORD]), "1 0");
}

TEST_F(matrices, are_stored_only_in_matrix_variables) {
  define('A', "1 2; 3 4");
  for (const char* text : {"[A] -> B", "[A] -> {A}", "[A] -> str1", "[A] -> (alpha)", "[A] -> xMin"})
    EXPECT_EQ(matrix(text), "Data Type Error") << text;
}

TEST_F(matrices, variables_take_nothing_else) {
  for (const char* text : {"5 -> [A]", "{1,2} -> [A]", "\"ab\" -> [A]"}) {
    EXPECT_EQ(matrix(text), "Data Type Error") << text;
    EXPECT_EQ(stored('A'), "undefined") << text;
  }
}

TEST_F(matrices, store_announces_itself_before_it_changes) {
  watch_stores();
  define('C', "1");
  matrix("Iden(2)*7 -> [C]");
  EXPECT_EQ(announced, SLOT_MATRIX_A + 2);
  EXPECT_EQ(cell_when_announced, 1.0);
  EXPECT_EQ(stored('C'), "7 0; 0 7");
}

TEST_F(matrices, direct_put_writes_into_the_store) {
  watch_stores();
  define('B', "1 2; 3 4");
  EXPECT_EQ(eval("putElemDirect([B],1,1,9)"), "9");
  EXPECT_EQ(stored('B'), "9 2; 3 4");
  EXPECT_EQ(announced, SLOT_MATRIX_A + 1);
  EXPECT_EQ(cell_when_announced, 1.0);
}

TEST_F(matrices, direct_put_needs_a_variable) {
  define('A', "1 2; 3 4");
  matrix("[A]+[A]");
  EXPECT_EQ(eval("putElemDirect([A]*1,1,1,9)"), "Function Argument Type");
  EXPECT_EQ(eval("putElemDirect((M_Ans),1,1,9)"), "Function Argument Type");
  EXPECT_EQ(eval("putElemDirect([A],3,1,9)"), "Matrix Index Range");
  EXPECT_EQ(eval("putElemDirect([A],1,3,9)"), "Matrix Index Range");
  EXPECT_EQ(eval("putElemDirect([J],1,1,9)"), "Matrix Size Not Defined");
  EXPECT_EQ(stored('A'), "1 2; 3 4");
}

TEST_F(matrices, out_copies_and_makes_variables_global) {
  watch_stores();
  define('D', "1 2");
  EXPECT_EQ(matrix("outMatrix([D])"), "1 2");
  EXPECT_EQ(globalized, SLOT_MATRIX_A + 3);
  globalized = -1;
  EXPECT_EQ(matrix("outMatrix([D]*2)"), "2 4");
  EXPECT_EQ(matrix("outMatrix((M_Ans))"), "2 4");
  EXPECT_EQ(globalized, -1);
}

TEST_F(matrices, become_lists_row_by_row) {
  define('A', "1 2; 3 5e-15");
  eval("matixToList([A])");
  const ListRecord& list = stores.lists[ANSWER_RECORD];
  ASSERT_EQ(list.last, 3);
  EXPECT_EQ(list.elements[1], (TValue{2.0, 0.0}));
  EXPECT_EQ(list.elements[3], (TValue{5e-15, 0.0}));
  EXPECT_EQ(eval("listSize(matixToList(initMatrix(30,30,1)))"), "900");
}

TEST_F(matrices, come_from_lists_row_by_row) {
  EXPECT_EQ(matrix("listToMatrix({1,2,3,4,5,6},2)"), "1 2 3; 4 5 6");
  EXPECT_EQ(matrix("listToMatrix({1,2,3,4,5,6},6)"), "1; 2; 3; 4; 5; 6");
  EXPECT_EQ(matrix("listToMatrix({1,5e-15},1)"), "1 0");
  EXPECT_EQ(matrix("listToMatrix(initList(900,0),30)"), matrix("initMatrix(30,30,0)"));
}

TEST_F(matrices, come_from_lists_that_fill_them) {
  for (const char* text :
       {"listToMatrix({1,2,3},2)", "listToMatrix({1,2,3},0)", "listToMatrix({1,2,3},31)",
        "listToMatrix({1,2,3},1.5)", "listToMatrix({1,2},3)", "listToMatrix(initList(31,0),1)"})
    EXPECT_EQ(matrix(text), "Matrix Size Error") << text;
  EXPECT_EQ(matrix("listToMatrix({1,(i)},1)"), "Data Type Error");
  EXPECT_EQ(matrix("listToMatrix({A},1)"), "List Size Not Defined");
}

TEST_F(matrices, operations_need_a_matrix) {
  for (const char* text : {"5^T", "{1,2}^T", "\"a\"^T"}) EXPECT_EQ(eval(text), "Data Type Error") << text;
  for (const char* text : {"Det(5)", "Det({1,2})", "rowSize(\"a\")", "Augment([A],1)", "matixToList({1,2})"})
    EXPECT_EQ(eval(text), "Function Argument Type") << text;
}

TEST_F(matrices, undefined_ones_are_reported_wherever_they_are_read) {
  define('B', "1 2; 3 4");
  for (const char* text : {"[A]",
                           "-[A]",
                           "[A]^T",
                           "[A]+[B]",
                           "[B]+[A]",
                           "[A]+1",
                           "[B]*[A]",
                           "2*[A]",
                           "[A]^2",
                           "[A]=[B]",
                           "[A] -> [B]",
                           "Det([A])",
                           "rowSize([A])",
                           "Round([A],1)",
                           "Augment([B],[A])",
                           "Replace([B],[A],1,1)",
                           "matixToList([A])",
                           "outMatrix([A])",
                           "solveLU([A])",
                           "eigenVal([A])",
                           "(M_Ans)",
                           "getElem([A],1,1)"})
    EXPECT_EQ(matrix(text), "Matrix Size Not Defined") << text;
  EXPECT_EQ(stored('B'), "1 2; 3 4");
}

TEST_F(matrices, view_goes_back_to_the_first_cell_with_a_clear) {
  define('C', "1 2; 3 4");
  define('D', "1");
  matrix_view.top_row[2] = matrix_view.left_col[2] = 5;
  matrix_view.cursor_row[2] = matrix_view.cursor_col[2] = 6;
  matrix_view.cursor_row[3] = 7;
  clear_stored_matrix(2);
  EXPECT_EQ(stored('C'), "undefined");
  EXPECT_EQ(matrix_view.top_row[2] + matrix_view.left_col[2], 0);
  EXPECT_EQ(matrix_view.cursor_row[2] + matrix_view.cursor_col[2], 0);
  EXPECT_EQ(matrix_view.cursor_row[3], 7);
  EXPECT_EQ(stored('D'), "1");
}

TEST_F(matrices, all_views_go_back_when_the_matrices_are_cleared) {
  define('C', "1 2; 3 4");
  for (int i = 0; i < STORE_COUNT; ++i) matrix_view.top_row[i] = matrix_view.cursor_col[i] = 3;
  eval("clrMem(3)");
  EXPECT_EQ(matrix_view.top_row[2], 3);
  eval("clrMem(4)");
  EXPECT_EQ(stored('C'), "undefined");
  for (int i = 0; i < STORE_COUNT; ++i) EXPECT_EQ(matrix_view.top_row[i] + matrix_view.cursor_col[i], 0) << i;
}

}  // namespace zephyl
