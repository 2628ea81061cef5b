#include "collections/decompositions/svd.h"

#include <algorithm>
#include <cmath>

#include "collections/decompositions/hypot2.h"
#include "collections/matrix_shape.h"

namespace zephyl {

namespace {

constexpr int round_limit = 30;

double above[MATRIX_LIMIT];  // above[i] stands above w[i] in the bidiagonal form
double norm;                 // the largest |w[i]| + |above[i]| of the bidiagonal form

// --- The bidiagonal form

// What a Householder step needs to know of its vector x, which is scaled down by `scale`: the reflection is
// I - u u' / h with h below 0, and leaves `head` in place of the first element.
struct TStep {
  double scale = 0.0;
  double h = 0.0;
  double head = 0.0;
};

// squares: the sum of the squares of the scaled vector. Replaces its first element by that of u.
TStep make_step(double scale, double squares, double& first) {
  const double g = -with_sign(std::sqrt(squares), first);
  const TStep step{scale, first * g - squares, scale * g};
  first -= g;
  return step;
}

// The reflector of column i, made in place of the column. Scale 0: there is nothing to reflect.
TStep column_step(MatrixRecord& u, int i) {
  double scale = 0.0, squares = 0.0;
  for (int k = i; k <= u.last_row; ++k) scale += std::fabs(u.cells[k][i]);
  if (scale == 0.0) return {};
  for (int k = i; k <= u.last_row; ++k) {
    u.cells[k][i] /= scale;
    squares += u.cells[k][i] * u.cells[k][i];
  }
  return make_step(scale, squares, u.cells[i][i]);
}

TStep row_step(MatrixRecord& u, int i) {
  double* row = u.cells[i];
  double scale = 0.0, squares = 0.0;
  for (int k = i + 1; k <= u.last_col; ++k) scale += std::fabs(row[k]);
  if (scale == 0.0) return {};
  for (int k = i + 1; k <= u.last_col; ++k) {
    row[k] /= scale;
    squares += row[k] * row[k];
  }
  return make_step(scale, squares, row[i + 1]);
}

// Reflects the columns behind column i; returns the new element on the diagonal.
double reduce_column(MatrixRecord& u, int i) {
  if (i > u.last_row) return 0.0;
  const TStep step = column_step(u, i);
  if (step.scale == 0.0) return 0.0;
  double factors[MATRIX_LIMIT] = {};
  for (int k = i; k <= u.last_row; ++k)
    for (int j = i + 1; j <= u.last_col; ++j) factors[j] += u.cells[k][i] * u.cells[k][j];
  for (int j = i + 1; j <= u.last_col; ++j) factors[j] /= step.h;
  for (int k = i; k <= u.last_row; ++k) {
    const double element = u.cells[k][i];
    for (int j = i + 1; j <= u.last_col; ++j) u.cells[k][j] += factors[j] * element;
    u.cells[k][i] *= step.scale;
  }
  return step.head;
}

// Reflects the rows below row i; returns the new element above the diagonal.
double reduce_row(MatrixRecord& u, int i) {
  if (i > u.last_row || i == u.last_col) return 0.0;
  const TStep step = row_step(u, i);
  if (step.scale == 0.0) return 0.0;
  double* row = u.cells[i];
  double over_h[MATRIX_LIMIT];
  for (int k = i + 1; k <= u.last_col; ++k) over_h[k] = row[k] / step.h;
  for (int j = i + 1; j <= u.last_row; ++j) {
    double product = 0.0;
    for (int k = i + 1; k <= u.last_col; ++k) product += u.cells[j][k] * row[k];
    for (int k = i + 1; k <= u.last_col; ++k) u.cells[j][k] += product * over_h[k];
  }
  for (int k = i + 1; k <= u.last_col; ++k) row[k] *= step.scale;
  return step.head;
}

void bidiagonalise(TSvd& svd) {
  norm = above[0] = 0.0;
  for (int i = 0; i <= svd.u.last_col; ++i) {
    svd.w[i] = reduce_column(svd.u, i);
    const double size = std::fabs(svd.w[i]) + std::fabs(above[i]);
    if (size >= norm) norm = size;
    const double next = reduce_row(svd.u, i);
    if (i < svd.u.last_col) above[i + 1] = next;
  }
}

// --- The transforms, from the reflectors that stand in u

// The reflector of row i applied to the columns of V behind column i.
void apply_row_reflector(TSvd& svd, int i) {
  const double* row = svd.u.cells[i];
  const int last = svd.u.last_col;
  // Two divisions: their product would underflow.
  for (int j = i + 1; j <= last; ++j) svd.v.cells[j][i] = (row[j] / row[i + 1]) / above[i + 1];
  double products[MATRIX_LIMIT] = {};
  for (int k = i + 1; k <= last; ++k)
    for (int j = i + 1; j <= last; ++j) products[j] += row[k] * svd.v.cells[k][j];
  for (int k = i + 1; k <= last; ++k) {
    const double element = svd.v.cells[k][i];
    for (int j = i + 1; j <= last; ++j) svd.v.cells[k][j] += products[j] * element;
  }
}

void accumulate_right(TSvd& svd) {
  const int last = svd.u.last_col;
  svd.v.cells[last][last] = 1.0;
  for (int i = last - 1; i >= 0; --i) {
    if (above[i + 1] != 0.0) apply_row_reflector(svd, i);
    for (int j = i + 1; j <= last; ++j) svd.v.cells[i][j] = svd.v.cells[j][i] = 0.0;
    svd.v.cells[i][i] = 1.0;
  }
}

// The reflector of column i applied to the columns of U behind it, and to the unit column i.
void apply_column_reflector(MatrixRecord& u, int i, double head) {
  const double inverse = 1.0 / head;
  double factors[MATRIX_LIMIT] = {};
  for (int k = i + 1; k <= u.last_row; ++k)
    for (int j = i + 1; j <= u.last_col; ++j) factors[j] += u.cells[k][i] * u.cells[k][j];
  for (int j = i + 1; j <= u.last_col; ++j) factors[j] = (factors[j] / u.cells[i][i]) * inverse;
  for (int k = i; k <= u.last_row; ++k) {
    const double element = u.cells[k][i];
    for (int j = i + 1; j <= u.last_col; ++j) u.cells[k][j] += factors[j] * element;
    u.cells[k][i] *= inverse;
  }
}

void accumulate_left(TSvd& svd) {
  MatrixRecord& u = svd.u;
  for (int i = std::min(u.last_row, u.last_col); i >= 0; --i) {
    for (int j = i + 1; j <= u.last_col; ++j) u.cells[i][j] = 0.0;
    if (svd.w[i] != 0.0)
      apply_column_reflector(u, i, svd.w[i]);
    else
      for (int k = i; k <= u.last_row; ++k) u.cells[k][i] = 0.0;
    u.cells[i][i] += 1.0;
  }
}

// --- The diagonal form

bool negligible(double x) { return std::fabs(x) + norm == norm; }

void rotate_columns(MatrixRecord& matrix, int i, int j, double c, double s) {
  for (int row = 0; row <= matrix.last_row; ++row) {
    const double x = matrix.cells[row][i], z = matrix.cells[row][j];
    matrix.cells[row][i] = x * c + z * s;
    matrix.cells[row][j] = z * c - x * s;
  }
}

// Rotates above[from] away, into the rows up to k, where w[from - 1] is negligible.
void cancel_above(TSvd& svd, int from, int k) {
  double c = 0.0, s = 1.0;
  for (int i = from; i <= k; ++i) {
    const double f = s * above[i];
    above[i] *= c;
    if (negligible(f)) return;
    const double g = svd.w[i];
    const double h = svd.w[i] = hypot2(f, g);
    c = g / h;
    s = -f / h;
    rotate_columns(svd.u, from - 1, i, c, s);
  }
}

// The first index of the block that ends in k and doesn't fall apart.
int block_start(TSvd& svd, int k) {
  for (int l = k; l > 0; --l) {
    if (negligible(above[l])) return l;
    if (!negligible(svd.w[l - 1])) continue;
    cancel_above(svd, l, k);
    return l;
  }
  return 0;
}

// The first element of the shifted block: the eigenvalue of the bottom 2 by 2 of B'B that is closer to its
// corner.
double shifted_head(const TSvd& svd, int l, int k) {
  const double x = svd.w[l], y = svd.w[k - 1], z = svd.w[k], g = above[k - 1], h = above[k];
  const double f = 0.5 * (((g + z) / h) * ((g - z) / y) + y / h - h / y);
  return x - (z / x) * z + (h / x) * (y / (f + with_sign(hypot2(f, 1.0), f)) - h);
}

// Sine and cosine of the last rotation; a rotation of nothing takes them as they stand.
struct TRotation {
  double c = 1.0;
  double s = 1.0;

  // Turns (f, h) into (length, 0); returns the length.
  double turn(double f, double h) {
    const double length = hypot2(f, h);
    if (length != 0.0) {
      c = f / length;
      s = h / length;
    }
    return length;
  }
};

void qr_step(TSvd& svd, int l, int k) {
  double f = shifted_head(svd, l, k);
  double x = svd.w[l];
  TRotation rotation;
  for (int j = l; j < k; ++j) {
    double y = svd.w[j + 1];
    double h = rotation.s * above[j + 1];
    double g = rotation.c * above[j + 1];
    above[j] = rotation.turn(f, h);
    f = x * rotation.c + g * rotation.s;
    g = g * rotation.c - x * rotation.s;
    h = y * rotation.s;
    y *= rotation.c;
    rotate_columns(svd.v, j, j + 1, rotation.c, rotation.s);
    svd.w[j] = rotation.turn(f, h);
    f = rotation.c * g + rotation.s * y;
    x = rotation.c * y - rotation.s * g;
    rotate_columns(svd.u, j, j + 1, rotation.c, rotation.s);
  }
  above[l] = 0.0;
  above[k] = f;
  svd.w[k] = x;
}

void make_positive(TSvd& svd, int k) {
  if (!(svd.w[k] < 0.0)) return;
  svd.w[k] = -svd.w[k];
  for (int j = 0; j <= svd.v.last_row; ++j) svd.v.cells[j][k] = -svd.v.cells[j][k];
}

void diagonalise(TSvd& svd) {
  for (int k = svd.u.last_col; k >= 0; --k) {
    for (int round = 0; round < round_limit; ++round) {
      const int l = block_start(svd, k);
      if (l == k) {
        make_positive(svd, k);
        break;
      }
      qr_step(svd, l, k);
    }
  }
}

}  // namespace

void decompose_svd(TSvd& svd, const MatrixRecord& matrix, int columns) {
  copy_matrix(svd.u, matrix);
  set_shape(svd.u, row_count(matrix), columns);
  set_shape(svd.v, columns, columns);
  bidiagonalise(svd);
  accumulate_right(svd);
  accumulate_left(svd);
  diagonalise(svd);
}

void solve_by_svd(const TSvd& svd, const double* b, double* x) {
  double t[MATRIX_LIMIT] = {};
  for (int j = 0; j <= svd.u.last_col; ++j) {
    if (svd.w[j] == 0.0) continue;
    for (int i = 0; i <= svd.u.last_row; ++i) t[j] += svd.u.cells[i][j] * b[i];
    t[j] /= svd.w[j];
  }
  for (int i = 0; i <= svd.v.last_row; ++i) {
    x[i] = 0.0;
    for (int j = 0; j <= svd.v.last_col; ++j) x[i] += svd.v.cells[i][j] * t[j];
  }
}

}  // namespace zephyl
