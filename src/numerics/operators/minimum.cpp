#include "numerics/operators/minimum.h"

#include <algorithm>
#include <cmath>

#include "numerics/operators/operator_state.h"
#include "numerics/operators/operators.h"

namespace zephyl {

namespace {

constexpr int ROUND_LIMIT = 2000;
constexpr double golden = 0.381966;

}  // namespace

double TMinimum::start(double lower, double upper, int scan) {
  lower_ = std::min(lower, upper);
  upper_ = std::max(lower, upper);
  scan_ = scan;
  k_ = 0;
  searching_ = false;
  return lower_;
}

bool TMinimum::next(double sample, double& place) {
  return searching_ ? next_of_search(sample, place) : next_of_scan(sample, place);
}

bool TMinimum::next_of_scan(double sample, double& place) {
  if (k_ == 0 || sample < least_) {
    least_ = sample;
    x_ = lower_ + k_ * (upper_ - lower_) / scan_;
  }
  if (k_ < scan_) {
    ++k_;
    place = lower_ + k_ * (upper_ - lower_) / scan_;
    return true;
  }
  begin_search();
  return choose_place(place);
}

void TMinimum::begin_search() {
  searching_ = true;
  rounds_ = 0;
  a_ = lower_;
  b_ = upper_;
  w_ = v_ = x_;
  fx_ = fw_ = fv_ = least_;
  d_ = e_ = 0.0;
}

double TMinimum::golden_step() {
  const double middle = 0.5 * (a_ + b_);
  e_ = x_ > middle ? a_ - x_ : b_ - x_;
  return golden * e_;
}

// False when the interval has collapsed or the rounds are used up.
bool TMinimum::choose_place(double& place) {
  const double middle = 0.5 * (a_ + b_);
  if (-(b_ - a_) / 2.0 >= std::fabs(x_ - middle) || rounds_++ >= ROUND_LIMIT) return false;
  // The parabola through x, w and v.
  const double r = (x_ - w_) * (fx_ - fv_);
  double q = (x_ - v_) * (fx_ - fw_);
  double p = (x_ - v_) * q - (x_ - w_) * r;
  q = 2.0 * (q - r);
  if (q > 0.0) p = -p;
  q = std::fabs(q);
  const double step_before_last = e_;
  e_ = d_;
  const bool falls_inside = p > q * (a_ - x_) && p < q * (b_ - x_);
  const bool accepted = std::fabs(p) < std::fabs(0.5 * q * step_before_last) && falls_inside;
  d_ = accepted ? p / q : golden_step();
  u_ = x_ + d_;
  place = u_;
  return true;
}

void TMinimum::take(double fu) {
  if (fu <= fx_) {
    (u_ >= x_ ? a_ : b_) = x_;
    v_ = w_, fv_ = fw_;
    w_ = x_, fw_ = fx_;
    x_ = u_, fx_ = fu;
    return;
  }
  (u_ < x_ ? a_ : b_) = u_;
  if (fu <= fw_ || w_ == x_) {
    v_ = w_, fv_ = fw_;
    w_ = u_, fw_ = fu;
  } else if (fu <= fv_ || v_ == x_ || v_ == w_) {
    v_ = u_, fv_ = fu;
  }
}

bool TMinimum::next_of_search(double sample, double& place) {
  take(sample);
  return choose_place(place);
}

namespace {

// sign 1: the least value; -1: the greatest, as the least of the negated function.
template <int sign>
void minimum_operation(TScalarCall& call) {
  TMinimum& minimum = method_state<TMinimum>(call);
  if (begins(call)) {
    const TBounds bounds = search_bounds(call);
    const int scan = is_plot_form(call.op) ? TMinimum::QUICK_SCAN : TMinimum::FULL_SCAN;
    if (begin_operator(call)) ask_at(call, minimum.start(bounds.lower, bounds.upper, scan));
    return;
  }
  double place = 0.0;
  if (minimum.next(sign * call.args[0].re, place)) return ask_at(call, place);
  finish_operator(call, {snapped_to_zero(minimum.result()), 0.0});
}

}  // namespace

void register_minimum_operators() {
  for (const TOp_Code op : {OP_FN_MIN, OP_PLOT_FN_MIN}) operations[op].scalar = minimum_operation<1>;
  for (const TOp_Code op : {OP_FN_MAX, OP_PLOT_FN_MAX}) operations[op].scalar = minimum_operation<-1>;
}

}  // namespace zephyl
