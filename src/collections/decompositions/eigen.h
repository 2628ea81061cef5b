// Eigenvalues and eigenvectors of a square matrix.
#pragma once

#include "engine/records.h"

namespace zephyl {

// Rounds for one value: of 60000 random matrices a defective one took the most, 337.
constexpr int eigen_round_limit = 10000;

struct TEigen {
  MatrixRecord vectors;  // in columns; the two columns of a complex pair are real and imaginary part
  double re[MATRIX_LIMIT];
  double im[MATRIX_LIMIT];  // of a pair: first the positive, then the negative
};

// Exactly symmetric matrices go to decompose_symmetric, all others to decompose_general. Neither reports
// that it doesn't converge: where products of tiny numbers vanish and rounds get nowhere, a value is taken as
// it stands. A cancel by the user is looked for between the rounds. False if there is no result: canceled,
// with ERR_CANCELED left behind, or the numbers have left the range of the type.
bool decompose_eigen(TEigen& eigen, const MatrixRecord& matrix);

// Householder's tridiagonal form and the QL algorithm with implicit shifts (Bowdler, Martin, Reinsch and
// Wilkinson, 1968; tred2 and tql2 of EISPACK). Values ascend, vectors are orthonormal.
bool decompose_symmetric(TEigen& eigen, const MatrixRecord& matrix);

// For a matrix that isn't all 0: Hessenberg form by reflections and the double shift QR algorithm (Martin,
// Peters and Wilkinson, 1970; orthes and hqr2 of EISPACK). Values stand in the order of deflation, vectors
// have no set length.
bool decompose_general(TEigen& eigen, const MatrixRecord& matrix);

// The block diagonal matrix of the values: a complex pair is a 2 by 2 block.
void take_eigenvalues(MatrixRecord& result, const TEigen& eigen);

}  // namespace zephyl
