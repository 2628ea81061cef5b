// Adaptive quadrature over a finite interval with extrapolation: QAGS of Piessens, de Doncker-Kapenga,
// Ueberhuber and Kahaner (1983), "QUADPACK", dqagse, with the 61-point rule. Fed sample by sample. The
// tolerance is relative. Where the method doesn't converge its best estimate is the result, and the error
// estimate tells.
#pragma once

#include "numerics/operators/epsilon_algorithm.h"
#include "numerics/operators/gauss_kronrod.h"

namespace zephyl {

class TQuadrature {
 public:
  static constexpr int INTERVALS = 200;

  // Bounds in either order; a tolerance below 50 roundings counts as that. Returns the first place.
  double start(double lower, double upper, double tolerance);
  // Takes the sample at the last place. True with the next place, false when the result stands.
  bool next(double sample, double& place) { return rule_.next(sample, place) || next_rule(place); }
  double result() const { return result_; }
  double error() const { return error_; }

 private:
  enum TStage { WHOLE, LEFT_HALF, RIGHT_HALF };
  enum TVerdict { GO_ON, SUM_UP, JUDGE_EXTRAPOLATION };

  struct TInterval {
    double a, b, integral, error;
  };

  bool next_rule(double& place);
  bool first_estimate();
  double bisect();
  bool take_halves();
  TVerdict test_halves();
  void note_round_off(double area, double error);
  void replace_interval();
  void sort_in();
  bool skip_larger_intervals();
  TVerdict extrapolate();
  TVerdict after_bisection();
  double width_of_worst() const;
  bool finish(TVerdict verdict);
  void judge_extrapolation();
  void sum_up();
  double bound_of(double area) const;

  double tolerance_ = 0.0;
  TGaussKronrod rule_;
  TStage stage_ = WHOLE;
  TRuleResult left_, right_;
  double length_ = 0.0;

  TInterval intervals_[INTERVALS + 1] = {};  // counted from 1
  int order_[INTERVALS + 2] = {};            // by error, largest first, counted from 1
  int last_ = 0;                             // intervals in use
  int worst_ = 1;                            // the interval to halve next
  int rank_ = 1;                             // its place in order_
  double middle_ = 0.0;

  double result_ = 0.0, error_ = 0.0;
  double area_ = 0.0, error_sum_ = 0.0, bound_ = 0.0;
  double worst_error_ = 0.0, halved_error_ = 0.0;  // of the interval to halve; of the one just halved

  TEpsilonAlgorithm epsilon_;
  bool extrapolating_ = false, no_extrapolation_ = false;
  int tries_ = 0;
  double small_ = 0.0, larger_error_ = 0.0, error_test_ = 0.0, correction_ = 0.0;
  int round_off_1_ = 0, round_off_2_ = 0, round_off_3_ = 0;
  bool trouble_ = false;                // a limit was reached or round-off seen: stop
  bool extrapolation_trouble_ = false;  // round-off in the extrapolation
};

}  // namespace zephyl
