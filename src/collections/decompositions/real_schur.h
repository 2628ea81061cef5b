// The real Schur form A = V H V' of a square matrix, H quasi-triangular: what the eigenvalues and
// eigenvectors of a matrix without symmetry are read from. Between the files of the decomposition only.
#pragma once

#include "collections/decompositions/eigen.h"

namespace zephyl {

// eigen.vectors is V until the eigenvectors stand in its place.
struct TSchur {
  MatrixRecord& h;
  TEigen& eigen;
  int n;
  double norm = 0.0;  // the sum of the magnitudes of the Hessenberg form
};

constexpr double schur_epsilon = 0x1p-52;

// Reduces h to upper Hessenberg form with the reflections gathered in V.
void reduce_to_hessenberg(TSchur& schur);

// From there to the quasi-triangular form; fills in the values. False if the user has canceled or the numbers
// have run out of range.
bool iterate_to_schur_form(TSchur& schur);

// The eigenvectors, in place of V.
void find_schur_vectors(TSchur& schur);

}  // namespace zephyl
