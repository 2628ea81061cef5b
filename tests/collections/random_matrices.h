// The matrices that the decompositions are compared on, and what the comparison needs.
#pragma once

#include <Eigen/Dense>

#include "engine/records.h"

namespace zephyl {

using TDense = Eigen::MatrixXd;

enum TMatrixKind {
  KIND_UNIFORM,      // cells from -1 to 1
  KIND_INTEGERS,     // cells from -9 to 9, many equal and many 0
  KIND_CONDITIONED,  // condition numbers up to 1e15
  KIND_GRADED,       // rows of sizes from 1e-8 to 1e8
  KIND_SYMMETRIC,    // with eigenvalues of both signs
  KIND_DEFECTIVE,    // with Jordan blocks up to 3 by 3
  KIND_PAIRS,        // with complex pairs of eigenvalues, some of them close together
  KIND_LOW_RANK,     // exactly singular
  MATRIX_KIND_COUNT
};

constexpr int SAMPLE_COUNT = 2000;

// Sample `index`, 0 to SAMPLE_COUNT - 1: of kind index % MATRIX_KIND_COUNT, square, of a random size from 1
// to 30. The same in every run.
TDense square_sample(int index);
// The same with as many more rows as there is room for, by chance.
TDense tall_sample(int index);
// Symmetric and positive definite.
TDense definite_sample(int index);
// A right side for a matrix of so many rows.
Eigen::VectorXd right_side(int index, int rows);

MatrixRecord record_of(const TDense& matrix);
TDense dense_of(const MatrixRecord& matrix);

// What rounding may leave of an identity between matrices with n rows and the norm `norm`.
double tolerance(int n, double norm);

}  // namespace zephyl
