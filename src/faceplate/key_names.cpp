#include "faceplate/key_names.h"

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/format.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/key_tables.h"
#include "faceplate/key_words.h"
#include "faceplate/typed_keys.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "programs/programs.h"
#include "stats/stats.h"
#include "tools/elements.h"

namespace zephyl {

namespace {

constexpr int DECIMAL_KEY = 39;
constexpr int FOURTH_TAB_KEY = 46;
constexpr int RUN_KEY = 49;

// Of the list and matrix screens.
constexpr int FIRST_VARIABLE_KEY = 21;
constexpr int ANSWER_KEY = 31;
constexpr int FIRST_CELL_KEY = 32;
constexpr int CELLS_A_LINE = 5;

constexpr int SYMBOL_PAGE_KEY = 39;  // of alpha entry
constexpr int ALPHA_SHIFT_KEY = 36;

std::string run_name() { return program_can_be_stopped() ? "Stop the program" : "Run a program"; }

std::string fourth_tab_name() {
  switch (state.dynamic_mode) {
    case BASE_MODE:
      return "BASE mode";
    case MATRIX_MODE:
      return "MATRIX mode";
    case LIST_MODE:
      return "LIST mode";
    default:
      return "STATS mode";
  }
}

// With a decimal comma the two signs change places.
std::string sign_name(bool decimal_key) {
  return decimal_key == (settings.decimalMark == 1) ? "Comma" : "Point";
}

std::string angle_name() {
  constexpr const char* names[] = {"radians", "degrees", "grads"};
  return std::string("Angle unit: ") + names[settings.angleMode];
}

std::string enter_name() {
  if (state.dynamic_mode == MATRIX_MODE) return "Enter into the matrix";
  return state.dynamic_mode == LIST_MODE ? "Enter into the list" : "Enter into the statistics";
}

std::string base_name() {
  constexpr const char* names[] = {"binary", "octal", "decimal", "hexadecimal"};
  return std::string("Base: ") + names[settings.baseType];
}

std::string bits_name() { return "Width: " + std::to_string(8 << settings.baseBits) + " bits"; }

std::string regression_name() {
  constexpr const char* names[] = {"linear", "logarithmic", "exponential", "power"};
  return std::string("Regression: ") + names[settings.statsRegress];
}

// Names of the digit screens that the state decides.
std::string changing_name(int key) {
  switch (key) {
    case DECIMAL_KEY:
      return sign_name(true);
    case FOURTH_TAB_KEY:
      return fourth_tab_name();
    case RUN_KEY:
      return run_name();
    case 1:
      return state.calcMode == BASE_MODE ? base_name()
             : two_variable_stats()      ? "Two variables"
                                         : "One variable";
    case 2:
      return bits_name();
    case 9:
      return regression_name();
    case 16:
      return angle_name();
    case 19:
      return sign_name(false);
    case 26:
      return enter_name();
    default:
      return "";
  }
}

std::string number_text(double re, double im) {
  return format_value(re, im, settings.numberFormat, settings.decimalDigits, settings.baseType, false, false);
}

std::string element_of_list(int line) {
  const int list = list_view.current_list, row = list_view.top_row[list] + line;
  const ListRecord& record = stores.lists[list];
  const std::string name = "Element " + std::to_string(row + 1);
  if (!record.defined || row > record.last) return name;
  return name + ": " + number_text(record.elements[row].re, record.elements[row].im);
}

std::string cell_of_matrix(int line, int column) {
  const int matrix = matrix_view.current_matrix;
  const int row = matrix_view.top_row[matrix] + line, col = matrix_view.left_col[matrix] + column;
  const MatrixRecord& record = stores.matrices[matrix];
  const std::string name = "Row " + std::to_string(row + 1) + ", column " + std::to_string(col + 1);
  if (!record.defined || row > record.last_row || col > record.last_col) return name;
  return name + ": " + number_text(record.cells[row][col], 0.0);
}

// All five cells of a line of the list screen are one element: the first speaks for them.
std::string cell_name(int cell) {
  const int line = cell / CELLS_A_LINE, column = cell % CELLS_A_LINE;
  if (state.calcMode == MATRIX_MODE) return cell_of_matrix(line, column);
  return column == 0 ? element_of_list(line) : "";
}

bool moves_columns(int key) { return key == 11 || key == 12 || key == 15 || key == 16; }

std::string table_key_name(int key) {
  if (state.calcMode == LIST_MODE && moves_columns(key)) return "";
  if (key == 3) return fourth_tab_name();
  if (key < FIRST_VARIABLE_KEY) return "";
  const std::string store = state.calcMode == MATRIX_MODE ? "Matrix " : "List ";
  if (key == ANSWER_KEY) return store + "answer";
  if (key >= FIRST_CELL_KEY) return cell_name(key - FIRST_CELL_KEY);
  return store + static_cast<char>('A' + key - FIRST_VARIABLE_KEY);
}

std::string plot_key_name(int key) {
  if (key == 15) return fourth_tab_name();
  return plot_variables.plotType == PLOT_3D ? "Rotate" : "Calculate";
}

// Two keys of the plot screen are there in 3D only.
bool is_hidden_plot_key(int key) { return (key == 18 || key == 19) && plot_variables.plotType != PLOT_3D; }

std::string alpha_key_name(int key) {
  if (key == SYMBOL_PAGE_KEY) return alpha_entry.symbol_page ? "Letters" : "Symbols";
  const int index = alpha_character_of_key(key);
  if (index < 0) return "";
  const char character = alpha_characters[index];
  const std::string words = character_words(character);
  return words.empty() ? std::string(1, character) : words;
}

std::string element_name(int key) {
  const Element kept = element;
  const bool there = load_periodical(key - 2);
  const std::string name = there ? element.fields[ELEMENT_NAME] : "";
  element = kept;
  return name;
}

const TKeyWordTable& words_of_digit_screen() {
  if (state.calcMode == BASE_MODE) return base_words;
  return state.calcMode == STATS_MODE ? stats_words : comp_words;
}

const TKeyWords* words_of_digit_key(int key) {
  const TKeyWords* own = words_of_key(words_of_digit_screen(), key);
  return own ? own : words_of_key(digit_screen_words, key);
}

const TKeyWords* shown_words(int key) {
  if (state.alpha_active) return words_of_key(alpha_words, key);
  switch (state.calcMode) {
    case PROGRAM_EDIT_MODE:
      return words_of_key(program_words, key);
    case PLOT_MODE:
      return is_hidden_plot_key(key) ? nullptr : words_of_key(plot_words, key);
    case MATRIX_MODE:
    case LIST_MODE:
      return words_of_key(table_words, key);
    case PERIODIC_MODE:
      return words_of_key(periodic_words, key);
    default:
      return words_of_digit_key(key);
  }
}

// The names that no table holds.
std::string found_name(int key) {
  if (state.alpha_active) return alpha_key_name(key);
  switch (state.calcMode) {
    case PROGRAM_EDIT_MODE:
      return key == 0 ? run_name() : fourth_tab_name();
    case PLOT_MODE:
      return plot_key_name(key);
    case MATRIX_MODE:
    case LIST_MODE:
      return table_key_name(key);
    case PERIODIC_MODE:
      return element_name(key);
    default:
      return changing_name(key);
  }
}

bool is_dead(int key) {
  if (state.alpha_active) return false;
  if (state.calcMode == PLOT_MODE) return key == 0 || is_hidden_plot_key(key);
  return state.calcMode == LIST_MODE && moves_columns(key);
}

TKeyMark mark_of(bool on) { return on ? KEY_ON : KEY_OFF; }

TKeyMark plot_mark(int key) {
  constexpr int FIRST_CURSOR_KEY = 20;
  if (key == 5) return mark_of(zoom_locks.x);
  if (key == 6) return mark_of(zoom_locks.y);
  const int last = plot_variables.plotType == PLOT_3D ? 23 : 22;
  const bool cursor = key >= FIRST_CURSOR_KEY && key <= last;
  return cursor ? mark_of(plot_variables.plotCursor == key - FIRST_CURSOR_KEY) : KEY_WITHOUT_MARK;
}

TKeyMark comp_mark(int key) {
  if (key == 0) return mark_of(state.orange_shift);
  if (key == 1) return mark_of(state.blue_shift);
  return key == 2 ? mark_of(state.hyp_shift) : KEY_WITHOUT_MARK;
}

}  // namespace

std::string key_name(int key) {
  if (key < 0 || key >= shown_key_table().count || is_dead(key)) return "";
  const TKeyWords* words = shown_words(key);
  return words && words->plain[0] ? words->plain : found_name(key);
}

std::string key_shift_names(int key) {
  const TKeyWords* words = is_dead(key) ? nullptr : shown_words(key);
  std::string text;
  if (words && words->blue[0]) text += std::string("Blue: ") + words->blue + ".";
  if (words && words->orange[0])
    text += std::string(text.empty() ? "" : " ") + "Orange: " + words->orange + ".";
  return text;
}

TKeyMark key_mark(int key) {
  if (state.alpha_active) return key == ALPHA_SHIFT_KEY ? mark_of(alpha_entry.shift) : KEY_WITHOUT_MARK;
  switch (state.calcMode) {
    case COMP_MODE:
      return comp_mark(key);
    case BASE_MODE:
    case STATS_MODE:
      return key == 0 ? mark_of(state.blue_shift) : KEY_WITHOUT_MARK;
    case PROGRAM_EDIT_MODE:
      return key == 1 ? mark_of(state.blue_shift) : KEY_WITHOUT_MARK;
    case PLOT_MODE:
      return plot_mark(key);
    default:
      return KEY_WITHOUT_MARK;
  }
}

}  // namespace zephyl
