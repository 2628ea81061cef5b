// The value of cash flows: NPV(, NFV(, NUS(, IRR(, IRR_D(, MIRR(. Money that is received is positive, money
// that is paid negative. Flows are level annuities: flow j is repeated as often as its frequency says, one
// period after the other; the first amount, CF0, stands at the start of the first period.
#pragma once

#include "engine/records.h"

namespace zephyl {

struct TCashFlows {
  double initial = 0.0;                     // CF0
  const ListRecord* flows = nullptr;        // real, not empty
  const ListRecord* frequencies = nullptr;  // as many integers, 1 to 1000; null: 1 for each flow
};

// Of all of these: rates are fractions of 1 a period; a rate of 0 is ERR_ZERO_DIVIDE, a rate of -1
// ERR_DOMAIN.
double net_present_value(const TCashFlows& cash, double rate);
double net_future_value(const TCashFlows& cash, double rate);
// The level payment a period that is worth as much.
double net_uniform_series(const TCashFlows& cash, double rate);

// The rate at which the net present value is 0. ERR_NO_IRR_SIGN_CHANGE, and the initial amount, unless money
// is both paid and received; undefined_value, with an error, where the search finds none.
double internal_rate(const TCashFlows& cash);
// Negative flows discounted at the safe rate, positive ones gaining the risk rate. ERR_ZERO_DIVIDE if nothing
// is paid.
double modified_internal_rate(const TCashFlows& cash, double safe_rate, double risk_rate);

bool is_paid_and_received(const TCashFlows& cash);

void register_cash_flow_operations();

}  // namespace zephyl
