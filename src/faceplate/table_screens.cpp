#include "faceplate/table_screens.h"

#include <cstdio>
#include <string>

#include "collections/list_screen.h"
#include "collections/list_view.h"
#include "collections/matrix_screen.h"
#include "collections/matrix_view.h"
#include "engine/format.h"
#include "engine/state.h"
#include "faceplate/cell_text.h"
#include "faceplate/images.h"
#include "faceplate/resources.h"
#include "plot/small_numbers.h"

namespace zephyl {

namespace {

constexpr int TITLE_X = 7;
constexpr int TITLE_Y = 72;
constexpr int SIZE_RIGHT = 222;
constexpr int FIRST_ROW_Y = 103;
constexpr int ROW_HEIGHT = 15;
constexpr int TEXT_DOWN = 4;  // of a number within its row
constexpr int FULL_VALUE_Y = 229;
constexpr int TAB_Y = 252;

constexpr int LIST_NUMBER_RIGHT = 29;
constexpr int LIST_VALUE_RIGHT = 221;
constexpr int LIST_CELL_LEFT = 32;
constexpr int LIST_CELL_RIGHT = 227;

constexpr int MATRIX_NUMBER_RIGHT = 18;
constexpr int COLUMN_NUMBER_Y = 87;
constexpr int COLUMN_NUMBER_RIGHT = 57;
constexpr int COLUMN_WIDTH = 41;
constexpr int MATRIX_CELL_LEFT = 22;
constexpr int CELL_MARGIN = 3;  // between a number and the right edge of its cell
constexpr int LEFT_MARGIN = 1;

using TText = char[200];

int row_y(int line) { return FIRST_ROW_Y + ROW_HEIGHT * line; }

void draw_words(TSurface& surface, const char* words, int x, int y) {
  for (; *words; ++words) {
    const TBitmap& glyph = character_glyph(static_cast<unsigned char>(*words));
    surface.blit_glyph(glyph, x, y);
    x += glyph.width;
  }
}

int words_width(const char* words) {
  int width = 0;
  for (; *words; ++words) width += character_glyph(static_cast<unsigned char>(*words)).width;
  return width;
}

void draw_heading(TSurface& surface, const char* title, const char* size) {
  draw_words(surface, title, TITLE_X, TITLE_Y);
  draw_words(surface, size, SIZE_RIGHT - words_width(size), TITLE_Y);
}

void draw_to_the_left(TSurface& surface, const char* text, int right, int y) {
  draw_small_number(surface, text, right, y, false, false);
}

void draw_count(TSurface& surface, int count, int right, int y) {
  draw_to_the_left(surface, std::to_string(count).c_str(), right, y);
}

void draw_frame(TSurface& surface, const TRect& rect) {
  surface.fill({rect.left, rect.top, rect.right, rect.top}, BLACK);
  surface.fill({rect.left, rect.bottom, rect.right, rect.bottom}, BLACK);
  surface.fill({rect.left, rect.top, rect.left, rect.bottom}, BLACK);
  surface.fill({rect.right, rect.top, rect.right, rect.bottom}, BLACK);
}

// The value at the cursor with the settings of the calculator.
void draw_full_value(TSurface& surface, const char* place, const TValue& value) {
  const int x = draw_small_number(surface, place, TITLE_X, FULL_VALUE_Y, false, true);
  const char* const text = format_value(value.re, value.im, settings.numberFormat, settings.decimalDigits,
                                        settings.baseType, false, false);
  draw_small_number(surface, text, x, FULL_VALUE_Y, false, true);
}

void draw_lit_tab(TSurface& surface, int variable, const char* answer) {
  char name[] = "MATRIX_A";
  name[sizeof name - 2] = static_cast<char>('A' + variable);
  if (variable == ANSWER_RECORD)
    draw_backdrop(surface, answer, 0, TAB_Y);
  else
    draw_backdrop(surface, name, 40 + 20 * variable, TAB_Y);
}

void format_title(TText& title, const char* kind, int variable) {
  if (variable == ANSWER_RECORD)
    std::snprintf(title, sizeof title, "%s Answer", kind);
  else
    std::snprintf(title, sizeof title, "%s %c", kind, 'A' + variable);
}

// --- The list

void draw_list_heading(TSurface& surface, const ListRecord& list) {
  TText title, size = "Size: Undefined";
  format_title(title, "List", list_view.current_list);
  if (list.defined) std::snprintf(size, sizeof size, "Size: %d", list.last + 1);
  draw_heading(surface, title, size);
}

void draw_list_row(TSurface& surface, const ListRecord& list, int line) {
  const int row = list_view.top_row[list_view.current_list] + line, y = row_y(line) + TEXT_DOWN;
  draw_count(surface, row + 1, LIST_NUMBER_RIGHT, y);
  if (row > list.last) return;
  constexpr int width = LIST_VALUE_RIGHT - LIST_CELL_LEFT - CELL_MARGIN;
  draw_to_the_left(surface, cell_text(list.elements[row], width), LIST_VALUE_RIGHT, y);
}

void draw_list_cursor(TSurface& surface, const ListRecord& list) {
  const int cursor = list_cursor(), line = cursor - list_view.top_row[list_view.current_list];
  if (line >= 0 && line < LIST_SCREEN_ROWS)
    draw_frame(surface, {LIST_CELL_LEFT, row_y(line), LIST_CELL_RIGHT, row_y(line) + ROW_HEIGHT - 1});
  TText place;
  std::snprintf(place, sizeof place, "%d=", cursor + 1);
  draw_full_value(surface, place, list.elements[cursor]);
}

// --- The matrix

void draw_matrix_heading(TSurface& surface, const MatrixRecord& matrix) {
  TText title, size = "Size: Undefined";
  format_title(title, "Matrix", matrix_view.current_matrix);
  if (matrix.defined)
    std::snprintf(size, sizeof size, "Size: %dx%d", matrix.last_row + 1, matrix.last_col + 1);
  draw_heading(surface, title, size);
}

int cell_right(int line_column) { return MATRIX_CELL_LEFT + COLUMN_WIDTH * (line_column + 1) - 1; }

void draw_matrix_row(TSurface& surface, const MatrixRecord& matrix, int line) {
  const int row = matrix_view.top_row[matrix_view.current_matrix] + line, y = row_y(line) + TEXT_DOWN;
  draw_count(surface, row + 1, MATRIX_NUMBER_RIGHT, y);
  for (int i = 0; row <= matrix.last_row && i < MATRIX_SCREEN_COLUMNS; ++i) {
    const int column = matrix_view.left_col[matrix_view.current_matrix] + i;
    if (column > matrix.last_col) break;
    const TValue value = {matrix.cells[row][column], 0.0};
    draw_to_the_left(surface, cell_text(value, COLUMN_WIDTH - CELL_MARGIN - LEFT_MARGIN),
                     cell_right(i) - CELL_MARGIN + 1, y);
  }
}

void draw_column_numbers(TSurface& surface) {
  const int left = matrix_view.left_col[matrix_view.current_matrix];
  for (int i = 0; i < MATRIX_SCREEN_COLUMNS; ++i)
    draw_count(surface, left + i + 1, COLUMN_NUMBER_RIGHT + COLUMN_WIDTH * i, COLUMN_NUMBER_Y);
}

void draw_cell_frame(TSurface& surface, int line, int column) {
  if (line < 0 || line >= MATRIX_SCREEN_ROWS || column < 0 || column >= MATRIX_SCREEN_COLUMNS) return;
  const int right = cell_right(column);
  draw_frame(surface, {right - COLUMN_WIDTH + 1, row_y(line), right, row_y(line) + ROW_HEIGHT - 1});
}

void draw_matrix_cursor(TSurface& surface, const MatrixRecord& matrix) {
  const int number = matrix_view.current_matrix;
  int row, column;
  matrix_cursor(row, column);
  draw_cell_frame(surface, row - matrix_view.top_row[number], column - matrix_view.left_col[number]);
  TText place;
  std::snprintf(place, sizeof place, "%d,%d=", row + 1, column + 1);
  draw_full_value(surface, place, {matrix.cells[row][column], 0.0});
}

}  // namespace

void paint_list_table(TSurface& surface) {
  const ListRecord& list = stores.lists[list_view.current_list];
  draw_lit_tab(surface, list_view.current_list, "LIST_ANS");
  draw_list_heading(surface, list);
  if (!list.defined) return;
  for (int line = 0; line < LIST_SCREEN_ROWS; ++line) draw_list_row(surface, list, line);
  draw_list_cursor(surface, list);
}

void paint_matrix_table(TSurface& surface) {
  const MatrixRecord& matrix = stores.matrices[matrix_view.current_matrix];
  draw_lit_tab(surface, matrix_view.current_matrix, "MATRIX_ANS");
  draw_matrix_heading(surface, matrix);
  if (!matrix.defined) return;
  draw_column_numbers(surface);
  for (int line = 0; line < MATRIX_SCREEN_ROWS; ++line) draw_matrix_row(surface, matrix, line);
  draw_matrix_cursor(surface, matrix);
}

}  // namespace zephyl
