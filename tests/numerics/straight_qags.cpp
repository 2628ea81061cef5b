#include <gsl/gsl_integration.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "numerics/straight_qags.h"

namespace zephyl {

namespace {

constexpr int LIMIT = 200;
constexpr double epmach = std::numeric_limits<double>::epsilon();
constexpr double uflow = std::numeric_limits<double>::min();
constexpr double oflow = std::numeric_limits<double>::max();

struct TPart {
  double a, b, integral, error;
};

double call_function(double x, void* function) {
  return (*static_cast<std::function<double(double)>*>(function))(x);
}

// Wynn's table, counted from 0, as dqelg keeps it.
class TTable {
 public:
  void append(double element) { elements_.push_back(element); }
  std::size_t size() const { return elements_.size(); }

  void extrapolate(double& result, double& error);

 private:
  std::vector<double> elements_;
  std::vector<double> results_;
};

void TTable::extrapolate(double& result, double& error) {
  std::vector<double>& e = elements_;
  const int n = static_cast<int>(size());
  error = oflow;
  result = e[n - 1];
  if (n < 3) {
    error = std::max(error, 5 * epmach * std::fabs(result));
    return;
  }
  e.push_back(0);
  e.push_back(e[n - 1]);
  e[n - 1] = oflow;
  const int pairs = (n - 1) / 2;
  int kept = n;
  for (int i = 1, k = n - 1; i <= pairs; ++i, k -= 2) {
    const double e0 = e[k - 2], e1 = e[k - 1], e2 = e[k + 2], e3 = e[k];
    const double d1 = e1 - e3, d2 = e2 - e1, d3 = e1 - e0;
    const auto tiny = [](double d, double p, double q) {
      return std::fabs(d) <= std::max(std::fabs(p), std::fabs(q)) * epmach;
    };
    if (tiny(d2, e2, e1) && tiny(d3, e1, e0)) {
      result = e2;
      error = std::max(std::fabs(d2) + std::fabs(d3), 5 * epmach * std::fabs(result));
      e.resize(n);
      return;
    }
    e[k] = e1;
    if (tiny(d1, e1, e3) || tiny(d2, e2, e1) || tiny(d3, e1, e0)) {
      kept = 2 * i - 1;
      break;
    }
    const double ss = 1 / d1 + 1 / d2 - 1 / d3;
    if (std::fabs(ss * e1) <= 1e-4) {
      kept = 2 * i - 1;
      break;
    }
    e[k] = e1 + 1 / ss;
    const double candidate = std::fabs(d2) + std::fabs(e[k] - e2) + std::fabs(d3);
    if (candidate <= error) {
      error = candidate;
      result = e[k];
    }
  }
  if (kept == 50) kept = 49;
  for (int i = 0, at = n % 2 == 0 ? 1 : 0; i <= pairs; ++i, at += 2) e[at] = e[at + 2];
  e.erase(e.begin(), e.begin() + (n - kept));
  e.resize(kept);
  if (results_.size() < 3) {
    results_.push_back(result);
    error = oflow;
  } else {
    error = 0;
    for (const double last : results_) error += std::fabs(result - last);
    results_.erase(results_.begin());
    results_.push_back(result);
  }
  error = std::max(error, 5 * epmach * std::fabs(result));
}

struct TRule {
  double integral, error, magnitude, deviation;
};

// The method's variables under their published names.
class TStraightQags {
 public:
  TStraightQags(const std::function<double(double)>& function, double tolerance, TStraightRule rule)
      : function_(function), epsrel_(tolerance), rule_(rule) {}

  TStraightIntegral integrate(double a, double b);

 private:
  TRule apply(double a, double b);
  void order();
  TStraightIntegral done(double result, double error) const { return {result, error, evaluations_}; }
  TStraightIntegral sum() const;

  std::function<double(double)> function_;
  double epsrel_;
  TStraightRule rule_;
  int evaluations_ = 0;
  std::vector<TPart> parts_;
  std::vector<int> iord_;
  int maxerr_ = 0, nrmax_ = 0;
  double errmax_ = 0, errsum_ = 0, area_ = 0;
};

TRule TStraightQags::apply(double a, double b) {
  gsl_function f{call_function, &function_};
  TRule out{};
  (rule_ == RULE_OF_61 ? gsl_integration_qk61 : gsl_integration_qk21)(&f, a, b, &out.integral, &out.error,
                                                                      &out.magnitude, &out.deviation);
  evaluations_ += rule_;
  return out;
}

TStraightIntegral TStraightQags::sum() const {
  double result = 0;
  for (const TPart& part : parts_) result += part.integral;
  return done(result, errsum_);
}

// By error, the largest first. The next interval to halve is the one at nrmax.
void TStraightQags::order() {
  const int last = static_cast<int>(parts_.size()) - 1;
  const double error = parts_[maxerr_].error;
  while (nrmax_ > 0 && error > parts_[iord_[nrmax_ - 1]].error) --nrmax_;
  iord_.erase(std::find(iord_.begin(), iord_.end(), maxerr_));
  // In front of the first that is not larger.
  const auto insert = [this](int part, int from) {
    auto at = iord_.begin() + from;
    while (at != iord_.end() && parts_[part].error < parts_[*at].error) ++at;
    return static_cast<int>(iord_.insert(at, part) - iord_.begin());
  };
  const int place = insert(maxerr_, nrmax_);
  insert(last, place + 1);
  maxerr_ = iord_[nrmax_];
  errmax_ = parts_[maxerr_].error;
}

TStraightIntegral TStraightQags::integrate(double a, double b) {
  const TRule whole = apply(a, b);
  double errbnd = epsrel_ * std::fabs(whole.integral);
  const bool rounded = whole.error <= 100 * epmach * whole.magnitude && whole.error > errbnd;
  if (rounded || (whole.error <= errbnd && whole.error != whole.deviation) || whole.error == 0)
    return done(whole.integral, whole.error);
  parts_ = {{a, b, whole.integral, whole.error}};
  iord_ = {0};
  TTable table;
  table.append(whole.integral);
  double result = whole.integral, abserr = oflow, correc = 0, small = 0, erlarg = 0, ertest = 0;
  errmax_ = errsum_ = whole.error;
  area_ = whole.integral;
  bool extrap = false, noext = false, ierro = false;
  int ier = 0, ktmin = 0, iroff1 = 0, iroff2 = 0, iroff3 = 0;
  for (int last = 2; last <= LIMIT; ++last) {
    const TPart halved = parts_[maxerr_];
    const double middle = 0.5 * (halved.a + halved.b), erlast = errmax_;
    const TRule left = apply(halved.a, middle), right = apply(middle, halved.b);
    const double area12 = left.integral + right.integral, erro12 = left.error + right.error;
    errsum_ += erro12 - errmax_;
    area_ += area12 - halved.integral;
    if (left.deviation != left.error && right.deviation != right.error) {
      if (std::fabs(halved.integral - area12) <= 1e-5 * std::fabs(area12) && erro12 >= 0.99 * errmax_)
        ++(extrap ? iroff2 : iroff1);
      if (last > 10 && erro12 > errmax_) ++iroff3;
    }
    errbnd = epsrel_ * std::fabs(area_);
    if (iroff1 + iroff2 >= 10 || iroff3 >= 20) ier = 2;
    if (iroff2 >= 5) ierro = true;
    if (last == LIMIT) ier = 1;
    if (std::max(std::fabs(halved.a), std::fabs(halved.b)) <=
        (1 + 100 * epmach) * (std::fabs(middle) + 1000 * uflow))
      ier = 4;
    const TPart first{halved.a, middle, left.integral, left.error},
        second{middle, halved.b, right.integral, right.error};
    parts_[maxerr_] = right.error > left.error ? second : first;
    parts_.push_back(right.error > left.error ? first : second);
    order();
    if (errsum_ <= errbnd) return sum();
    if (ier != 0) break;
    if (last == 2) {
      small = std::fabs(b - a) * 0.375;
      erlarg = errsum_;
      ertest = errbnd;
      table.append(area_);
      continue;
    }
    if (noext) continue;
    erlarg -= erlast;
    if (std::fabs(middle - halved.a) > small) erlarg += erro12;
    const auto width = [this] { return std::fabs(parts_[maxerr_].b - parts_[maxerr_].a); };
    if (!extrap) {
      if (width() > small) continue;
      extrap = true;
      nrmax_ = 1;
    }
    if (!ierro && erlarg > ertest) {
      const int jupbnd = last > 2 + LIMIT / 2 ? LIMIT + 3 - last : last;
      bool larger_next = false;
      for (int k = nrmax_; k < jupbnd && !larger_next; ++k) {
        maxerr_ = iord_[nrmax_];
        errmax_ = parts_[maxerr_].error;
        larger_next = width() > small;
        if (!larger_next) ++nrmax_;
      }
      if (larger_next) continue;
    }
    table.append(area_);
    double reseps = 0, abseps = 0;
    table.extrapolate(reseps, abseps);
    if (++ktmin > 5 && abserr < 1e-3 * errsum_) ier = 5;
    if (abseps < abserr) {
      ktmin = 0;
      abserr = abseps;
      result = reseps;
      correc = erlarg;
      ertest = epsrel_ * std::fabs(reseps);
      if (abserr <= ertest) break;
    }
    if (table.size() == 1) noext = true;
    if (ier == 5) break;
    maxerr_ = iord_[0];
    errmax_ = parts_[maxerr_].error;
    nrmax_ = 0;
    extrap = false;
    small *= 0.5;
    erlarg = errsum_;
  }
  if (abserr == oflow) return sum();
  if (ier != 0 || ierro) {
    if (ierro) abserr += correc;
    if (result != 0 && area_ != 0) {
      if (abserr / std::fabs(result) > errsum_ / std::fabs(area_)) return sum();
    } else if (abserr > errsum_) {
      return sum();
    }
  }
  return done(result, abserr);
}

}  // namespace

TStraightIntegral straight_qags(const std::function<double(double)>& function, double a, double b,
                                double tolerance, TStraightRule rule) {
  return TStraightQags(function, tolerance, rule).integrate(a, b);
}

}  // namespace zephyl
