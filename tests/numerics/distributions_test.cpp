// Each density and distribution function: a value, every check of its arguments, and what its formula does at
// the edges. How close the values come is in distributions_peers_test.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr double pi = 3.141592653589793;

class distributions : public calculator {
 protected:
  void expect(const std::string& text, double expected) {
    EXPECT_NEAR(value(text), expected, 1e-9 * std::fabs(expected) + 1e-15) << text;
  }
  void expect_domain_errors(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) EXPECT_EQ(error_of(text), "Domain Error") << text;
  }
};

TEST_F(distributions, normal_density) {
  expect("normalPdf(0,0,1)", 1 / std::sqrt(2 * pi));
  expect("normalPdf(5,3,2)", std::exp(-0.5) / (2 * std::sqrt(2 * pi)));
}

TEST_F(distributions, normal_distribution) {
  expect("normalCdf(-1,1,0,1)", std::erf(std::sqrt(0.5)));
  expect("normalCdf(3,5,3,2)", 0.5 * std::erf(std::sqrt(0.5)));
}

TEST_F(distributions, normal_distribution_takes_its_bounds_in_either_order) {
  expect("normalCdf(1,-1,0,1)", std::erf(std::sqrt(0.5)));
}

TEST_F(distributions, normal_distribution_between_equal_bounds_is_zero) {
  EXPECT_EQ(value("normalCdf(0,0,0,1)"), 0.0);
}

TEST_F(distributions, the_standard_deviation_must_be_positive) {
  expect_domain_errors(
      {"normalPdf(0,0,0)", "normalPdf(0,0,-1)", "normalCdf(0,1,0,0)", "normalCdf(0,1,0,-1)"});
}

TEST_F(distributions, a_distance_too_large_to_square_overflows) {
  EXPECT_EQ(error_of("normalPdf(1e200,0,1)"), "Overflow");
}

TEST_F(distributions, t_density) {
  expect("tPdf(0,1)", 1 / pi);
  expect("tPdf(1,1)", 1 / (2 * pi));
}

TEST_F(distributions, t_density_of_many_degrees_of_freedom_overflows_in_its_gamma_functions) {
  EXPECT_EQ(error_of("tPdf(1,400)"), "Overflow");
}

TEST_F(distributions, t_distribution) {
  expect("tCdf(-1,1,1)", 0.5);
  expect("tCdf(0,1,1)", 0.25);
  expect("tCdf(1,0,1)", 0.25);
}

TEST_F(distributions, t_distribution_between_equal_bounds_is_zero) { EXPECT_EQ(value("tCdf(0,0,3)"), 0.0); }

TEST_F(distributions, degrees_of_freedom_of_t_must_be_positive) {
  expect_domain_errors({"tPdf(1,0)", "tPdf(1,-2)", "tCdf(0,1,0)", "tCdf(0,1,-1)"});
}

TEST_F(distributions, chi_square_density) {
  expect("chiSqPdf(2,2)", 0.5 * std::exp(-1.0));
  expect("chiSqPdf(0,2)", 0.5);
  EXPECT_EQ(value("chiSqPdf(0,3)"), 0.0);
}

TEST_F(distributions, chi_square_density_of_one_degree_has_no_value_at_zero) {
  EXPECT_EQ(error_of("chiSqPdf(0,1)"), "Domain Error");
}

TEST_F(distributions, chi_square_checks) {
  expect_domain_errors({"chiSqPdf(-1,2)", "chiSqPdf(1,0)", "chiSqPdf(1,2.5)", "chiSqPdf(1,2e9)"});
}

TEST_F(distributions, chi_square_distribution_can_not_be_called) {
  EXPECT_EQ(error_of("chiSqCdf(1,2,3)"), "Function Argument Type");
  EXPECT_EQ(error_of("chiSqCdf(1,2)"), "Function Argument Count");
  EXPECT_EQ(error_of("chiSqCdf(1,2,3,4)"), "Function Argument Count");
}

TEST_F(distributions, f_density) {
  expect("FPdf(1,2,2)", 0.25);
  expect("FPdf(1,2,3)", 0.278854800927);
}

TEST_F(distributions, f_distribution) {
  expect("FCdf(0,1,2,2)", 0.5);
  expect("FCdf(1,0,2,2)", 0.5);
  EXPECT_EQ(value("FCdf(0,0,2,2)"), 0.0);
}

TEST_F(distributions, f_checks) {
  expect_domain_errors({"FPdf(-1,2,2)", "FPdf(1,0,2)", "FPdf(1,2,0)", "FPdf(1,1.5,2)", "FPdf(1,2,1.5)",
                        "FCdf(-1,1,2,2)", "FCdf(1,-1,2,2)", "FCdf(0,1,0,2)", "FCdf(0,1,2,0.5)"});
}

TEST_F(distributions, f_distribution_of_a_bound_too_small_to_see_is_one) {
  EXPECT_EQ(value("FCdf(0,1e-18,2,3)"), 1.0);
  EXPECT_EQ(value("FCdf(0,1e-21,2,3)"), 0.0);
}

TEST_F(distributions, binomial_density) {
  expect("binomPdf(3,5,0.5)", 10.0 / 32);
  expect("binomPdf(2,4,0.25)", 6 * 0.0625 * 0.5625);
  EXPECT_EQ(value("binomPdf(0,1,0)"), 1.0);
  EXPECT_EQ(value("binomPdf(1,1,1)"), 1.0);
}

TEST_F(distributions, binomial_density_ends_where_the_factorials_end) {
  EXPECT_EQ(error_of("binomPdf(3,200,0.5)"), "Overflow");
  expect("binomPdf(3,170,0.01)", 0.15016584184118);
}

TEST_F(distributions, binomial_density_checks) {
  expect_domain_errors({"binomPdf(1,2,-0.1)", "binomPdf(1,2,1.1)", "binomPdf(-1,2,0.5)",
                        "binomPdf(1.5,2,0.5)", "binomPdf(0,0,0.5)", "binomPdf(1,2.5,0.5)",
                        "binomPdf(5,3,0.5)"});
}

TEST_F(distributions, binomial_distribution) {
  expect("binomCdf(2,5,0.5)", 0.5);
  expect("binomCdf(0,5,0.2)", std::pow(0.8, 5));
  EXPECT_EQ(value("binomCdf(2,5,0)"), 1.0);
}

TEST_F(distributions, binomial_distribution_of_a_certain_success_is_one) {
  EXPECT_EQ(value("binomCdf(2,5,1)"), 1.0);
}

TEST_F(distributions, binomial_distribution_of_all_trials_divides_by_zero) {
  EXPECT_EQ(error_of("binomCdf(5,5,0.5)"), "Division by Zero");
}

TEST_F(distributions, binomial_distribution_checks_its_probability_alone) {
  expect_domain_errors({"binomCdf(2,5,-0.1)", "binomCdf(2,5,1.1)"});
  expect("binomCdf(2.5,5,0.5)", 0.6697652726);
}

TEST_F(distributions, a_binomial_distribution_that_does_not_converge_is_minus_one) {
  EXPECT_EQ(value("binomCdf(1000000,2000001,0.5)"), -1.0);
}

TEST_F(distributions, poisson_density) {
  expect("poissonPdf(2,3)", 4.5 * std::exp(-3.0));
  expect("poissonPdf(0,3)", std::exp(-3.0));
  EXPECT_EQ(error_of("poissonPdf(171,1)"), "Overflow");
}

TEST_F(distributions, poisson_distribution) {
  expect("poissonCdf(0,1)", std::exp(-1.0));
  expect("poissonCdf(2,3)", 8.5 * std::exp(-3.0));
}

TEST_F(distributions, poisson_checks) {
  expect_domain_errors({"poissonPdf(1,0)", "poissonPdf(1,-1)", "poissonPdf(-1,1)", "poissonPdf(1.5,1)",
                        "poissonCdf(1,0)", "poissonCdf(1,-1)", "poissonCdf(-1,1)", "poissonCdf(1.5,1)"});
}

TEST_F(distributions, a_poisson_distribution_that_does_not_converge_is_minus_one) {
  EXPECT_EQ(value("poissonCdf(5000,5000)"), -1.0);
}

TEST_F(distributions, geometric) {
  expect("geometPdf(3,0.5)", 0.125);
  EXPECT_EQ(value("geometPdf(1,1)"), 1.0);
  expect("geometCdf(3,0.5)", 0.875);
  EXPECT_EQ(value("geometCdf(3,0)"), 0.0);
}

TEST_F(distributions, geometric_checks) {
  expect_domain_errors({"geometPdf(0,0.5)", "geometPdf(1.5,0.5)", "geometPdf(1,1.1)", "geometPdf(1,-0.1)",
                        "geometCdf(0,0.5)", "geometCdf(2.5,0.5)", "geometCdf(1,2)", "geometCdf(1,-1)"});
}

TEST_F(distributions, weibull) {
  expect("weibullPdf(0.5,2,3)", 6 * 0.25 * std::exp(-2 * 0.125));
  EXPECT_EQ(value("weibullPdf(0,2,1)"), 2.0);
  expect("weibullCdf(0,0.5,2,3)", 1 - std::exp(-2 * 0.125));
  expect("weibullCdf(0.5,0,2,3)", 1 - std::exp(-2 * 0.125));
}

TEST_F(distributions, weibull_checks) {
  expect_domain_errors({"weibullPdf(1,0,2)", "weibullPdf(1,-1,2)", "weibullPdf(1,2,0.5)",
                        "weibullCdf(0,1,0,2)", "weibullCdf(0,1,2,0.99)"});
}

TEST_F(distributions, weibull_of_a_negative_number_is_left_to_the_power) {
  expect("weibullPdf(-1,2,2)", -4 * std::exp(-2.0));
  EXPECT_EQ(error_of("weibullPdf(-1,2,1.6)"), "Domain Error");
}

TEST_F(distributions, gamma) {
  expect("gammaPdf(2,3,0.5)", 0.125 * 4 * std::exp(-1.0) / 2);
  EXPECT_EQ(value("gammaPdf(0,1,2)"), 2.0);
  expect("gammaCdf(0,2,1,0.5)", 1 - std::exp(-1.0));
  expect("gammaCdf(2,0,1,0.5)", 1 - std::exp(-1.0));
}

TEST_F(distributions, gamma_checks) {
  expect_domain_errors({"gammaPdf(1,0,1)", "gammaPdf(1,1,0)", "gammaPdf(-1,1,1)", "gammaCdf(0,1,0,1)",
                        "gammaCdf(0,1,1,-1)", "gammaCdf(-1,1,1,1)", "gammaCdf(1,-1,1,1)",
                        "gammaPdf(0,0.5,1)"});
}

TEST_F(distributions, a_side_that_does_not_converge_counts_as_minus_one) {
  EXPECT_EQ(value("gammaCdf(0,5000,5000,1)"), 1.0);
}

TEST_F(distributions, exponential) {
  expect("exponPdf(2,3)", 3 * std::exp(-6.0));
  expect("exponCdf(0,2,3)", 1 - std::exp(-6.0));
  expect("exponCdf(2,0,3)", 1 - std::exp(-6.0));
}

TEST_F(distributions, exponential_checks_nothing) {
  expect("exponPdf(1,-1)", -std::exp(1.0));
  expect("exponPdf(-1,1)", std::exp(1.0));
  expect("exponCdf(-1,0,1)", std::exp(1.0) - 1);
  EXPECT_EQ(value("exponPdf(1,0)"), 0.0);
  EXPECT_EQ(error_of("exponPdf(1000,-1)"), "Overflow");
}

TEST_F(distributions, a_density_whose_powers_grow_too_large_overflows) {
  EXPECT_EQ(error_of("chiSqPdf(400,300)"), "Overflow");
  EXPECT_EQ(error_of("gammaPdf(300,150,1)"), "Overflow");
  EXPECT_EQ(error_of("poissonPdf(170,100)"), "Overflow");
}

TEST_F(distributions, lists_map) {
  eval("normalPdf({0,1},0,1)->{A}");
  expect("getListElem({A},2)", std::exp(-0.5) / std::sqrt(2 * pi));
}

TEST_F(distributions, complex_numbers_are_refused) {
  EXPECT_EQ(error_of("normalPdf((i),0,1)"), "Function Argument Type");
  EXPECT_EQ(error_of("poissonCdf(1,1+(i))"), "Function Argument Type");
}

}  // namespace
}  // namespace zephyl
