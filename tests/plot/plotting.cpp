#include "plot/plotting.h"

#include <algorithm>

#include "engine/state.h"
#include "engine/text_form.h"

namespace zephyl {

plotting::plotting() { state.calcMode = PLOT_MODE; }

void plotting::put(int plot_type, int slot, const std::string& text) {
  char error[200] = "";
  TExpression& expression = plot_slot(plot_type, slot);
  expression = {};
  const bool read = text.empty() || text_to_tokens(text.c_str(), expression, error, sizeof error);
  ASSERT_TRUE(read) << error;
}

void plotting::put_surface(int surface, const std::string& first, const std::string& second,
                           const std::string& third) {
  put(PLOT_3D, 3 * surface, first);
  put(PLOT_3D, 3 * surface + 1, second);
  put(PLOT_3D, 3 * surface + 2, third);
}

void plotting::choose(int plot_type, int plot_type_3d) {
  set_plot_type(plot_type);
  plot_variables.plotType3D = plot_type_3d;
}

const TSurface& plotting::draw() {
  request_plot();
  return shown_plot();
}

std::vector<int> plotting::rows_of(TColour colour, int column) {
  std::vector<int> rows;
  for (int row = 0; row < PLOT_HEIGHT; ++row)
    if (shown_plot().pixel(column, row) == colour) rows.push_back(row);
  return rows;
}

std::vector<int> plotting::columns_of(TColour colour, int row) {
  std::vector<int> columns;
  for (int column = 0; column < PLOT_WIDTH; ++column)
    if (shown_plot().pixel(column, row) == colour) columns.push_back(column);
  return columns;
}

int plotting::count_of(TColour colour) {
  const TSurface& plot = shown_plot();
  return static_cast<int>(std::count(plot.pixels(), plot.pixels() + PLOT_WIDTH * PLOT_HEIGHT, colour));
}

int plotting::ink() { return PLOT_WIDTH * PLOT_HEIGHT - count_of(WHITE); }

void plotting::pen_drag(TPoint from, TPoint to) {
  pen_down(from.x, from.y);
  pen_move((from.x + to.x) / 2, (from.y + to.y) / 2);
  pen_move(to.x, to.y);
  pen_up(to.x, to.y);
}

bool same_picture(const TSurface& a, const TSurface& b) {
  return std::equal(a.pixels(), a.pixels() + a.width() * a.height(), b.pixels());
}

}  // namespace zephyl
