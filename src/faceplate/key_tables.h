// The seven key tables. A key's number is its row; the first row that holds a point wins, so the order
// counts. The numbers of `calculator_keys` are token codes at the same time.
#pragma once

#include "platform/geometry.h"

namespace zephyl {

// A row of a key table, inclusive on all four sides.
struct KeyRect {
  int left = 0;
  int top = 0;
  int right = -1;
  int bottom = -1;
  bool tap_through = false;   // works while a program stands at a pause, and leaves it standing
  bool cancel_proof = false;  // a tap on it doesn't cancel a long evaluation

  constexpr TRect rect() const { return {left, top, right, bottom}; }
};

// A table as it lies on the screen.
struct TKeyTable {
  const KeyRect* rows = nullptr;
  int count = 0;
  int dx = 0;  // added to both corners of each row
  int dy = 0;
};

extern const TKeyTable calculator_keys;  // BASE, COMP and STATS
extern const TKeyTable program_keys;
extern const TKeyTable plot_keys;
extern const TKeyTable plot_keys_3d;
extern const TKeyTable alpha_keys;
extern const TKeyTable periodic_keys;
extern const TKeyTable list_matrix_keys;

// The table of the screen that shows; empty for a mode without one.
TKeyTable shown_key_table();

// Row `key` of that table with its offsets; false if it has no such row.
bool key_rect(int key, KeyRect& rect);

}  // namespace zephyl
