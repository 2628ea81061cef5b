// Gamma, beta and Bessel functions as a user meets them; how close they come is in
// special_functions_peers_test.
#include "numerics/special_functions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/errors.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class special_functions : public calculator {
 protected:
  void expect(const std::string& text, double expected, double tolerance = 1e-9) {
    EXPECT_NEAR(value(text), expected, tolerance * std::fabs(expected)) << text;
  }
};

TEST_F(special_functions, gamma_of_a_quarter) { expect("Gamma(0.25)", 3.625609908221908); }

TEST_F(special_functions, gamma_of_a_whole_number_is_not_made_exact) {
  expect("Gamma(5)", 24);
  EXPECT_NE(value("Gamma(5)"), 24.0);
}

TEST_F(special_functions, gamma_has_no_value_at_zero_and_below_on_the_real_axis) {
  EXPECT_EQ(error_of("Gamma(0)"), "Domain Error");
  EXPECT_EQ(error_of("Gamma(-1)"), "Domain Error");
  EXPECT_EQ(error_of("Gamma(-2.5)"), "Domain Error");
}

TEST_F(special_functions, a_complex_number_without_an_imaginary_part_lies_on_the_real_axis) {
  EXPECT_EQ(error_of("Gamma(-5.5+0*(i))"), "Domain Error");
}

TEST_F(special_functions, gamma_is_computed_beside_the_real_axis) {
  expect("Gamma(-1+(i))", -0.171532919908273);
  EXPECT_NEAR(imaginary("Gamma(-1+(i))"), 0.326482748210083, 1e-9);
}

TEST_F(special_functions, gamma_overflows_above_171) {
  expect("Gamma(171.5)", 9.483367566824795e307);
  EXPECT_EQ(error_of("Gamma(172)"), "Overflow");
}

TEST_F(special_functions, a_failed_gamma_is_zero) {
  reset_errors();
  EXPECT_EQ(complex_gamma({-3.0, 0.0}), TValue{});
  EXPECT_EQ(errors.error_code, ERR_DOMAIN);
}

TEST_F(special_functions, gamma_maps_over_lists) {
  eval("Gamma({1,2,3})->{A}");
  expect("getListElem({A},3)", 2);
}

TEST_F(special_functions, beta) { expect("Beta(1.3,2)", 1 / (1.3 * 2.3)); }

TEST_F(special_functions, beta_is_symmetric) {
  expect("Beta(2,1.3)", 1 / (1.3 * 2.3));
  expect("Beta(0.5,0.5)", 3.141592653589793);
}

TEST_F(special_functions, each_gamma_of_beta_has_its_own_check) {
  EXPECT_EQ(error_of("Beta(-1,2.5)"), "Domain Error");
  EXPECT_EQ(error_of("Beta(2.5,-1)"), "Domain Error");
  EXPECT_EQ(error_of("Beta(0.5+(i),-0.5-(i))"), "Domain Error");
}

TEST_F(special_functions, beta_of_complex_numbers) {
  // B(1, w) is 1/w.
  expect("Real(Beta(1,2+(i)))", 0.4);
  expect("Imag(Beta(1,2+(i)))", -0.2);
}

TEST_F(special_functions, bessel_functions_of_order_zero) {
  expect("Jn(0,1)", 0.7651976865579666, 1e-13);
  expect("Yn(0,1)", 0.08825696421567697, 1e-13);
}

TEST_F(special_functions, the_order_of_a_bessel_function_need_not_be_whole) {
  // J of order 1/2 is sqrt(2/(pi x)) sin x, Y its negative with cos x.
  const double amplitude = std::sqrt(2.0 / (3.141592653589793 * 2.0));
  expect("Jn(0.5,2)", amplitude * std::sin(2.0), 1e-13);
  expect("Yn(0.5,2)", -amplitude * std::cos(2.0), 1e-13);
}

TEST_F(special_functions, both_methods_meet_at_two) {
  expect("Jn(0,1.9999999999)", 0.2238907791412357 + 1e-10 * 0.5767248077568734, 1e-12);
  expect("Jn(0,2)", 0.2238907791412357, 1e-13);
  expect("Yn(3,1.9999999999)", value("Yn(3,2)"), 1e-9);
}

TEST_F(special_functions, bessel_functions_want_an_order_from_zero_and_a_positive_argument) {
  for (const char* text : {"Jn(-1,1)", "Jn(1,0)", "Jn(1,-1)", "Yn(-0.5,1)", "Yn(1,0)", "Yn(1,-2)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
}

TEST_F(special_functions, a_fraction_that_does_not_converge_is_out_of_the_domain) {
  expect("Jn(0,5000)", -0.0066489842486);
  EXPECT_EQ(error_of("Jn(0,100000)"), "Domain Error");
  EXPECT_EQ(error_of("Yn(0,100000)"), "Domain Error");
}

TEST_F(special_functions, an_order_without_a_number_of_rounds_is_out_of_the_domain) {
  EXPECT_EQ(error_of("Jn(1e10,1)"), "Domain Error");
  EXPECT_EQ(error_of("Yn(1e300,1)"), "Domain Error");
}

TEST_F(special_functions, a_recurrence_that_grows_too_large_overflows) {
  EXPECT_EQ(error_of("Jn(1000,1)"), "Overflow");
  EXPECT_EQ(error_of("Yn(200,0.1)"), "Overflow");
  EXPECT_EQ(error_of("Jn(1e9,1.9)"), "Overflow");
}

TEST_F(special_functions, bessel_functions_take_no_complex_number) {
  EXPECT_EQ(error_of("Jn(1,(i))"), "Function Argument Type");
  EXPECT_EQ(error_of("Yn((i),1)"), "Function Argument Type");
}

}  // namespace
}  // namespace zephyl
