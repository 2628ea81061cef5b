// The forms of fnMin(, fnMax(, fnRoot( and fnDeriv( that calculations on a plot put around a function: x is
// their variable, and the plot's view is what they search.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/loop_variables.h"
#include "engine/memory.h"
#include "engine/text_form.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

constexpr TToken SLOPE = 1996, ROOT = 1997, MAXIMUM = 1998, MINIMUM = 1999;

class plot_forms : public calculator {
 protected:
  // The value of the form around a body; NAN after an error.
  double of(TToken form, const std::string& body) {
    clear_error();
    clear_entry_line();
    TExpression expression;
    char error[200];
    EXPECT_TRUE(text_to_tokens(body.c_str(), expression, error, sizeof error)) << error;
    insert_token(true, form);
    for (int i = 0; i < expression.count; ++i) insert_token(true, expression.tokens[i]);
    insert_token(true, 4);
    evaluate_expression(false);
    EXPECT_EQ(loop_variable_count(), 0);
    return errors.error_flag ? NAN : answers.ans.re;
  }
};

TEST_F(plot_forms, search_the_view) {
  EXPECT_NEAR(of(ROOT, "x^2-2"), -std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(of(MINIMUM, "(x-3)^2"), 3.0, 1e-7);
  EXPECT_NEAR(of(MAXIMUM, "4-(x+2)^2"), -2.0, 1e-7);
  eval("0->xMin");
  eval("6->xMax");
  EXPECT_NEAR(of(ROOT, "x^2-2"), std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(of(MINIMUM, "(x-8)^2"), 6.0, 1e-7);
  EXPECT_NEAR(of(MAXIMUM, "4-(x+2)^2"), 0.0, 1e-7);
}

TEST_F(plot_forms, the_slope_is_that_at_x) {
  memory_set_both(SLOT_X, 5, 0);
  EXPECT_NEAR(of(SLOPE, "x^3"), 75.0, 1e-9);
  EXPECT_EQ(memory_get(SLOT_X, 0), 5.0);
}

TEST_F(plot_forms, x_comes_back) {
  memory_set_both(SLOT_X, 7.5, 2);
  for (const TToken form : {ROOT, MINIMUM, MAXIMUM}) {
    of(form, "x^3-1");
    of(form, "1/(x-x)");
    EXPECT_EQ(errors.error_code, ERR_ZERO_DIVIDE);
    EXPECT_EQ(memory_get(SLOT_X, 0), 7.5);
    EXPECT_EQ(memory_get(SLOT_X, 1), 2.0);
  }
}

TEST_F(plot_forms, a_body_without_an_operator_is_searched_too) {
  EXPECT_NEAR(of(ROOT, "x"), 0.0, 1e-13);
  EXPECT_EQ(of(MAXIMUM, "x"), 10.0);
}

TEST_F(plot_forms, take_one_argument) {
  EXPECT_TRUE(std::isnan(of(ROOT, "x,x,1,2")));
  EXPECT_EQ(errors.error_code, ERR_ARGUMENT_COUNT);
}

TEST_F(plot_forms, no_change_of_sign_is_no_root) {
  EXPECT_TRUE(std::isnan(of(ROOT, "x^2+1")));
  EXPECT_EQ(errors.error_code, ERR_NO_ROOT);
}

// A needle at an odd sample of 2000 is none of 1000.
TEST_F(plot_forms, extremes_look_at_every_second_place_of_the_typed_operators) {
  EXPECT_EQ(value("fnMin(x^2-1000*(x=-9.99),x,-10,10)"), -9.99);
  EXPECT_NEAR(of(MINIMUM, "x^2-1000*(x=-9.99)"), 0.0, 1e-7);
  EXPECT_EQ(of(MINIMUM, "x^2-1000*(x=-9.98)"), -9.98);
}

}  // namespace
}  // namespace zephyl
