#include "numerics/incomplete_functions.h"

#include <cmath>

#include "numerics/lanczos.h"

namespace zephyl {

namespace {

constexpr int ROUNDS = 300;
constexpr double FLOOR = 1e-50;  // stands in for a 0 in Lentz's method
constexpr double OVER_FLOOR = 1e50;
constexpr double CONVERGED = 1e-20;  // so a factor must be exactly 1
constexpr double stirling_from = 700.0;
constexpr double two_pi = 6.283185307179586;
constexpr double root_two_pi = 2.506628274631001;

double not_below_floor(double x) { return std::fabs(x) < FLOOR ? FLOOR : x; }

double front_factor(double a, double x) { return std::exp(a * std::log(x) - x - log_gamma(a)); }

// P(a, x) by its series.
double series_of_p(double a, double x) {
  if (x == 0.0) return 0.0;
  double ap = a, del = 1.0 / a, sum = del;
  for (int round = 0; round < ROUNDS; ++round) {
    ap += 1.0;
    del *= x / ap;
    sum += del;
    if (std::fabs(del) < std::fabs(sum) * CONVERGED) return sum * front_factor(a, x);
  }
  return NOT_COMPUTED;
}

// Q(a, x) by its continued fraction, modified Lentz.
double fraction_of_q(double a, double x) {
  double b = x + 1.0 - a, c = OVER_FLOOR, d = 1.0 / b, h = d;
  for (int i = 1; i <= ROUNDS; ++i) {
    const double an = i * (a - i);
    b += 2.0;
    d = 1.0 / not_below_floor(an * d + b);
    c = not_below_floor(b + an / c);
    const double del = d * c;
    h *= del;
    if (std::fabs(del - 1.0) < CONVERGED) return front_factor(a, x) * h;
  }
  return NOT_COMPUTED;
}

double complement(double part) { return part == NOT_COMPUTED ? NOT_COMPUTED : 1.0 - part; }

bool out_of_range(double a, double x) { return x < 0.0 || a <= 0.0; }
bool series_is_better(double a, double x) { return x < a + 1.0; }

// The continued fraction of the incomplete beta function; false where it doesn't converge.
bool beta_cf(double a, double b, double x, double& h) {
  const double qab = a + b, qap = a + 1.0, qam = a - 1.0;
  double c = 1.0, d = 1.0 / not_below_floor(1.0 - qab * x / qap);
  h = d;
  for (int m = 1; m <= ROUNDS; ++m) {
    const double m2 = 2.0 * m;
    double aa = m * (b - m) * x / ((qam + m2) * (a + m2));
    d = 1.0 / not_below_floor(1.0 + aa * d);
    c = not_below_floor(1.0 + aa / c);
    h *= d * c;
    aa = -(a + m) * (qab + m) * x / ((a + m2) * (qap + m2));
    d = 1.0 / not_below_floor(1.0 + aa * d);
    c = not_below_floor(1.0 + aa / c);
    const double del = d * c;
    h *= del;
    if (std::fabs(del - 1.0) < CONVERGED) return true;
  }
  return false;
}

}  // namespace

double log_gamma(double x) {
  return x < stirling_from ? lanczos_log_gamma(x, root_two_pi)
                           : (x + 0.5) * std::log(x) + 0.5 * std::log(two_pi) - x;
}

double gamma_p(double a, double x) {
  if (out_of_range(a, x)) return NOT_COMPUTED;
  return series_is_better(a, x) ? series_of_p(a, x) : complement(fraction_of_q(a, x));
}

double gamma_q(double a, double x) {
  if (out_of_range(a, x)) return NOT_COMPUTED;
  return series_is_better(a, x) ? complement(series_of_p(a, x)) : fraction_of_q(a, x);
}

double beta_i(double a, double b, double x) {
  if (!(x >= 0.0 && x <= 1.0)) return NOT_COMPUTED;
  if (x == 0.0 || x == 1.0) return 0.0;
  const double front =
      std::exp(log_gamma(a + b) - log_gamma(a) - log_gamma(b) + a * std::log(x) + b * std::log(1.0 - x));
  const bool direct = x < (a + 1.0) / (a + b + 2.0);
  double h = 0.0;
  if (!(direct ? beta_cf(a, b, x, h) : beta_cf(b, a, 1.0 - x, h))) return NOT_COMPUTED;
  return direct ? front * h / a : 1.0 - front * h / b;
}

}  // namespace zephyl
