// Discrete Fourier transforms by both roads, against a direct sum in extended precision.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <string>

#include "collections/fourier.h"
#include "support/accuracy.h"
#include "support/lists.h"

namespace zephyl {
namespace {

using TExtended = std::complex<long double>;

// Powers 0 to n - 1 of the n-th root of unity exp(-2 pi i/n).
std::vector<TExtended> roots_of_unity(int n) {
  const long double turn = 2.0L * std::acos(-1.0L);
  std::vector<TExtended> roots;
  for (int k = 0; k < n; ++k) roots.push_back(std::polar(1.0L, -turn * static_cast<long double>(k) / n));
  return roots;
}

// The forward transform by its definition.
std::vector<TExtended> direct_transform(const TElements& x) {
  const int n = static_cast<int>(x.size());
  const std::vector<TExtended> roots = roots_of_unity(n);
  std::vector<TExtended> sums;
  for (int k = 0; k < n; ++k) {
    long double re = 0.0L, im = 0.0L;
    int index = 0;
    for (const TValue& element : x) {
      const TExtended& root = roots[static_cast<std::size_t>(index)];
      re += element.re * root.real() - element.im * root.imag();
      im += element.re * root.imag() + element.im * root.real();
      index += k;
      if (index >= n) index -= n;
    }
    sums.push_back({re, im});
  }
  return sums;
}

double distance(const TElements& x, const std::vector<TExtended>& y) {
  long double largest = 0.0L;
  for (std::size_t i = 0; i < x.size(); ++i)
    largest = std::max(largest, std::abs(TExtended(x[i].re, x[i].im) - y[i]));
  return static_cast<double>(largest);
}

double distance(const TElements& x, const TElements& y) {
  double largest = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i)
    largest = std::max(largest, std::hypot(x[i].re - y[i].re, x[i].im - y[i].im));
  return largest;
}

TElements transformed(const TElements& elements, bool inverse) {
  static ListRecord from, to;
  define_list(from, elements);
  fourier_transform(to, from, inverse);
  return elements_of(to);
}

bool is_fast(int n) { return n >= 4 && (n & (n - 1)) == 0; }

// Parts of the elements are at most 1. Rounding adds up over n products, and the tidying takes up to 1e-12 a
// part. The fast road finds its angles by halving, which costs it another digit.
double tolerance(int n) { return 1.5e-12 + (is_fast(n) ? 1e-14 : 1e-15) * n; }

TEST(fourier, agrees_with_the_direct_sum_for_every_size) {
  TAccuracy slow("DFT( of 1 to 999 elements", 2.5e-12), fast("DFT( of 4 to 512 elements, powers of 2", 7e-12);
  for (int n = 1; n <= LIST_LIMIT; ++n) {
    const TElements x = random_elements(n, n % 2 == 0, static_cast<unsigned>(n));
    const double error = distance(transformed(x, false), direct_transform(x));
    (is_fast(n) ? fast : slow).compare(error, 0.0, 1.0, {static_cast<double>(n)});
    EXPECT_LT(error, tolerance(n)) << n;
  }
}

TEST(fourier, agrees_with_the_direct_sum_for_real_and_complex_lists_of_the_fast_sizes) {
  for (int n = 4; n <= 512; n *= 2)
    for (bool complex : {false, true}) {
      const TElements x = random_elements(n, complex, static_cast<unsigned>(n + complex));
      ASSERT_LT(distance(transformed(x, false), direct_transform(x)), tolerance(n)) << n;
    }
}

TEST(fourier, the_inverse_gives_the_list_back_for_every_size) {
  for (int n = 1; n <= LIST_LIMIT; ++n) {
    const TElements x = random_elements(n, n % 2 == 1, static_cast<unsigned>(n));
    ASSERT_LT(distance(transformed(transformed(x, false), true), x), tolerance(n)) << n;
  }
}

TEST(fourier, no_part_is_left_that_is_nearly_zero) {
  for (int n : {2, 3, 4, 10, 100, 256, 512, 999})
    for (bool inverse : {false, true})
      for (const TValue& element : transformed(TElements(static_cast<std::size_t>(n), {1.0, 0.0}), inverse))
        for (double part : {element.re, element.im}) EXPECT_TRUE(part == 0.0 || std::fabs(part) >= 1e-12);
}

TEST(fourier, takes_the_direct_sum_where_the_fast_road_would_round_otherwise) {
  // At 2 elements the direct sum has the sine of pi, 1.2e-16: too small to stay at 1, but not at 1e9.
  const TElements small = transformed({{0, 0}, {1, 0}}, false),
                  large = transformed({{0, 0}, {1e9, 0}}, false);
  EXPECT_EQ(small[1], (TValue{-1, 0}));
  EXPECT_EQ(large[1].re, -1e9);
  EXPECT_NEAR(large[1].im, -1.22e-7, 0.01e-7);
  // At 4 the rotations are exact.
  EXPECT_EQ(transformed({{0, 0}, {0, 0}, {1e9, 0}, {0, 0}}, false)[1], (TValue{-1e9, 0}));
}

TEST_F(list_calculator, transforms_two_elements) {
  EXPECT_EQ(list("DFT({1,2})"), "3 -1");
  EXPECT_EQ(list("IDFT({3,-1})"), "1 2");
}

TEST_F(list_calculator, transforms_ones_with_exact_zeros) {
  EXPECT_EQ(elements("DFT({1,1,1,1})"), (TElements{{4, 0}, {0, 0}, {0, 0}, {0, 0}}));
  EXPECT_EQ(elements("IDFT({1,1,1,1})"), (TElements{{1, 0}, {0, 0}, {0, 0}, {0, 0}}));
  EXPECT_EQ(elements("DFT({1,1,1})"), (TElements{{3, 0}, {0, 0}, {0, 0}}));
}

TEST_F(list_calculator, transforms_one_element_into_itself) {
  EXPECT_EQ(list("DFT({,3-(i)})"), "3-1i");
  EXPECT_EQ(list("IDFT({,3-(i)})"), "3-1i");
}

TEST_F(list_calculator, the_forward_kernel_turns_clockwise) {
  EXPECT_EQ(list("DFT({0,1,0,0})"), "1 0-1i -1 0+1i");
  EXPECT_EQ(list("IDFT({0,4,0,0})"), "1 0+1i -1 0-1i");
  EXPECT_EQ(elements("DFT({0,1,0})")[1].im, -std::sin(6.283185307179586 / 3));
  EXPECT_DOUBLE_EQ(elements("IDFT({0,3,0})")[1].im, std::sin(6.283185307179586 / 3));
}

TEST_F(list_calculator, a_transform_out_of_range_overflows) {
  EXPECT_EQ(list("DFT({1.7e308,1.7e308,1.7e308})"), "Overflow");
  EXPECT_EQ(list("DFT({1.7e308,1.7e308,1.7e308,1})"), "Overflow");
  EXPECT_EQ(list("IDFT({1.7e308,1.7e308})"), "Overflow");
}

TEST_F(list_calculator, a_transform_leaves_its_list_alone) {
  define('A', std::vector<double>{1, 2, 3, 4});
  EXPECT_EQ(list("DFT({A})"), "10 -2+2i -2 -2-2i");
  EXPECT_EQ(list_text(stored('A')), "1 2 3 4");
  EXPECT_EQ(list("DFT({A})->{A}"), "10 -2+2i -2 -2-2i");
  EXPECT_EQ(list("IDFT({A})"), "1 2 3 4");
}

}  // namespace
}  // namespace zephyl
