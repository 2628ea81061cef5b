#include "platform/desktop/accessible/shown_keys.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "faceplate/hit_test.h"
#include "faceplate/key_names.h"
#include "faceplate/key_tables.h"

namespace zephyl {

namespace {

// Keys whose middles differ less in height stand in one line.
constexpr int SAME_LINE = 6;
// How much further a key counts that lies beside the way.
constexpr int BESIDE_THE_WAY = 3;

TPoint middle(const TRect& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }

int distance(int from, int to, int at) { return at < from ? from - at : std::max(at - to, 0); }

int distance(const TRect& rect, TPoint at) {
  return distance(rect.left, rect.right, at.x) + distance(rect.top, rect.bottom, at.y);
}

bool meets_key(int key, TPoint at) {
  KeyRect rect;
  return key_hit_test(at.x, at.y, -1, -1, rect) == key;
}

void sort_lines(std::vector<int>& keys) {
  std::stable_sort(keys.begin(), keys.end(),
                   [](int a, int b) { return middle(rect_of_key(a)).y < middle(rect_of_key(b)).y; });
  for (auto line = keys.begin(); line != keys.end();) {
    const int height = middle(rect_of_key(*line)).y;
    const auto end = std::find_if(
        line, keys.end(), [height](int key) { return middle(rect_of_key(key)).y - height >= SAME_LINE; });
    std::sort(line, end, [](int a, int b) { return rect_of_key(a).left < rect_of_key(b).left; });
    line = end;
  }
}

// How far a key is in a direction; 0 if it doesn't lie there.
int way_to(TPoint from, TPoint to, int dx, int dy) {
  const int along = (to.x - from.x) * dx + (to.y - from.y) * dy;
  const int beside = std::abs((to.x - from.x) * dy) + std::abs((to.y - from.y) * dx);
  return along >= SAME_LINE && beside <= 2 * along ? along + BESIDE_THE_WAY * beside : 0;
}

}  // namespace

std::vector<int> shown_keys() {
  std::vector<int> keys;
  const int count = shown_key_table().count;
  for (int key = 0; key < count; ++key)
    if (!key_name(key).empty()) keys.push_back(key);
  sort_lines(keys);
  return keys;
}

TRect rect_of_key(int key) {
  KeyRect rect;
  return key_rect(key, rect) ? rect.rect() : TRect();
}

bool point_of_key(int key, TPoint& at) {
  const TRect rect = rect_of_key(key);
  at = middle(rect);
  if (meets_key(key, at)) return true;
  for (at.y = rect.top; at.y <= rect.bottom; ++at.y)
    for (at.x = rect.left; at.x <= rect.right; ++at.x)
      if (meets_key(key, at)) return true;
  return false;
}

int nearest_key(TPoint at) {
  int nearest = -1, least = INT_MAX;
  for (const int key : shown_keys()) {
    const int away = distance(rect_of_key(key), at);
    if (away < least) nearest = key, least = away;
  }
  return nearest;
}

int key_towards(int key, int dx, int dy) {
  const TPoint from = middle(rect_of_key(key));
  int best = key, least = INT_MAX;
  for (const int other : shown_keys()) {
    const int way = way_to(from, middle(rect_of_key(other)), dx, dy);
    if (way > 0 && way < least) best = other, least = way;
  }
  return best;
}

}  // namespace zephyl
