#include "engine/polar.h"

#include <cfenv>
#include <cmath>

namespace zephyl {

double complex_magnitude(double a, double b) {
  a = std::fabs(a);
  b = std::fabs(b);
  if (a == 0.0) return b;
  if (b == 0.0) return a;
  const double larger = a < b ? b : a;
  const double ratio = (a < b ? a : b) / larger;
  return larger * std::sqrt(ratio * ratio + 1.0);
}

double complex_angle(double a, double b) {
  if (a == 0.0) return b == 0.0 ? 0.0 : b > 0.0 ? quarter_turn : -quarter_turn;
  const double angle = std::atan(b / a);
  if (a > 0.0) return angle;
  return b < 0.0 ? angle - half_turn : angle + half_turn;
}

void rect_to_polar(double a, double b, double& modulus, double& angle) {
  std::fexcept_t raised_before;
  std::fegetexceptflag(&raised_before, FE_ALL_EXCEPT);
  modulus = complex_magnitude(a, b);
  angle = radians_to_mode(complex_angle(a, b));
  std::fesetexceptflag(&raised_before, FE_ALL_EXCEPT);
}

}  // namespace zephyl
