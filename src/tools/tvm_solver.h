// The time value of money: any of N, I%YR, PV, PMT and FV from the other four, the amortization of a loan,
// and the conversion of interest rates. Money that is received is positive, money that is paid negative.
#pragma once

#include "tools/tvm_state.h"

namespace zephyl {

// The unknown, TVM_N to TVM_FV, from the other values of `state`; it isn't stored. Magnitudes below 1e-5 are
// 0. With an error (ERR_ZERO_DIVIDE, ERR_NO_TVM_SIGN_CHANGE, ERR_ITERATIONS, a fault) undefined_value or 0.
double solve_tvm(const TvmState& state, int unknown);

struct TPayment {
  double interest = 0.0;
  double principal = 0.0;
  double balance = 0.0;  // after the payment
};
// The last of `count` payments from the solver's values; the rate is that of C/Y as it stands.
TPayment amortize(const TvmState& state, int count);

// Percent a year; periods above 0, else ERR_DOMAIN.
double effective_rate(double nominal, double periods);
double nominal_rate(double effective, double periods);

// tvmPmt( to tvmFV(, toEFF(, toNOM(, Balance(, summPrn(, summInt(.
void register_tvm_operations();

}  // namespace zephyl
