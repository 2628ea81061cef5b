// The look of a key while the pen is on it: its inside moves one pixel up and left.
#pragma once

#include "platform/geometry.h"

namespace zephyl {

// Draws the key pressed and remembers what was there. A rectangle too small for an inside is left alone.
void press_key_feedback(const TRect& rect);

// Puts back what was there. Nothing if no key is pressed.
void release_key_feedback();

// Lifts the pressed key while `area` is painted, if it lies there, and presses it again afterwards: what is
// painted must stay when the pen goes up.
class TKeyLifted {
 public:
  explicit TKeyLifted(const TRect& area);
  ~TKeyLifted();
  TKeyLifted(const TKeyLifted&) = delete;
  TKeyLifted& operator=(const TKeyLifted&) = delete;

 private:
  bool lifted_;
  TRect key_;
};

// Forgets the pressed key: the whole picture is about to be painted, or the calculator stops.
void forget_key_feedback();

}  // namespace zephyl
