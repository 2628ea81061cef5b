// The Hessenberg form by Householder reflections.

#include <algorithm>
#include <cmath>

#include "collections/decompositions/real_schur.h"
#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

double reflector[MATRIX_LIMIT];  // the vectors of all reflections: element m is the head of the reflection in
                                 // column m - 1

// The vector that clears column m - 1 below row m, from its scaled elements. Returns half of its squared
// length.
double make_reflector(TSchur& schur, int m, double scale) {
  double h = 0.0;
  for (int i = schur.n - 1; i >= m; --i) {
    reflector[i] = schur.h.cells[i][m - 1] / scale;
    h += reflector[i] * reflector[i];
  }
  const double g = reflector[m] > 0.0 ? -std::sqrt(h) : std::sqrt(h);
  h -= reflector[m] * g;
  reflector[m] -= g;
  schur.h.cells[m][m - 1] = scale * g;
  return h;
}

void reflect_from_left(TSchur& schur, int m, double h) {
  auto& cells = schur.h.cells;
  double factors[MATRIX_LIMIT] = {};
  for (int i = schur.n - 1; i >= m; --i)
    for (int j = m; j < schur.n; ++j) factors[j] += reflector[i] * cells[i][j];
  for (int j = m; j < schur.n; ++j) factors[j] /= h;
  for (int i = m; i < schur.n; ++i)
    for (int j = m; j < schur.n; ++j) cells[i][j] -= factors[j] * reflector[i];
}

void reflect_from_right(TSchur& schur, int m, double h) {
  for (int i = 0; i < schur.n; ++i) {
    double* row = schur.h.cells[i];
    double factor = 0.0;
    for (int j = schur.n - 1; j >= m; --j) factor += reflector[j] * row[j];
    factor /= h;
    for (int j = m; j < schur.n; ++j) row[j] -= factor * reflector[j];
  }
}

void reduce_column(TSchur& schur, int m) {
  double scale = 0.0;
  for (int i = m; i < schur.n; ++i) scale += std::fabs(schur.h.cells[i][m - 1]);
  if (scale == 0.0) return;
  const double h = make_reflector(schur, m, scale);
  reflect_from_left(schur, m, h);
  reflect_from_right(schur, m, h);
  reflector[m] *= scale;
}

// Applies the reflection of column m - 1, whose tail still stands below the subdiagonal, to V.
void accumulate(TSchur& schur, int m) {
  auto& v = schur.eigen.vectors.cells;
  const double beside = schur.h.cells[m][m - 1];
  if (beside == 0.0) return;
  for (int i = m + 1; i < schur.n; ++i) reflector[i] = schur.h.cells[i][m - 1];
  double factors[MATRIX_LIMIT] = {};
  for (int i = m; i < schur.n; ++i)
    for (int j = m; j < schur.n; ++j) factors[j] += reflector[i] * v[i][j];
  // Two divisions: their product would underflow.
  for (int j = m; j < schur.n; ++j) factors[j] = (factors[j] / reflector[m]) / beside;
  for (int i = m; i < schur.n; ++i)
    for (int j = m; j < schur.n; ++j) v[i][j] += factors[j] * reflector[i];
}

}  // namespace

void reduce_to_hessenberg(TSchur& schur) {
  make_identity(schur.eigen.vectors, schur.n);
  for (int m = 1; m < schur.n - 1; ++m) reduce_column(schur, m);
  for (int m = schur.n - 2; m >= 1; --m) accumulate(schur, m);
}

}  // namespace zephyl
