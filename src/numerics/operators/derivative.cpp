#include "numerics/operators/derivative.h"

#include <algorithm>
#include <cmath>

#include "numerics/operators/operator_state.h"
#include "numerics/operators/operators.h"

namespace zephyl {

namespace {

constexpr double first_step = 0.01;
constexpr double shrink = 0.7142857142857143;  // 1/1.4
constexpr double worst_error = 1e301;
constexpr double give_up = 2.0;  // times the best error

// 1.96^j and 1/(1.96^j - 1): the factors of the extrapolation in the square of the step.
struct TFactors {
  double power[16] = {};
  double weight[16] = {};

  constexpr TFactors() {
    double p = 1.0;
    for (int j = 1; j < 16; ++j) {
      p *= 1.96;
      power[j] = p;
      weight[j] = 1.0 / (p - 1.0);
    }
  }
};
constexpr TFactors factors;

}  // namespace

double TDerivative::start(double at) {
  at_ = at;
  step_ = first_step;
  round_ = 0;
  have_above_ = false;
  best_error_ = worst_error;
  answer_ = 0.0;
  return at_ + step_;
}

bool TDerivative::next(double sample, double& place) {
  if (!have_above_) {
    above_ = sample;
    have_above_ = true;
    place = at_ - step_;
    return true;
  }
  have_above_ = false;
  a_[0][round_] = (above_ - sample) / (2.0 * step_);
  if (round_ == 0) answer_ = a_[0][0];
  if (round_ > 0 && end_of_round()) return false;
  ++round_;
  step_ *= shrink;
  place = at_ + step_;
  return true;
}

void TDerivative::extrapolate() {
  const int i = round_;
  for (int j = 1; j <= i; ++j) {
    a_[j][i] = (factors.power[j] * a_[j - 1][i] - a_[j - 1][i - 1]) * factors.weight[j];
    const double error = std::max(std::fabs(a_[j][i] - a_[j - 1][i]), std::fabs(a_[j][i] - a_[j - 1][i - 1]));
    if (error > best_error_) continue;
    best_error_ = error;
    answer_ = a_[j][i];
  }
}

// True when the table gets worse or is full.
bool TDerivative::end_of_round() {
  extrapolate();
  const double change = std::fabs(a_[round_][round_] - a_[round_ - 1][round_ - 1]);
  return change >= give_up * best_error_ || round_ == ROWS - 1;
}

namespace {

// The place of the derivative: the last argument or, of a plot form, x as it is.
double place_of(const TScalarCall& call) {
  return is_plot_form(call.op) ? memory_array[SLOT_X].re : call.args[2].re;
}

void derivative_operation(TScalarCall& call) {
  TDerivative& derivative = method_state<TDerivative>(call);
  if (begins(call)) {
    if (begin_operator(call)) ask_at(call, derivative.start(place_of(call)));
    return;
  }
  double place = 0.0;
  if (derivative.next(call.args[0].re, place)) return ask_at(call, place);
  finish_operator(call, {snapped_to_zero(derivative.result()), 0.0});
}

}  // namespace

void register_derivative_operator() {
  for (const TOp_Code op : {OP_FN_DERIV, OP_PLOT_FN_DERIV}) operations[op].scalar = derivative_operation;
}

}  // namespace zephyl
