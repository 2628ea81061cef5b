// fnInt( and Error(. Values against a peer are in quadrature_peers_test.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "numerics/operators/quadrature.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class integral_operator : public calculator {
 protected:
  // How often the body ran, without its dry pass.
  int evaluations(const std::string& body, const std::string& rest) {
    memory_set_both(SLOT_CAPITAL_A, 0, 0);
    EXPECT_EQ(error_of("fnInt((A+1->A)*0+" + body + "," + rest + ")"), "") << body;
    return static_cast<int>(memory_get(SLOT_CAPITAL_A, 0)) - 1;
  }
};

TEST_F(integral_operator, of_a_square) {
  EXPECT_NEAR(value("fnInt(x^2,x,0,1)"), 1.0 / 3, 1e-15);
  const double error = value("Error(1)");
  EXPECT_GT(error, 0.0);
  EXPECT_LT(error, 1e-9);
}

TEST_F(integral_operator, there_is_no_error_estimate_before_any_integral) {
  EXPECT_EQ(value("Error(1)"), 0.0);
}

TEST_F(integral_operator, the_error_estimate_is_that_of_the_last_integral) {
  eval("fnInt(ln(x),x,0,1)");
  const double first = value("Error(1)");
  eval("fnInt(x,x,0,1)");
  EXPECT_NE(value("Error(1)"), first);
  eval("fnInt(1/x,x,-1,1)");
  EXPECT_NEAR(value("Error(1)"), 5e-15, 1e-15);
}

TEST_F(integral_operator, an_error_estimate_has_the_number_one) {
  for (const char* text : {"Error(0)", "Error(2)", "Error(1.5)", "Error(-1)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
}

TEST_F(integral_operator, bounds_the_other_way_round_change_the_sign) {
  EXPECT_EQ(value("fnInt(x,x,1,0)"), -0.5);
  EXPECT_GT(value("Error(1)"), 0.0);
}

TEST_F(integral_operator, between_equal_bounds_is_zero) {
  EXPECT_EQ(value("fnInt(x^2,x,3,3)"), 0.0);
  EXPECT_EQ(value("Error(1)"), 0.0);
}

TEST_F(integral_operator, one_rule_takes_61_samples) {
  EXPECT_EQ(evaluations("x^2", "x,0,1"), 61);
  EXPECT_EQ(evaluations("x^2", "x,1,1"), 61);
}

TEST_F(integral_operator, each_halving_takes_122_more) {
  EXPECT_EQ(evaluations("abs(x-0.5)", "x,0,1") % 122, 61);
}

TEST_F(integral_operator, an_absent_tolerance_and_0_are_a_thousand_millionth) {
  const int usual = evaluations("sqRt x", "x,0,1");
  EXPECT_EQ(evaluations("sqRt x", "x,0,1,0"), usual);
  EXPECT_EQ(evaluations("sqRt x", "x,0,1,1e-9"), usual);
  EXPECT_LT(evaluations("sqRt x", "x,0,1,0.001"), usual);
}

TEST_F(integral_operator, the_sign_of_the_tolerance_is_dropped) {
  EXPECT_EQ(evaluations("sqRt x", "x,0,1,-0.001"), evaluations("sqRt x", "x,0,1,0.001"));
}

TEST_F(integral_operator, a_tolerance_smaller_than_numbers_have_digits_counts_as_what_they_have) {
  EXPECT_NEAR(value("fnInt(e^x,x,0,1,1e-300)"), std::exp(1.0) - 1, 1e-14);
  EXPECT_GT(value("Error(1)"), 0.0);
}

TEST_F(integral_operator, the_tolerance_is_relative) {
  EXPECT_EQ(evaluations("1e20*sqRt x", "x,0,1"), evaluations("sqRt x", "x,0,1"));
  EXPECT_EQ(evaluations("1e-20*sqRt x", "x,0,1"), evaluations("sqRt x", "x,0,1"));
}

// A plot of an integral stays usable.
TEST_F(integral_operator, a_plot_raises_the_tolerance) {
  const auto plotted = [this](const std::string& tolerance) {
    eval("fnInt((A+1->A)*0+sqRt abs(sin(9*x)),x,0,1" + tolerance + ")");
    memory_set_both(SLOT_CAPITAL_A, 0, 0);
    run_compiled(last_compiled(), true);
    return memory_get(SLOT_CAPITAL_A, 0) - 1;
  };
  EXPECT_EQ(plotted(""), evaluations("sqRt abs(sin(9*x))", "x,0,1,0.002"));
  EXPECT_EQ(plotted(",1e-5"), plotted(""));
  EXPECT_EQ(plotted(",0.05"), evaluations("sqRt abs(sin(9*x))", "x,0,1,0.05"));
  EXPECT_LT(plotted(""), evaluations("sqRt abs(sin(9*x))", "x,0,1"));
}

TEST_F(integral_operator, singular_at_an_end) {
  EXPECT_NEAR(value("fnInt(1/sqRt x,x,0,1)"), 2.0, 1e-9);
  EXPECT_NEAR(value("fnInt(ln(x),x,0,1)"), -1.0, 1e-9);
  EXPECT_NEAR(value("fnInt(ln(x),x,1,0)"), 1.0, 1e-9);
}

TEST_F(integral_operator, a_divergent_integral_ends_with_an_estimate_and_a_large_error) {
  EXPECT_EQ(error_of("fnInt(1/x,x,0,1)"), "");
  EXPECT_GT(value("Error(1)"), 0.01);
}

TEST_F(integral_operator, two_hundred_intervals_at_most) {
  const int samples = evaluations("sin(1/x^2)", "x,0.0001,1");
  EXPECT_LE(samples, 61 * 399);
  EXPECT_GT(samples, 61 * 100);
  EXPECT_EQ(error_of("fnInt(sin(1/x^2),x,0.0001,1)"), "");
}

TEST_F(integral_operator, a_sample_that_faults_is_an_error) {
  EXPECT_EQ(error_of("fnInt(1/x,x,-1,1)"), "Division by Zero");
  EXPECT_EQ(error_of("fnInt(sqRt x,x,-1,1)"), "Domain Error");
  EXPECT_EQ(error_of("fnInt(1e300*x^2*1e100,x,1,2)"), "Overflow");
}

TEST_F(integral_operator, a_fault_of_the_dry_pass_is_forgiven) {
  eval("0->x");
  EXPECT_NEAR(value("fnInt(1/x,x,1,2)"), std::log(2.0), 1e-12);
  eval("-5->x");
  EXPECT_NEAR(value("fnInt(sqRt x,x,0,1)"), 2.0 / 3, 1e-9);
}

TEST_F(integral_operator, an_overflow_of_the_dry_pass_is_not) {
  eval("1e200->x");
  EXPECT_EQ(error_of("fnInt(x^2,x,0,1)"), "Overflow");
}

TEST_F(integral_operator, bounds_too_far_apart_overflow) {
  EXPECT_EQ(error_of("fnInt(x,x,-1e308,1e308)"), "Overflow");
  EXPECT_EQ(value("fnInt(0,x,0,1e308)"), 0.0);
  EXPECT_EQ(error_of("fnInt(1e200,x,0,1e200)"), "Overflow");
}

TEST_F(integral_operator, samples_and_bounds_are_real) {
  for (const char* text :
       {"fnInt((i)*x,x,0,1)", "fnInt(x,x,(i),1)", "fnInt(x,x,0,(i))", "fnInt(x,x,0,1,(i))"})
    EXPECT_EQ(error_of(text), "Function Argument Type") << text;
}

TEST_F(integral_operator, four_or_five_arguments) {
  EXPECT_EQ(error_of("fnInt(x,x,0)"), "Function Argument Count");
  EXPECT_EQ(error_of("fnInt(x,x,0,1,0.1,1)"), "Function Argument Count");
}

TEST_F(integral_operator, integrals_do_not_nest) {
  for (const char* text :
       {"fnInt(fnInt(x*y,y,0,1),x,0,1)", "fnInt(Summ(fnInt(x*y,y,0,1),R1,1,2),x,0,1)",
        "Summ(fnInt(fnEval(fnInt(y,y,0,1),z,1),x,0,1),R1,1,2)", "fnInt(1+fnInt(y,y,0,1),x,0,1)"})
    EXPECT_EQ(error_of(text), "Can't Nest fnInt()") << text;
}

TEST_F(integral_operator, an_integral_inside_any_other_operator_is_fine) {
  EXPECT_NEAR(value("Summ(fnInt(x*y,y,0,1),x,1,2)"), 1.5, 1e-12);
  EXPECT_NEAR(value("fnRoot(fnInt(y,y,0,x)-2,x,1,3)"), 2.0, 1e-12);
  EXPECT_NEAR(value("fnDeriv(fnInt(y^2,y,0,x),x,3)"), 9.0, 1e-6);
  EXPECT_NEAR(value("fnInt(x,x,0,1)+fnInt(x^2,x,0,1)"), 5.0 / 6, 1e-12);
}

TEST_F(integral_operator, any_other_operator_inside_an_integral_is_fine) {
  EXPECT_NEAR(value("fnInt(Summ(x^y,y,1,2),x,0,1)"), 5.0 / 6, 1e-12);
  EXPECT_NEAR(value("fnInt(fnDeriv(y^2,y,x),x,0,1)"), 1.0, 1e-9);
}

TEST_F(integral_operator, after_a_failed_integral_another_one_runs) {
  EXPECT_EQ(error_of("fnInt(1/x,x,-1,1)"), "Division by Zero");
  EXPECT_NEAR(value("Summ(fnInt(x,x,0,1),y,1,2)"), 1.0, 1e-12);
}

TEST(quadrature, the_rule_is_exact_for_polynomials_to_degree_91) {
  for (int degree = 0; degree <= 91; ++degree) {
    TGaussKronrod rule;
    double x = rule.start(0, 1);
    while (rule.next(std::pow(x, degree), x)) {
    }
    EXPECT_NEAR(rule.result().integral, 1.0 / (degree + 1), 1e-15) << degree;
  }
}

TEST(quadrature, outer_nodes_and_centre) {
  TGaussKronrod rule;
  double least = 0, place = rule.start(-1, 1);
  EXPECT_EQ(place, 0.0);
  while (rule.next(1.0, place)) least = std::fmin(least, place);
  EXPECT_EQ(least, -0.9994844100504906);
}

}  // namespace
}  // namespace zephyl
