// Operations on matrices of the largest size beside Eigen's, which computes the same in doubles: the whole
// road of an expression, from the stored matrix to the tidied result in a register, and Eigen from a matrix
// to the same factors.

#include <benchmark/benchmark.h>

#include <Eigen/Dense>
#include <cstdint>
#include <stdexcept>

#include "app/start_up.h"
#include "engine/compiler.h"
#include "engine/evaluator.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/text_form.h"
#include "platform/events.h"

namespace {

using namespace zephyl;
using TMatrix = Eigen::MatrixXd;

constexpr int SIZE = MATRIX_LIMIT;

void start_calculator() {
  static const bool started = [] {
    register_families();
    on_start();
    return true;
  }();
  benchmark::DoNotOptimize(started);
}

TMatrix to_eigen(const MatrixRecord& matrix) {
  TMatrix result(matrix.last_row + 1, matrix.last_col + 1);
  for (int i = 0; i <= matrix.last_row; ++i)
    for (int j = 0; j <= matrix.last_col; ++j) result(i, j) = matrix.cells[i][j];
  return result;
}

// [A] and [B]: cells from -1 to 1 in no order, [B] symmetric.
void fill_matrices() {
  std::uint32_t word = 12345;
  const auto next = [&word] { return (word = word * 1664525u + 1013904223u) / 2147483648.0 - 1.0; };
  MatrixRecord &a = stores.matrices[0], &b = stores.matrices[1];
  a.last_row = a.last_col = b.last_row = b.last_col = SIZE - 1;
  a.defined = b.defined = true;
  for (int i = 0; i < SIZE; ++i)
    for (int j = 0; j < SIZE; ++j) {
      a.cells[i][j] = next();
      if (j <= i) b.cells[i][j] = b.cells[j][i] = next();
    }
}

// An expression of [A] and [B], compiled once.
void zephyl_matrix(benchmark::State& bench, const char* text) {
  start_calculator();
  fill_matrices();
  TExpression expression;
  char error[200];
  TCompiled compiled;
  if (!text_to_tokens(text, expression, error, sizeof error) || !compile_expression(expression, compiled))
    throw std::runtime_error(text);
  for (auto _ : bench) {
    walk_steps(compiled, false);
    benchmark::DoNotOptimize(temporaries.matrices[0].cells[0][0]);
  }
}

// What Eigen makes of the same matrices.
template <typename TFunction>
void eigen_matrix(benchmark::State& bench, TFunction function) {
  start_calculator();
  fill_matrices();
  const TMatrix a = to_eigen(stores.matrices[0]), b = to_eigen(stores.matrices[1]);
  for (auto _ : bench) {
    TMatrix result = function(a, b);
    benchmark::DoNotOptimize(result.data());
  }
}

TMatrix eigen_product(const TMatrix& a, const TMatrix& b) { return a * b; }
TMatrix eigen_inverse(const TMatrix& a, const TMatrix&) { return a.inverse(); }
TMatrix eigen_lu(const TMatrix& a, const TMatrix&) {
  return TMatrix(a.partialPivLu().matrixLU().triangularView<Eigen::UnitLower>());
}
TMatrix eigen_qr(const TMatrix& a, const TMatrix&) {
  return a.householderQr().householderQ() * TMatrix::Identity(SIZE, SIZE);
}
TMatrix eigen_svd(const TMatrix& a, const TMatrix&) {
  return a.bdcSvd(Eigen::ComputeThinU | Eigen::ComputeThinV).matrixU();
}
TMatrix eigen_symmetric(const TMatrix&, const TMatrix& b) {
  return Eigen::SelfAdjointEigenSolver<TMatrix>(b).eigenvectors();
}
TMatrix eigen_general(const TMatrix& a, const TMatrix&) {
  return Eigen::EigenSolver<TMatrix>(a).eigenvectors().real();
}
TMatrix eigen_solution(const TMatrix& a, const TMatrix&) {
  return a.topLeftCorner(SIZE - 1, SIZE - 1).partialPivLu().solve(a.topRightCorner(SIZE - 1, 1));
}

BENCHMARK_CAPTURE(eigen_matrix, product, eigen_product);
BENCHMARK_CAPTURE(zephyl_matrix, product, "[A]*[B]");
BENCHMARK_CAPTURE(eigen_matrix, inverse, eigen_inverse);
BENCHMARK_CAPTURE(zephyl_matrix, inverse, "[A]^(-1)");
BENCHMARK_CAPTURE(eigen_matrix, lu, eigen_lu);
BENCHMARK_CAPTURE(zephyl_matrix, lu, "LU_L([A])");
BENCHMARK_CAPTURE(eigen_matrix, qr, eigen_qr);
BENCHMARK_CAPTURE(zephyl_matrix, qr, "QR_Q([A])");
BENCHMARK_CAPTURE(eigen_matrix, svd, eigen_svd);
BENCHMARK_CAPTURE(zephyl_matrix, svd, "SVD_U([A])");
BENCHMARK_CAPTURE(eigen_matrix, eigen_symmetric, eigen_symmetric);
BENCHMARK_CAPTURE(zephyl_matrix, eigen_symmetric, "eigenVec([B])");
BENCHMARK_CAPTURE(eigen_matrix, eigen_general, eigen_general);
BENCHMARK_CAPTURE(zephyl_matrix, eigen_general, "eigenVec([A])");
BENCHMARK_CAPTURE(eigen_matrix, solution, eigen_solution);
BENCHMARK_CAPTURE(zephyl_matrix, solution_with_part, "solveLU(subMatrix([A],1,1,29,30))");

}  // namespace
