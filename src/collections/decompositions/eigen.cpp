#include "collections/decompositions/eigen.h"

#include "collections/matrix_shape.h"

namespace zephyl {

bool decompose_eigen(TEigen& eigen, const MatrixRecord& matrix) {
  const bool symmetric = is_symmetric(matrix, row_count(matrix));
  return symmetric ? decompose_symmetric(eigen, matrix) : decompose_general(eigen, matrix);
}

void take_eigenvalues(MatrixRecord& result, const TEigen& eigen) {
  const int n = row_count(eigen.vectors);
  fill_matrix(result, n, n, 0.0);
  for (int i = 0; i < n; ++i) {
    result.cells[i][i] = eigen.re[i];
    if (eigen.im[i] > 0.0) result.cells[i][i + 1] = eigen.im[i];
    if (eigen.im[i] < 0.0) result.cells[i][i - 1] = eigen.im[i];
  }
}

}  // namespace zephyl
