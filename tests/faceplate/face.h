// The calculator as a person has it: keys tapped, characters typed, a picture looked at.
#pragma once

#include <string>
#include <vector>

#include "faceplate/key_tables.h"
#include "platform/events.h"
#include "platform/surface.h"
#include "support/calculator.h"

namespace zephyl {

class face : public calculator {
 protected:
  face();

  // Pen down and up on the centre of a key of the screen that shows; what asks to be painted is painted.
  void tap_key(int key);
  void tap_keys(const std::vector<int>& keys);
  void press_key_down(int key);
  void type(const std::string& characters);
  void arrow(TArrow arrow);

  // Composes the picture anew.
  static void paint();
  // What the whole picture, or a part of it, looks like.
  static std::vector<TColour> picture();
  static std::vector<TColour> pixels(const TRect& rect);

  std::string shifts() const;
};

// A rectangle of a key table by its row.
TRect rect_of(const TKeyTable& table, int key);

}  // namespace zephyl
