// Bessel functions of real order by the method of Temme and Steed, as Numerical Recipes (2nd edition, 6.7)
// sets it out.

#include <algorithm>
#include <cmath>

#include "engine/errors.h"
#include "engine/polar.h"
#include "numerics/special_functions.h"

namespace zephyl {

namespace {

constexpr double EPS = 1e-15;
constexpr double FPMIN = 1e-30;
constexpr int MAXIT = 10000;
constexpr double XMIN = 2.0;
constexpr double over_pi = 0.3183098861837907;

struct TChebyshevGammas {
  double gam1, gam2, gampl, gammi;
};

// Chebyshev series over -1 to 1 by Clenshaw's recurrence.
template <int N>
double chebyshev(const double (&c)[N], double y) {
  double d = 0.0, dd = 0.0;
  for (int j = N - 1; j >= 1; --j) {
    const double sv = d;
    d = 2.0 * y * d - dd + c[j];
    dd = sv;
  }
  return y * d - dd + 0.5 * c[0];
}

// Temme's gamma functions 1 and 2, and 1/Gamma(1 + x), 1/Gamma(1 - x), for |x| at most 1/2.
TChebyshevGammas beschb(double x) {
  static const double c1[] = {-1.142022680371168, 0.0065165112670737, 0.0003087090173086, -3.4706269649e-06,
                              6.9437664e-09,      3.67795e-11,        -1.356e-13};
  static const double c2[] = {1.843740587300905, -0.0768528408447867, 0.0012719271366546, -4.9717367042e-06,
                              -3.31261198e-08,   2.423096e-10,        -1.702e-13,         -1.49e-15};
  const double t = 8.0 * x * x - 1.0;
  const double gam1 = chebyshev(c1, t), gam2 = chebyshev(c2, t);
  return {gam1, gam2, gam2 - x * gam1, gam2 + x * gam1};
}

double not_below(double x, double least) { return std::fabs(x) < least ? least : x; }

// x/sin(x) and sinh(x)/x, 1 at 0.
double over_sine(double x) { return std::fabs(x) < EPS ? 1.0 : x / std::sin(x); }
double sinh_over(double x) { return std::fabs(x) < EPS ? 1.0 : std::sinh(x) / x; }
double sine_over(double x) { return std::fabs(x) < EPS ? 1.0 : std::sin(x) / x; }

bool did_not_converge() {
  report_error(ERR_DOMAIN);
  return false;
}

// What the steps of the method hand on to each other.
struct TBessel {
  double x, nu;
  int nl;                        // orders that the recurrences go down and up
  double xmu;                    // nu - nl, at most 1/2 in magnitude where x is small
  double xi, xi2, w;             // 1/x, 2/x, the Wronskian
  double f = 0.0;                // J'/J at order xmu
  double rjl = 0.0, rjl1 = 0.0;  // J at order xmu and nu, up to one factor
  double rjmu = 0.0, rymu = 0.0, ry1 = 0.0;

  TBessel(double at, double order) : x(at), nu(order) {
    nl = x < XMIN ? static_cast<int>(nu + 0.5) : static_cast<int>(std::max(0.0, nu - x + 1.5));
    xmu = nu - nl;
    xi = 1.0 / x;
    xi2 = 2.0 * xi;
    w = xi2 * over_pi;
  }
};

// The first continued fraction, J'/J at order nu, by the modified Lentz method; then the recurrence down to
// xmu.
bool recur_down(TBessel& bessel) {
  int sign = 1;
  double h = std::max(bessel.nu * bessel.xi, FPMIN);
  double b = bessel.xi2 * bessel.nu, c = h, d = 0.0;
  if (!std::isfinite(bessel.xi2) || !std::isfinite(b)) return false;  // the overflow stands
  int round = 1;
  for (; round <= MAXIT; ++round) {
    b += bessel.xi2;
    d = 1.0 / not_below(b - d, FPMIN);
    c = not_below(b - 1.0 / c, FPMIN);
    const double del = c * d;
    h = del * h;
    if (d < 0.0) sign = -sign;
    if (std::fabs(del - 1.0) < EPS) break;
  }
  if (round > MAXIT) return did_not_converge();
  double rjl = sign * FPMIN, rjpl = h * rjl;
  bessel.rjl1 = rjl;
  double fact = bessel.nu * bessel.xi;
  for (int l = bessel.nl; l >= 1 && std::isfinite(rjl); --l) {
    const double above = fact * rjl + rjpl;
    fact -= bessel.xi;
    rjpl = fact * above - rjl;
    rjl = above;
  }
  bessel.rjl = rjl == 0.0 ? EPS : rjl;
  bessel.f = rjpl / bessel.rjl;
  return true;
}

// Temme's series for Y at orders xmu and xmu + 1, x below 2.
bool temme_series(TBessel& bessel) {
  const double xmu = bessel.xmu, xmu2 = xmu * xmu, x2 = 0.5 * bessel.x;
  const double pimu = half_turn * xmu, pimu2 = 0.5 * pimu;
  const double log_term = -std::log(x2);
  double e = xmu * log_term;
  const TChebyshevGammas g = beschb(xmu);
  double ff = 2.0 / half_turn * over_sine(pimu) * (g.gam1 * std::cosh(e) + g.gam2 * sinh_over(e) * log_term);
  e = std::exp(e);
  double p = e / (g.gampl * half_turn), q = 1.0 / (e * half_turn * g.gammi);
  const double fact3 = sine_over(pimu2), r = half_turn * pimu2 * fact3 * fact3;
  double c = 1.0, sum = ff + r * q, sum1 = p;
  int i = 1;
  for (; i <= MAXIT; ++i) {
    ff = (i * ff + p + q) / (i * i - xmu2);
    c *= -x2 * x2 / i;
    p /= i - xmu;
    q /= i + xmu;
    const double del = c * (ff + r * q);
    sum += del;
    sum1 += c * p - i * del;
    if (std::fabs(del) < (1.0 + std::fabs(sum)) * EPS) break;
  }
  if (i > MAXIT) return did_not_converge();
  bessel.rymu = -sum;
  bessel.ry1 = -sum1 * bessel.xi2;
  const double rymup = xmu * bessel.xi * bessel.rymu - bessel.ry1;
  bessel.rjmu = bessel.w / (rymup - bessel.f * bessel.rymu);
  return true;
}

// The second continued fraction p + iq by Steed's algorithm, x from 2.
bool steed_fraction(const TBessel& bessel, double& p, double& q) {
  double a = 0.25 - bessel.xmu * bessel.xmu;
  p = -0.5 * bessel.xi;
  q = 1.0;
  const double br = 2.0 * bessel.x;
  double bi = 2.0;
  double fact = a * bessel.xi / (p * p + q * q);
  double cr = br + q * fact, ci = bi + p * fact;
  double den = br * br + bi * bi;
  double dr = br / den, di = -bi / den;
  double dlr = cr * dr - ci * di, dli = cr * di + ci * dr;
  double temp = p * dlr - q * dli;
  q = p * dli + q * dlr;
  p = temp;
  for (int i = 2; i <= MAXIT; ++i) {
    a += 2 * (i - 1);
    bi += 2.0;
    dr = a * dr + br;
    di = a * di + bi;
    if (std::fabs(dr) + std::fabs(di) < FPMIN) dr = FPMIN;
    fact = a / (cr * cr + ci * ci);
    cr = br + cr * fact;
    ci = bi - ci * fact;
    if (std::fabs(cr) + std::fabs(ci) < FPMIN) cr = FPMIN;
    den = dr * dr + di * di;
    dr /= den;
    di /= -den;
    dlr = cr * dr - ci * di;
    dli = cr * di + ci * dr;
    temp = p * dlr - q * dli;
    q = p * dli + q * dlr;
    p = temp;
    if (std::fabs(dlr - 1.0) + std::fabs(dli) < EPS) return true;
  }
  return did_not_converge();
}

bool steed_step(TBessel& bessel) {
  double p = 0.0, q = 0.0;
  if (!steed_fraction(bessel, p, q)) return false;
  const double gam = (p - bessel.f) / q;
  bessel.rjmu = std::copysign(std::sqrt(bessel.w / ((p - bessel.f) * gam + q)), bessel.rjl);
  bessel.rymu = bessel.rjmu * gam;
  const double rymup = bessel.rymu * (p + q / gam);
  bessel.ry1 = bessel.xmu * bessel.xi * bessel.rymu - rymup;
  return true;
}

bool in_domain(double order, double x) {
  constexpr double order_limit = 1e9;  // beyond it the number of rounds would not fit
  if (order >= 0.0 && order <= order_limit && x > 0.0) return true;
  report_error(ERR_DOMAIN);
  return false;
}

bool bessel_jy(TBessel& bessel) {
  return recur_down(bessel) && (bessel.x < XMIN ? temme_series(bessel) : steed_step(bessel));
}

}  // namespace

double bessel_j(double order, double x) {
  if (!in_domain(order, x)) return 0.0;
  TBessel bessel(x, order);
  return bessel_jy(bessel) ? bessel.rjmu / bessel.rjl * bessel.rjl1 : 0.0;
}

double bessel_y(double order, double x) {
  if (!in_domain(order, x)) return 0.0;
  TBessel bessel(x, order);
  if (!bessel_jy(bessel)) return 0.0;
  double below = bessel.rymu, above = bessel.ry1;
  for (int i = 1; i <= bessel.nl && std::isfinite(above); ++i) {
    const double next = (bessel.xmu + i) * bessel.xi2 * above - below;
    below = above;
    above = next;
  }
  return below;
}

}  // namespace zephyl
