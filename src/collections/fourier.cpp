#include "collections/fourier.h"

#include <algorithm>
#include <cmath>

namespace zephyl {

namespace {

constexpr double two_pi = 6.283185307179586;
constexpr double tidy_limit = 1e-12;
constexpr int SMALLEST_FAST = 4;  // 2 elements go through the direct sum

bool is_fast_size(int n) { return n >= SMALLEST_FAST && (n & (n - 1)) == 0; }

// Elements to the places of their bit-reversed indexes.
void reverse_bits(TValue* x, int n) {
  for (int i = 0, j = 0; i < n - 1; ++i) {
    if (i < j) std::swap(x[i], x[j]);
    int k = n / 2;
    for (; k <= j; k /= 2) j -= k;
    j += k;
  }
}

void butterfly(TValue& upper, TValue& lower, double u1, double u2) {
  const TValue t{u1 * lower.re - u2 * lower.im, u1 * lower.im + u2 * lower.re};
  lower = {upper.re - t.re, upper.im - t.im};
  upper = {upper.re + t.re, upper.im + t.im};
}

void fast_transform(TValue* x, int n, bool inverse) {
  reverse_bits(x, n);
  double c1 = -1.0, c2 = 0.0;
  for (int half = 1; half < n; half *= 2) {
    double u1 = 1.0, u2 = 0.0;
    for (int j = 0; j < half; ++j) {
      for (int i = j; i < n; i += 2 * half) butterfly(x[i], x[i + half], u1, u2);
      const double z = u1 * c1 - u2 * c2;
      u2 = u1 * c2 + u2 * c1;
      u1 = z;
    }
    c2 = std::sqrt((1.0 - c1) / 2.0);
    if (!inverse) c2 = -c2;
    c1 = std::sqrt((1.0 + c1) / 2.0);
  }
}

// Sines and cosines of 2 pi k/n.
struct TCircle {
  double sine[LIST_LIMIT];
  double cosine[LIST_LIMIT];
};
TCircle circle;

void divide_circle(int n) {
  const double part = 1.0 / n;
  for (int k = 0; k < n; ++k) {
    const double angle = two_pi * k * part;
    circle.sine[k] = std::sin(angle);
    circle.cosine[k] = std::cos(angle);
  }
}

TValue direct_sum(const TValue* x, int n, int k, double sign) {
  TValue sum;
  int index = 0;
  for (int j = 0; j < n; ++j) {
    const double c = circle.cosine[index], s = sign * circle.sine[index];
    sum.re += x[j].re * c;
    sum.im += x[j].re * s;
    if (x[j].im != 0.0) {
      sum.re -= x[j].im * s;
      sum.im += x[j].im * c;
    }
    index += k;
    if (index >= n) index -= n;
  }
  return sum;
}

double tidied(double x) { return std::fabs(x) < tidy_limit ? 0.0 : x; }

}  // namespace

void fourier_transform(ListRecord& to, const ListRecord& from, bool inverse) {
  const int n = from.last + 1;
  copy_list(to, from);
  if (is_fast_size(n)) {
    fast_transform(to.elements, n, inverse);
  } else {
    divide_circle(n);
    for (int k = 0; k < n; ++k) to.elements[k] = direct_sum(from.elements, n, k, inverse ? 1.0 : -1.0);
  }
  const double scale = inverse ? 1.0 / n : 1.0;
  for (TValue* x = to.elements; x <= to.elements + to.last; ++x)
    *x = {tidied(x->re * scale), tidied(x->im * scale)};
}

}  // namespace zephyl
