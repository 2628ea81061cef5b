// Eigenvectors of the quasi-triangular form by back substitution. Column k of h is not needed any more when
// the vector k is computed, from the last to the first, and takes it up.

#include <algorithm>
#include <cmath>

#include "collections/decompositions/real_schur.h"
#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

constexpr double epsilon = schur_epsilon;

struct TComplex {
  double re, im;
};

// (a + b i) / (c + d i), scaled by the larger part of the divisor.
TComplex divide(double a, double b, double c, double d) {
  if (std::fabs(c) > std::fabs(d)) {
    const double ratio = d / c, divisor = c + ratio * d;
    return {(a + ratio * b) / divisor, (b - ratio * a) / divisor};
  }
  const double ratio = c / d, divisor = d + ratio * c;
  return {(ratio * a + b) / divisor, (ratio * b - a) / divisor};
}

// The lower row of a 2 by 2 block, kept until its upper row comes.
struct TLowerRow {
  double z = 0.0;           // its diagonal, less the value
  double r = 0.0, s = 0.0;  // its right-hand side, real and imaginary
};

// Row i of h times column `column` from `from` to `to`.
double row_product(const TSchur& schur, int i, int from, int to, int column) {
  double sum = 0.0;
  for (int j = from; j <= to; ++j) sum += schur.h.cells[i][j] * schur.h.cells[j][column];
  return sum;
}

// Keeps the elements of a vector from growing out of range.
void scale_column(TSchur& schur, int column, int from, int to, double t) {
  for (int j = from; j <= to; ++j) schur.h.cells[j][column] /= t;
}

bool is_too_large(double t) { return (epsilon * t) * t > 1.0; }

// --- A real value

// Rows i and i + 1 at once.
void solve_real_pair(TSchur& schur, int i, int k, double w, double r, const TLowerRow& lower) {
  auto& h = schur.h.cells;
  const double x = h[i][i + 1], y = h[i + 1][i];
  const double difference = schur.eigen.re[i] - schur.eigen.re[k], im = schur.eigen.im[i];
  const double q = difference * difference + im * im;
  const double t = h[i][k] = (x * lower.s - lower.z * r) / q;
  h[i + 1][k] = std::fabs(x) > std::fabs(lower.z) ? (-r - w * t) / x : (-lower.s - y * t) / lower.z;
}

void find_real_vector(TSchur& schur, int k) {
  auto& h = schur.h.cells;
  const double p = schur.eigen.re[k];
  TLowerRow lower;
  int known = k;  // the elements from here on are found
  h[k][k] = 1.0;
  for (int i = k - 1; i >= 0; --i) {
    const double w = h[i][i] - p;
    const double r = row_product(schur, i, known, k, k);
    if (schur.eigen.im[i] < 0.0) {
      lower = {w, 0.0, r};
      continue;
    }
    known = i;
    if (schur.eigen.im[i] == 0.0)
      h[i][k] = -r / (w != 0.0 ? w : epsilon * schur.norm);
    else
      solve_real_pair(schur, i, k, w, r, lower);
    const double t = std::fabs(h[i][k]);
    if (is_too_large(t)) scale_column(schur, k, i, k, t);
  }
}

// --- A complex pair, whose values are the last two: columns k - 1 and k

void set_elements(TSchur& schur, int row, int k, const TComplex& element) {
  schur.h.cells[row][k - 1] = element.re;
  schur.h.cells[row][k] = element.im;
}

void start_complex_vector(TSchur& schur, int k) {
  auto& h = schur.h.cells;
  const double p = schur.eigen.re[k], q = schur.eigen.im[k];
  if (std::fabs(h[k][k - 1]) > std::fabs(h[k - 1][k]))
    set_elements(schur, k - 1, k, {q / h[k][k - 1], -(h[k][k] - p) / h[k][k - 1]});
  else
    set_elements(schur, k - 1, k, divide(0.0, -h[k - 1][k], h[k - 1][k - 1] - p, q));
  set_elements(schur, k, k, {0.0, 1.0});
}

// Rows i and i + 1 at once; ra and sa are the right-hand side of row i.
void solve_complex_pair(TSchur& schur, int i, int k, double w, double ra, double sa, const TLowerRow& lower) {
  auto& h = schur.h.cells;
  const double *d = schur.eigen.re, *e = schur.eigen.im;
  const double p = d[k], q = e[k], x = h[i][i + 1], y = h[i + 1][i], z = lower.z;
  double vr = (d[i] - p) * (d[i] - p) + e[i] * e[i] - q * q;
  const double vi = (d[i] - p) * 2.0 * q;
  if (vr == 0.0 && vi == 0.0)
    vr = epsilon * schur.norm * (std::fabs(w) + std::fabs(q) + std::fabs(x) + std::fabs(y) + std::fabs(z));
  const TComplex upper = divide(x * lower.r - z * ra + q * sa, x * lower.s - z * sa - q * ra, vr, vi);
  set_elements(schur, i, k, upper);
  if (std::fabs(x) > std::fabs(z) + std::fabs(q))
    set_elements(schur, i + 1, k,
                 {(-ra - w * upper.re + q * upper.im) / x, (-sa - w * upper.im - q * upper.re) / x});
  else
    set_elements(schur, i + 1, k, divide(-lower.r - y * upper.re, -lower.s - y * upper.im, z, q));
}

void find_complex_vector(TSchur& schur, int k) {
  auto& h = schur.h.cells;
  const double p = schur.eigen.re[k], q = schur.eigen.im[k];
  TLowerRow lower;
  int known = k - 1;
  start_complex_vector(schur, k);
  for (int i = k - 2; i >= 0; --i) {
    const double w = h[i][i] - p;
    const double ra = row_product(schur, i, known, k, k - 1), sa = row_product(schur, i, known, k, k);
    if (schur.eigen.im[i] < 0.0) {
      lower = {w, ra, sa};
      continue;
    }
    known = i;
    if (schur.eigen.im[i] == 0.0)
      set_elements(schur, i, k, divide(-ra, -sa, w, q));
    else
      solve_complex_pair(schur, i, k, w, ra, sa, lower);
    const double t = std::max(std::fabs(h[i][k - 1]), std::fabs(h[i][k]));
    if (!is_too_large(t)) continue;
    scale_column(schur, k - 1, i, k, t);
    scale_column(schur, k, i, k, t);
  }
}

// V times the triangular matrix of the vectors, from the last column on, in place.
void multiply_by_v(TSchur& schur) {
  auto& v = schur.eigen.vectors.cells;
  for (int j = schur.n - 1; j >= 0; --j)
    for (int i = 0; i < schur.n; ++i) {
      double sum = 0.0;
      for (int k = 0; k <= j; ++k) sum += v[i][k] * schur.h.cells[k][j];
      v[i][j] = sum;
    }
}

}  // namespace

void find_schur_vectors(TSchur& schur) {
  if (schur.norm == 0.0) return;
  for (int k = schur.n - 1; k >= 0; --k) {
    if (schur.eigen.im[k] == 0.0) find_real_vector(schur, k);
    if (schur.eigen.im[k] < 0.0) find_complex_vector(schur, k);
  }
  multiply_by_v(schur);
}

}  // namespace zephyl
