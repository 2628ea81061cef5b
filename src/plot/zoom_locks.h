// Which axes keep their range when the plot is zoomed in or out: the two lamps of the plot screen.
#pragma once

namespace zephyl {

struct TZoomLocks {
  bool x = false;
  bool y = false;
};
inline TZoomLocks zoom_locks;

}  // namespace zephyl
