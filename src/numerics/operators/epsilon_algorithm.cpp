#include "numerics/operators/epsilon_algorithm.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zephyl {

namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double largest = std::numeric_limits<double>::max();

}  // namespace

void TEpsilonAlgorithm::start(double first) {
  count_ = 1;
  table_[1] = first;
  calls_ = 0;
}

// Brings the newest diagonal of the table to its front.
void TEpsilonAlgorithm::shift(int original_count, int pairs) {
  if (count_ == LIMIT) count_ = 2 * (LIMIT / 2) - 1;
  int at = original_count % 2 == 0 ? 2 : 1;
  for (int i = 0; i <= pairs; ++i, at += 2) table_[at] = table_[at + 2];
  if (original_count == count_) return;
  const int first = original_count - count_ + 1;
  for (int i = 0; i < count_; ++i) table_[i + 1] = table_[first + i];
}

void TEpsilonAlgorithm::estimate_error(double result, double& error) {
  if (calls_ < 4) {
    last_results_[calls_ - 1] = result;
    error = largest;
    return;
  }
  error = 0.0;
  for (const double last : last_results_) error += std::fabs(result - last);
  last_results_[0] = last_results_[1];
  last_results_[1] = last_results_[2];
  last_results_[2] = result;
}

void TEpsilonAlgorithm::extrapolate(double& result, double& error) {
  ++calls_;
  error = largest;
  result = table_[count_];
  const auto at_least_round_off = [&] { error = std::max(error, 5.0 * epsilon * std::fabs(result)); };
  if (count_ < 3) return at_least_round_off();
  const int original_count = count_, pairs = (count_ - 1) / 2;
  table_[count_ + 2] = table_[count_];
  table_[count_] = largest;
  int k = count_;
  for (int i = 1; i <= pairs; ++i, k -= 2) {
    const double e0 = table_[k - 2], e1 = table_[k - 1], e2 = table_[k + 2];
    const double delta2 = e2 - e1, error2 = std::fabs(delta2);
    const double tolerance2 = std::max(std::fabs(e2), std::fabs(e1)) * epsilon;
    const double delta3 = e1 - e0, error3 = std::fabs(delta3);
    const double tolerance3 = std::max(std::fabs(e1), std::fabs(e0)) * epsilon;
    if (error2 <= tolerance2 && error3 <= tolerance3) {
      // e0, e1 and e2 are equal to within round-off: converged.
      result = e2;
      error = error2 + error3;
      return at_least_round_off();
    }
    const double e3 = table_[k];
    table_[k] = e1;
    const double delta1 = e1 - e3, error1 = std::fabs(delta1);
    const double tolerance1 = std::max(std::fabs(e1), std::fabs(e3)) * epsilon;
    if (error1 <= tolerance1 || error2 <= tolerance2 || error3 <= tolerance3) {
      count_ = 2 * i - 1;
      break;
    }
    const double sum = 1.0 / delta1 + 1.0 / delta2 - 1.0 / delta3;
    if (std::fabs(sum * e1) <= 1e-4) {
      // Irregular behaviour: the rest of the table is left out.
      count_ = 2 * i - 1;
      break;
    }
    const double element = e1 + 1.0 / sum;
    table_[k] = element;
    const double element_error = error2 + std::fabs(element - e2) + error3;
    if (element_error <= error) {
      error = element_error;
      result = element;
    }
  }
  shift(original_count, pairs);
  estimate_error(result, error);
  at_least_round_off();
}

}  // namespace zephyl
