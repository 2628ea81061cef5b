#include "faceplate/screen_text.h"

#include <cstring>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/format.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/alpha_entry.h"
#include "programs/program.h"
#include "programs/statement_text.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int LISTING_SIZE = 4000;

std::string listing_of(const TExpression& expression) {
  char listing[LISTING_SIZE] = "";
  expression_text(expression, listing, sizeof listing);
  return listing;
}

std::string plain(const char* text) {
  char plain[RESULT_TEXT_SIZE * 3] = "";
  plain_text(text, plain, sizeof plain);
  return plain;
}

const char* alpha_kind_name() {
  constexpr const char* names[ALPHA_PROMPT_COUNT] = {
      "Program name", "Program name", "Input prompt",  "Output label",  "Output text",   "Input prompt",
      "Menu item",    "Menu title",   "Constant name", "Constant unit", "Program error", "String text"};
  const bool known = alpha_entry.kind >= 0 && alpha_entry.kind < ALPHA_PROMPT_COUNT;
  return known ? names[alpha_entry.kind] : "Text";
}

std::string angle_word() {
  constexpr const char* words[] = {"radians", "degrees", "grads"};
  return words[settings.angleMode];
}

std::string base_word() {
  constexpr const char* words[] = {"binary", "octal", "decimal", "hexadecimal"};
  return words[settings.baseType];
}

}  // namespace

std::string shown_entry() {
  return state.alpha_active ? alpha_entry.text : listing_of(entry_line.expression);
}

// The listing of what stands in front of the cursor is where the cursor stands in the listing of all.
int shown_entry_cursor() {
  if (state.alpha_active) return static_cast<int>(std::strlen(alpha_entry.text));
  TExpression front = entry_line.expression;
  front.count = entry_line.cursor;
  return static_cast<int>(listing_of(front).size());
}

std::string shown_entry_name() { return state.alpha_active ? alpha_kind_name() : "Entry line"; }

std::string shown_result() {
  if (errors.error_flag) return errors.error_text;
  if (state.calcMode == PROGRAM_EDIT_MODE) return statement_text(program.cursor, NAMES_IN_WORDS);
  const bool asks = state.at_prompt && !state.result_text[0];
  return plain(asks ? state.prompt_text : state.result_text);
}

bool shows_error() { return errors.error_flag; }

std::string shown_mode() {
  switch (state.calcMode) {
    case BASE_MODE:
      return "BASE, " + base_word() + ", " + std::to_string(8 << settings.baseBits) + " bits";
    case STATS_MODE:
      return two_variable_stats() ? "STATS, two variables" : "STATS, one variable";
    case PROGRAM_EDIT_MODE:
      return "Program editor";
    case PERIODIC_MODE:
      return "Periodic table";
    case PLOT_MODE:
      return "PLOT";
    case MATRIX_MODE:
      return "MATRIX";
    case LIST_MODE:
      return "LIST";
    default:
      return "COMP, " + angle_word();
  }
}

}  // namespace zephyl
