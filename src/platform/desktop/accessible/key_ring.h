// The ring around a key that the keyboard moves: Tab from key to key, arrows with Ctrl in their direction.
#pragma once

#include "platform/geometry.h"

namespace zephyl {

class TKeyRing {
 public:
  bool shows() const { return shows_; }
  void hide() { shows_ = false; }
  // The key that it is around; on another screen the one nearest to where it was. -1 if it doesn't show.
  int key() const;

  void go_to(int key);
  // The next key or the one before; around the end. Shows the ring where it was last, at first on the first
  // key.
  void step(bool forward);
  void move(int dx, int dy);

 private:
  bool shows_ = false;
  TPoint at_ = {-1, -1};  // the middle of its key; names the key on any screen
};

}  // namespace zephyl
