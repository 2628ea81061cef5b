// The decompositions on 2000 random matrices of 1 to 30 rows, well and badly conditioned, graded, symmetric,
// defective, with complex pairs and singular: their factors give the matrix back within 50 n epsilon times
// its norm, and agree with Eigen's.

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <complex>

#include "collections/decompositions/cholesky.h"
#include "collections/decompositions/eigen.h"
#include "collections/decompositions/lu.h"
#include "collections/decompositions/qr.h"
#include "collections/decompositions/solvers.h"
#include "collections/decompositions/svd.h"
#include "collections/random_matrices.h"
#include "support/accuracy.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

using TVector = Eigen::VectorXd;
using TComplexVector = Eigen::VectorXcd;

int size_of(const TDense& matrix) { return static_cast<int>(std::max(matrix.rows(), matrix.cols())); }

// Notes `error` in the roundings of n rows of the size `norm`; 50 of them are allowed.
class TRoundings : public TAccuracy {
 public:
  explicit TRoundings(const char* what) : TAccuracy(what, 50.0) {}

  void note(double error, int n, double norm, int index) {
    compare(error, 0.0, n * DBL_EPSILON * norm, {static_cast<double>(index)});
  }
  // |difference| against the norm of what it's a difference of.
  void note(const TDense& difference, const TDense& matrix, int index) {
    note(difference.norm(), size_of(matrix), matrix.norm(), index);
  }
};

void expect_orthonormal(const TDense& columns, int index) {
  const int n = static_cast<int>(columns.cols());
  EXPECT_LE((columns.transpose() * columns - TDense::Identity(n, n)).norm(), tolerance(size_of(columns), 1.0))
      << "sample " << index;
}

TVector singular_values_of(const TDense& matrix) { return Eigen::JacobiSVD<TDense>(matrix).singularValues(); }

double condition_of(const TDense& matrix) {
  const TVector values = singular_values_of(matrix);
  return values[0] / values[values.size() - 1];
}

TVector vector_of(const MatrixRecord& record) { return dense_of(record).col(0); }

MatrixRecord augmented(const TDense& matrix, const TVector& b) {
  TDense both(matrix.rows(), matrix.cols() + 1);
  both << matrix, b;
  return record_of(both);
}

// Samples that leave room for a right side.
TDense narrow_sample(int index) {
  const TDense matrix = tall_sample(index);
  return matrix.leftCols(std::min<Eigen::Index>(matrix.cols(), MATRIX_LIMIT - 1));
}

TComplexVector values_of(const TEigen& eigen) {
  const int n = eigen.vectors.last_row + 1;
  TComplexVector values(n);
  for (int i = 0; i < n; ++i) values[i] = {eigen.re[i], eigen.im[i]};
  return values;
}

// The distance of each value of one set to the nearest of the other that is still free, at most.
double distance(const TComplexVector& a, const TComplexVector& b) {
  double farthest = 0.0;
  std::vector<bool> taken(static_cast<std::size_t>(b.size()));
  for (const std::complex<double>& value : a) {
    Eigen::Index nearest = -1;
    for (Eigen::Index i = 0; i < b.size(); ++i)
      if (!taken[static_cast<std::size_t>(i)] &&
          (nearest < 0 || std::abs(value - b[i]) < std::abs(value - b[nearest])))
        nearest = i;
    taken[static_cast<std::size_t>(nearest)] = true;
    farthest = std::max(farthest, std::abs(value - b[nearest]));
  }
  return farthest;
}

// The complex columns that the real ones stand for.
Eigen::MatrixXcd complex_vectors(const TEigen& eigen) {
  const TDense vectors = dense_of(eigen.vectors);
  Eigen::MatrixXcd columns = vectors.cast<std::complex<double>>();
  const std::complex<double> i(0.0, 1.0);
  for (Eigen::Index k = 0; k < columns.cols(); ++k) {
    if (eigen.im[k] > 0.0) columns.col(k) += i * vectors.col(k + 1).cast<std::complex<double>>();
    if (eigen.im[k] < 0.0) columns.col(k) = columns.col(k - 1).conjugate();
  }
  return columns;
}

}  // namespace

class decompositions : public calculator {};

TEST_F(decompositions, lu_factors_give_the_matrix_back) {
  TRoundings residual("P A - L U");
  static TLuFactors lu;
  int factored = 0;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    if (!factor_lu(lu, record_of(matrix))) continue;
    ++factored;
    MatrixRecord l, u, p;
    take_lower(l, lu);
    take_upper(u, lu);
    take_permutation(p, lu);
    residual.note(dense_of(p) * matrix - dense_of(l) * dense_of(u), matrix, index);
    EXPECT_TRUE(dense_of(l).isLowerTriangular(0.0)) << "sample " << index;
    EXPECT_TRUE(dense_of(u).isUpperTriangular(0.0)) << "sample " << index;
  }
  EXPECT_GT(factored, SAMPLE_COUNT / 2);
}

TEST_F(decompositions, determinants_agree_and_tiny_ones_are_zero) {
  static TLuFactors lu;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    const double condition = condition_of(matrix), peer = matrix.determinant();
    if (!(condition < 1e13)) continue;
    const double slack = tolerance(size_of(matrix), condition * std::fabs(peer));
    if (factor_lu(lu, record_of(matrix))) {
      EXPECT_NEAR(lu.determinant, peer, slack) << "sample " << index;
      EXPECT_GE(std::fabs(lu.determinant), 1e-14) << "sample " << index;
    } else {
      EXPECT_LT(std::fabs(peer), 1e-14 + slack) << "sample " << index;
      EXPECT_EQ(lu.determinant, 0.0) << "sample " << index;
    }
  }
}

TEST_F(decompositions, inverse_times_matrix_is_the_identity) {
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    const int n = size_of(matrix);
    MatrixRecord inverse;
    if (!invert(inverse, record_of(matrix))) continue;
    const double bound = tolerance(n, condition_of(matrix) * std::sqrt(n));
    EXPECT_LE((matrix * dense_of(inverse) - TDense::Identity(n, n)).norm(), bound) << "sample " << index;
  }
}

TEST_F(decompositions, lu_solutions_agree) {
  TRoundings residual("A x - b by solveLU(");
  TRoundings distance("x by solveLU( - x of the peer, over the condition");
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    const int n = size_of(matrix);
    const double condition = condition_of(matrix);
    if (n == MATRIX_LIMIT || !(condition < 1e15)) continue;
    const TVector b = right_side(index, n);
    MatrixRecord result;
    if (!solve_lu(result, augmented(matrix, b))) continue;
    const TVector x = vector_of(result), peer = matrix.partialPivLu().solve(b);
    residual.note((matrix * x - b).norm(), n, matrix.norm() * x.norm() + b.norm(), index);
    distance.note((x - peer).norm(), n, condition * peer.norm(), index);
  }
}

TEST_F(decompositions, cholesky_factor_gives_the_matrix_back) {
  TRoundings residual("A - L L'");
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = definite_sample(index);
    MatrixRecord lower;
    ASSERT_TRUE(factor_cholesky(lower, record_of(matrix))) << "sample " << index;
    const TDense l = dense_of(lower);
    residual.note(l * l.transpose() - matrix, matrix, index);
    EXPECT_LE((l - TDense(matrix.llt().matrixL())).norm(),
              tolerance(size_of(matrix), condition_of(matrix) * l.norm()))
        << "sample " << index;
  }
}

TEST_F(decompositions, cholesky_solutions_agree) {
  TRoundings residual("A x - b by solveCH(");
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = definite_sample(index);
    const int n = size_of(matrix);
    if (n == MATRIX_LIMIT) continue;
    const TVector b = right_side(index, n);
    MatrixRecord result;
    ASSERT_TRUE(solve_cholesky(result, augmented(matrix, b)));
    const TVector x = vector_of(result), peer = matrix.llt().solve(b);
    residual.note((matrix * x - b).norm(), n, matrix.norm() * x.norm() + b.norm(), index);
    EXPECT_LE((x - peer).norm(), tolerance(n, condition_of(matrix) * peer.norm())) << "sample " << index;
  }
}

TEST_F(decompositions, qr_factors_give_the_matrix_back) {
  TRoundings residual("A - Q R");
  static TQrFactors qr;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = tall_sample(index);
    MatrixRecord q, r;
    factor_qr(qr, record_of(matrix), static_cast<int>(matrix.cols()));
    take_q(q, qr);
    take_r(r, qr);
    residual.note(dense_of(q) * dense_of(r) - matrix, matrix, index);
    expect_orthonormal(dense_of(q), index);
    EXPECT_TRUE(dense_of(r).isUpperTriangular(0.0)) << "sample " << index;
  }
}

TEST_F(decompositions, least_squares_solutions_agree) {
  TRoundings qr_distance("x by solveQR( - x of the peer, over the condition");
  TRoundings svd_distance("x by solveSV( - x of the peer, over the condition");
  int solved = 0;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = narrow_sample(index);
    const double condition = condition_of(matrix);
    if (!(condition < 1e6)) continue;
    ++solved;
    const TVector b = right_side(index, static_cast<int>(matrix.rows()));
    const TVector peer = matrix.colPivHouseholderQr().solve(b);
    MatrixRecord by_qr, by_svd;
    ASSERT_TRUE(solve_qr(by_qr, augmented(matrix, b)));
    ASSERT_TRUE(solve_svd(by_svd, augmented(matrix, b)));
    const double spread = condition * (peer.norm() + condition * (matrix * peer - b).norm() / matrix.norm());
    qr_distance.note((vector_of(by_qr) - peer).norm(), size_of(matrix), spread, index);
    svd_distance.note((vector_of(by_svd) - peer).norm(), size_of(matrix), spread, index);
  }
  EXPECT_GT(solved, SAMPLE_COUNT / 2);
}

TEST_F(decompositions, singular_values_and_vectors_give_the_matrix_back) {
  TRoundings residual("A - U S V'");
  TRoundings distance("singular values - those of the peer");
  static TSvd svd;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = tall_sample(index);
    const int n = static_cast<int>(matrix.cols());
    decompose_svd(svd, record_of(matrix), n);
    TVector w = Eigen::Map<TVector>(svd.w, n);
    residual.note(dense_of(svd.u) * w.asDiagonal() * dense_of(svd.v).transpose() - matrix, matrix, index);
    expect_orthonormal(dense_of(svd.u), index);
    expect_orthonormal(dense_of(svd.v), index);
    std::sort(w.data(), w.data() + n, std::greater<double>());
    distance.note((w - singular_values_of(matrix)).norm(), size_of(matrix), matrix.norm(), index);
    EXPECT_GE(w.minCoeff(), 0.0) << "sample " << index;
  }
}

TEST_F(decompositions, singular_values_of_wide_matrices) {
  static TSvd svd;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = tall_sample(index).transpose();
    const int rows = static_cast<int>(matrix.rows()), n = static_cast<int>(matrix.cols());
    decompose_svd(svd, record_of(matrix), n);
    TVector w = Eigen::Map<TVector>(svd.w, n);
    std::sort(w.data(), w.data() + n, std::greater<double>());
    const double bound = tolerance(n, matrix.norm());
    EXPECT_LE((w.head(rows) - singular_values_of(matrix)).norm(), bound) << "sample " << index;
    EXPECT_LE(w.tail(n - rows).norm(), bound) << "sample " << index;
  }
}

TEST_F(decompositions, symmetric_eigenvectors_give_the_matrix_back) {
  TRoundings residual("A V - V D, symmetric");
  TRoundings distance("eigenvalues - those of the peer, symmetric");
  static TEigen eigen;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense square = square_sample(index), matrix = square + square.transpose();
    const int n = size_of(matrix);
    ASSERT_TRUE(decompose_symmetric(eigen, record_of(matrix)));
    const TDense v = dense_of(eigen.vectors);
    const TVector d = Eigen::Map<TVector>(eigen.re, n);
    residual.note(matrix * v - v * d.asDiagonal(), matrix, index);
    expect_orthonormal(v, index);
    distance.note((d - Eigen::SelfAdjointEigenSolver<TDense>(matrix).eigenvalues()).norm(), n, matrix.norm(),
                  index);
    EXPECT_TRUE(std::is_sorted(d.data(), d.data() + n)) << "sample " << index;
  }
}

// Without symmetry, each vector counts by its own length.
TEST_F(decompositions, general_eigenvectors_give_the_matrix_back) {
  TRoundings residual("A V - V D, by columns");
  static TEigen eigen;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    const int n = size_of(matrix);
    ASSERT_TRUE(decompose_general(eigen, record_of(matrix)));
    const Eigen::MatrixXcd v = complex_vectors(eigen);
    const Eigen::MatrixXcd difference = matrix * v - v * values_of(eigen).asDiagonal();
    for (int k = 0; k < n; ++k)
      residual.note(difference.col(k).norm(), n, matrix.norm() * v.col(k).norm(), index);
  }
}

// How far two sound sets of eigenvalues may lie apart hangs on the condition of the vectors (Bauer and Fike,
// 1960).
TEST_F(decompositions, general_eigenvalues_agree) {
  TRoundings apart("eigenvalues - those of the peer, over the condition");
  static TEigen eigen;
  int sharp = 0;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    ASSERT_TRUE(decompose_general(eigen, record_of(matrix)));
    const Eigen::EigenSolver<TDense> peer(matrix);
    const TVector spread = Eigen::JacobiSVD<Eigen::MatrixXcd>(peer.eigenvectors()).singularValues();
    const double condition = spread[0] / spread[spread.size() - 1];
    sharp += condition < 1e3;
    apart.note(distance(values_of(eigen), peer.eigenvalues()), size_of(matrix), matrix.norm() * condition,
               index);
  }
  EXPECT_GT(sharp, SAMPLE_COUNT / 2);
}

// This holds where vectors are of no help: a sound value makes the matrix nearly singular.
TEST_F(decompositions, general_eigenvalues_are_those_of_a_close_matrix) {
  static TEigen eigen;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    const int n = size_of(matrix);
    if (n > 10) continue;
    ASSERT_TRUE(decompose_general(eigen, record_of(matrix)));
    for (const std::complex<double>& value : values_of(eigen)) {
      const Eigen::MatrixXcd shifted = matrix - value * Eigen::MatrixXcd::Identity(n, n);
      EXPECT_LE(Eigen::JacobiSVD<Eigen::MatrixXcd>(shifted).singularValues()[n - 1],
                tolerance(n, matrix.norm()))
          << "sample " << index;
    }
  }
}

TEST_F(decompositions, complex_values_stand_in_pairs) {
  static TEigen eigen;
  int pairs = 0;
  for (int index = 0; index < SAMPLE_COUNT; ++index) {
    const TDense matrix = square_sample(index);
    ASSERT_TRUE(decompose_general(eigen, record_of(matrix)));
    for (int i = 0; i < size_of(matrix); ++i) {
      if (eigen.im[i] <= 0.0) continue;
      ++pairs;
      EXPECT_EQ(eigen.im[i + 1], -eigen.im[i]) << "sample " << index;
      EXPECT_EQ(eigen.re[i + 1], eigen.re[i]) << "sample " << index;
    }
  }
  EXPECT_GT(pairs, 1000);
}

}  // namespace zephyl
