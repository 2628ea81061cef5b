#include "collections/random_matrices.h"

#include <cfloat>
#include <cmath>
#include <random>

namespace zephyl {

namespace {

using TGenerator = std::mt19937_64;

TGenerator generator_of(int index, int salt) { return TGenerator(static_cast<unsigned>(index * 16 + salt)); }

double uniform(TGenerator& generator, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(generator);
}

int integer(TGenerator& generator, int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(generator);
}

TDense uniform_cells(TGenerator& generator, int rows, int columns) {
  return TDense::NullaryExpr(rows, columns, [&generator] { return uniform(generator, -1.0, 1.0); });
}

TDense orthogonal(TGenerator& generator, int n) {
  return Eigen::HouseholderQR<TDense>(uniform_cells(generator, n, n)).householderQ();
}

TDense integer_cells(TGenerator& generator, int n) {
  return TDense::NullaryExpr(
      n, n, [&generator] { return integer(generator, 0, 2) == 0 ? 0.0 : integer(generator, -9, 9); });
}

TDense conditioned(TGenerator& generator, int n) {
  const double exponent = uniform(generator, 0.0, 15.0);
  Eigen::VectorXd values(n);
  for (int i = 0; i < n; ++i) values[i] = std::pow(10.0, n == 1 ? 0.0 : -exponent * i / (n - 1));
  return orthogonal(generator, n) * values.asDiagonal() * orthogonal(generator, n);
}

TDense graded(TGenerator& generator, int n) {
  TDense matrix = uniform_cells(generator, n, n);
  for (int i = 0; i < n; ++i) matrix.row(i) *= std::pow(10.0, uniform(generator, -8.0, 8.0));
  return matrix;
}

TDense symmetric(TGenerator& generator, int n) {
  const TDense matrix = uniform_cells(generator, n, n);
  return matrix + matrix.transpose();
}

TDense defective(TGenerator& generator, int n) {
  TDense blocks = TDense::Zero(n, n);
  double value = 0.0;
  for (int i = 0, left = 0; i < n; ++i, --left) {
    if (left == 0) {
      left = integer(generator, 1, 3);
      value = integer(generator, -3, 3);
    } else {
      blocks(i - 1, i) = 1.0;
    }
    blocks(i, i) = value;
  }
  const TDense turn = orthogonal(generator, n);
  return turn * blocks * turn.transpose();
}

TDense with_pairs(TGenerator& generator, int n) {
  TDense blocks = TDense::Zero(n, n);
  for (int i = 0; i + 1 < n; i += 2) {
    const double re = integer(generator, -2, 2), im = std::pow(10.0, integer(generator, -6, 0));
    blocks.block<2, 2>(i, i) << re, im, -im, re;
  }
  const TDense turn = uniform_cells(generator, n, n) + 2.0 * TDense::Identity(n, n);
  return turn * blocks * turn.inverse();
}

TDense low_rank(TGenerator& generator, int n) {
  const int rank = integer(generator, n > 1 ? 1 : 0, n - 1);
  return TDense(uniform_cells(generator, n, rank) * uniform_cells(generator, rank, n));
}

using TMaker = TDense (*)(TGenerator& generator, int n);
const TMaker makers[MATRIX_KIND_COUNT] = {
    [](TGenerator& generator, int n) { return uniform_cells(generator, n, n); },
    integer_cells,
    conditioned,
    graded,
    symmetric,
    defective,
    with_pairs,
    low_rank};

}  // namespace

TDense square_sample(int index) {
  TGenerator generator = generator_of(index, 0);
  const int n = integer(generator, 1, MATRIX_LIMIT);
  return makers[index % MATRIX_KIND_COUNT](generator, n);
}

TDense tall_sample(int index) {
  TGenerator generator = generator_of(index, 1);
  const TDense square = square_sample(index);
  const int more = integer(generator, 0, MATRIX_LIMIT - static_cast<int>(square.rows()));
  TDense tall(square.rows() + more, square.cols());
  tall << square, uniform_cells(generator, more, static_cast<int>(square.cols()));
  return tall;
}

TDense definite_sample(int index) {
  const TDense matrix = square_sample(index);
  const double norm = std::max(matrix.norm(), 1e-3);
  TDense definite =
      matrix * matrix.transpose() / norm + 1e-6 * norm * TDense::Identity(matrix.rows(), matrix.rows());
  definite.triangularView<Eigen::StrictlyUpper>() = definite.transpose();
  return definite;
}

Eigen::VectorXd right_side(int index, int rows) {
  TGenerator generator = generator_of(index, 2);
  return uniform_cells(generator, rows, 1);
}

MatrixRecord record_of(const TDense& matrix) {
  MatrixRecord record;
  record.last_row = static_cast<int>(matrix.rows()) - 1;
  record.last_col = static_cast<int>(matrix.cols()) - 1;
  record.defined = true;
  for (int i = 0; i <= record.last_row; ++i)
    for (int j = 0; j <= record.last_col; ++j) record.cells[i][j] = matrix(i, j);
  return record;
}

TDense dense_of(const MatrixRecord& matrix) {
  return TDense::NullaryExpr(matrix.last_row + 1, matrix.last_col + 1,
                             [&matrix](Eigen::Index i, Eigen::Index j) { return matrix.cells[i][j]; });
}

double tolerance(int n, double norm) { return 50.0 * n * DBL_EPSILON * norm; }

}  // namespace zephyl
