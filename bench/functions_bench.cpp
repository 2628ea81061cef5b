// Special functions and distributions beside Boost.Math and GSL, over arguments that go through a range. Both
// sides are plain calls; neither the evaluator nor a table of results has a part.

#include <benchmark/benchmark.h>
#include <gsl/gsl_sf_bessel.h>

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include "numerics/incomplete_functions.h"
#include "numerics/special_functions.h"

namespace {

using namespace zephyl;
namespace peer = boost::math;

constexpr int PLACES = 256;

// function(x) for x from `from` to `to`.
template <typename TFunction>
void over_range(benchmark::State& bench, double from, double to, TFunction function) {
  double sum = 0.0;
  for (auto _ : bench)
    for (int i = 0; i < PLACES; ++i) sum += function(from + (to - from) * i / PLACES);
  benchmark::DoNotOptimize(sum);
  bench.SetItemsProcessed(bench.iterations() * PLACES);
}

BENCHMARK_CAPTURE(over_range, gamma_boost, 0.5, 50.0, [](double x) { return peer::tgamma(x); });
BENCHMARK_CAPTURE(over_range, gamma_zephyl, 0.5, 50.0, [](double x) { return complex_gamma({x, 0.0}).re; });
BENCHMARK_CAPTURE(over_range, beta_boost, 0.5, 20.0, [](double x) { return peer::beta(x, 2.5); });
BENCHMARK_CAPTURE(over_range, beta_zephyl, 0.5, 20.0, [](double x) {
  return complex_beta({x, 0.0}, {2.5, 0.0}).re;
});
BENCHMARK_CAPTURE(over_range, jn_gsl, 0.5, 50.0, [](double x) { return gsl_sf_bessel_Jnu(2.5, x); });
BENCHMARK_CAPTURE(over_range, jn_zephyl, 0.5, 50.0, [](double x) { return bessel_j(2.5, x); });
BENCHMARK_CAPTURE(over_range, yn_gsl, 0.5, 50.0, [](double x) { return gsl_sf_bessel_Ynu(2.5, x); });
BENCHMARK_CAPTURE(over_range, yn_zephyl, 0.5, 50.0, [](double x) { return bessel_y(2.5, x); });
BENCHMARK_CAPTURE(over_range, incomplete_gamma_boost, 0.5, 20.0,
                  [](double x) { return peer::gamma_p(5.0, x); });
BENCHMARK_CAPTURE(over_range, incomplete_gamma_zephyl, 0.5, 20.0, [](double x) { return gamma_p(5.0, x); });
BENCHMARK_CAPTURE(over_range, incomplete_beta_boost, 0.01, 0.99,
                  [](double x) { return peer::ibeta(5.0, 3.0, x); });
BENCHMARK_CAPTURE(over_range, incomplete_beta_zephyl, 0.01, 0.99,
                  [](double x) { return beta_i(5.0, 3.0, x); });

}  // namespace
