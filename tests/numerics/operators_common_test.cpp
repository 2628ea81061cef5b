// What all operators over expressions share: loop variables, nesting, errors and cancels in the middle, and
// the two roads of their bodies, which must agree.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/loop_variables.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "numerics/operators/operators.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

const std::vector<std::string> operators_on_x = {
    "Summ(#,x,1,12)",    "Prod(#,x,5,1)",     "listSum(Seq(#,x,1,9))", "fnEval(#,x,1.7)", "fnDeriv(#,x,1.3)",
    "fnMin(#,x,-1,2.5)", "fnMax(#,x,-1,2.5)", "fnRoot(#,x,-2,3.1)",    "fnInt(#,x,0.5,2)"};

std::string with_body(std::string text, const std::string& body) {
  for (std::size_t at = text.find('#'); at != std::string::npos; at = text.find('#', at + body.size()))
    text.replace(at, 1, body);
  return text;
}

class operators : public calculator {
 protected:
  operators() {
    memory_set_both(SLOT_X, 7.5, 0);
    hooks.tap_kind = [](int, int) { return TAP_KEY; };
  }
  ~operators() override { EXPECT_EQ(loop_variable_count(), 0); }

  void expect_variable_restored(const std::string& text, double re = 7.5) {
    EXPECT_EQ(memory_get(SLOT_X, 0), re) << text;
    EXPECT_EQ(memory_get(SLOT_X, 1), 0.0) << text;
    EXPECT_EQ(loop_variable_count(), 0) << text;
  }
};

// --- Loop variables

TEST_F(operators, the_variable_comes_back_after_success) {
  for (const std::string& text : operators_on_x) {
    EXPECT_EQ(error_of(with_body(text, "x-1.1")), "") << text;
    expect_variable_restored(text);
  }
}

TEST_F(operators, both_parts_of_the_variable_come_back) {
  memory_set_both(SLOT_X, 2, 3);
  EXPECT_EQ(value("Summ(x,x,1,3)"), 6.0);
  EXPECT_EQ(memory_get(SLOT_X, 0), 2.0);
  EXPECT_EQ(memory_get(SLOT_X, 1), 3.0);
}

TEST_F(operators, the_variable_comes_back_after_an_error) {
  for (const std::string& text : operators_on_x) {
    EXPECT_EQ(error_of(with_body(text, "1/(x-x)")), "Division by Zero") << text;
    expect_variable_restored(text);
  }
}

TEST_F(operators, the_variable_comes_back_after_an_error_on_the_general_road) {
  for (const std::string& text : operators_on_x) {
    EXPECT_EQ(error_of(with_body(text, "Max(1,1/(x-x))")), "Division by Zero") << text;
    expect_variable_restored(text);
  }
}

TEST_F(operators, all_variables_come_back_after_an_error_in_depth) {
  memory_set_both(SLOT_X + 1, 8.5, 1);
  EXPECT_EQ(error_of("Summ(Prod(fnInt(1/(z-0.5),z,0,1)+x+y,y,1,2),x,1,3)"), "Division by Zero");
  expect_variable_restored("nested");
  EXPECT_EQ(memory_get(SLOT_X + 1, 0), 8.5);
  EXPECT_EQ(memory_get(SLOT_X + 1, 1), 1.0);
}

TEST_F(operators, the_variable_comes_back_where_the_operator_itself_fails) {
  for (const char* text : {"fnRoot(x^2+1,x,0,1)", "fnRoot(1/(x-0.12345),x,0,1)", "Seq(x,x,1,1000)",
                           "fnInt(fnInt(y,y,0,1),x,0,1)", "Prod(x,x,1,200)", "fnMin(x,x,-1e308,1e308)"}) {
    EXPECT_NE(error_of(text), "") << text;
    expect_variable_restored(text);
  }
}

TEST_F(operators, one_variable_may_serve_at_every_level) {
  EXPECT_EQ(value("Summ(Summ(x,x,1,x),x,1,3)"), 10.0);
  EXPECT_EQ(value("Summ(x+Summ(x,x,1,2)+x,x,1,3)"), 21.0);
  expect_variable_restored("nested");
}

// Its dry pass stores before the operator puts the variable away.
TEST_F(operators, a_body_may_store_into_its_variable) {
  EXPECT_EQ(value("Summ((10*x->x),x,1,3)"), 60.0);
  expect_variable_restored("stored", 75);
}

TEST_F(operators, what_was_computed_before_the_body_stays_as_it_was) {
  EXPECT_EQ(value("(2+(i))*Summ(x^2+1,x,1,3)"), 34.0);
  EXPECT_EQ(imaginary("(2+(i))*Summ(x^2+1,x,1,3)"), 17.0);
  EXPECT_EQ(value("listSum({1,2}*Summ(x*2,x,1,2))"), 18.0);
  EXPECT_EQ(eval("strSub(\"abc\"+\"def\",Summ(x-1,x,1,3),Prod(x+0,x,1,2))"), "cd");
}

TEST_F(operators, a_body_may_be_complex_in_one_run_and_real_in_the_next) {
  memory_set_both(SLOT_CAPITAL_A, 0, 2);
  EXPECT_EQ(imaginary("Summ(A*x+1,x,1,3)"), 12.0);
  EXPECT_EQ(value("Summ((A-A)*x+1,x,1,3)"), 3.0);
  memory_set_both(SLOT_CAPITAL_A, 2, 0);
  EXPECT_EQ(value("Summ(A*x+1,x,1,3)"), 15.0);
  EXPECT_EQ(imaginary("Summ(A*x+1,x,1,3)"), 0.0);
  EXPECT_EQ(imaginary("fnEval(x*2+1,x,(i))+fnEval(x*2+1,x,3)"), 2.0);
}

TEST_F(operators, a_body_may_be_a_plot_function) {
  eval("x^2->f1(x)");
  EXPECT_EQ(value("Summ(f1(x),x,1,3)"), 14.0);
  EXPECT_NEAR(value("fnInt(f1(x),x,0,1)"), 1.0 / 3, 1e-12);
  eval("fnInt(x*y,y,0,1)->f2(x)");
  EXPECT_EQ(error_of("fnInt(f2(x),x,0,1)"), "Can't Nest fnInt()");
  expect_variable_restored("f2");
}

TEST_F(operators, a_plot_function_that_leads_to_itself_ends_in_an_error) {
  for (const char* text : {"x->f1(x)", "f1(x)->f2(x)", "f2(x)->f1(x)"}) eval(text);
  for (const std::string& text : operators_on_x) {
    EXPECT_EQ(error_of(with_body(text, "f1(x)")), "Memory Limit Error") << text;
    expect_variable_restored(text);
  }
}

TEST_F(operators, the_stack_of_loop_variables_ends_at_eleven) {
  for (int i = 0; i < LOOP_VARIABLE_LIMIT; ++i) push_loop_variable(SLOT_X, OP_SUMM);
  EXPECT_FALSE(errors.error_flag);
  push_loop_variable(SLOT_X, OP_SUMM);
  EXPECT_EQ(errors.error_code, ERR_MEMORY_LIMIT);
  EXPECT_TRUE(runs_loop_of(OP_SUMM));
  EXPECT_FALSE(runs_loop_of(OP_FN_INT));
  pop_loop_variables_to(0);
  EXPECT_FALSE(runs_loop_of(OP_SUMM));
}

// --- Nesting

std::string nested_sums(int depth) {
  std::string text = "1";
  for (int i = 0; i < depth; ++i) text = "Summ(" + text + "," + static_cast<char>('a' + i) + ",1,2)";
  return text;
}

TEST_F(operators, ten_nest_and_eleven_do_not) {
  EXPECT_EQ(value(nested_sums(10)), 1024.0);
  EXPECT_EQ(error_of(nested_sums(11)), "Function Nest Limit");
}

TEST_F(operators, ten_inside_one_another_keep_their_states_apart) {
  EXPECT_EQ(value("Summ(Prod(Summ(Prod(Summ(a+b+c+d+R1,a,1,2),b,1,2),c,1,2),d,1,2),R1,1,2)"), [] {
    double r1 = 0;
    for (int R1 = 1; R1 <= 2; ++R1) {
      double pd = 1;
      for (int d = 1; d <= 2; ++d) {
        double sc = 0;
        for (int c = 1; c <= 2; ++c) {
          double pb = 1;
          for (int b = 1; b <= 2; ++b) {
            double sa = 0;
            for (int a = 1; a <= 2; ++a) sa += a + b + c + d + R1;
            pb *= sa;
          }
          sc += pb;
        }
        pd *= sc;
      }
      r1 += pd;
    }
    return r1;
  }());
}

TEST_F(operators, of_one_kind_nest_in_themselves) {
  EXPECT_NEAR(value("fnRoot(fnRoot(y^2-x,y,0,3)-1.3,x,0.5,4)"), 1.69, 1e-9);
  EXPECT_NEAR(value("fnMin((fnMin((y-x)^2,y,-1,1)-0.4)^2,x,-1,1)"), 0.4, 1e-5);
  EXPECT_NEAR(value("fnDeriv(fnDeriv(y^3,y,x),x,2)"), 12.0, 1e-4);
  EXPECT_EQ(value("fnEval(fnEval(x+y,x,1),y,2)"), 3.0);
  EXPECT_EQ(value("listSum(Seq(listSum(Seq(x*y,x,1,3)),y,1,3))"), 36.0);
}

TEST_F(operators, side_by_side) {
  EXPECT_EQ(value("Summ(Summ(x,x,1,3)*Summ(y,y,1,2)+z,z,1,2)"), 39.0);
  EXPECT_EQ(value("Summ(x,x,1,3)-Summ(x,x,1,2)*Prod(x,x,1,3)"), -12.0);
}

TEST_F(operators, a_failed_one_in_a_dry_pass_begins_anew) {
  // At the stored x there is no root; at each of the sum's places there is.
  EXPECT_NEAR(value("Summ(fnRoot(y-x,y,0.5,3.6),x,1,3)"), 6.0, 1e-9);
}

// --- Errors of the dry pass

TEST_F(operators, most_errors_of_a_dry_pass_are_forgiven) {
  eval("0->x");
  for (const char* body : {"1/x", "0*ln(x)+1/x", "(x-0.5)!*0+1/x"})
    EXPECT_EQ(error_of(std::string("fnEval(") + body + ",x,4.5)"), "") << body;
}

// The dry pass of the outer operator runs the inner one through, and its rounds are no dry pass.
TEST_F(operators, the_rounds_of_an_inner_operator_forgive_nothing) {
  eval("0->x");
  EXPECT_EQ(error_of("Summ(Summ(1/x,y,1,2),x,1,2)"), "Division by Zero");
  EXPECT_EQ(error_of("Summ(Summ(Max(1/x,1),y,1,2),x,1,2)"), "Division by Zero");
}

TEST_F(operators, some_stand) {
  eval("1e200->x");
  EXPECT_EQ(error_of("Summ(x^2,x,1,2)"), "Overflow");
  EXPECT_EQ(error_of("Summ(Max(x^2,1),x,1,2)"), "Overflow");
  EXPECT_EQ(error_of("Summ(x,x,1,2)+Summ(1/(x-x)*1e300*x,x,1,2)"), "Division by Zero");
}

// --- Cancel

TEST_F(operators, a_tap_ends_each_of_them) {
  platform_.ticks_per_look = 200;
  for (const char* text :
       {"Summ(x,x,1,1000000000)", "Prod(1,x,1,1000000000)", "Summ(Max(x,1),x,1,1000000000)",
        "Summ(listSum(Seq(y,y,1,900)),x,1,1000000000)", "Summ(fnInt(sin(1/y),y,0.001,1),x,1,1000000000)",
        "Summ(fnMin(y,y,0,x),x,1,1000000000)", "Summ(fnRoot(y-x,y,0,x),x,1,1000000000)",
        "Summ(fnDeriv(y,y,x),x,1,1000000000)", "Summ(fnEval(y,y,x),x,1,1000000000)"}) {
    platform_.pen_downs.assign(1, {20, 200});
    EXPECT_EQ(error_of(text), "Operation Canceled") << text;
    expect_variable_restored(text);
    EXPECT_EQ(platform_.pen_downs.size(), 1u) << "the tap is still to be acted upon";
    platform_.pen_downs.clear();
    EXPECT_EQ(value("2+2"), 4.0);
  }
}

TEST_F(operators, a_tap_in_the_middle_stops_within_six_tenths_of_a_second) {
  platform_.ticks_per_look = 1;
  eval("Summ(x,x,1,100000)");
  platform_.pen_downs.assign(1, {20, 200});
  const std::uint32_t before = platform_.ticks;
  EXPECT_EQ(error_of("Summ(x,x,1,1000000000)"), "Operation Canceled");
  EXPECT_LE(platform_.ticks - before, 600u);
}

TEST_F(operators, what_a_poll_computes_is_no_fault_of_the_body) {
  hooks.tap_kind = [](int, int) {
    volatile double zero = 0.0;
    volatile double infinity = 1.0 / zero;
    return infinity > 0.0 ? TAP_NO_KEY : TAP_KEY;
  };
  platform_.ticks_per_look = 600;
  for (int i = 0; i < 50; ++i) platform_.pen_downs.push_back({20, 200});
  EXPECT_EQ(value("Summ(x,x,1,10000)"), 50005000.0);
  EXPECT_TRUE(platform_.pen_downs.empty());
}

// --- Both roads

// A body of plain numbers runs by itself; one with a function of two arguments, a list or an operator runs
// step by step.
TEST_F(operators, both_roads_of_a_body_agree) {
  const std::vector<std::string> bodies = {
      "x",         "2",       "x^2-2", "sin(x)-0.3", "(e)^x-2",    "x^3-2*x+0.1", "1/x",      "sqRt x",
      "ln(x+4)-1", "x*(i)+1", "-x",    "1e308*x*9",  "x!",         "x^0.5",       "abs(x)-1", "tan(x)",
      "x>1",       "2->R1",   "x%+1",  "asin(x)",    "Gamma(x+3)", "Ans*0+x",     "NOT(x)",   "R3+x"};
  const std::vector<std::string> general = {"Max((#),(#))", "(#)+0*listSum({1,2})", "fnEval(#,y,1)"};
  for (const int format : {ST_REAL, ST_COMPLEX_R}) {
    settings.complexFormat = format;
    memory_set_both(SLOT_X, 1, 0);
    for (const std::string& body : bodies)
      for (const std::string& text : operators_on_x) {
        answers = {};
        const std::string quick_error = error_of(with_body(text, body));
        const TValue quick = answers.ans;
        for (const std::string& road : general) {
          const std::string wrapped = with_body(text, with_body(road, body));
          answers = {};
          EXPECT_EQ(error_of(wrapped), quick_error) << wrapped;
          if (quick_error.empty()) {
            EXPECT_EQ(answers.ans, quick) << wrapped;
          }
          expect_variable_restored(wrapped, 1);
        }
      }
  }
}

}  // namespace
}  // namespace zephyl
