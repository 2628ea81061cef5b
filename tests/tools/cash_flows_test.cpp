#include "tools/cash_flows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "engine/values.h"
#include "support/lists.h"

namespace zephyl {
namespace {

// A cash flow payment by payment: each at the end of its period, in extended precision.
struct TPayments {
  double initial;
  std::vector<double> flows;
  std::vector<int> frequencies;

  int periods() const {
    int count = 0;
    for (int frequency : frequencies) count += frequency;
    return count;
  }

  long double present_value(long double rate) const {
    long double value = initial;
    int period = 0;
    for (std::size_t j = 0; j < flows.size(); ++j)
      for (int i = 0; i < frequencies[j]; ++i)
        value += flows[j] * std::pow(1 + rate, -static_cast<long double>(++period));
    return value;
  }
};

const TPayments payments = {-180000, {100000, -100000, 0, 200000}, {5, 5, 9, 1}};
const TPayments plain = {-500, {100, 250, -20, 300}, {1, 1, 1, 1}};

// The records that a TCashFlows points to.
class cash_flows : public list_calculator {
 protected:
  TCashFlows cash_of(const TPayments& from) {
    define_real_list(flows_, from.flows);
    define_real_list(frequencies_, std::vector<double>(from.frequencies.begin(), from.frequencies.end()));
    return {from.initial, &flows_, &frequencies_};
  }

  ListRecord flows_, frequencies_;
};

double relative_error(double x, long double exact) {
  return static_cast<double>(std::fabs(x - exact) / std::fabs(exact));
}

TEST_F(cash_flows, present_value_is_that_of_the_single_payments) {
  for (const TPayments& sample : {payments, plain})
    for (double rate : {0.001, 0.01, 0.07, 0.5, 3.0, -0.02, -0.3})
      EXPECT_LT(relative_error(net_present_value(cash_of(sample), rate), sample.present_value(rate)), 1e-10)
          << rate;
}

TEST_F(cash_flows, future_value_is_the_present_value_with_interest) {
  for (double rate : {0.01, 0.07, -0.02})
    EXPECT_LT(relative_error(net_future_value(cash_of(payments), rate),
                             payments.present_value(rate) * std::pow(1.0L + rate, 20.0L)),
              1e-10)
        << rate;
}

TEST_F(cash_flows, uniform_series_is_the_level_payment_of_the_same_value) {
  for (double rate : {0.01, 0.07, -0.02}) {
    const double payment = net_uniform_series(cash_of(payments), rate);
    const TPayments level = {0, {payment}, {20}};
    EXPECT_LT(relative_error(static_cast<double>(level.present_value(rate)), payments.present_value(rate)),
              1e-10);
  }
}

TEST_F(cash_flows, internal_rate_makes_the_present_value_vanish) {
  for (const TPayments& sample :
       {payments, plain, TPayments{-10, {1}, {1000}}, TPayments{-10, {0, 3}, {4, 6}}}) {
    const double rate = internal_rate(cash_of(sample));
    const long double size = std::fabs(static_cast<long double>(sample.initial));
    EXPECT_LT(std::fabs(sample.present_value(rate)), 1e-8L * size) << rate;
  }
}

TEST_F(cash_flows, modified_rate_discounts_payments_and_compounds_receipts) {
  const long double safe = 0.05L, risk = 0.06L;
  const long double paid = 10 + 1 / std::pow(1 + safe, 4.0L);
  const long double received =
      3 * std::pow(1 + risk, 4.0L) + 4 * std::pow(1 + risk, 3.0L) + 5 * std::pow(1 + risk, 2.0L) + 3;
  const double rate = modified_internal_rate(cash_of({-10, {3, 4, 5, -1, 3}, {1, 1, 1, 1, 1}}), 0.05, 0.06);
  EXPECT_NEAR(rate, static_cast<double>(std::pow(received / paid, 0.2L) - 1), 1e-13);
}

TEST_F(cash_flows, the_initial_amount_takes_part_in_the_modified_rate_on_its_side) {
  // 10 received at once, 6 paid after two periods.
  const double rate = modified_internal_rate(cash_of({10, {5, -6}, {1, 1}}), 0.05, 0.06);
  const long double received = 10 * 1.06L * 1.06L + 5 * 1.06L, paid = 6 / (1.05L * 1.05L);
  EXPECT_NEAR(rate, static_cast<double>(std::sqrt(received / paid) - 1), 1e-13);
}

TEST_F(cash_flows, without_frequencies_each_flow_counts_once) {
  TCashFlows cash = cash_of(plain);
  const double with_ones = net_present_value(cash, 0.07);
  cash.frequencies = nullptr;
  EXPECT_EQ(net_present_value(cash, 0.07), with_ones);
}

// --- The functions

TEST_F(cash_flows, functions_take_percent) {
  EXPECT_EQ(eval("NPV(5,-10,{5,6})"), "0.2040816327");
  EXPECT_EQ(eval("NFV(5,-10,{5,6})"), "0.225");
  EXPECT_EQ(eval("NUS(5,-10,{5,6})"), "0.1097560976");
  EXPECT_EQ(eval("IRR(0,{-5,6})"), "20");
}

TEST_F(cash_flows, functions_take_frequencies) {
  EXPECT_EQ(eval("IRR(-180000,{100000,-100000,0,200000},{5,5,9,1})"), "1.8604779726");
  EXPECT_EQ(eval("NPV(5,-10,{,2},{,6})"), eval("NPV(5,-10,{2,2,2,2,2,2})"));
  EXPECT_EQ(eval("NFV(5,-10,{,2},{,6})"), eval("NFV(5,-10,{2,2,2,2,2,2})"));
  EXPECT_EQ(eval("NUS(5,-10,{,2},{,6})"), eval("NUS(5,-10,{2,2,2,2,2,2})"));
  EXPECT_EQ(eval("MIRR(5,6,-10,{,2},{,6})"), eval("MIRR(5,6,-10,{2,2,2,2,2,2})"));
}

TEST_F(cash_flows, the_modified_rate_takes_and_gives_percent) {
  const double rate = value("MIRR(0.67,1.08,-180000,{100000,-100000,0,200000},{5,5,9,1})");
  EXPECT_NEAR(rate, 100 * modified_internal_rate(cash_of(payments), 0.0067, 0.0108), 1e-12);
  EXPECT_NEAR(rate, 1.0140773109, 1e-10);
}

TEST_F(cash_flows, the_residual_takes_a_fraction) {
  EXPECT_EQ(eval("IRR_D(0.05,-10,{5,6})"), "0.2040816327");
  EXPECT_NEAR(value("IRR_D(IRR(-10,{5,6})/100,-10,{5,6})"), 0.0, 1e-12);
}

TEST_F(cash_flows, a_number_in_the_place_of_frequencies_means_none) {
  EXPECT_EQ(eval("NPV(5,-10,{5,6},3)"), eval("NPV(5,-10,{5,6})"));
  EXPECT_EQ(eval("IRR(-10,{5,6},0)"), eval("IRR(-10,{5,6})"));
  EXPECT_EQ(eval("MIRR(5,6,-10,{5,6},7)"), eval("MIRR(5,6,-10,{5,6})"));
}

TEST_F(cash_flows, a_tiny_internal_rate_is_0) {
  EXPECT_EQ(value("IRR(-10,{,10})"), 0.0);
  EXPECT_EQ(value("IRR(-10,{,10.0000005})"), 0.0);
  EXPECT_NEAR(value("IRR(-10,{,10.000002})"), 2e-5, 1e-7);
}

TEST_F(cash_flows, internal_rates_may_be_negative_and_large) {
  EXPECT_NEAR(value("IRR(-10,{,5})"), -50.0, 1e-9);
  EXPECT_NEAR(value("IRR(-10,{,0.1})"), -99.0, 1e-9);
  EXPECT_NEAR(value("IRR(-10,{,1000})"), 9900.0, 1e-6);
}

// --- Errors

// Every function with these flows, the arguments before them being good ones.
std::vector<std::string> calls_with(const std::string& flows) {
  return {"NPV(5,-10," + flows + ")", "NFV(5,-10," + flows + ")",      "NUS(5,-10," + flows + ")",
          "IRR(-10," + flows + ")",   "IRR_D(0.05,-10," + flows + ")", "MIRR(5,6,-10," + flows + ")"};
}

#define EXPECT_ALL(flows, error) \
  for (const std::string& call : calls_with(flows)) EXPECT_EQ(error_of(call), error) << call

TEST_F(cash_flows, good_flows_go_through_every_function) {
  EXPECT_ALL("{5,6}", "");
  EXPECT_ALL("{5,6},{2,3}", "");
  EXPECT_ALL("{5,6},0", "");
}

TEST_F(cash_flows, complex_lists_are_of_the_wrong_type) {
  EXPECT_ALL("{5,6(i)}", "Data Type Error");
  EXPECT_ALL("{5,6(i)},{1,1}", "Data Type Error");
  EXPECT_ALL("{5,6},{1,(i)}", "Data Type Error");
  EXPECT_ALL("{5,6},{1,1,(i)}", "Data Type Error");
}

TEST_F(cash_flows, frequencies_are_as_many_as_flows) {
  EXPECT_ALL("{5,6},{1,1,1}", "List Size Mismatch");
  EXPECT_ALL("{5,6},{,1}", "List Size Mismatch");
  EXPECT_ALL("{5,6},{1,1,1001}", "List Size Mismatch");
}

TEST_F(cash_flows, frequencies_are_integers_from_1_to_1000) {
  EXPECT_ALL("{5,6},{1,1000}", "");
  EXPECT_ALL("{5,6},{1,1001}", "Domain Error");
  EXPECT_ALL("{5,6},{0,1}", "Domain Error");
  EXPECT_ALL("{5,6},{1,-1}", "Domain Error");
  EXPECT_ALL("{5,6},{1.5,1}", "Domain Error");
  EXPECT_ALL("{5,6},{1,1e10}", "Domain Error");
}

TEST_F(cash_flows, undefined_lists_are_refused) {
  EXPECT_ALL("{A}", "List Size Not Defined");
  EXPECT_ALL("{5,6},{A}", "List Size Not Defined");
}

TEST_F(cash_flows, arguments_of_another_type_do_not_fit) {
  EXPECT_ALL("5", "Function Argument Type");
  EXPECT_ALL("\"ab\"", "Function Argument Type");
  EXPECT_EQ(error_of("NPV((i),-10,{5,6})"), "Function Argument Type");
  EXPECT_EQ(error_of("IRR({1,2},{5,6})"), "Function Argument Type");
  EXPECT_EQ(error_of("NPV(5,{5,6})"), "Function Argument Count");
}

TEST_F(cash_flows, a_rate_of_0_divides_by_zero) {
  for (const char* text :
       {"NPV(0,-10,{5,6})", "NFV(0,-10,{5,6})", "NUS(0,-10,{5,6})", "IRR_D(0,-10,{5,6})",
        "MIRR(0,1,-10,{5,6})", "MIRR(1,0,-10,{5,6})", "NPV(0,-10,{0,0})", "MIRR(1,0,10,{-5,-6})"})
    EXPECT_EQ(error_of(text), "Division by Zero") << text;
}

TEST_F(cash_flows, a_rate_of_minus_100_percent_has_no_discount) {
  EXPECT_EQ(error_of("NPV(-100,-10,{5,6})"), "Domain Error");
  EXPECT_EQ(error_of("IRR_D(-1,-10,{5,6})"), "Domain Error");
}

TEST_F(cash_flows, values_out_of_range_overflow) {
  EXPECT_EQ(error_of("NPV(-50,1,{1,2},{1000,1000})"), "Overflow");
  EXPECT_EQ(error_of("NFV(1e6,1,{1,2},{1000,1000})"), "Overflow");
}

TEST_F(cash_flows, money_must_be_paid_and_received_for_an_internal_rate) {
  for (const char* flows : {"-10,{-5,-6})", "10,{5,6})", "0,{0,0})", "-10,{0,0})", "0,{5,6})"}) {
    EXPECT_EQ(error_of(std::string("IRR(") + flows), "No IRR Sign Change") << flows;
    EXPECT_EQ(error_of(std::string("IRR_D(0.05,") + flows), "No IRR Sign Change") << flows;
    EXPECT_EQ(error_of(std::string("IRR_D(0,") + flows), "No IRR Sign Change") << flows;
  }
  EXPECT_EQ(error_of("IRR(0,{-5,6})"), "");
  EXPECT_EQ(error_of("IRR(10,{,-5})"), "");
}

TEST_F(cash_flows, without_a_sign_change_the_internal_rate_is_the_initial_amount) {
  EXPECT_EQ(internal_rate(cash_of({-10, {-5, -6}, {1, 1}})), -10.0);
  EXPECT_EQ(errors.error_code, ERR_NO_IRR_SIGN_CHANGE);
}

TEST_F(cash_flows, flows_without_a_root_exceed_the_iterations) {
  EXPECT_EQ(error_of("IRR(1,{-1.9,1})"), "Iterations Exceeded");
  EXPECT_EQ(internal_rate(cash_of({1, {-1.9, 1}, {1, 1}})), undefined_value);
}

TEST_F(cash_flows, a_modified_rate_needs_payments) {
  EXPECT_EQ(error_of("MIRR(5,6,10,{5,6})"), "Division by Zero");
  EXPECT_EQ(error_of("MIRR(5,6,0,{0,0})"), "Domain Error") << "nothing received over nothing paid";
  EXPECT_EQ(eval("MIRR(5,6,-10,{-5,-6})"), "-100");
}

TEST_F(cash_flows, an_error_leaves_answers_and_lists) {
  eval("{1,2}->{A}");
  eval("42");
  EXPECT_EQ(error_of("NPV(0,-10,{A})"), "Division by Zero");
  EXPECT_EQ(eval("(Ans)+0"), "42");
  EXPECT_EQ(list_text(stored('A')), "1 2");
}

TEST_F(cash_flows, a_tap_cancels_a_long_search) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  std::vector<double> flows(999, 1e5 / 3);
  for (std::size_t i = 0; i < flows.size(); i += 3) flows[i] = -1e5;
  define('A', flows);
  define('B', std::vector<double>(999, 1000.0));
  platform_.pen_downs.push_back({100, 100});
  // The walk's own look at the clock comes before the search; its next one, half a second on, in the midst of
  // it.
  eval("0");
  platform_.ticks_per_look = 5;
  EXPECT_EQ(error_of("IRR(1,{A},{B})"), "Operation Canceled");
  platform_.ticks_per_look = 0;
  platform_.pen_downs.clear();
  EXPECT_EQ(eval("2+2"), "4");
}

}  // namespace
}  // namespace zephyl
