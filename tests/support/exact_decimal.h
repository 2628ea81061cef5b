// The exact decimal expansion of a double by long arithmetic, rounded half away from zero: what printed
// numbers are compared with. Slow and simple on purpose, and shares nothing with the calculator's own
// printing.
#pragma once

#include <string>

namespace zephyl {

class TExactDecimal {
 public:
  explicit TExactDecimal(double value);

  // As "%.*f".
  std::string fixed(int decimals) const;
  // As the part of "%.*E" in front of the "E".
  std::string mantissa(int decimals, int& exponent) const;

 private:
  // Digits kept up to 10^-decimals, rounded; whole digits and decimals without a point.
  std::string rounded(int decimals) const;

  std::string digits_;  // at least one digit in front of the point
  int decimals_;        // how many of them stand behind it
  bool negative_;
};

}  // namespace zephyl
