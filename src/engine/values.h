// The one scalar type of the calculator and the integer tests that every part shares.
#pragma once

#include <cstdint>

#include "engine/errors.h"

namespace zephyl {

// A complex number. A real number has `im` 0.0.
struct TValue {
  double re = 0.0;
  double im = 0.0;
};

constexpr bool operator==(const TValue& a, const TValue& b) { return a.re == b.re && a.im == b.im; }
constexpr bool operator!=(const TValue& a, const TValue& b) { return !(a == b); }
constexpr bool is_real(const TValue& value) { return value.im == 0.0; }

// "No value here": an unset variable of the money solver, a plot coordinate that could not be computed.
// Bits 0x7E6C802B77013B71; compared for equality, never the result of arithmetic.
constexpr double undefined_value = 9.54334561e300;

// Results of smaller magnitude than this are snapped to 0 where a function says so.
constexpr double near_zero_limit = 1e-14;

// The integer part of x, or of x a few parts in 10^11 farther from 0 where that is another integer: 2.99999999999 is 3.
double int_part(double x);
// The fraction that belongs to int_part: of x itself, or the tiny rest of the nudged value.
double frac_part(double x);

// x as an integer from low to high. Otherwise `error` is reported (not for NO_REPORT) and the result is 0.
int checked_integer(double x, int low, int high, TError error);

// x cut to an integer and clamped to 32 bits; 0 for a NaN.
std::int32_t to_int32(double x);

}  // namespace zephyl
