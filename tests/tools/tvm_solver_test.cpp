// The money solver and the functions of the language over it.
#include "tools/tvm_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/errors.h"
#include "engine/values.h"
#include "support/accuracy.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class tvm_solver : public calculator {
 protected:
  tvm_solver() { reset_tvm_state(); }

  static TvmState state(double n, double i, double pv, double pmt, double fv, double py = 12, double cy = 12,
                        bool begin = false) {
    TvmState out;
    const double values[] = {n, i, pv, pmt, fv, py, cy};
    for (int k = 0; k < 7; ++k) out.values[k] = values[k];
    out.begin = begin;
    return out;
  }
  // What remains of the equation of value, in parts of its largest term.
  static double imbalance(const TvmState& s) {
    const long double i0 = s.values[TVM_I] * 0.01L / s.values[TVM_CY];
    const long double i = std::pow(1 + i0, static_cast<long double>(s.values[TVM_CY]) / s.values[TVM_PY]) - 1;
    const long double v = std::pow(1 + i, -static_cast<long double>(s.values[TVM_N]));
    const long double annuity = (1 - v) / i * (s.begin ? 1 + i : 1) * s.values[TVM_PMT];
    const long double terms[] = {annuity, s.values[TVM_FV] * v, s.values[TVM_PV]};
    long double sum = 0, largest = 0;
    for (const long double term : terms) {
      sum += term;
      largest = std::fmax(largest, std::fabs(term));
    }
    return static_cast<double>(std::fabs(sum) / largest);
  }
  static double solved(TvmState s, int unknown) {
    s.values[unknown] = undefined_value;
    return solve_tvm(s, unknown);
  }
  void expect(const std::string& text, double expected, double tolerance) {
    EXPECT_NEAR(value(text), expected, tolerance) << text;
  }
};

// --- The five unknowns

TEST_F(tvm_solver, the_rate_of_a_mortgage) { expect("tvmI%YR(360,200000,-1200,0,12,12)", 6.00699, 1e-5); }

TEST_F(tvm_solver, the_other_values_of_that_mortgage) {
  expect("tvmPmt(360,6,200000,0,12,12)", -1199.1010503, 1e-6);
  expect("tvmPV(360,6,-1199.1010503055,0,12,12)", 200000, 1e-4);
  expect("tvmN(6,200000,-1199.1010503055,0,12,12)", 360, 1e-6);
  expect("tvmFV(360,6,200000,-1199.1010503055,12,12)", 0, 1e-2);
  expect("tvmFV(120,6,200000,-1199.1010503055,12,12)", -167371.45, 1e-1);
}

TEST_F(tvm_solver, each_unknown_balances_the_equation_of_value) {
  TAccuracy accuracy("tvmN( to tvmFV(, 3000 loans, all unknowns", 1e-9);
  TSpread spread;
  for (int k = 0; k < 3000; ++k) {
    const double py = spread.whole(1, 52), cy = k % 2 ? py : spread.whole(1, 365);
    TvmState s = state(spread.whole(2, 480), spread.between(0.5, 30), spread.between(1000, 1e6), 0,
                       spread.between(-1e5, 1e5), py, cy, k % 3 == 0);
    s.values[TVM_PMT] = solved(s, TVM_PMT);
    for (int unknown = TVM_N; unknown <= TVM_FV; ++unknown) {
      TvmState found = s;
      found.values[unknown] = solved(s, unknown);
      // A payment that is all but the interest leaves the number of payments open.
      const bool open = unknown == TVM_N && errors.error_code == ERR_ZERO_DIVIDE;
      if (open) clear_error();
      ASSERT_FALSE(errors.error_flag) << errors.error_text << " unknown " << unknown << " loan " << k;
      if (!open) accuracy.compare(imbalance(found), 0.0, 1.0, {1.0 * k, 1.0 * unknown});
    }
  }
}

TEST_F(tvm_solver, payments_at_the_beginning_of_the_period) {
  const double at_end = value("tvmPmt(12,12,1000,0,12,12)");
  tvm_state.begin = true;
  expect("tvmPmt(12,12,1000,0,12,12)", at_end / 1.01, 1e-10);
}

TEST_F(tvm_solver, compounding_apart_from_payments) {
  // 12 percent compounded once a year are (1.12)^(1/12) a month.
  const double i = std::pow(1.12, 1.0 / 12) - 1;
  expect("tvmPV(24,12,-100,0,12,1)", 100 * (1 - std::pow(1 + i, -24)) / i, 1e-8);
  expect("tvmI%YR(24,tvmPV(24,12,-100,0,12,1),-100,0,12,1)", 12, 1e-8);
}

// --- Without interest

TEST_F(tvm_solver, a_rate_of_zero_adds_up) {
  EXPECT_EQ(value("tvmPmt(10,0,1000,0,12,12)"), -100.0);
  EXPECT_EQ(value("tvmN(0,1000,-50,0,12,12)"), 20.0);
  EXPECT_EQ(value("tvmPV(10,0,-100,50,12,12)"), 950.0);
  EXPECT_EQ(value("tvmFV(10,0,1000,-70,12,12)"), -300.0);
}

TEST_F(tvm_solver, a_period_rate_below_a_hundred_thousandth_is_zero) {
  EXPECT_EQ(value("tvmPmt(10,0.0001,1000,0,12,12)"), -100.0);
  EXPECT_EQ(value("tvmPmt(10,0.0119,1000,0,12,12)"), -100.0);
  EXPECT_NE(value("tvmPmt(10,0.0121,1000,0,12,12)"), -100.0);
  EXPECT_EQ(value("tvmPmt(10,-0.0001,1000,0,12,12)"), -100.0);
}

TEST_F(tvm_solver, nothing_to_divide_by) {
  EXPECT_EQ(error_of("tvmN(0,1000,0,0,12,12)"), "Division by Zero");
  EXPECT_EQ(error_of("tvmPmt(0,0,1000,0,12,12)"), "Division by Zero");
  EXPECT_EQ(error_of("tvmPV(10,6,-100,0,12,0)"), "Division by Zero");
}

TEST_F(tvm_solver, a_payment_that_only_bears_the_interest_never_ends) {
  EXPECT_EQ(error_of("tvmN(12,1000,-10,0,12,12)"), "Division by Zero");
  EXPECT_EQ(solve_tvm(state(undefined_value, 12, 1000, -10, 0), TVM_N), undefined_value);
}

TEST_F(tvm_solver, a_payment_too_small_for_the_interest_is_out_of_the_domain) {
  EXPECT_EQ(error_of("tvmN(12,1000,-9,0,12,12)"), "Domain Error");
}

// --- The rate

TEST_F(tvm_solver, money_must_flow_both_ways) {
  for (const char* text :
       {"tvmI%YR(10,1000,0,500,12,12)", "tvmI%YR(10,1000,100,0,12,12)", "tvmI%YR(10,-1000,-100,-5,12,12)",
        "tvmI%YR(10,1000,0,0,12,12)", "tvmI%YR(10,0,0,0,12,12)", "tvmI%YR(0,1000,-100,0,12,12)"})
    EXPECT_EQ(error_of(text), "No TVM Sign Change") << text;
  EXPECT_EQ(solve_tvm(state(10, undefined_value, 1000, 0, 500), TVM_I), undefined_value);
}

TEST_F(tvm_solver, without_payments_the_rate_is_a_root) {
  expect("tvmI%YR(10,-1000,0,2000,1,1)", (std::pow(2, 0.1) - 1) * 100, 1e-10);
  expect("tvmI%YR(10,-1000,0.000001,2000,1,1)", (std::pow(2, 0.1) - 1) * 100, 1e-10);
}

TEST_F(tvm_solver, negative_and_large_rates) {
  expect("tvmI%YR(10,-1000,0,500,1,1)", (std::pow(0.5, 0.1) - 1) * 100, 1e-10);
  expect("tvmPmt(12,tvmI%YR(12,1000,-50,0,12,12),1000,0,12,12)", -50, 1e-9);
  expect("tvmPmt(24,tvmI%YR(24,1000,-500,0,12,12),1000,0,12,12)", -500, 1e-7);
}

TEST_F(tvm_solver, a_rate_that_is_not_found_says_so) {
  EXPECT_NE(error_of("tvmI%YR(2.5,1,1,-1,1,1)"), "");
  EXPECT_EQ(value("2+2"), 4.0);
}

// --- Results

TEST_F(tvm_solver, results_too_small_for_money_are_zero) {
  EXPECT_EQ(value("tvmFV(1,0,0.000004,0,12,12)"), 0.0);
  EXPECT_EQ(value("tvmFV(1,0,0.00002,0,12,12)"), -0.00002);
}

TEST_F(tvm_solver, stored_values_stay_as_they_are) {
  tvm_state = state(1, 2, 3, 4, 5, 6, 7, true);
  eval("tvmPmt(360,6,200000,0,12,12)");
  eval("tvmI%YR(10,1000,100,0,12,12)");
  for (int k = 0; k < 7; ++k) EXPECT_EQ(tvm_state.values[k], k + 1.0);
  EXPECT_TRUE(tvm_state.begin);
}

TEST_F(tvm_solver, six_real_arguments) {
  EXPECT_EQ(error_of("tvmPmt(360,6,200000,0,12)"), "Function Argument Count");
  EXPECT_EQ(error_of("tvmPmt(360,6,(i),0,12,12)"), "Function Argument Type");
}

TEST_F(tvm_solver, an_unknown_of_another_number_is_unexpected) {
  reset_errors();
  EXPECT_EQ(solve_tvm(TvmState{}, 5), undefined_value);
  EXPECT_EQ(errors.error_code, ERR_UNEXPECTED);
}

// --- Rates

TEST_F(tvm_solver, nominal_and_effective_rates) {
  expect("toNOM(6.86,12)", 6.6534, 1e-4);
  expect("toEFF(6.7,4)", 6.8703, 1e-4);
  expect("toEFF(toNOM(8,365),365)", 8, 1e-10);
}

TEST_F(tvm_solver, periods_must_be_positive) {
  for (const char* text : {"toEFF(5,0)", "toEFF(5,-1)", "toNOM(5,0)", "toNOM(5,-12)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
}

// --- Amortization

TEST_F(tvm_solver, the_balance_after_payments) {
  tvm_state = state(360, 6, 200000, -1200, 0);
  expect("Balancee(0)", 200000, 0);
  expect("Balancee(1)", 200000 * 1.005 - 1200, 1e-9);
  expect("Balancee(2)", (200000 * 1.005 - 1200) * 1.005 - 1200, 1e-9);
  expect("Balancee(120)", -value("tvmFV(120,6,200000,-1200,12,12)"), 1e-6);
}

TEST_F(tvm_solver, principal_and_interest_of_a_range_of_payments) {
  tvm_state = state(360, 6, 200000, -1200, 0);
  expect("summPrn(1,1)", -200, 1e-9);
  expect("summInt(1,1)", -1000, 1e-9);
  expect("summPrn(1,12)", value("Balancee(12)") - 200000, 1e-9);
  expect("summInt(13,24)", -1200 * 12 - value("summPrn(13,24)"), 1e-9);
}

TEST_F(tvm_solver, the_first_payment_at_the_beginning_bears_no_interest) {
  tvm_state = state(12, 12, 1000, -100, 0, 12, 12, true);
  expect("Balancee(1)", 900, 1e-12);
  expect("Balancee(2)", 900 * 1.01 - 100, 1e-12);
}

TEST_F(tvm_solver, amortization_uses_the_rate_of_compounding_as_it_stands) {
  tvm_state = state(12, 12, 1000, -100, 0, 12, 1);
  expect("Balancee(1)", 1000 * 1.12 - 100, 1e-12);
}

TEST_F(tvm_solver, the_interest_that_is_shown_has_the_sign_of_the_payment) {
  EXPECT_DOUBLE_EQ(amortize(state(12, 12, 1000, -100, 0), 1).interest, -10);
  EXPECT_DOUBLE_EQ(amortize(state(12, 12, -1000, 100, 0), 1).interest, 10);
  EXPECT_DOUBLE_EQ(amortize(state(12, 12, 1000, 100, 0), 1).interest, 10);
  EXPECT_DOUBLE_EQ(amortize(state(12, 12, 1000, -100, 0), 1).principal, -90);
  EXPECT_DOUBLE_EQ(amortize(state(12, 12, 1000, -100, 0), 1).balance, 910);
}

TEST_F(tvm_solver, parts_of_a_payment_too_small_for_money_are_zero) {
  const TPayment payment = amortize(state(1, 0, 100, -100.000004, 0), 1);
  EXPECT_EQ(payment.balance, 0.0);
  EXPECT_EQ(payment.interest, 0.0);
}

TEST_F(tvm_solver, payments_are_counted_to_ten_thousand) {
  tvm_state = state(360, 6, 200000, -1200, 0);
  for (const char* text : {"Balancee(-1)", "Balancee(10001)", "Balancee(1.5)", "summPrn(0,5)",
                           "summPrn(1,10001)", "summInt(0,5)", "summInt(1.5,5)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
  EXPECT_EQ(error_of("Balancee(10000)"), "");
}

}  // namespace
}  // namespace zephyl
