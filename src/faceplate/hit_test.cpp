#include "faceplate/hit_test.h"

#include "faceplate/typed_keys.h"

namespace zephyl {

namespace {

int key_at(int x, int y) {
  const TKeyTable table = shown_key_table();
  for (int key = 0; key < table.count; ++key)
    if (table.rows[key].rect().contains(x - table.dx, y - table.dy)) return key;
  return NO_KEY;
}

// A key of alpha entry carries the page it is on.
int row_of_key(int key) { return key % ALPHA_SHIFTED; }

}  // namespace

int key_hit_test(int x, int y, int character, int cursor_key, KeyRect& rect) {
  int key = typed_key(character, cursor_key);
  if (key == NO_KEY) key = key_at(x, y);
  if (key != NO_KEY) key_rect(row_of_key(key), rect);
  return key;
}

TTapKind tap_kind(int x, int y) {
  KeyRect rect;
  if (key_hit_test(x, y, -1, -1, rect) == NO_KEY) return TAP_NO_KEY;
  return rect.cancel_proof ? TAP_CANCEL_PROOF_KEY : TAP_KEY;
}

}  // namespace zephyl
