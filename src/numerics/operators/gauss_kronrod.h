// The 61-point Gauss-Kronrod rule on one interval, fed sample by sample (Piessens and others, 1983,
// "QUADPACK", dqk61).
#pragma once

namespace zephyl {

struct TRuleResult {
  double integral = 0.0;
  double error = 0.0;      // estimate of the absolute error
  double magnitude = 0.0;  // integral of the function's magnitude
  double deviation = 0.0;  // integral of its distance from the mean
};

class TGaussKronrod {
 public:
  static constexpr int POINTS = 61;

  // The interval in either order; returns the first place.
  double start(double a, double b);
  // Takes the sample at the last place. True with the next place, false when result() stands.
  bool next(double sample, double& place);
  TRuleResult result() const;

 private:
  double place_of(int index) const;

  double centre_ = 0.0, half_length_ = 0.0;
  double samples_[POINTS] = {};
  int count_ = 0;
};

}  // namespace zephyl
