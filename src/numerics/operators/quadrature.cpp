#include "numerics/operators/quadrature.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace zephyl {

namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double least = std::numeric_limits<double>::min();
constexpr double largest = std::numeric_limits<double>::max();

constexpr double least_tolerance = std::max(50.0 * epsilon, 5e-29);

}  // namespace

double TQuadrature::bound_of(double area) const { return tolerance_ * std::fabs(area); }

double TQuadrature::start(double lower, double upper, double tolerance) {
  tolerance_ = std::max(tolerance, least_tolerance);
  length_ = std::fabs(upper - lower);
  intervals_[1] = {lower, upper, 0.0, 0.0};
  stage_ = WHOLE;
  return rule_.start(lower, upper);
}

// The rule on an interval is complete.
bool TQuadrature::next_rule(double& place) {
  if (stage_ == WHOLE) {
    if (first_estimate()) return false;
  } else if (stage_ == LEFT_HALF) {
    left_ = rule_.result();
    stage_ = RIGHT_HALF;
    place = rule_.start(middle_, intervals_[worst_].b);
    return true;
  } else {
    right_ = rule_.result();
    if (take_halves()) return false;
  }
  place = bisect();
  return true;
}

// Starts on the left half of the interval with the largest error.
double TQuadrature::bisect() {
  ++last_;
  stage_ = LEFT_HALF;
  middle_ = 0.5 * (intervals_[worst_].a + intervals_[worst_].b);
  halved_error_ = worst_error_;
  return rule_.start(intervals_[worst_].a, middle_);
}

// True if the rule on the whole interval is enough.
bool TQuadrature::first_estimate() {
  const TRuleResult whole = rule_.result();
  result_ = whole.integral;
  error_ = whole.error;
  bound_ = bound_of(result_);
  const bool rounded_off = error_ <= 100.0 * epsilon * whole.magnitude && error_ > bound_;
  if (rounded_off || (error_ <= bound_ && error_ != whole.deviation) || error_ == 0.0) return true;
  intervals_[1].integral = result_;
  intervals_[1].error = error_;
  last_ = worst_ = rank_ = order_[1] = 1;
  epsilon_.start(result_);
  worst_error_ = error_sum_ = error_;
  area_ = result_;
  error_ = largest;
  extrapolating_ = no_extrapolation_ = trouble_ = extrapolation_trouble_ = false;
  tries_ = round_off_1_ = round_off_2_ = round_off_3_ = 0;
  small_ = larger_error_ = error_test_ = correction_ = 0.0;
  return false;
}

void TQuadrature::note_round_off(double area, double error) {
  if (left_.deviation == left_.error || right_.deviation == right_.error) return;
  const bool nothing_gained =
      std::fabs(intervals_[worst_].integral - area) <= 1e-5 * std::fabs(area) && error >= 0.99 * worst_error_;
  if (nothing_gained) ++(extrapolating_ ? round_off_2_ : round_off_1_);
  if (last_ > 10 && error > worst_error_) ++round_off_3_;
}

// Counts the halves in place of the interval, and looks for what stops the method.
TQuadrature::TVerdict TQuadrature::test_halves() {
  const double area = left_.integral + right_.integral, error = left_.error + right_.error;
  error_sum_ += error - worst_error_;
  area_ += area - intervals_[worst_].integral;
  note_round_off(area, error);
  bound_ = bound_of(area_);
  if (round_off_1_ + round_off_2_ >= 10 || round_off_3_ >= 20) trouble_ = true;
  if (round_off_2_ >= 5) extrapolation_trouble_ = true;
  if (last_ == INTERVALS) trouble_ = true;
  const double a = intervals_[worst_].a, b = intervals_[worst_].b;
  const double smallest = (1.0 + 100.0 * epsilon) * (std::fabs(middle_) + 1000.0 * least);
  if (std::max(std::fabs(a), std::fabs(b)) <= smallest) trouble_ = true;
  replace_interval();
  sort_in();
  if (error_sum_ <= bound_) return SUM_UP;
  return trouble_ ? JUDGE_EXTRAPOLATION : GO_ON;
}

// The half with the larger error takes the interval's place, the other one the next free.
void TQuadrature::replace_interval() {
  const TInterval whole = intervals_[worst_];
  TInterval left{whole.a, middle_, left_.integral, left_.error};
  TInterval right{middle_, whole.b, right_.integral, right_.error};
  if (right.error > left.error) std::swap(left, right);
  intervals_[worst_] = left;
  intervals_[last_] = right;
}

// Keeps order_ descending by error (dqpsrt); only as many as may still be halved are kept in full order.
void TQuadrature::sort_in() {
  const auto error_at = [this](int place) { return intervals_[order_[place]].error; };
  if (last_ <= 2) {
    order_[1] = 1;
    order_[2] = 2;
  } else {
    const double error = intervals_[worst_].error;
    while (rank_ > 1 && error > error_at(rank_ - 1)) {
      order_[rank_] = order_[rank_ - 1];
      --rank_;
    }
    const int top = last_ > INTERVALS / 2 + 2 ? INTERVALS + 3 - last_ : last_;
    const int bound = top - 1;
    int i = rank_ + 1;
    while (i <= bound && error < error_at(i)) {
      order_[i - 1] = order_[i];
      ++i;
    }
    if (i > bound) {
      order_[bound] = worst_;
      order_[top] = last_;
    } else {
      order_[i - 1] = worst_;
      int k = bound;
      while (k >= i && intervals_[last_].error >= error_at(k)) {
        order_[k + 1] = order_[k];
        --k;
      }
      order_[k + 1] = last_;
    }
  }
  worst_ = order_[rank_];
  worst_error_ = intervals_[worst_].error;
}

double TQuadrature::width_of_worst() const { return std::fabs(intervals_[worst_].b - intervals_[worst_].a); }

// Before the smallest intervals are halved, the errors of the larger ones are brought down: true if one of
// them is next.
bool TQuadrature::skip_larger_intervals() {
  const int top = last_ > 2 + INTERVALS / 2 ? INTERVALS + 3 - last_ : last_;
  for (int k = rank_; k <= top; ++k) {
    worst_ = order_[rank_];
    worst_error_ = intervals_[worst_].error;
    if (width_of_worst() > small_) return true;
    ++rank_;
  }
  return false;
}

TQuadrature::TVerdict TQuadrature::extrapolate() {
  epsilon_.append(area_);
  double extrapolated = 0.0, extrapolated_error = 0.0;
  epsilon_.extrapolate(extrapolated, extrapolated_error);
  ++tries_;
  const bool hopeless = tries_ > 5 && error_ < 1e-3 * error_sum_;
  if (hopeless) trouble_ = true;
  if (extrapolated_error < error_) {
    tries_ = 0;
    error_ = extrapolated_error;
    result_ = extrapolated;
    correction_ = larger_error_;
    error_test_ = bound_of(extrapolated);
    if (error_ <= error_test_) return JUDGE_EXTRAPOLATION;
  }
  if (epsilon_.count() == 1) no_extrapolation_ = true;
  if (hopeless) return JUDGE_EXTRAPOLATION;
  worst_ = order_[1];
  worst_error_ = intervals_[worst_].error;
  rank_ = 1;
  extrapolating_ = false;
  small_ *= 0.5;
  larger_error_ = error_sum_;
  return GO_ON;
}

TQuadrature::TVerdict TQuadrature::after_bisection() {
  const double half_width = std::fabs(middle_ - intervals_[worst_].a);
  const TVerdict verdict = test_halves();
  if (verdict != GO_ON) return verdict;
  if (last_ == 2) {
    small_ = length_ * 0.375;
    larger_error_ = error_sum_;
    error_test_ = bound_;
    epsilon_.append(area_);
    return GO_ON;
  }
  if (no_extrapolation_) return GO_ON;
  larger_error_ -= halved_error_;
  if (half_width > small_) larger_error_ += left_.error + right_.error;
  if (!extrapolating_) {
    if (width_of_worst() > small_) return GO_ON;
    extrapolating_ = true;
    rank_ = 2;
  }
  if (!extrapolation_trouble_ && larger_error_ > error_test_ && skip_larger_intervals()) return GO_ON;
  return extrapolate();
}

// True when the method ends.
bool TQuadrature::take_halves() {
  const TVerdict verdict = after_bisection();
  return verdict != GO_ON && finish(verdict);
}

bool TQuadrature::finish(TVerdict verdict) {
  if (verdict == SUM_UP)
    sum_up();
  else
    judge_extrapolation();
  return true;
}

// The extrapolated result where it is better than the sum over the intervals.
void TQuadrature::judge_extrapolation() {
  if (error_ == largest) return sum_up();
  if (!trouble_ && !extrapolation_trouble_) return;
  if (extrapolation_trouble_) error_ += correction_;
  const bool comparable = result_ != 0.0 && area_ != 0.0;
  const bool sum_is_better =
      comparable ? error_ / std::fabs(result_) > error_sum_ / std::fabs(area_) : error_ > error_sum_;
  if (sum_is_better) sum_up();
}

void TQuadrature::sum_up() {
  result_ = 0.0;
  for (int i = 1; i <= last_; ++i) result_ += intervals_[i].integral;
  error_ = error_sum_;
}

}  // namespace zephyl
