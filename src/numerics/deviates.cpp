#include "numerics/deviates.h"

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/operations.h"
#include "engine/poll.h"
#include "engine/values.h"
#include "numerics/lanczos.h"
#include "numerics/random.h"

namespace zephyl {

namespace {

constexpr int INTEGER_LIMIT = 1000000000;
constexpr double pi = 3.141592653589793;

double log_gamma_of(double x) { return lanczos_log_gamma(x, lanczos_root_two_pi); }

// Long loops can be ended by a tap.
bool canceled() { return poll_after(1); }

// Where the mean is so large that its logarithm of gamma has no digits left, no draw may ever be accepted.
constexpr int ROUND_LIMIT = 1000000;
bool rounds_left(int& rounds) {
  if (rounds++ < ROUND_LIMIT && !canceled()) return true;
  report_error(ERR_ITERATIONS);
  return false;
}

// A draw from the Lorentzian around the mean, cut to an integer; y is its abscissa. Redrawn until it lies in
// 0 to below limit.
bool lorentzian_draw(double scale, double mean, double limit, int& rounds, double& y, double& em) {
  do {
    if (!rounds_left(rounds)) return false;
    y = std::tan(pi * next_random());
    em = scale * y + mean;
  } while (em < 0.0 || em >= limit);
  em = std::floor(em);
  return true;
}

double poisson_by_product(double mean) {
  const double g = std::exp(-mean);
  double k = -1.0, t = 1.0;
  do {
    k += 1.0;
    t *= next_random();
  } while (t > g && !canceled());
  return k;
}

// Constants of the last mean.
struct TPoissonCache {
  double mean = -1.0;
  double sq = 0.0, log_mean = 0.0, g = 0.0;
} poisson_cache;

double poisson_by_rejection(double mean) {
  TPoissonCache& cache = poisson_cache;
  if (cache.mean != mean) {
    const double log_mean = std::log(mean);
    cache = {mean, std::sqrt(2.0 * mean), log_mean, mean * log_mean - log_gamma_of(mean + 1.0)};
  }
  double y = 0.0, em = 0.0, t = 0.0;
  int rounds = 0;
  do {
    if (!lorentzian_draw(cache.sq, mean, HUGE_VAL, rounds, y, em)) return 0.0;
    t = 0.9 * (1.0 + y * y) * std::exp(em * cache.log_mean - log_gamma_of(em + 1.0) - cache.g);
  } while (next_random() > t);
  return em;
}

double binomial_by_counting(double q, int n) {
  int successes = 0;
  for (int i = 0; i < n; ++i) successes += next_random() < q;
  return successes;
}

double binomial_by_product(double mean, int n) {
  const double g = std::exp(-mean);
  double t = 1.0;
  int j = 0;
  for (; j <= n; ++j) {
    t *= next_random();
    if (t < g || canceled()) break;
  }
  return std::min(j, n);
}

// Constants of the last n and q.
struct TBinomialCache {
  double n = -1.0, q = -1.0;
  double log_gamma_n = 0.0, log_q = 0.0, log_rest = 0.0;
} binomial_cache;

double binomial_by_rejection(double q, double mean, double n) {
  TBinomialCache& cache = binomial_cache;
  if (cache.n != n) cache.log_gamma_n = log_gamma_of(n + 1.0);
  if (cache.q != q) {
    cache.log_q = std::log(q);
    cache.log_rest = std::log(1.0 - q);
  }
  cache.n = n;
  cache.q = q;
  const double sq = std::sqrt(2.0 * mean * (1.0 - q));
  double y = 0.0, em = 0.0, t = 0.0;
  int rounds = 0;
  do {
    if (!lorentzian_draw(sq, mean, n + 1.0, rounds, y, em)) return 0.0;
    t = 1.2 * sq * (1.0 + y * y) *
        std::exp(cache.log_gamma_n - log_gamma_of(em + 1.0) - log_gamma_of(n - em + 1.0) + em * cache.log_q +
                 (n - em) * cache.log_rest);
  } while (next_random() > t);
  return em;
}

double above_zero(double x) { return x > 0.0 ? x : 1.0; }

}  // namespace

double random_integer(double lower, double upper) {
  const double a = checked_integer(lower, -INTEGER_LIMIT, INTEGER_LIMIT, ERR_DOMAIN);
  const double b = checked_integer(upper, -INTEGER_LIMIT, INTEGER_LIMIT, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  const double least = std::min(a, b), most = std::max(a, b);
  return std::trunc(next_random() * (most - least + 1.0)) + least;
}

double random_normal(double mean, double deviation) {
  for (;;) {
    const double u = above_zero(next_random());
    const double v = (above_zero(next_random()) - 0.5) * 1.7156;
    const double x = u - 0.449871;
    const double y = std::fabs(v) + 0.386595;
    const double q = x * x + y * (0.196 * y - 0.25472 * x);
    if (q < 0.27597 || (q <= 0.27846 && v * v <= -4.0 * std::log(u) * u * u))
      return mean + deviation * (v / u);
  }
}

double random_poisson(double mean) {
  constexpr double product_below = 12.0;
  return mean < product_below ? poisson_by_product(mean) : poisson_by_rejection(mean);
}

double random_binomial(double p, double n) {
  constexpr int count_below = 25;
  if (!(p >= 0.0 && p <= 1.0)) {
    report_error(ERR_DOMAIN);
    return 0.0;
  }
  const int trials = checked_integer(n, 1, INTEGER_LIMIT, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  const double q = p <= 0.5 ? p : 1.0 - p;
  const double mean = trials * q;
  const double successes = trials < count_below ? binomial_by_counting(q, trials)
                           : mean < 1.0         ? binomial_by_product(mean, trials)
                                                : binomial_by_rejection(q, mean, trials);
  return p <= 0.5 ? successes : trials - successes;
}

void register_deviate_operations() {
  operations[OP_RAND_INT].scalar = [](TScalarCall& call) {
    call.result = {random_integer(call.args[0].re, call.args[1].re), 0.0};
  };
  operations[OP_RAND_NORM].scalar = [](TScalarCall& call) {
    call.result = {random_normal(call.args[0].re, call.args[1].re), 0.0};
  };
  operations[OP_RAND_POIS].scalar = [](TScalarCall& call) {
    call.result = {random_poisson(call.args[0].re), 0.0};
  };
  operations[OP_RAND_BIN].scalar = [](TScalarCall& call) {
    call.result = {random_binomial(call.args[0].re, call.args[1].re), 0.0};
  };
}

}  // namespace zephyl
