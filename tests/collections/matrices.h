// A calculator whose matrices can be set and read as text: rows by semicolons, cells by blanks, "1 2; 3 4".
#pragma once

#include <string>

#include "engine/records.h"
#include "support/calculator.h"

namespace zephyl {

// The record of such a text, and back; "undefined" both ways.
MatrixRecord matrix_of_text(const std::string& text);
std::string text_of_matrix(const MatrixRecord& matrix);

class matrices : public calculator {
 protected:
  // name: 'A' to 'J'.
  void define(char name, const std::string& text);
  void define(char name, const MatrixRecord& matrix);
  std::string stored(char name) const;

  // Evaluates an expression with a matrix as its result: the matrix, or the error's message.
  std::string matrix(const std::string& text);
};

// An expression and what comes of it.
struct TExample {
  const char* text;
  const char* result;
};

}  // namespace zephyl
