#include "tools/rate_search.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/faults.h"
#include "engine/values.h"

namespace zephyl {

namespace {

constexpr int ITERATION_LIMIT = 100;
constexpr double first_distance = 0.001, distance_growth = 1.1, distance_limit = 100.0;
constexpr double smallest_start = 1e-14;
constexpr double converged = 1e-14, check_distance = 1e-13;

bool is_set(double value) { return value != undefined_value; }

// A search with its last error, which is kept away from the error that the user sees.
class TSearch {
 public:
  TSearch(TResidual residual, const void* data) : residual_(residual), data_(data) {}

  double secant(double start, bool shrink_start);
  int last_error() const { return last_error_; }
  bool canceled() const { return canceled_; }

 private:
  double residual_at(double rate);
  double fail(int error);
  double checked_root(double x0, double x1);

  TResidual volatile residual_;  // the compiler must not see into it: its faults are read after each call
  const void* data_;
  int last_error_ = ERR_ITERATIONS;
  bool canceled_ = false;  // every further trial fails at once
};

double TSearch::residual_at(double rate) {
  if (canceled_) return undefined_value;
  clear_faults();
  const double value = residual_(rate, data_);
  report_fault();
  if (!errors.error_flag) return value;
  last_error_ = errors.error_code;
  canceled_ = last_error_ == ERR_CANCELED;
  clear_error();
  return undefined_value;
}

double TSearch::fail(int error) {
  last_error_ = error;
  return undefined_value;
}

// A pole or a zero that only touches is no root.
double TSearch::checked_root(double x0, double x1) {
  const double above = residual_at(x1 + check_distance), below = residual_at(x1 - check_distance);
  if (!is_set(above) || !is_set(below) || above * below >= 0.0) return fail(ERR_ITERATIONS);
  return (x1 + x0) / 2.0;
}

double TSearch::secant(double start, bool shrink_start) {
  double step = std::fabs(0.1 * start);
  double x0 = start, f0 = residual_at(x0);
  while (shrink_start && !is_set(f0) && std::fabs(x0) > smallest_start) {
    x0 *= 0.9;
    f0 = residual_at(x0);
  }
  if (!is_set(f0)) return fail(last_error_);
  double x1 = 1.000000001 * x0;
  for (int count = 0; count <= ITERATION_LIMIT; ++count) {
    const double f1 = residual_at(x1);
    const bool opposite = is_set(f1) && ((f0 < 0.0 && f1 > 0.0) || (f0 > 0.0 && f1 < 0.0));
    if (!is_set(f1) || (opposite && std::fabs(f0) < std::fabs(f1))) {
      // The step was too long.
      step *= 0.1;
      x1 = x0 + std::copysign(step, x1 - x0);
      continue;
    }
    if (std::fabs(x1 - x0) < converged) return checked_root(x0, x1);
    const bool first_is_larger = std::fabs(f0) > std::fabs(f1);
    const double xa = first_is_larger ? x0 : x1, fa = first_is_larger ? f0 : f1;
    const double xb = first_is_larger ? x1 : x0, fb = first_is_larger ? f1 : f0;
    if (fa == fb) return fail(ERR_ITERATIONS);
    const double move = -(xa - xb) * fb / (fa - fb);
    x1 = xb + std::max(-step, std::min(step, move));
    x0 = xb;
    f0 = fb;
  }
  return fail(ERR_ITERATIONS);
}

double magnitude(double root) { return std::fabs(root); }

}  // namespace

double search_rate(TResidual residual, const void* data) {
  TSearch search(residual, data);
  double a = undefined_value, b = undefined_value;
  bool first = true;
  for (double distance = first_distance * distance_growth;; distance *= distance_growth) {
    if (!is_set(a) || a < 0.0) a = search.secant(distance, first);
    if (!is_set(b) || b > 0.0) b = search.secant(-distance, first);
    first = false;
    if (std::min(magnitude(a), magnitude(b)) <= distance || distance > distance_limit) break;
  }
  if (search.canceled()) {
    report_error(ERR_CANCELED);
    return undefined_value;
  }
  clear_faults();  // those of the trials are dealt with
  if (!is_set(a) && !is_set(b)) {
    report_error(static_cast<TError>(search.last_error()));
    return undefined_value;
  }
  return magnitude(a) <= magnitude(b) ? a : b;
}

}  // namespace zephyl
