// Nothing is asked of the heap while an expression is compiled, walked and its result formatted: from every
// family expressions on the largest lists and matrices, the numeric operators, and errors in the middle.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "allocation/counted.h"
#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/format.h"
#include "engine/memory.h"
#include "engine/text_form.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

// {A} and {B}: the largest lists, real and complex; {C}: 64 elements; [A] and [B]: the largest matrices,
// without and with symmetry; [C]: 29 equations; str1: a text.
class without_the_heap : public calculator {
 protected:
  without_the_heap() {
    for (const char* text : {"randSeed(0.5)", "Seq(sin(x),x,1,999)->{A}", "Seq(x+(i)*cos(x),x,1,999)->{B}",
                             "Seq(x*(i)-3,x,1,64)->{C}", "randMatrix(30,30)+Iden(30)*40->[A]",
                             "[A]+[A]^T->[B]", "randMatrix(29,30)->[C]", "\"abcdefgh\"->str1", "2->statsVar",
                             "listToX(subList({A},1,50))", "listToY(subList({A},2,51))"})
      EXPECT_EQ(error_of(text), "") << text;
  }

  // How often the heap was asked between the tokens and the text of the result.
  std::size_t requests_of(const std::string& text) {
    TExpression expression;
    char complaint[200] = "";
    EXPECT_TRUE(text_to_tokens(text.c_str(), expression, complaint, sizeof complaint)) << complaint;
    clear_error();
    const std::size_t before = heap_requests();
    compile_expression(expression, *compiled_);
    run_compiled(*compiled_, false);
    format_result(answers.ans.re, answers.ans.im, true, false);
    return heap_requests() - before;
  }

  void expect_none(const std::vector<std::string>& texts, bool with_errors = false) {
    for (const std::string& text : texts) {
      EXPECT_EQ(requests_of(text), 0u) << text;
      EXPECT_EQ(errors.error_flag, with_errors) << text << ": " << errors.error_text;
    }
  }

  std::unique_ptr<TCompiled> compiled_ = std::make_unique<TCompiled>();
};

TEST_F(without_the_heap, requests_are_counted_at_all) {
  const std::size_t before = heap_requests();
  const std::string by_new(100, 'a');
  EXPECT_GT(heap_requests(), before);
  const std::size_t between = heap_requests();
  void* volatile by_malloc = std::malloc(100);
  EXPECT_GT(heap_requests(), between);
  std::free(by_malloc);
}

TEST_F(without_the_heap, numbers) {
  expect_none({"2+sin(30)*3^2", "sqRt 2*cubeRt 5+e^1.5-ln(7)/log(3)",
               "(2+3(i))^(1+(i))*asin(2+(i))/Gamma(1+(i))", "170!/nCr(60,30)", "7->A", "A*A+Ans",
               "Round(2.345,2)+Trunc(-7.89,1)+fmod(7,3)", "1e200*1e-250", "(Rand)"});
}

TEST_F(without_the_heap, special_functions_and_distributions) {
  expect_none({"Gamma(4.5)+Beta(2,3)+Jn(2.5,7)+Yn(0,1)", "normalCdf(-1,1,0,1)+tCdf(-1,1,5)+FCdf(0,2,3,4)",
               "binomCdf(3,20,0.5)+poissonCdf(3,5)+gammaCdf(0,3,2,1)+weibullCdf(0,1,2,3)",
               "randInt(1,6)+randNorm(0,1)+randPois(20)+randBin(0.4,100)"});
}

TEST_F(without_the_heap, operators_over_expressions) {
  expect_none({"fnInt(sin(x)*e^x,x,0,1)", "fnInt(1/sqRt x,x,0,1)", "fnDeriv(x^3,x,5)",
               "fnRoot(e^x-x-2,x,1,2)", "fnMin(sin(x),x,-3,3)", "Summ(x^2,x,1,1000)", "Prod(x,x,1,20)",
               "fnEval(x^2,x,(i))", "Seq(x*(i),x,1,999)", "Summ(fnInt(x*y,y,0,1),x,1,3)"});
}

TEST_F(without_the_heap, dates_statistics_and_money) {
  expect_none({"DATE()+TIME()", "deltaDAYS(2005.0101,DATE+(2005.0101,100))", "dayOfWeek(2024.0101)",
               "(xMean)+(xSD-1)+(slope)+(stat 19)", "3 ry ", "entStats(5)", "XtoList()",
               "tvmI%YR(360,200000,-1200,0,12,12)", "toEFF(6.7,4)", "Balancee(12)",
               "IRR(-180000,{100000,-100000,0,200000},{5,5,9,1})", "NPV(5,-100,{50,60,70})"});
}

TEST_F(without_the_heap, lists) {
  expect_none({"{1,2,3}+{4,5,6}",
               "sin({A})*{B}",
               "{B}",
               "sortA({A})",
               "sortKeyInit({B})",
               "sortKey(sortKeyInit({A}),{B})",
               "DFT({A})",
               "IDFT({B})",
               "DFT({C})",
               "cumSum({B})",
               "deltaList({A})",
               "listMedian({A})",
               "listStdDev({A})+listVariance({B})",
               "augList({C},{C})",
               "subList({A},5,900)",
               "reverse({B})",
               "listResize({C},999)",
               "delSubList({A},2,998)",
               "listToMatrix({C}-{C},8)",
               "{A}->{D}",
               "putListElemDir({D},3,7)",
               "swapListElem({A},1,999)",
               "{A}={B}"});
}

TEST_F(without_the_heap, matrices) {
  expect_none({"[A]*[B]-[A]",
               "[A]^5",
               "[A]^-1",
               "[A]/[B]",
               "[A]^T",
               "Det([A])",
               "LU_L([A])",
               "LU_U([A])",
               "LU_P([A])",
               "QR_Q([A])",
               "QR_R([A])",
               "SVD_U([A])",
               "SVD_V([A])",
               "SVL([A])",
               "Rank([A])+Cond([A])",
               "eigenVal([A])",
               "eigenVec([A])",
               "eigenVal([B])",
               "eigenVec([B])",
               "solveLU([C])",
               "solveQR([C])",
               "solveSV([C])",
               "rref([C])",
               "Round([A]/7,3)",
               "subMatrix([A],2,3,20,21)",
               "rowSwap([A],1,30)",
               "matixToList(subMatrix([A],1,1,30,30))",
               "[A]->[D]",
               "putElemDirect([D],1,1,5)",
               "randMatrix(30,30)"});
}

TEST_F(without_the_heap, strings) {
  expect_none({"\"abc\"+str1", "strSub(str1,2,3)", "strPos(str1,\"fgh\")", "stringToList(str1)",
               "listToString({72,105})", "numToString(2.5+(i))", "str1=\"abcdefgh\"", "str1->str2"});
}

TEST_F(without_the_heap, errors) {
  expect_none(
      {"1/0", "2+*3", "{1,2}+{1,2,3}", "[A]*subMatrix([A],1,1,2,2)", "sin(1,2)", "fnInt(1/(x-x),x,0,1)",
       "Summ(1/(x-5),x,1,10)", "\"a\"+1", "initList(1000,0)", "DATE+(2005.1301,1)"},
      true);
}

}  // namespace

}  // namespace zephyl
