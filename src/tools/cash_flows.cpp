#include "tools/cash_flows.h"

#include <algorithm>
#include <cmath>

#include "collections/list_calls.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/operations.h"
#include "engine/poll.h"
#include "numerics/real_functions.h"
#include "tools/rate_search.h"

namespace zephyl {

namespace {

constexpr int FREQUENCY_LIMIT = 1000;
constexpr double percent = 0.01;
constexpr double negligible_percent = 1e-5;

int frequency_of(const TCashFlows& cash, int j) {
  return cash.frequencies ? static_cast<int>(int_part(cash.frequencies->elements[j].re)) : 1;
}

int period_count(const TCashFlows& cash) {
  int count = 0;
  for (int j = 0; j <= cash.flows->last; ++j) count += frequency_of(cash, j);
  return count;
}

double growth(double rate, int periods) { return real_power(1.0 + rate, periods); }

double reciprocal_of(double rate) {
  if (rate == 0.0) report_error(ERR_ZERO_DIVIDE);
  return rate == 0.0 ? 0.0 : 1.0 / rate;
}

bool is_any(double) { return true; }
bool is_paid(double flow) { return flow < 0.0; }
bool is_received(double flow) { return flow > 0.0; }

// The sum of the flows that count, each an annuity, discounted to the start of the first period.
double discounted_sum(const TCashFlows& cash, double rate, bool (*counts)(double)) {
  const double reciprocal = reciprocal_of(rate);
  double sum = 0.0, discount = 0.0;
  int periods_before = 0, discount_of = 0;
  for (int j = 0; j <= cash.flows->last && !errors.error_flag; ++j) {
    const double flow = cash.flows->elements[j].re;
    const int frequency = frequency_of(cash, j);
    if (counts(flow)) {
      // Powers are what takes the time, and frequencies are mostly alike.
      if (frequency != discount_of) discount = 1.0 - growth(rate, -frequency);
      discount_of = frequency;
      sum += discount * reciprocal * growth(rate, -periods_before) * flow;
    }
    periods_before += frequency;
  }
  return sum;
}

double residual_of_rate(double rate, const void* data) {
  const TCashFlows& cash = *static_cast<const TCashFlows*>(data);
  return poll_after(list_size(*cash.flows)) ? 0.0 : net_present_value(cash, rate);
}

bool refuses_without_sign_change(const TCashFlows& cash) {
  if (is_paid_and_received(cash)) return false;
  report_error(ERR_NO_IRR_SIGN_CHANGE);
  return true;
}

}  // namespace

bool is_paid_and_received(const TCashFlows& cash) {
  bool paid = is_paid(cash.initial), received = is_received(cash.initial);
  for (int j = 0; j <= cash.flows->last; ++j) {
    paid = paid || is_paid(cash.flows->elements[j].re);
    received = received || is_received(cash.flows->elements[j].re);
  }
  return paid && received;
}

double net_present_value(const TCashFlows& cash, double rate) {
  return cash.initial + discounted_sum(cash, rate, is_any);
}

double net_future_value(const TCashFlows& cash, double rate) {
  const double present = net_present_value(cash, rate);
  return growth(rate, period_count(cash)) * present;
}

double net_uniform_series(const TCashFlows& cash, double rate) {
  const double present = net_present_value(cash, rate);
  return present / ((1.0 - growth(rate, -period_count(cash))) * reciprocal_of(rate));
}

double internal_rate(const TCashFlows& cash) {
  return refuses_without_sign_change(cash) ? cash.initial : search_rate(residual_of_rate, &cash);
}

double modified_internal_rate(const TCashFlows& cash, double safe_rate, double risk_rate) {
  const double paid = std::min(cash.initial, 0.0) + discounted_sum(cash, safe_rate, is_paid);
  const double received = std::max(cash.initial, 0.0) + discounted_sum(cash, risk_rate, is_received);
  const int periods = period_count(cash);
  const double gain = growth(risk_rate, periods) * received / -paid;
  return real_power(gain, 1.0 / periods) - 1.0;
}

namespace {

bool are_frequencies(const ListRecord& list) {
  for (int j = 0; j <= list.last && !errors.error_flag; ++j)
    checked_integer(list.elements[j].re, 1, FREQUENCY_LIMIT, ERR_DOMAIN);
  return !errors.error_flag;
}

// The lists of a call, checked; a number in the place of the frequencies means that there are none.
bool read_cash_flows(const TFamilyCall& call, TCashFlows& cash) {
  TListOperands operands;
  if (!read_list_operands(call, operands)) return false;
  cash.flows = operands.first;
  cash.frequencies = operands.second;
  if (is_complex_list(*cash.flows) || (cash.frequencies && is_complex_list(*cash.frequencies))) {
    report_error(ERR_DATA_TYPE);
    return false;
  }
  if (!cash.frequencies) return true;
  if (cash.frequencies->last == cash.flows->last) return are_frequencies(*cash.frequencies);
  report_error(ERR_LIST_MISMATCH);
  return false;
}

// The numbers of a call end in CF0.
template <int initial, double (*value)(const TCashFlows& cash, const TValue* numbers)>
void value_operation(TFamilyCall& call) {
  TCashFlows cash;
  if (!read_cash_flows(call, cash)) return;
  cash.initial = call.numbers[initial].re;
  const double result = value(cash, call.numbers);
  if (!errors.error_flag) set_number_result(call.result_register, {result, 0.0});
}

template <double (*value)(const TCashFlows& cash, double rate)>
double at_percent(const TCashFlows& cash, const TValue* numbers) {
  return value(cash, numbers[0].re * percent);
}

double rate_in_percent(const TCashFlows& cash, const TValue*) {
  const double rate = internal_rate(cash);
  if (errors.error_flag) return rate;
  const double shown = rate * 100.0;
  return std::fabs(shown) < negligible_percent ? 0.0 : shown;
}

// Takes its rate as a fraction, unlike the others.
double residual_at_fraction(const TCashFlows& cash, const TValue* numbers) {
  const double rate = numbers[0].re;
  return refuses_without_sign_change(cash) ? rate : net_present_value(cash, rate);
}

double modified_rate_in_percent(const TCashFlows& cash, const TValue* numbers) {
  return modified_internal_rate(cash, numbers[0].re * percent, numbers[1].re * percent) * 100.0;
}

}  // namespace

void register_cash_flow_operations() {
  operations[OP_NPV].list = value_operation<1, at_percent<net_present_value>>;
  operations[OP_NFV].list = value_operation<1, at_percent<net_future_value>>;
  operations[OP_NUS].list = value_operation<1, at_percent<net_uniform_series>>;
  operations[OP_IRR].list = value_operation<0, rate_in_percent>;
  operations[OP_IRR_D].list = value_operation<1, residual_at_fraction>;
  operations[OP_MIRR].list = value_operation<2, modified_rate_in_percent>;
}

}  // namespace zephyl
