#include "plot/plot_labels.h"

#include <algorithm>
#include <iterator>

#include "engine/errors.h"
#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "plot/custom_function.h"
#include "plot/plot_grid.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"
#include "plot/small_numbers.h"

namespace zephyl {

namespace {

constexpr int LINE_HEIGHT = 9;
constexpr int FIRST_LINE = 2;
constexpr int DECIMALS = 10;

// The same word in the small font and as text.
struct TErrorWord {
  int code;
  const char* name;
  const char* text;
};

constexpr TErrorWord error_words[] = {
    {ERR_OVERFLOW, "SMALL_OVERFLOW", "Overflow"},
    {ERR_OVERFLOW_TOO, "SMALL_OVERFLOW", "Overflow"},
    {ERR_ZERO_DIVIDE, "SMALL_DIV_BY_ZERO", "Div by Zero"},
    {ERR_MATH, "SMALL_DOMAIN", "Domain"},
    {ERR_DOMAIN, "SMALL_DOMAIN", "Domain"},
    {ERR_SYNTAX, "SMALL_SYNTAX_ERROR", "Syntax"},
    {ERR_ARGUMENT_COUNT, "SMALL_SYNTAX_ERROR", "Syntax"},
    {ERR_PARENTHESIS_UNBALANCED, "SMALL_SYNTAX_ERROR", "Syntax"},
    {ERR_TO_HMS_NOT_LAST, "SMALL_SYNTAX_ERROR", "Syntax"},
    {ERR_NO_STATS_DATA, "SMALL_NO_DATA", "No Stats Data"},
    {ERR_NO_STATS_Y_DATA, "SMALL_NO_DATA", "No Stats y Data"},
    {ERR_DATA_TYPE, "SMALL_DATA_TYPE", "Data Type"},
    {ERR_ARGUMENT_TYPE, "SMALL_DATA_TYPE", "Data Type"},
    {ERR_NO_ROOT, "SMALL_NO_ROOT_FOUND", "No Root Found"},
    {ERR_NO_INTERSECTION, "SMALL_NO_INTERSECT_FOUND", "No Intersection Found"},
    {UNDEFINED_WITHOUT_ERROR, "SMALL_UNDEFINED", "Undefined"},
};

constexpr TErrorWord any_other_error = {-1, "SMALL_ERROR", "Error"};

const TErrorWord& error_word(int error_code) {
  const TErrorWord* word =
      std::find_if(std::begin(error_words), std::end(error_words),
                   [error_code](const TErrorWord& row) { return row.code == error_code; });
  return word != std::end(error_words) ? *word : any_other_error;
}

}  // namespace

const char* small_error_word(int error_code) { return error_word(error_code).name; }
const char* error_word_text(int error_code) { return error_word(error_code).text; }

int draw_small_word(TSurface& surface, const char* name, int left, int top) {
  const TBitmap* word = hooks.bitmap(name);
  if (!word) return left;
  surface.blit_glyph(*word, left, top);
  return left + word->width;
}

namespace {

int draw_plain_line(TSurface& surface, const char* name, double value, int left, int top) {
  left = draw_small_word(surface, name, left, top);
  if (value == undefined_value) return draw_small_word(surface, small_error_word(plot_error_code), left, top);
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, FORMAT_FLOAT, DECIMALS, false);
  return draw_small_number(surface, text, left, top, false, true);
}

// The ink of a line with a white edge around it, so that it can be read on grids and curves.
void lay_over(TSurface& surface, const TSurface& line, int width, int left, int top) {
  const auto is_ink = [&line](int x, int y) {
    return x >= 0 && y >= 0 && x < line.width() && y < line.height() && line.row(y)[x] == BLACK;
  };
  const auto near_ink = [&](int x, int y) { return is_ink(x, y - 1) || is_ink(x, y) || is_ink(x, y + 1); };
  for (int y = -1; y <= LINE_HEIGHT; ++y)
    for (int x = -1; x <= width; ++x) {
      if (is_ink(x, y))
        surface.set_pixel(left + x, top + y, BLACK);
      else if (near_ink(x - 1, y) || near_ink(x, y) || near_ink(x + 1, y))
        surface.set_pixel(left + x, top + y, WHITE);
    }
}

TSurface& empty_line() {
  static TSurface line(PLOT_WIDTH, LINE_HEIGHT);
  line.fill({0, 0, PLOT_WIDTH - 1, LINE_HEIGHT - 1}, WHITE);
  return line;
}

}  // namespace

int draw_small_line(TSurface& surface, const char* name, double value, int left, int top) {
  TSurface& line = empty_line();
  const int width = draw_plain_line(line, name, value, 0, 0);
  lay_over(surface, line, width, left, top);
  return left + width;
}

void draw_small_heading(TSurface& surface, const char* name, int left, int top) {
  TSurface& line = empty_line();
  lay_over(surface, line, draw_small_word(line, name, 0, 0), left, top);
}

void draw_view_labels(TSurface& surface) {
  const TPlotVariables& view = plot_variables;
  const struct {
    const char* name;
    double value;
  } lines[] = {{"SMALL_XMIN", view.xMin},
               {"SMALL_XMAX", view.xMax},
               {"SMALL_YMIN", view.yMin},
               {"SMALL_YMAX", view.yMax},
               {"SMALL_XDIV", grid_spacing(view.xMax - view.xMin)},
               {"SMALL_YDIV", grid_spacing(view.yMax - view.yMin)}};
  if (!view.displayGrid) return;
  const int count = view.plotType == PLOT_3D ? 4 : 6;
  for (int i = 0; i < count; ++i)
    draw_small_line(surface, lines[i].name, lines[i].value, LABEL_LEFT, FIRST_LINE + LINE_HEIGHT * i);
}

}  // namespace zephyl
