// QAGS of QUADPACK as one loop over whole intervals, to hold the resumable form of the calculator against.
// The rule is GSL's, so that nodes and weights are compared as well.
#pragma once

#include <functional>

namespace zephyl {

struct TStraightIntegral {
  double result = 0.0;
  double error = 0.0;
  int evaluations = 0;
};

enum TStraightRule { RULE_OF_21 = 21, RULE_OF_61 = 61 };

// The relative tolerance alone counts; at most 200 intervals.
TStraightIntegral straight_qags(const std::function<double(double)>& function, double a, double b,
                                double tolerance, TStraightRule rule);

}  // namespace zephyl
