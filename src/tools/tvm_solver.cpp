#include "tools/tvm_solver.h"

#include <cmath>
#include <initializer_list>

#include "engine/errors.h"
#include "engine/operations.h"
#include "engine/values.h"
#include "numerics/real_functions.h"
#include "tools/rate_search.h"

namespace zephyl {

namespace {

constexpr double negligible = 1e-5;  // of money, and of a rate
constexpr int PAYMENT_LIMIT = 10000;

bool is_negligible(double x) { return std::fabs(x) < negligible; }
double snapped(double x) { return is_negligible(x) ? 0.0 : x; }

// The values by name, and the rate of a payment period where it is known.
struct TLoan {
  double n, pv, pmt, fv, py, cy;
  bool begin;
  double i = 0.0;  // rate of a period
  double s = 1.0;  // 1 + i for payments at the beginning of a period, else 1

  explicit TLoan(const TvmState& state)
      : n(state.values[TVM_N]),
        pv(state.values[TVM_PV]),
        pmt(state.values[TVM_PMT]),
        fv(state.values[TVM_FV]),
        py(state.values[TVM_PY]),
        cy(state.values[TVM_CY]),
        begin(state.begin) {}

  double period_rate(double percent) const {
    const double rate = percent * 0.01 / cy;
    return py == cy ? rate : real_power(1.0 + rate, cy / py) - 1.0;
  }

  double percent_of(double rate) const {
    return (py == cy ? rate : real_power(1.0 + rate, py / cy) - 1.0) * cy * 100.0;
  }

  void set_rate(double rate) {
    i = rate;
    s = begin ? 1.0 + rate : 1.0;
  }

  bool no_interest() const { return is_negligible(i); }
};

double solve_n(const TLoan& loan) {
  if (loan.no_interest()) return -(loan.fv + loan.pv) / loan.pmt;
  const double denominator = loan.pv * loan.i + loan.s * loan.pmt;
  if (is_negligible(denominator)) {
    report_error(ERR_ZERO_DIVIDE);
    return undefined_value;
  }
  return std::log((loan.s * loan.pmt - loan.fv * loan.i) / denominator) / std::log(1.0 + loan.i);
}

double solve_pv(const TLoan& loan) {
  if (loan.no_interest()) return -(loan.pmt * loan.n + loan.fv);
  const double c = loan.s * loan.pmt / loan.i;
  return (c - loan.fv) * real_power(1.0 + loan.i, -loan.n) - c;
}

double solve_pmt(const TLoan& loan) {
  if (loan.no_interest()) return -(loan.pv + loan.fv) / loan.n;
  return -(loan.i / loan.s) * ((loan.pv + loan.fv) / (real_power(1.0 + loan.i, loan.n) - 1.0) + loan.pv);
}

double solve_fv(const TLoan& loan) {
  if (loan.no_interest()) return -(loan.pmt * loan.n + loan.pv);
  const double c = loan.s * loan.pmt / loan.i;
  return c - (c + loan.pv) * real_power(1.0 + loan.i, loan.n);
}

// At least one payment each way, and at most one of the three missing.
bool signs_change(const TLoan& loan) {
  int negative = 0, zero = 0, positive = 0;
  for (const double money : {loan.pv, loan.fv, loan.n * loan.pmt})
    ++(money < 0.0 ? negative : money > 0.0 ? positive : zero);
  return negative >= 1 && positive >= 1 && zero <= 1;
}

double residual_of_rate(double rate, const void* data) {
  const TLoan& loan = *static_cast<const TLoan*>(data);
  const double discount = real_power(1.0 + rate, -loan.n);
  const double annuity = (1.0 - discount) / rate * (loan.begin ? 1.0 + rate : 1.0);
  return loan.pmt * annuity + loan.fv * discount + loan.pv;
}

double solve_rate(const TLoan& loan) {
  if (!signs_change(loan)) {
    report_error(ERR_NO_TVM_SIGN_CHANGE);
    return undefined_value;
  }
  const double rate = is_negligible(loan.pmt) ? real_power(-loan.fv / loan.pv, 1.0 / loan.n) - 1.0
                                              : search_rate(residual_of_rate, &loan);
  return rate == undefined_value ? undefined_value : loan.percent_of(rate);
}

}  // namespace

double solve_tvm(const TvmState& state, int unknown) {
  constexpr double (*solvers[])(const TLoan&) = {solve_n, solve_rate, solve_pv, solve_pmt, solve_fv};
  if (unknown < TVM_N || unknown > TVM_FV) {
    report_error(ERR_UNEXPECTED);
    return undefined_value;
  }
  TLoan loan(state);
  if (unknown != TVM_I) loan.set_rate(loan.period_rate(state.values[TVM_I]));
  return snapped(solvers[unknown](loan));
}

TPayment amortize(const TvmState& state, int count) {
  const double rate = state.values[TVM_I] * 0.01 / state.values[TVM_CY];
  const double pmt = state.values[TVM_PMT];
  TPayment payment;
  payment.balance = state.values[TVM_PV];
  for (int j = 1; j <= count; ++j) {
    payment.interest = j == 1 && state.begin ? 0.0 : rate * payment.balance;
    payment.principal = pmt + payment.interest;
    payment.balance += payment.principal;
  }
  if ((pmt > 0.0 && payment.interest < 0.0) || (pmt < 0.0 && payment.interest > 0.0))
    payment.interest = -payment.interest;
  return {snapped(payment.interest), snapped(payment.principal), snapped(payment.balance)};
}

namespace {

bool has_periods(double periods) {
  if (periods > 0.0) return true;
  report_error(ERR_DOMAIN);
  return false;
}

}  // namespace

double effective_rate(double nominal, double periods) {
  return has_periods(periods) ? (real_power(1.0 + nominal * 0.01 / periods, periods) - 1.0) * 100.0 : 0.0;
}

double nominal_rate(double effective, double periods) {
  return has_periods(periods) ? (real_power(1.0 + effective * 0.01, 1.0 / periods) - 1.0) * periods * 100.0
                              : 0.0;
}

namespace {

// The arguments are the solver's values in their order, all but the unknown.
template <int unknown>
void solve_operation(TScalarCall& call) {
  TvmState given = tvm_state;
  int argument = 0;
  for (int value = TVM_N; value <= TVM_CY; ++value)
    given.values[value] = value == unknown ? undefined_value : call.args[argument++].re;
  call.result = {solve_tvm(given, unknown), 0.0};
}

void balance_operation(TScalarCall& call) {
  const int payments = checked_integer(call.args[0].re, 0, PAYMENT_LIMIT, ERR_DOMAIN);
  if (!errors.error_flag) call.result = {amortize(tvm_state, payments).balance, 0.0};
}

// The principal paid with payments a to b.
double principal_paid(int a, int b) {
  return amortize(tvm_state, b).balance - amortize(tvm_state, a - 1).balance;
}

bool payment_range(const TScalarCall& call, int& a, int& b) {
  a = checked_integer(call.args[0].re, 1, PAYMENT_LIMIT, ERR_DOMAIN);
  b = checked_integer(call.args[1].re, 1, PAYMENT_LIMIT, ERR_DOMAIN);
  return !errors.error_flag;
}

void principal_operation(TScalarCall& call) {
  int a = 0, b = 0;
  if (payment_range(call, a, b)) call.result = {principal_paid(a, b), 0.0};
}

void interest_operation(TScalarCall& call) {
  int a = 0, b = 0;
  if (payment_range(call, a, b))
    call.result = {tvm_state.values[TVM_PMT] * (b - a + 1) - principal_paid(a, b), 0.0};
}

}  // namespace

void register_tvm_operations() {
  operations[OP_TVM_N].scalar = solve_operation<TVM_N>;
  operations[OP_TVM_I_YR].scalar = solve_operation<TVM_I>;
  operations[OP_TVM_PV].scalar = solve_operation<TVM_PV>;
  operations[OP_TVM_PMT].scalar = solve_operation<TVM_PMT>;
  operations[OP_TVM_FV].scalar = solve_operation<TVM_FV>;
  operations[OP_TO_EFF].scalar = [](TScalarCall& call) {
    call.result = {effective_rate(call.args[0].re, call.args[1].re), 0.0};
  };
  operations[OP_TO_NOM].scalar = [](TScalarCall& call) {
    call.result = {nominal_rate(call.args[0].re, call.args[1].re), 0.0};
  };
  operations[OP_BALANCE].scalar = balance_operation;
  operations[OP_SUMM_PRN].scalar = principal_operation;
  operations[OP_SUMM_INT].scalar = interest_operation;
}

}  // namespace zephyl
