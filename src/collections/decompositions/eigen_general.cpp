#include "collections/decompositions/eigen.h"

#include "collections/decompositions/real_schur.h"
#include "collections/matrix_shape.h"

namespace zephyl {

bool decompose_general(TEigen& eigen, const MatrixRecord& matrix) {
  static MatrixRecord form;
  copy_matrix(form, matrix);
  TSchur schur{form, eigen, row_count(matrix)};
  reduce_to_hessenberg(schur);
  if (!iterate_to_schur_form(schur)) return false;
  find_schur_vectors(schur);
  return true;
}

}  // namespace zephyl
