// The least value of a function between two bounds: a scan, then Brent (1973), "Algorithms for Minimization
// without Derivatives", in the form of Numerical Recipes (2nd edition, 10.2) with a tolerance of 0: the
// search ends when the interval has collapsed onto the place found, or after 2000 rounds.
#pragma once

namespace zephyl {

class TMinimum {
 public:
  // Samples of the scan, less one: the typed operators, and callers that want an answer quickly.
  static constexpr int FULL_SCAN = 2000;
  static constexpr int QUICK_SCAN = 1000;

  // The place of the first sample. Bounds in either order.
  double start(double lower, double upper, int scan = FULL_SCAN);
  // Takes the sample at the last place. True with the next place, false when result() stands.
  bool next(double sample, double& place);
  double result() const { return x_; }

 private:
  bool next_of_scan(double sample, double& place);
  bool next_of_search(double sample, double& place);
  void begin_search();
  bool choose_place(double& place);
  double golden_step();
  void take(double sample);

  double lower_ = 0.0, upper_ = 0.0;
  int scan_ = 0, k_ = 0;
  double least_ = 0.0;
  bool searching_ = false;
  int rounds_ = 0;
  double a_ = 0.0, b_ = 0.0;                      // the interval that holds the minimum
  double x_ = 0.0, w_ = 0.0, v_ = 0.0, u_ = 0.0;  // best, second, third place; the newest
  double fx_ = 0.0, fw_ = 0.0, fv_ = 0.0;
  double d_ = 0.0, e_ = 0.0;  // the last step and the one before it
};

}  // namespace zephyl
