// Scalar functions on each cell.

#include "collections/matrices.h"

namespace zephyl {

TEST_F(matrices, take_scalar_functions_cell_by_cell) {
  define('A', "-2.5 0; 1.25 300");
  const TExample examples[] = {{"Sign([A])", "-1 0; 1 1"},          {"iPart([A])", "-2 0; 1 300"},
                               {"fPart([A])", "-0.5 0; 0.25 0"},    {"Floor([A])", "-3 0; 1 300"},
                               {"Ceil([A])", "-2 0; 2 300"},        {"abs([A])", "2.5 0; 1.25 300"},
                               {"Mant([A])", "2.5 0; 1.25 3"},      {"Xpon([A])", "0 0; 0 2"},
                               {"Round([A],0)", "-3 0; 1 300"},     {"Round([A],1)", "-2.5 0; 1.3 300"},
                               {"Trunc([A],1)", "-2.5 0; 1.2 300"}, {"Trunc([A],-2)", "0 0; 0 300"}};
  for (const TExample& example : examples) EXPECT_EQ(matrix(example.text), example.result) << example.text;
}

TEST_F(matrices, round_as_the_numbers_do) {
  define('A', "2.675 -0.123456789012; 1e-7 123456.5");
  for (int digits = 0; digits <= 10; ++digits) {
    matrix("Round([A]," + std::to_string(digits) + ")");
    const MatrixRecord rounded = stores.matrices[ANSWER_RECORD];
    EXPECT_EQ(rounded.cells[0][0], value("Round(2.675," + std::to_string(digits) + ")"));
    EXPECT_EQ(rounded.cells[0][1], value("Round(-0.123456789012," + std::to_string(digits) + ")"));
    EXPECT_EQ(rounded.cells[1][1], value("Round(123456.5," + std::to_string(digits) + ")"));
  }
}

TEST_F(matrices, round_to_0_to_10_digits) {
  define('A', "1.5");
  for (const char* text : {"Round([A],11)", "Round([A],-1)", "Round([A],0.5)"})
    EXPECT_EQ(matrix(text), "Domain Error") << text;
  EXPECT_EQ(matrix("Round([A],10)"), "1.5");
}

TEST_F(matrices, truncate_to_minus_99_to_100_digits) {
  define('A', "1.5");
  for (const char* text : {"Trunc([A],101)", "Trunc([A],-100)", "Trunc([A],0.5)"})
    EXPECT_EQ(matrix(text), "Domain Error") << text;
  EXPECT_EQ(matrix("Trunc([A],-99)"), "0");
  matrix("Trunc([A],100)");
  EXPECT_EQ(stores.matrices[ANSWER_RECORD].cells[0][0], value("Trunc(1.5,100)"));
}

TEST_F(matrices, overflow_in_a_cell_is_an_error) {
  define('A', "1e300");
  EXPECT_EQ(matrix("Trunc([A],100)"), "Overflow");
}

TEST_F(matrices, have_no_list_of_digits) {
  define('A', "1.5");
  EXPECT_EQ(matrix("Round([A],{1,2})"), "Data Type Error");
  EXPECT_EQ(matrix("Round(1.5,[A])"), "Function Argument Type");
}

TEST_F(matrices, take_no_other_scalar_functions) {
  define('A', "1");
  for (const char* text : {"sin([A])", "ln([A])", "Gamma([A])", "Max([A],1)"})
    EXPECT_EQ(matrix(text), "Function Argument Type") << text;
}

}  // namespace zephyl
