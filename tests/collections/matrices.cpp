#include "collections/matrices.h"

#include <cstdio>
#include <sstream>

#include "engine/errors.h"
#include "engine/memory.h"

namespace zephyl {

MatrixRecord matrix_of_text(const std::string& text) {
  MatrixRecord matrix;
  if (text == "undefined") return matrix;
  std::istringstream rows(text);
  std::string row;
  for (matrix.last_row = -1; std::getline(rows, row, ';'); matrix.defined = true) {
    std::istringstream cells(row);
    ++matrix.last_row;
    for (matrix.last_col = -1; cells >> matrix.cells[matrix.last_row][matrix.last_col + 1];)
      ++matrix.last_col;
  }
  return matrix;
}

std::string text_of_matrix(const MatrixRecord& matrix) {
  if (!matrix.defined) return "undefined";
  std::string text;
  for (int i = 0; i <= matrix.last_row; ++i) {
    if (i > 0) text += ";";
    for (int j = 0; j <= matrix.last_col; ++j) {
      char cell[40];
      std::snprintf(cell, sizeof cell, "%.12g", matrix.cells[i][j]);
      text += (i + j > 0 ? " " : "") + std::string(cell);
    }
  }
  return text;
}

void matrices::define(char name, const std::string& text) { define(name, matrix_of_text(text)); }

void matrices::define(char name, const MatrixRecord& matrix) { stores.matrices[name - 'A'] = matrix; }

std::string matrices::stored(char name) const { return text_of_matrix(stores.matrices[name - 'A']); }

std::string matrices::matrix(const std::string& text) {
  const std::string result = eval(text);
  if (errors.error_flag) return result;
  return answers.m_ans_valid ? text_of_matrix(stores.matrices[ANSWER_RECORD]) : "not a matrix: " + result;
}

}  // namespace zephyl
