// From a tap, a typed character or a cursor key to a key number.
#pragma once

#include "engine/hooks.h"
#include "faceplate/key_tables.h"

namespace zephyl {

// The number of the key, NO_KEY (typed_keys.h) for none. A tap passes -1 for character and cursor_key; a
// character passes coordinates 0 and cursor_key -1; a cursor key (a TArrow) passes coordinates 0 and
// character -1. rect: the key's row with its offsets, untouched where there is no key.
int key_hit_test(int x, int y, int character, int cursor_key, KeyRect& rect);

// For the poll of a long evaluation: what a tap at this point would be.
TTapKind tap_kind(int x, int y);

}  // namespace zephyl
