#include "engine/values.h"

#include <cmath>
#include <limits>

namespace zephyl {

namespace {

// A value this little below an integer counts as that integer.
constexpr double integer_nudge = 1.00000000005;

}  // namespace

double int_part(double x) {
  const double plain = std::trunc(x);
  const double nudged = std::trunc(x * integer_nudge);
  return std::fabs(nudged) > std::fabs(plain) ? nudged : plain;
}

double frac_part(double x) {
  const double nudged = x * integer_nudge;
  const double plain_part = std::trunc(x);
  const double nudged_part = std::trunc(nudged);
  return std::fabs(nudged_part) > std::fabs(plain_part) ? nudged - nudged_part : x - plain_part;
}

int checked_integer(double x, int low, int high, TError error) {
  constexpr double integer_limit = 2e9;
  const double integer = int_part(x);
  if (std::fabs(x) < integer_limit && frac_part(x) == 0.0 && integer >= low && integer <= high)
    return static_cast<int>(integer);
  if (error != NO_REPORT) report_error(error);
  return 0;
}

std::int32_t to_int32(double x) {
  if (std::isnan(x)) return 0;
  if (x >= static_cast<double>(std::numeric_limits<std::int32_t>::max()))
    return std::numeric_limits<std::int32_t>::max();
  if (x <= static_cast<double>(std::numeric_limits<std::int32_t>::min()))
    return std::numeric_limits<std::int32_t>::min();
  return static_cast<std::int32_t>(x);
}

}  // namespace zephyl
