#include "numerics/operators/root.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "numerics/operators/operator_state.h"
#include "numerics/operators/operators.h"

namespace zephyl {

namespace {

constexpr double scan_step = 0.0005;  // of the interval
constexpr int SCAN_SAMPLES = 1997;    // the last 4 steps of the interval are never looked at
constexpr int ROUND_LIMIT = 2000;
constexpr double relative_tolerance = 2e-15;
constexpr double absolute_tolerance = 5e-14;
constexpr double pole_from = 1.0;  // a value of this magnitude at the place found is a pole

bool same_sign(double a, double b) { return (a > 0.0 && b > 0.0) || (a < 0.0 && b < 0.0); }

}  // namespace

double TRoot::start(double lower, double upper) {
  at_ = std::min(lower, upper);
  step_ = (std::max(lower, upper) - at_) * scan_step;
  samples_ = 0;
  searching_ = false;
  return at_;
}

TRootOutcome TRoot::next(double sample, double& place) {
  if (!searching_) return next_of_scan(sample, place);
  fb_ = sample;
  return choose_place(place);
}

TRootOutcome TRoot::next_of_scan(double sample, double& place) {
  ++samples_;
  const bool first = samples_ == 1;
  if (first && sample == 0.0) {
    b_ = at_;
    return ROOT_FOUND;
  }
  if (first || same_sign(previous_, sample)) {
    if (samples_ >= SCAN_SAMPLES) return ROOT_NOT_FOUND;
    previous_x_ = at_;
    previous_ = sample;
    at_ += step_;
    place = at_;
    return ROOT_SEARCHING;
  }
  searching_ = true;
  rounds_ = 0;
  a_ = previous_x_, fa_ = previous_;
  b_ = c_ = at_, fb_ = fc_ = sample;
  d_ = e_ = b_ - a_;
  return choose_place(place);
}

// The zero lies between b and c, and b is the better place.
void TRoot::keep_bracket() {
  if (same_sign(fb_, fc_)) {
    c_ = a_, fc_ = fa_;
    d_ = e_ = b_ - a_;
  }
  if (std::fabs(fc_) < std::fabs(fb_)) {
    a_ = b_, b_ = c_, c_ = a_;
    fa_ = fb_, fb_ = fc_, fc_ = fa_;
  }
}

// The step of the inverse quadratic (or linear) interpolation where it may be trusted, else half of the
// interval.
double TRoot::interpolation(double tolerance, double half_width) {
  double p = 0.0, q = 0.0;
  const double s = fb_ / fa_;
  if (a_ == c_) {
    p = 2.0 * half_width * s;
    q = 1.0 - s;
  } else {
    const double t = fa_ / fc_, r = fb_ / fc_;
    p = s * (2.0 * half_width * t * (t - r) - (b_ - a_) * (r - 1.0));
    q = (t - 1.0) * (r - 1.0) * (s - 1.0);
  }
  if (p > 0.0) q = -q;
  p = std::fabs(p);
  const double within = std::min(3.0 * half_width * q - std::fabs(tolerance * q), std::fabs(e_ * q));
  if (2.0 * p >= within) return e_ = half_width;
  e_ = d_;
  return p / q;
}

TRootOutcome TRoot::end_of_search() const {
  return std::fabs(fb_) >= pole_from ? ROOT_NOT_FOUND : ROOT_FOUND;
}

TRootOutcome TRoot::choose_place(double& place) {
  keep_bracket();
  const double tolerance = relative_tolerance * std::fabs(b_) + absolute_tolerance;
  const double half_width = 0.5 * (c_ - b_);
  if (std::fabs(half_width) <= tolerance || fb_ == 0.0 || rounds_++ >= ROUND_LIMIT) return end_of_search();
  const bool may_interpolate = std::fabs(e_) >= tolerance && std::fabs(fa_) > std::fabs(fb_);
  d_ = may_interpolate ? interpolation(tolerance, half_width) : (e_ = half_width);
  a_ = b_, fa_ = fb_;
  b_ += std::fabs(d_) > tolerance ? d_ : std::copysign(tolerance, half_width);
  place = b_;
  return ROOT_SEARCHING;
}

namespace {

void root_operation(TScalarCall& call) {
  TRoot& root = method_state<TRoot>(call);
  if (begins(call)) {
    const TBounds bounds = search_bounds(call);
    if (begin_operator(call)) ask_at(call, root.start(bounds.lower, bounds.upper));
    return;
  }
  double place = 0.0;
  const TRootOutcome outcome = root.next(call.args[0].re, place);
  if (outcome == ROOT_SEARCHING) return ask_at(call, place);
  if (outcome == ROOT_FOUND) return finish_operator(call, {snapped_to_zero(root.result()), 0.0});
  finish_operator(call, {undefined_value, 0.0});
  report_error(ERR_NO_ROOT);
}

}  // namespace

void register_root_operator() {
  for (const TOp_Code op : {OP_FN_ROOT, OP_PLOT_FN_ROOT}) operations[op].scalar = root_operation;
}

}  // namespace zephyl
