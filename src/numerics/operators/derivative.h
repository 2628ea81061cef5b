// The derivative of a function at a point: Ridders (1982), "Accurate computation of F'(x) and F'(x)F''(x)",
// polynomial extrapolation of central differences, as in Numerical Recipes (2nd edition, 5.7) with a first
// step of 0.01.
#pragma once

namespace zephyl {

class TDerivative {
 public:
  // The place of the first sample.
  double start(double at);
  // Takes the sample at the last place. Returns true with the next place, false when result() stands.
  bool next(double sample, double& place);
  double result() const { return answer_; }

 private:
  static constexpr int ROWS = 16;

  bool end_of_round();
  void extrapolate();

  double at_ = 0.0;
  double step_ = 0.0;
  double above_ = 0.0;  // sample at at_ + step_
  bool have_above_ = false;
  int round_ = 0;
  double a_[ROWS][ROWS] = {};  // Neville's table
  double best_error_ = 0.0;
  double answer_ = 0.0;
};

}  // namespace zephyl
