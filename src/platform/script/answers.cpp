#include "platform/script/answers.h"

#include <cstdio>

#include "engine/format.h"
#include "engine/records.h"
#include "engine/state.h"

namespace zephyl {

namespace {

constexpr int PLAIN_SIZE = RESULT_TEXT_SIZE * 3;

}  // namespace

std::string result_line_text() {
  const bool shows_prompt = state.at_prompt && !state.result_text[0];
  char plain[PLAIN_SIZE] = "";
  plain_text(shows_prompt ? state.prompt_text : state.result_text, plain, sizeof plain);
  return plain;
}

std::string exact_text(double number) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", number);
  return text;
}

std::string exact_text(const TValue& value, char separator) {
  return exact_text(value.re) + separator + exact_text(value.im);
}

std::string exact_text(const ListRecord& list) {
  if (!list.defined) return "undefined";
  std::string text = std::to_string(list.last + 1) + ":";
  for (int i = 0; i <= list.last; ++i) text.append(" ").append(exact_text(list.elements[i], ','));
  return text;
}

std::string exact_text(const MatrixRecord& matrix) {
  if (!matrix.defined) return "undefined";
  std::string text = std::to_string(matrix.last_row + 1) + "x" + std::to_string(matrix.last_col + 1) + ":";
  for (int row = 0; row <= matrix.last_row; ++row)
    for (int col = 0; col <= matrix.last_col; ++col)
      text.append(" ").append(exact_text(matrix.cells[row][col]));
  return text;
}

std::string quoted(const char* text) {
  std::string result = "\"";
  for (const char* c = text; *c; ++c) {
    if (*c == '\n') {
      result += "\\n";
      continue;
    }
    if (*c == '"' || *c == '\\') result += '\\';
    result += *c;
  }
  return result + '"';
}

}  // namespace zephyl
