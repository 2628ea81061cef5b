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

// A pair of nodes, left and right of the centre.
struct TNodes {
  double distance;  // from the centre, of an interval of length 2
  double kronrod_weight;
  double gauss_weight;  // 0 for nodes that the Gauss rule of 30 points hasn't
};

class TGaussKronrod {
 public:
  static constexpr int POINTS = 61;
  static constexpr int PAIRS = 30;

  // The interval in either order; returns the first place.
  double start(double a, double b);
  // Takes the sample at the last place. True with the next place, false when result() stands.
  bool next(double sample, double& place) {
    samples_[count_++] = sample;
    if (count_ == POINTS) return false;
    place = place_of(count_);
    return true;
  }
  TRuleResult result() const;

 private:
  static const TNodes pairs[PAIRS];

  // The centre, then pairs left and right of it.
  double place_of(int index) const {
    const double distance = half_length_ * pairs[(index - 1) / 2].distance;
    return index % 2 == 1 ? centre_ - distance : centre_ + distance;
  }

  double centre_ = 0.0, half_length_ = 0.0;
  double samples_[POINTS] = {};
  int count_ = 0;
};

}  // namespace zephyl
