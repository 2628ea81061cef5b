// The length of (a, b) without overflow of the squares.
#pragma once

#include <cmath>

namespace zephyl {

inline double hypot2(double a, double b) {
  const double larger = std::fabs(a), smaller = std::fabs(b);
  if (larger > smaller) return larger * std::sqrt(1.0 + (b / a) * (b / a));
  return b == 0.0 ? 0.0 : smaller * std::sqrt(1.0 + (a / b) * (a / b));
}

// The magnitude of `size` with the sign of `sign`, where 0 counts as positive.
inline double with_sign(double size, double sign) { return sign >= 0.0 ? std::fabs(size) : -std::fabs(size); }

}  // namespace zephyl
