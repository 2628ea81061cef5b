// A calculator whose drawing layer is looked at pixel by pixel.
#pragma once

#include <string>
#include <vector>

#include "plot/drawing.h"
#include "plot/plot_mapping.h"
#include "support/calculator.h"

namespace zephyl {

class drawn : public calculator {
 protected:
  TColour at(int column, int row) { return drawing_bitmap().pixel(column, row); }
  bool ink(int column, int row) { return at(column, row) != WHITE; }
  // Pixels that aren't white.
  int ink_count();
  // The smallest rectangle with all of them; right below left where there is none.
  TRect ink_box();
  // A view in which a plot unit is a pixel: x from 0 to 225 is its column, y from 0 to 179 counts rows from
  // the bottom.
  void view_of_pixels();
  // The pixels of the layer, to compare two drawings.
  std::vector<TColour> pixels();
};

}  // namespace zephyl
