// Every complex function against the standard library's, over thousands of arguments. The tolerances are
// relative to the modulus and allow for the digits that the calculator's formulas cancel.
#include <gtest/gtest.h>

#include <complex>
#include <cstdint>

#include "engine/errors.h"
#include "engine/state.h"
#include "numerics/complex_functions.h"

namespace zephyl {
namespace {

using TComplex = std::complex<double>;
constexpr int ARGUMENT_COUNT = 20000;

// A fixed sequence of arguments, both parts from -range to range.
class TArguments {
 public:
  explicit TArguments(double range) : range_(range) {}
  TComplex next() {
    const double re = part();
    return {re, part()};
  }

 private:
  double part() {
    word_ = word_ * 6364136223846793005u + 1442695040888963407u;
    return (static_cast<double>(word_ >> 11) / 4503599627370496.0 - 1.0) * range_;
  }
  double range_;
  std::uint64_t word_ = 20240101;
};

TComplex standard(TValue z) { return {z.re, z.im}; }
TValue own(TComplex z) { return {z.real(), z.imag()}; }

void expect_close(TComplex actual, TComplex expected, double tolerance, TComplex z) {
  EXPECT_LE(std::abs(actual - expected), tolerance * (1.0 + std::abs(expected)))
      << "at " << z << ": " << actual << " instead of " << expected;
}

void compare(TValue (*function)(TValue), TComplex (*oracle)(const TComplex&), double range,
             double tolerance) {
  reset_errors();
  reset_state();
  TArguments arguments(range);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const TComplex z = arguments.next();
    expect_close(standard(function(own(z))), oracle(z), tolerance, z);
  }
  EXPECT_FALSE(errors.error_flag);
}

TEST(complex_accuracy, square_root) { compare(complex_sqrt, std::sqrt, 100, 1e-15); }
TEST(complex_accuracy, exponential) { compare(complex_exp, std::exp, 20, 1e-14); }
TEST(complex_accuracy, logarithm) { compare(complex_log, std::log, 100, 1e-15); }
TEST(complex_accuracy, sine) { compare(complex_sin, std::sin, 10, 1e-14); }
TEST(complex_accuracy, cosine) { compare(complex_cos, std::cos, 10, 1e-14); }
TEST(complex_accuracy, tangent) { compare(complex_tan, std::tan, 3, 1e-14); }
TEST(complex_accuracy, hyperbolic_sine) { compare(complex_sinh, std::sinh, 10, 1e-14); }
TEST(complex_accuracy, hyperbolic_cosine) { compare(complex_cosh, std::cosh, 10, 1e-14); }
TEST(complex_accuracy, hyperbolic_tangent) { compare(complex_tanh, std::tanh, 3, 1e-14); }
TEST(complex_accuracy, arcsine) { compare(complex_asin, std::asin, 5, 1e-13); }
TEST(complex_accuracy, arccosine) { compare(complex_acos, std::acos, 5, 1e-13); }
TEST(complex_accuracy, arctangent) { compare(complex_atan, std::atan, 5, 1e-14); }
TEST(complex_accuracy, hyperbolic_arcsine) { compare(complex_asinh, std::asinh, 5, 1e-13); }
TEST(complex_accuracy, hyperbolic_arccosine) { compare(complex_acosh, std::acosh, 5, 1e-13); }
TEST(complex_accuracy, hyperbolic_arctangent) { compare(complex_atanh, std::atanh, 5, 1e-14); }

TEST(complex_accuracy, quotient) {
  TArguments arguments(1000);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const TComplex z = arguments.next();
    const TComplex w = arguments.next();
    expect_close(standard(complex_divide(own(z), own(w))), z / w, 1e-14, z);
  }
}

TEST(complex_accuracy, power) {
  TArguments arguments(4);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const TComplex z = arguments.next();
    const TComplex w = arguments.next();
    expect_close(standard(complex_power(own(z), own(w))), std::pow(z, w), 1e-13, z);
  }
}

TEST(complex_accuracy, magnitude) {
  TArguments arguments(1000);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const TComplex z = arguments.next();
    EXPECT_NEAR(complex_magnitude(own(z)), std::abs(z), 4e-16 * std::abs(z));
  }
}

TEST(complex_accuracy, angle) {
  TArguments arguments(1000);
  for (int i = 0; i < ARGUMENT_COUNT; ++i) {
    const TComplex z = arguments.next();
    EXPECT_NEAR(complex_angle_radians(own(z)), std::arg(z), 1e-15 * 3.2);
  }
}

}  // namespace
}  // namespace zephyl
