// Wynn's epsilon algorithm for the limit of a sequence (QUADPACK, dqelg), with an estimate of the absolute
// error from the last three results.
#pragma once

namespace zephyl {

class TEpsilonAlgorithm {
 public:
  void start(double first);
  void append(double element) { table_[++count_] = element; }
  // Extrapolates; error is the largest double while too little is known.
  void extrapolate(double& result, double& error);
  int count() const { return count_; }

 private:
  static constexpr int LIMIT = 50;

  void shift(int original_count, int pairs);
  void estimate_error(double result, double& error);

  double table_[LIMIT + 3] = {};  // counted from 1
  int count_ = 0;
  double last_results_[3] = {};
  int calls_ = 0;
};

}  // namespace zephyl
