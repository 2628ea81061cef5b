// Thirty integrals against GSL's QAGS, which has the 21-point rule, and against the published method written
// as one loop over GSL's 61-point rule: the resumable form must take the same road.
#include <gsl/gsl_errno.h>
#include <gsl/gsl_integration.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "numerics/operators/quadrature.h"
#include "numerics/straight_qags.h"
#include "support/accuracy.h"

namespace zephyl {
namespace {

struct TIntegral {
  const char* name;
  double (*function)(double);
  double a, b;
};

using std::cos;
using std::exp;
using std::fabs;
using std::log;
using std::pow;
using std::sin;
using std::sqrt;

constexpr TIntegral integrals[] = {
    // smooth
    {"x^2", [](double x) { return x * x; }, 0, 1},
    {"x^9-3x^4+x", [](double x) { return pow(x, 9) - 3 * pow(x, 4) + x; }, -1, 2},
    {"e^x", [](double x) { return exp(x); }, 0, 10},
    {"sin x", [](double x) { return sin(x); }, 0, 1},
    {"1/(1+x^2)", [](double x) { return 1 / (1 + x * x); }, -5, 5},
    {"e^-x^2", [](double x) { return exp(-x * x); }, -6, 6},
    {"1/(2+sin 10x)", [](double x) { return 1 / (2 + sin(10 * x)); }, 0, 1},
    {"x/(e^x-1)", [](double x) { return x / std::expm1(x); }, 0.001, 30},
    // peaked
    {"1/(x^2+1e-4)", [](double x) { return 1 / (x * x + 1e-4); }, -1, 1},
    {"1/((x-0.3)^2+1e-8)", [](double x) { return 1 / ((x - 0.3) * (x - 0.3) + 1e-8); }, 0, 1},
    {"e^(-1000(x-0.7)^2)", [](double x) { return exp(-1000 * (x - 0.7) * (x - 0.7)); }, 0, 1},
    {"e^(-1e6(x-0.31)^2)", [](double x) { return exp(-1e6 * (x - 0.31) * (x - 0.31)); }, 0, 1},
    {"1/cosh^2(50(x-0.2))", [](double x) { return pow(1 / std::cosh(50 * (x - 0.2)), 2); }, 0, 1},
    {"atan(1000(x-0.4))", [](double x) { return std::atan(1000 * (x - 0.4)) + 2; }, 0, 1},
    {"three peaks",
     [](double x) {
       return pow(1 / std::cosh(10 * (x - 0.2)), 2) + pow(1 / std::cosh(100 * (x - 0.4)), 4) +
              pow(1 / std::cosh(1000 * (x - 0.6)), 6);
     },
     0, 1},
    // singular at an end
    {"1/sqrt x", [](double x) { return 1 / sqrt(x); }, 0, 1},
    {"ln x", [](double x) { return log(x); }, 0, 1},
    {"ln x/sqrt x", [](double x) { return log(x) / sqrt(x); }, 0, 1},
    {"x^-0.9", [](double x) { return pow(x, -0.9); }, 0, 1},
    {"x^0.1", [](double x) { return pow(x, 0.1); }, 0, 1},
    {"1/sqrt(1-x)", [](double x) { return 1 / sqrt(1 - x); }, 0, 1},
    {"1/sqrt(1-x^2)", [](double x) { return 1 / sqrt(1 - x * x); }, -1, 1},
    {"sqrt x ln x", [](double x) { return sqrt(x) * log(x); }, 0, 1},
    {"sqrt|x-1/3|", [](double x) { return sqrt(fabs(x - 1.0 / 3)); }, 0, 1},
    {"|x-0.7|", [](double x) { return fabs(x - 0.7); }, 0, 1},
    // oscillating
    {"sin 100x", [](double x) { return sin(100 * x); }, 0, 1},
    {"cos(100 sin x)", [](double x) { return cos(100 * sin(x)); }, 0, 3.141592653589793},
    {"sin(1/x)", [](double x) { return sin(1 / x); }, 0.001, 1},
    {"e^-x sin 30x", [](double x) { return exp(-x) * sin(30 * x); }, 0, 10},
    {"sin x/x", [](double x) { return x == 0 ? 1 : sin(x) / x; }, 0, 200},
    {"cos(64 sin x) downwards", [](double x) { return cos(64 * sin(x)); }, 3.141592653589793, 0},
};
static_assert(sizeof integrals / sizeof integrals[0] >= 30);

constexpr double TOLERANCE = 1e-9;

TStraightIntegral resumable(const TIntegral& integral, double tolerance) {
  static TQuadrature quadrature;
  TStraightIntegral out;
  double x = quadrature.start(integral.a, integral.b, tolerance);
  do ++out.evaluations;
  while (quadrature.next(integral.function(x), x));
  out.result = quadrature.result();
  out.error = quadrature.error();
  return out;
}

TStraightIntegral straight(const TIntegral& integral, double tolerance, TStraightRule rule) {
  return straight_qags(integral.function, integral.a, integral.b, tolerance, rule);
}

// Its evaluations are those of the intervals it kept.
TStraightIntegral by_gsl(const TIntegral& integral, double tolerance) {
  const auto free = [](gsl_integration_workspace* space) { gsl_integration_workspace_free(space); };
  const std::unique_ptr<gsl_integration_workspace, decltype(free)> space(gsl_integration_workspace_alloc(200),
                                                                         free);
  gsl_function f{[](double x, void* params) { return static_cast<const TIntegral*>(params)->function(x); },
                 const_cast<TIntegral*>(&integral)};
  TStraightIntegral out;
  gsl_set_error_handler_off();
  gsl_integration_qags(&f, integral.a, integral.b, 0, tolerance, 200, space.get(), &out.result, &out.error);
  out.evaluations = 21 * (2 * static_cast<int>(space->size) - 1);
  return out;
}

TEST(quadrature_peers, the_loop_is_the_published_method) {
  for (const TIntegral& integral : integrals) {
    const TStraightIntegral ours = straight(integral, TOLERANCE, RULE_OF_21),
                            gsl = by_gsl(integral, TOLERANCE);
    EXPECT_NEAR(ours.result, gsl.result, TOLERANCE * fabs(gsl.result)) << integral.name;
    EXPECT_NEAR(ours.evaluations, gsl.evaluations, 0.05 * gsl.evaluations) << integral.name;
  }
}

TEST(quadrature_peers, thirty_integrals_have_the_values_of_the_peer) {
  TAccuracy accuracy("fnInt(, 31 integrals, tolerance 1e-9", TOLERANCE);
  for (const TIntegral& integral : integrals) {
    const double result = resumable(integral, TOLERANCE).result;
    accuracy.compare(result, by_gsl(integral, 1e-12).result, {integral.a, integral.b});
    EXPECT_NEAR(result, by_gsl(integral, TOLERANCE).result, TOLERANCE * fabs(result)) << integral.name;
  }
}

TEST(quadrature_peers, the_resumable_form_takes_the_road_of_the_loop) {
  for (const double tolerance : {1e-3, 1e-6, 1e-9, 1e-12})
    for (const TIntegral& integral : integrals) {
      const TStraightIntegral ours = resumable(integral, tolerance),
                              loop = straight(integral, tolerance, RULE_OF_61);
      EXPECT_EQ(ours.evaluations, loop.evaluations) << integral.name << " " << tolerance;
      EXPECT_NEAR(ours.result, loop.result, 1e-13 * fabs(loop.result)) << integral.name << " " << tolerance;
      EXPECT_NEAR(ours.error, loop.error, 0.01 * loop.error + 1e-13 * fabs(loop.result))
          << integral.name << " " << tolerance;
    }
}

TEST(quadrature_peers, one_rule_is_that_of_the_peer) {
  for (const TIntegral& integral : integrals) {
    TGaussKronrod rule;
    double x = rule.start(integral.a, integral.b);
    while (rule.next(integral.function(x), x)) {
    }
    gsl_function f{
        [](double at, void* params) { return static_cast<const TIntegral*>(params)->function(at); },
        const_cast<TIntegral*>(&integral)};
    double result, error, magnitude, deviation;
    gsl_integration_qk61(&f, integral.a, integral.b, &result, &error, &magnitude, &deviation);
    const TRuleResult own = rule.result();
    EXPECT_NEAR(own.integral, result, 1e-13 * magnitude) << integral.name;
    EXPECT_NEAR(own.magnitude, magnitude, 1e-13 * magnitude) << integral.name;
    EXPECT_NEAR(own.deviation, deviation, 1e-13 * magnitude) << integral.name;
    EXPECT_NEAR(own.error, error, 1e-4 * error + 1e-13 * magnitude) << integral.name;
  }
}

}  // namespace
}  // namespace zephyl
