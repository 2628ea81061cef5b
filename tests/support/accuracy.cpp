#include "support/accuracy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace zephyl {

namespace {

std::string listed(std::initializer_list<double> numbers) {
  std::string text;
  for (const double number : numbers) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.10g", number);
    text += (text.empty() ? "" : ", ") + std::string(digits);
  }
  return text;
}

}  // namespace

TAccuracy::~TAccuracy() {
  std::printf("  %-52s %8.1e  (allowed %.0e; %d arguments, worst at %s)\n", function_.c_str(), worst_,
              tolerance_, count_, worst_place_.c_str());
  EXPECT_GT(count_, 0) << function_;
  EXPECT_LE(worst_, tolerance_) << function_ << " at " << worst_place_;
}

void TAccuracy::compare(double actual, double expected, double scale,
                        std::initializer_list<double> arguments) {
  ++count_;
  double error = std::fabs(actual - expected) / scale;
  if (actual == expected) error = 0.0;
  if (std::isnan(error)) error = HUGE_VAL;
  if (error <= worst_) return;
  worst_ = error;
  worst_place_ = listed(arguments);
}

void TAccuracy::compare(double actual, double expected, std::initializer_list<double> arguments) {
  compare(actual, expected, std::fabs(expected), arguments);
}

double TSpread::between(double low, double high) {
  word_ = word_ * 6364136223846793005u + 1442695040888963407u;
  return low + (high - low) * (static_cast<double>(word_ >> 11) / 9007199254740992.0);
}

double TSpread::by_magnitude(double low, double high) {
  return std::exp(between(std::log(low), std::log(high)));
}

double TSpread::whole(int low, int high) { return std::floor(between(low, high + 1.0)); }

}  // namespace zephyl
