#include "platform/desktop/accessible/key_ring.h"

#include <algorithm>
#include <vector>

#include "platform/desktop/accessible/shown_keys.h"

namespace zephyl {

int TKeyRing::key() const { return shows_ ? nearest_key(at_) : -1; }

void TKeyRing::go_to(int key) {
  TPoint at;
  if (!point_of_key(key, at)) return;
  shows_ = true;
  at_ = at;
}

void TKeyRing::step(bool forward) {
  const std::vector<int> keys = shown_keys();
  if (keys.empty()) return;
  const auto here = std::find(keys.begin(), keys.end(), at_.x < 0 ? -1 : nearest_key(at_));
  if (here == keys.end()) return go_to(forward ? keys.front() : keys.back());
  if (!shows_) return go_to(*here);
  if (forward)
    go_to(here + 1 == keys.end() ? keys.front() : here[1]);
  else
    go_to(here == keys.begin() ? keys.back() : here[-1]);
}

void TKeyRing::move(int dx, int dy) {
  if (!shows_) return step(true);
  go_to(key_towards(key(), dx, dy));
}

}  // namespace zephyl
