#include "platform/console/answer_text.h"

#include <algorithm>
#include <vector>

#include "engine/errors.h"
#include "engine/format.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"

namespace zephyl {

namespace {

constexpr std::size_t LINE_WIDTH = 78;

std::string number_text(double re, double im) {
  return format_value(re, im, settings.numberFormat, settings.decimalDigits, settings.baseType, false, false);
}

// A comma can't part numbers that hold commas.
const char* separator() { return settings.decimalMark == 1 ? "; " : ", "; }

std::string list_text(const ListRecord& list) {
  std::string text = "{";
  std::size_t line_start = 0;
  for (int i = 0; i <= list.last; ++i) {
    const std::string number = number_text(list.elements[i].re, list.elements[i].im);
    if (i > 0) text += separator();
    if (i > 0 && text.size() - line_start + number.size() >= LINE_WIDTH) {
      text.back() = '\n';
      line_start = text.size();
      text += ' ';
    }
    text += number;
  }
  return text + "}";
}

std::string matrix_text(const MatrixRecord& matrix) {
  const int rows = matrix.last_row + 1, cols = matrix.last_col + 1;
  std::vector<std::string> cells;
  std::vector<std::size_t> widths(static_cast<std::size_t>(cols), 0);
  for (int i = 0; i < rows * cols; ++i) {
    cells.push_back(number_text(matrix.cells[i / cols][i % cols], 0.0));
    std::size_t& width = widths[static_cast<std::size_t>(i % cols)];
    width = std::max(width, cells.back().size());
  }
  std::string text;
  for (int i = 0; i < rows * cols; ++i) {
    const std::string& cell = cells[static_cast<std::size_t>(i)];
    const int col = i % cols;
    text += col > 0 ? "  " : i > 0 ? "\n[" : "[";
    text += std::string(widths[static_cast<std::size_t>(col)] - cell.size(), ' ') + cell;
    if (col == cols - 1) text += "]";
  }
  return text;
}

std::string string_text(const TString& string) {
  std::string text = "\"";
  return text.append(string.text).append("\"");
}

std::string number_line() {
  char plain[RESULT_TEXT_SIZE * 3] = "";
  plain_text(state.result_text, plain, sizeof plain);
  return plain;
}

}  // namespace

std::string answer_text() {
  if (errors.error_flag) return errors.error_text;
  if (answers.m_ans_valid) return matrix_text(stores.matrices[ANSWER_RECORD]);
  if (answers.l_ans_valid) return list_text(stores.lists[ANSWER_RECORD]);
  if (answers.str_ans_valid) return string_text(stores.strings[ANSWER_RECORD]);
  return number_line();
}

}  // namespace zephyl
