// Summ(, Prod(, Seq( and fnEval(.
#include <gtest/gtest.h>

#include "engine/memory.h"
#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class counting_operators : public calculator {
 protected:
  // The list that an expression gives, as "1, 2, 3".
  std::string list(const std::string& text) {
    EXPECT_EQ(error_of(text), "") << text;
    const ListRecord& answer = stores.lists[ANSWER_RECORD];
    if (!answers.l_ans_valid || !answer.defined) return "no list";
    std::string out;
    for (int i = 0; i <= answer.last; ++i) {
      char digits[60];
      std::snprintf(digits, sizeof digits, "%s%.10g", i ? ", " : "", answer.elements[i].re);
      out += digits;
      if (answer.elements[i].im == 0.0) continue;
      std::snprintf(digits, sizeof digits, "%+.10gi", answer.elements[i].im);
      out += digits;
    }
    return out;
  }
};

TEST_F(counting_operators, a_sum_of_squares) { EXPECT_EQ(value("Summ(x^2,x,1,10)"), 385.0); }
TEST_F(counting_operators, a_product_of_squares) { EXPECT_EQ(value("Prod(x^2,x,1,5)"), 14400.0); }

TEST_F(counting_operators, counts_down_where_the_start_lies_above_the_end) {
  EXPECT_EQ(value("Summ(x,x,5,1)"), 15.0);
  EXPECT_EQ(value("Prod(x,x,3,1)"), 6.0);
  EXPECT_EQ(list("Seq(x,x,3,-1)"), "3, 2, 1, 0, -1");
}

TEST_F(counting_operators, equal_bounds_are_one_round) {
  EXPECT_EQ(value("Summ(x^2,x,7,7)"), 49.0);
  EXPECT_EQ(value("Prod(x,x,7,7)"), 7.0);
  EXPECT_EQ(list("Seq(x,x,7,7)"), "7");
}

TEST_F(counting_operators, the_expression_runs_once_dry_and_once_a_round) {
  eval("0->A");
  eval("Summ((A+1->A)*0+x,x,1,10)");
  EXPECT_EQ(value("A"), 11.0);
}

TEST_F(counting_operators, complex_terms) {
  EXPECT_EQ(value("Summ(x+x*(i),x,1,3)"), 6.0);
  EXPECT_EQ(imaginary("Summ(x+x*(i),x,1,3)"), 6.0);
  EXPECT_EQ(imaginary("Prod((i),x,1,3)"), -1.0);
}

TEST_F(counting_operators, bounds_are_integers_within_a_thousand_million) {
  for (const char* name : {"Summ", "Prod", "Seq"})
    for (const char* bounds : {"1.5,2", "1,2.5", "1000000001,1", "1,-1000000001", "1e308,1", "1,1e308"}) {
      const std::string text = std::string(name) + "(x,x," + bounds + ")";
      EXPECT_EQ(error_of(text), "Domain Error") << text;
    }
}

TEST_F(counting_operators, bounds_are_real) {
  EXPECT_EQ(error_of("Summ(x,x,(i),2)"), "Function Argument Type");
  EXPECT_EQ(error_of("Seq(x,x,1,2+(i))"), "Function Argument Type");
}

TEST_F(counting_operators, bounds_are_read_before_the_variable_moves) {
  eval("3->x");
  EXPECT_EQ(value("Summ(x,x,1,x)"), 6.0);
  EXPECT_EQ(value("Summ(x,x,x,5)"), 12.0);
}

TEST_F(counting_operators, bounds_may_be_operators) {
  EXPECT_EQ(value("Summ(x,x,Summ(y,y,1,2),5)"), 12.0);
  EXPECT_EQ(value("Summ(x,x,1,Summ(y,y,1,2))"), 6.0);
  EXPECT_EQ(value("Summ(x,x,Summ(x,x,1,2),Prod(x,x,1,3))"), 18.0);
}

TEST_F(counting_operators, a_term_that_faults_stops_the_sum) {
  EXPECT_EQ(error_of("Summ(1/x,x,-1,1)"), "Division by Zero");
  EXPECT_EQ(error_of("Summ(ln(x),x,1,-1)"), "Domain Error");
  EXPECT_EQ(error_of("Prod(sqRt x,x,1,-1)"), "Domain Error");
}

TEST_F(counting_operators, sums_and_products_overflow) {
  EXPECT_EQ(error_of("Summ(1e308*x,x,1,2)"), "Overflow");
  EXPECT_EQ(error_of("Summ(1e308,x,1,2)"), "Overflow");
  EXPECT_EQ(error_of("Prod(x,x,1,200)"), "Overflow");
}

TEST_F(counting_operators, a_million_terms) {
  EXPECT_NEAR(value("Summ(x^2,x,1,1000000)"), 333333833333500000.0, 1e6);
}

// --- Seq(

TEST_F(counting_operators, a_sequence_is_a_list) { EXPECT_EQ(list("Seq(x^2,x,1,5)"), "1, 4, 9, 16, 25"); }

TEST_F(counting_operators, a_sequence_may_be_complex) { EXPECT_EQ(list("Seq(x*(i)+1,x,1,2)"), "1+1i, 1+2i"); }

TEST_F(counting_operators, a_sequence_goes_on_in_an_expression) {
  EXPECT_EQ(value("listSum(Seq(x,x,1,10))"), 55.0);
  EXPECT_EQ(list("2*Seq(x,x,1,3)+{1,1,1}"), "3, 5, 7");
  EXPECT_EQ(list("Seq(x,x,1,3)+Seq(y,y,4,6)"), "5, 7, 9");
}

TEST_F(counting_operators, a_sequence_of_999_fits_and_one_of_1000_does_not) {
  EXPECT_EQ(value("listSize(Seq(x,x,1,999))"), 999.0);
  EXPECT_EQ(error_of("Seq(x,x,1,1000)"), "List Size Error");
  EXPECT_EQ(error_of("Seq(x,x,0,999)"), "List Size Error");
}

TEST_F(counting_operators, a_sequence_in_a_register_without_a_list_is_out_of_memory) {
  std::string waiting;
  for (int i = 0; i < 9; ++i) waiting += "{1,2}+";
  EXPECT_EQ(list(waiting + "Seq(x,x,1,2)"), "10, 20");
  EXPECT_EQ(error_of(waiting + "{1,2}+Seq(x,x,1,2)"), "Memory Limit Error");
}

TEST_F(counting_operators, a_sequence_may_use_the_list_that_it_replaces) {
  eval("Seq(x,x,1,4)->{A}");
  EXPECT_EQ(list("Seq(getListElem({A},x)*10,x,4,1)->{A}"), "40, 30, 20, 10");
}

// --- fnEval(

TEST_F(counting_operators, an_expression_at_a_place) {
  eval("7->x");
  EXPECT_EQ(value("fnEval(x^2+1,x,3)"), 10.0);
  EXPECT_EQ(value("x"), 7.0);
}

TEST_F(counting_operators, a_place_may_be_complex) {
  EXPECT_NEAR(value("fnEval(x^2,x,2+(i))"), 3.0, 1e-14);
  EXPECT_NEAR(imaginary("fnEval(x^2,x,2+(i))"), 4.0, 1e-14);
}

TEST_F(counting_operators, the_place_alone_must_be_in_the_domain) {
  eval("0->x");
  EXPECT_EQ(value("fnEval(1/x,x,4)"), 0.25);
  EXPECT_EQ(error_of("fnEval(1/x,x,0)"), "Division by Zero");
}

TEST_F(counting_operators, the_variable_must_be_a_scalar_memory) {
  for (const char* text :
       {"fnEval(x,3,3)", "fnEval(x,[A],3)", "fnEval(x,{A},3)", "Summ(x,x+1,1,2)", "Summ(x,Ans,1,2)"})
    EXPECT_EQ(error_of(text), "Function Argument Type") << text;
}

TEST_F(counting_operators, any_scalar_memory_serves_as_the_variable) {
  for (const char* name : {"A", "z", "R5", "(theta)", "(Omega)"})
    EXPECT_EQ(value("Summ(" + std::string(name) + "^2," + name + ",1,3)"), 14.0) << name;
}

TEST_F(counting_operators, a_list_is_no_value_of_an_expression) {
  for (const char* text : {"fnEval({1,2},x,3)", "Summ({1,2},x,1,3)", "Seq({1,2},x,1,3)", "Prod({x,x},x,1,2)"})
    EXPECT_EQ(error_of(text), "Function Argument Type") << text;
}

TEST_F(counting_operators, neither_a_matrix_nor_a_string_is_a_value_of_an_expression) {
  for (const char* text : {"fnEval(Iden(2),x,3)", "Summ([A],x,1,3)", "Seq(\"a\",x,1,3)", "fnInt([A],x,0,1)",
                           "fnRoot(Iden(2)*x,x,0,1)", "fnDeriv(str1,x,0)"})
    EXPECT_EQ(error_of(text), "Function Argument Type") << text;
}

}  // namespace
}  // namespace zephyl
