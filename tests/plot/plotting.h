// The plot screen for tests: expressions into slots, a plot, the pen, and what is where on the picture.
#pragma once

#include <string>
#include <vector>

#include "platform/events.h"
#include "plot/plot.h"
#include "plot/plot_slots.h"
#include "support/calculator.h"

namespace zephyl {

class plotting : public calculator {
 protected:
  plotting();

  // The expression of a slot in the text form; "" empties it.
  static void put(int plot_type, int slot, const std::string& text);
  // Three expressions of a surface, 0 or 1.
  static void put_surface(int surface, const std::string& first, const std::string& second,
                          const std::string& third);
  static void choose(int plot_type, int plot_type_3d = PLOT_CARTESIAN);
  // Only curves: neither grid nor labels.
  static void without_grid() { plot_variables.displayGrid = 0; }

  // Draws the plot anew.
  static const TSurface& draw();

  // The rows of a column that have the colour, from the top; the columns of a row.
  static std::vector<int> rows_of(TColour colour, int column);
  static std::vector<int> columns_of(TColour colour, int row);
  static int count_of(TColour colour);
  // Pixels that aren't white.
  static int ink();

  // The pen on a pixel of the plot's picture.
  static void pen_down(int column, int row) { on_pen_down(PLOT_LEFT + column, PLOT_TOP + row); }
  static void pen_move(int column, int row) { on_pen_move(PLOT_LEFT + column, PLOT_TOP + row); }
  static void pen_up(int column, int row) { on_pen_up(PLOT_LEFT + column, PLOT_TOP + row); }
  static void pen_drag(TPoint from, TPoint to);
};

constexpr TColour BLUE = rgb(0, 0, 255);
constexpr TColour RED = rgb(255, 0, 0);
constexpr TColour GREEN = rgb(0, 0xD2, 0);
constexpr TColour PURPLE = rgb(255, 0, 255);
constexpr TColour GRID_GREY = rgb(0xD0, 0xD0, 0xD0);

bool same_picture(const TSurface& a, const TSurface& b);

}  // namespace zephyl
