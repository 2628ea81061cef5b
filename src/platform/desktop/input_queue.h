// What the user did, in order, until the calculator is ready for it. The window only puts in; the main loop
// takes out; a long evaluation looks in without taking, to see whether it is to be abandoned.
#pragma once

#include <deque>

#include "platform/geometry.h"

namespace zephyl {

enum TInputKind {
  INPUT_PEN_DOWN,
  INPUT_PEN_MOVE,
  INPUT_PEN_UP,
  INPUT_CHARACTER,
  INPUT_ARROW,
  INPUT_COPY,
  INPUT_PASTE,
  INPUT_OPEN,  // a file, which TDesktopPlatform knows
  INPUT_CLOSE,
};

struct TInput {
  TInputKind kind = INPUT_CLOSE;
  TPoint at = {};  // of the pen, in pixels of the picture
  int code = 0;    // a UTF-16 unit, or a TArrow
};

constexpr int ESCAPE_CHARACTER = 27;

class TInputQueue {
 public:
  // A move right behind a move takes its place.
  void push(const TInput& input);
  // Takes the oldest out; false if there is none.
  bool pop(TInput& input);
  bool empty() const { return inputs_.empty(); }

  // The oldest pen-down that waits. False if there is none.
  bool find_pen_down(TPoint& at) const;
  void remove_pen_down();
  // Escape or the wish to close waits.
  bool holds_cancel() const;

 private:
  std::deque<TInput> inputs_;
};

}  // namespace zephyl
