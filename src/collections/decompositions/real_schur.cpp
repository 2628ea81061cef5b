// The QR iteration with double shifts. The active block of h is rows and columns 0 to hi; what lies behind is
// finished.

#include "collections/decompositions/real_schur.h"

#include <algorithm>
#include <cmath>

#include "collections/matrix_shape.h"
#include "engine/poll.h"

namespace zephyl {

namespace {

constexpr double epsilon = schur_epsilon;

struct TIteration {
  int hi = 0;
  int rounds = 0;        // without a deflation
  double exshift = 0.0;  // the sum of the exceptional shifts, which h is short of
};

// The double shift: the trailing diagonal elements and the product of the elements beside them.
struct TShift {
  double x, y, w;
};

// Three elements of the vector that a reflection starts from; r is 0 at the lower edge.
struct TTriple {
  double p, q, r;
};

double sum_of_magnitudes(const TSchur& schur) {
  double sum = 0.0;
  for (int i = 0; i < schur.n; ++i)
    for (int j = std::max(i - 1, 0); j < schur.n; ++j) sum += std::fabs(schur.h.cells[i][j]);
  return sum;
}

// The first row of the unreduced block that ends in hi.
int block_start(const TSchur& schur, int hi) {
  const auto& h = schur.h.cells;
  for (int l = hi; l > 0; --l) {
    double s = std::fabs(h[l - 1][l - 1]) + std::fabs(h[l][l]);
    if (s == 0.0) s = schur.norm;
    if (std::fabs(h[l][l - 1]) < epsilon * s) return l;
  }
  return 0;
}

// --- Deflation

void deflate_one(TSchur& schur, TIteration& state) {
  const int hi = state.hi;
  schur.h.cells[hi][hi] += state.exshift;
  schur.eigen.re[hi] = schur.h.cells[hi][hi];
  schur.eigen.im[hi] = 0.0;
}

// Turns rows and columns hi - 1 and hi, and V with them, so that the 2 by 2 block becomes triangular.
void rotate_pair(TSchur& schur, int hi, double z) {
  auto& h = schur.h.cells;
  auto& v = schur.eigen.vectors.cells;
  const double x = h[hi][hi - 1];
  const double s = std::fabs(x) + std::fabs(z);
  double p = x / s, q = z / s;
  const double r = std::sqrt(p * p + q * q);
  p /= r;
  q /= r;
  const auto turn = [p, q](double& a, double& b) {
    const double before = a;
    a = q * before + p * b;
    b = q * b - p * before;
  };
  for (int j = hi - 1; j < schur.n; ++j) turn(h[hi - 1][j], h[hi][j]);
  for (int i = 0; i <= hi; ++i) turn(h[i][hi - 1], h[i][hi]);
  for (int i = 0; i < schur.n; ++i) turn(v[i][hi - 1], v[i][hi]);
}

void deflate_two(TSchur& schur, TIteration& state) {
  const int hi = state.hi;
  auto& h = schur.h.cells;
  double *d = schur.eigen.re, *e = schur.eigen.im;
  const double w = h[hi][hi - 1] * h[hi - 1][hi];
  const double p = (h[hi - 1][hi - 1] - h[hi][hi]) / 2.0;
  const double q = p * p + w;
  const double root = std::sqrt(std::fabs(q));
  h[hi][hi] += state.exshift;
  h[hi - 1][hi - 1] += state.exshift;
  const double x = h[hi][hi];
  if (q < 0.0) {
    d[hi - 1] = d[hi] = x + p;
    e[hi - 1] = root;
    e[hi] = -root;
    return;
  }
  const double z = p >= 0.0 ? p + root : p - root;
  d[hi - 1] = d[hi] = x + z;
  if (z != 0.0) d[hi] = x - w / z;
  e[hi - 1] = e[hi] = 0.0;
  rotate_pair(schur, hi, z);
}

// --- Shifts

void subtract_from_diagonal(TSchur& schur, int hi, double shift) {
  for (int i = 0; i <= hi; ++i) schur.h.cells[i][i] -= shift;
}

// Wilkinson's ad hoc shift, where the ordinary one runs in a circle.
void shift_first_time(TSchur& schur, TIteration& state, TShift& shift) {
  const auto& h = schur.h.cells;
  const int hi = state.hi;
  state.exshift += shift.x;
  subtract_from_diagonal(schur, hi, shift.x);
  const double s = std::fabs(h[hi][hi - 1]) + std::fabs(h[hi - 1][hi - 2]);
  shift = {0.75 * s, 0.75 * s, -0.4375 * s * s};
}

void shift_second_time(TSchur& schur, TIteration& state, TShift& shift) {
  const double half = (shift.y - shift.x) / 2.0;
  double s = half * half + shift.w;
  if (!(s > 0.0)) return;
  s = shift.y < shift.x ? -std::sqrt(s) : std::sqrt(s);
  s = shift.x - shift.w / (half + s);
  subtract_from_diagonal(schur, state.hi, s);
  state.exshift += s;
  shift = {0.964, 0.964, 0.964};
}

TShift make_shift(TSchur& schur, TIteration& state) {
  const auto& h = schur.h.cells;
  const int hi = state.hi;
  TShift shift{h[hi][hi], h[hi - 1][hi - 1], h[hi][hi - 1] * h[hi - 1][hi]};
  if (state.rounds == 10) shift_first_time(schur, state, shift);
  if (state.rounds == 30) shift_second_time(schur, state, shift);
  return shift;
}

// --- The double step

// The first column of (H - x)(H - y) - w from row m on, scaled.
TTriple first_column(const TSchur& schur, int m, const TShift& shift) {
  const auto& h = schur.h.cells;
  const double z = h[m][m], r = shift.x - z, s = shift.y - z;
  const TTriple t{(r * s - shift.w) / h[m + 1][m] + h[m][m + 1], h[m + 1][m + 1] - z - r - s,
                  h[m + 2][m + 1]};
  const double size = std::fabs(t.p) + std::fabs(t.q) + std::fabs(t.r);
  return {t.p / size, t.q / size, t.r / size};
}

// The row where a step from l to hi may start: two small subdiagonal elements in a row hide what stands
// above.
int step_start(const TSchur& schur, int l, int hi, const TShift& shift, TTriple& first) {
  const auto& h = schur.h.cells;
  for (int m = hi - 2;; --m) {
    first = first_column(schur, m, shift);
    if (m == l) return m;
    const double around = std::fabs(h[m - 1][m - 1]) + std::fabs(h[m][m]) + std::fabs(h[m + 1][m + 1]);
    if (std::fabs(h[m][m - 1]) * (std::fabs(first.q) + std::fabs(first.r)) <
        epsilon * (std::fabs(first.p) * around))
      return m;
  }
}

void clear_below_subdiagonal(TSchur& schur, int m, int hi) {
  for (int i = m + 2; i <= hi; ++i) {
    schur.h.cells[i][i - 2] = 0.0;
    if (i > m + 2) schur.h.cells[i][i - 3] = 0.0;
  }
}

// A reflection of three neighbours (two at the lower edge): I - (x, y, z)' (1, q, r).
struct TReflection {
  double x, y, z, q, r;
  bool three;

  void apply(double& a, double& b, double& c) const {
    double p = a + q * b;
    if (three) {
      p += r * c;
      c -= p * z;
    }
    a -= p * x;
    b -= p * y;
  }
};

void reflect(TSchur& schur, int k, int hi, const TReflection& reflection) {
  auto& h = schur.h.cells;
  auto& v = schur.eigen.vectors.cells;
  const int third = reflection.three ? k + 2 : k;  // not looked at where there are only two
  for (int j = k; j < schur.n; ++j) reflection.apply(h[k][j], h[k + 1][j], h[third][j]);
  for (int i = 0; i <= std::min(hi, k + 3); ++i) reflection.apply(h[i][k], h[i][k + 1], h[i][third]);
  for (int i = 0; i < schur.n; ++i) reflection.apply(v[i][k], v[i][k + 1], v[i][third]);
}

// The triple that stands below the diagonal in column k - 1, scaled by `size`.
TTriple next_triple(const TSchur& schur, int k, int hi, double& size) {
  const auto& h = schur.h.cells;
  const TTriple t{h[k][k - 1], h[k + 1][k - 1], k != hi - 1 ? h[k + 2][k - 1] : 0.0};
  size = std::fabs(t.p) + std::fabs(t.q) + std::fabs(t.r);
  if (size == 0.0) return t;
  return {t.p / size, t.q / size, t.r / size};
}

void step_at(TSchur& schur, int k, int hi, const TTriple& t, double s) {
  const double p = t.p + s;
  reflect(schur, k, hi, {p / s, t.q / s, t.r / s, t.q / p, t.r / p, k != hi - 1});
}

double length_of(const TTriple& t) {
  const double s = std::sqrt(t.p * t.p + t.q * t.q + t.r * t.r);
  return t.p < 0.0 ? -s : s;
}

// Rows l to hi are the block, the step starts in m with `first`.
void double_step(TSchur& schur, int l, int m, int hi, const TTriple& first) {
  auto& h = schur.h.cells;
  for (int k = m; k < hi; ++k) {
    double size = 0.0;
    const TTriple t = k == m ? first : next_triple(schur, k, hi, size);
    if (k != m && size == 0.0) continue;
    const double s = length_of(t);
    if (s == 0.0) continue;
    if (k != m)
      h[k][k - 1] = -s * size;
    else if (l != m)
      h[k][k - 1] = -h[k][k - 1];
    step_at(schur, k, hi, t, s);
  }
}

// False where the numbers have left the range of the type: no round would end it.
bool run_round(TSchur& schur, TIteration& state, int l) {
  const TShift shift = make_shift(schur, state);
  if (!std::isfinite(shift.x) || !std::isfinite(shift.y) || !std::isfinite(shift.w)) return false;
  ++state.rounds;
  TTriple first;
  const int m = step_start(schur, l, state.hi, shift, first);
  clear_below_subdiagonal(schur, m, state.hi);
  double_step(schur, l, m, state.hi, first);
  return !poll_after(state.hi - m);
}

}  // namespace

bool iterate_to_schur_form(TSchur& schur) {
  schur.norm = sum_of_magnitudes(schur);
  TIteration state;
  state.hi = schur.n - 1;
  while (state.hi >= 0) {
    const bool stuck = state.rounds >= eigen_round_limit;
    const int found = stuck ? 1 : state.hi - block_start(schur, state.hi) + 1;
    if (found > 2) {
      if (!run_round(schur, state, state.hi - found + 1)) return false;
      continue;
    }
    found == 1 ? deflate_one(schur, state) : deflate_two(schur, state);
    state.hi -= found;
    state.rounds = 0;
  }
  return true;
}

}  // namespace zephyl
