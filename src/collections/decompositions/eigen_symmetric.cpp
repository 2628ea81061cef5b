// Eigenvalues of a symmetric matrix. While they are computed, eigen.re holds the diagonal d of the
// tridiagonal form and eigen.im the elements e beside it.

#include <algorithm>
#include <cmath>
#include <utility>

#include "collections/decompositions/eigen.h"
#include "collections/decompositions/hypot2.h"
#include "collections/matrix_shape.h"
#include "engine/poll.h"

namespace zephyl {

namespace {

constexpr double epsilon = 0x1p-52;

// --- The tridiagonal form. The row that is being reduced stands in d.

// Row i - 1 of the lower triangle becomes the next one to reduce, and row and column i are cleared.
void take_next_row(TEigen& eigen, int i) {
  auto& v = eigen.vectors.cells;
  for (int j = 0; j < i; ++j) {
    eigen.re[j] = v[i - 1][j];
    v[i][j] = 0.0;
  }
}

void skip_row(TEigen& eigen, int i) {
  eigen.im[i] = eigen.re[i - 1];
  take_next_row(eigen, i);
  for (int j = 0; j < i; ++j) eigen.vectors.cells[j][i] = 0.0;
  eigen.re[i] = 0.0;
}

// Makes d[0] to d[i - 1] the reflector of row i and sets e[i]. Returns half of its squared length.
double make_reflector(TEigen& eigen, int i, double scale) {
  double* d = eigen.re;
  double h = 0.0;
  for (int k = 0; k < i; ++k) {
    d[k] /= scale;
    h += d[k] * d[k];
  }
  const double f = d[i - 1];
  const double g = f > 0.0 ? -std::sqrt(h) : std::sqrt(h);
  eigen.im[i] = scale * g;
  d[i - 1] = f - g;
  return h - f * g;
}

// e = A d for the i by i matrix in the lower triangle, and d into column i.
void multiply_reflector(TEigen& eigen, int i) {
  auto& v = eigen.vectors.cells;
  double *d = eigen.re, *e = eigen.im;
  std::fill(e, e + i, 0.0);
  for (int k = 0; k < i; ++k) {
    v[k][i] = d[k];
    double sum = e[k];
    for (int j = 0; j <= k; ++j) sum += v[k][j] * d[j];
    for (int j = 0; j < k; ++j) e[j] += v[k][j] * d[k];
    e[k] = sum;
  }
}

// The reflection from both sides: A - u q' - q u' with q in e.
void reflect_both_sides(TEigen& eigen, int i, double h) {
  auto& v = eigen.vectors.cells;
  double *d = eigen.re, *e = eigen.im;
  double f = 0.0;
  for (int j = 0; j < i; ++j) {
    e[j] /= h;
    f += e[j] * d[j];
  }
  const double half = f / (h + h);
  for (int j = 0; j < i; ++j) e[j] -= half * d[j];
  for (int k = 0; k < i; ++k)
    for (int j = 0; j <= k; ++j) v[k][j] -= d[j] * e[k] + e[j] * d[k];
}

void reduce_row(TEigen& eigen, int i) {
  double scale = 0.0;
  for (int k = 0; k < i; ++k) scale += std::fabs(eigen.re[k]);
  if (scale == 0.0) return skip_row(eigen, i);
  const double h = make_reflector(eigen, i, scale);
  multiply_reflector(eigen, i);
  reflect_both_sides(eigen, i, h);
  take_next_row(eigen, i);
  eigen.re[i] = h;
}

// Column i + 1 holds the reflector, re[i + 1] its h: applies it to the columns up to i.
void accumulate_reflector(TEigen& eigen, int i) {
  auto& v = eigen.vectors.cells;
  double over_h[MATRIX_LIMIT], products[MATRIX_LIMIT] = {};
  for (int k = 0; k <= i; ++k) over_h[k] = v[k][i + 1] / eigen.re[i + 1];
  for (int k = 0; k <= i; ++k) {
    const double element = v[k][i + 1];
    for (int j = 0; j <= i; ++j) products[j] += element * v[k][j];
  }
  for (int k = 0; k <= i; ++k)
    for (int j = 0; j <= i; ++j) v[k][j] -= products[j] * over_h[k];
}

void accumulate_transforms(TEigen& eigen, int n) {
  auto& v = eigen.vectors.cells;
  for (int i = 0; i < n - 1; ++i) {
    v[n - 1][i] = v[i][i];
    v[i][i] = 1.0;
    if (eigen.re[i + 1] != 0.0) accumulate_reflector(eigen, i);
    for (int k = 0; k <= i; ++k) v[k][i + 1] = 0.0;
  }
  std::copy(v[n - 1], v[n - 1] + n, eigen.re);
  std::fill(v[n - 1], v[n - 1] + n, 0.0);
  v[n - 1][n - 1] = 1.0;
}

void tridiagonalise(TEigen& eigen, int n) {
  std::copy(eigen.vectors.cells[n - 1], eigen.vectors.cells[n - 1] + n, eigen.re);
  for (int i = n - 1; i > 0; --i) reduce_row(eigen, i);
  accumulate_transforms(eigen, n);
  std::copy(eigen.im + 1, eigen.im + n, eigen.im);  // e[i] stands beside d[i] and d[i + 1] from here on
  eigen.im[n - 1] = 0.0;
}

// --- The QL algorithm

// Subtracts the shift from d[l] on. Returns it.
double shift_block(TEigen& eigen, int l, int n) {
  double *d = eigen.re, *e = eigen.im;
  const double g = d[l];
  const double p = (d[l + 1] - g) / (2.0 * e[l]);
  const double r = p < 0.0 ? -hypot2(p, 1.0) : hypot2(p, 1.0);
  d[l] = e[l] / (p + r);
  d[l + 1] = e[l] * (p + r);
  const double shift = g - d[l];
  for (int i = l + 2; i < n; ++i) d[i] -= shift;
  return shift;
}

void rotate_vectors(MatrixRecord& vectors, int i, double c, double s) {
  for (int k = 0; k <= vectors.last_row; ++k) {
    const double h = vectors.cells[k][i + 1];
    vectors.cells[k][i + 1] = s * vectors.cells[k][i] + c * h;
    vectors.cells[k][i] = c * vectors.cells[k][i] - s * h;
  }
}

// One sweep from m up to l.
void ql_step(TEigen& eigen, int l, int m) {
  double *d = eigen.re, *e = eigen.im;
  const double below = d[l + 1], beside = e[l + 1];
  double p = d[m];
  double c = 1.0, c2 = 1.0, c3 = 1.0, s = 0.0, s2 = 0.0;
  for (int i = m - 1; i >= l; --i) {
    c3 = c2;
    c2 = c;
    s2 = s;
    const double g = c * e[i], h = c * p, r = hypot2(p, e[i]);
    e[i + 1] = s * r;
    s = e[i] / r;
    c = p / r;
    p = c * d[i] - s * g;
    d[i + 1] = h + s * (c * g + s * d[i]);
    rotate_vectors(eigen.vectors, i, c, s);
  }
  p = -s * s2 * c3 * beside * e[l] / below;
  e[l] = s * p;
  d[l] = c * p;
}

// The end of the block that starts in l.
int block_end(const TEigen& eigen, int l, int n, double tolerance) {
  int m = l;
  while (m < n - 1 && !(std::fabs(eigen.im[m]) <= tolerance)) ++m;
  return m;
}

// False if the user has canceled.
bool find_values(TEigen& eigen, int n) {
  double *d = eigen.re, *e = eigen.im;
  double shift = 0.0, largest = 0.0;
  for (int l = 0; l < n; ++l) {
    largest = std::max(largest, std::fabs(d[l]) + std::fabs(e[l]));
    const int m = block_end(eigen, l, n, epsilon * largest);
    for (int round = 0; m > l && round < eigen_round_limit; ++round) {
      shift += shift_block(eigen, l, n);
      ql_step(eigen, l, m);
      if (poll_after(m - l)) return false;
      if (!(std::fabs(e[l]) > epsilon * largest)) break;
    }
    d[l] += shift;
    e[l] = 0.0;
  }
  return true;
}

void sort_values(TEigen& eigen, int n) {
  for (int i = 0; i < n - 1; ++i) {
    const int smallest = static_cast<int>(std::min_element(eigen.re + i, eigen.re + n) - eigen.re);
    if (smallest == i) continue;
    std::swap(eigen.re[i], eigen.re[smallest]);
    for (int row = 0; row < n; ++row)
      std::swap(eigen.vectors.cells[row][i], eigen.vectors.cells[row][smallest]);
  }
}

}  // namespace

bool decompose_symmetric(TEigen& eigen, const MatrixRecord& matrix) {
  const int n = row_count(matrix);
  copy_matrix(eigen.vectors, matrix);
  tridiagonalise(eigen, n);
  if (!find_values(eigen, n)) return false;
  sort_values(eigen, n);
  return true;
}

}  // namespace zephyl
