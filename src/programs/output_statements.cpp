// `out`, `fout`, `text`: what a program shows and writes, and what it makes global by the way.

#include <cstdio>
#include <cstring>
#include <string>

#include "engine/evaluator.h"
#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "programs/interpreter.h"
#include "programs/output_files.h"
#include "programs/run_state.h"
#include "programs/scopes.h"
#include "programs/statements.h"

namespace zephyl {

namespace {

constexpr char GLYPH_UNKNOWN = static_cast<char>(255);

std::string scalar_text(const TValue& value, bool small) {
  return format_result(value.re, value.im, small, true);
}

std::string list_text(int index) {
  const ListRecord* const list = list_by_number(index);
  return list ? std::to_string(list->last + 1) + " rows" : "";
}

std::string matrix_text(int index) {
  const MatrixRecord* const matrix = matrix_by_number(index);
  if (!matrix) return "";
  return std::to_string(matrix->last_row + 1) + " by " + std::to_string(matrix->last_col + 1);
}

// Some codes of characters are glyphs of small text.
std::string string_text(int index, bool small) {
  std::string text = stores.strings[index].text;
  if (small)
    for (char& c : text)
      if ((c > 0 && c < 32) || c == 127) c = GLYPH_UNKNOWN;
  return text;
}

// The value of an operand of `out` and `fout`. Reports an undefined variable, and one that has no value.
std::string operand_text(int slot, bool small) {
  if (slot == OPERAND_ANSWER) return format_result(answers.ans.re, answers.ans.im, small, false);
  switch (slot_class(slot)) {
    case CLASS_R:
    case CLASS_CAPITAL:
    case CLASS_SMALL:
    case CLASS_GREEK:
      return scalar_text(memory_array[slot], small);
    case CLASS_LIST:
      return list_text(slot - SLOT_LIST_A);
    case CLASS_MATRIX:
      return matrix_text(slot - SLOT_MATRIX_A);
    case CLASS_STRING:
      return string_text(slot - SLOT_STR1, small);
    case CLASS_FUNCTION:
      report_error(ERR_DATA_TYPE);
      return "";
    case CLASS_NONE:
      break;
  }
  report_error(ERR_UNEXPECTED);
  return "";
}

std::string operand_name(int slot, bool small) {
  return slot == OPERAND_ANSWER ? "Ans" : slot_name(slot, !small);
}

void show_prompt_line(const char* text) {
  std::snprintf(run.prompt_line, sizeof run.prompt_line, "%s", text);
  hooks.draw_expression(false);
}

}  // namespace

int run_out(const ProgramStatement& statement) {
  const int slot = left_operand(statement);
  const std::string value = operand_text(slot, true);
  if (errors.error_flag) return END_OF_PROGRAM;
  if (slot != OPERAND_ANSWER) make_slot_global(slot);
  if (in_custom_function()) return next_statement();
  show_prompt_line(statement.text);
  show_program_text((operand_name(slot, true) + '=' + value).c_str());
  state.key_wait = statement.pause != 0;
  return next_statement();
}

int run_fout(const ProgramStatement& statement) {
  const int slot = left_operand(statement);
  const std::string value = operand_text(slot, false);
  if (errors.error_flag) return END_OF_PROGRAM;
  write_output(run.part.name, operand_name(slot, false) + "=\t" + value + "\r\n");
  return next_statement();
}

int run_text(const ProgramStatement& statement) {
  if (!in_custom_function()) show_program_text(statement.text);
  return next_statement();
}

}  // namespace zephyl
